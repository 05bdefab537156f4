#include "vxutil/platform/RApplication.h"

#include <atomic>
#include <utility>

#include "platform/application/ApplicationProfile.h"

namespace {
std::atomic<RApplication*> g_current{nullptr};

bool IsUsable(const char* text) {
    return text != nullptr && *text != '\0';
}
}  // namespace

RApplication::RApplication(std::string appName, std::string profileName)
    : m_strAppName(std::move(appName)), m_strProfileName(std::move(profileName)) {}

RApplication::~RApplication() {
    // An application object that dies while current must not be left behind as a dangling one.
    RApplication* self = this;
    g_current.compare_exchange_strong(self, nullptr);
}

RApplication* RApplication::Current() {
    return g_current.load();
}

RApplication* RApplication::SetCurrent(RApplication* app) {
    return g_current.exchange(app);
}

std::string RApplication::GetProfileLocation() const {
    return m_strProfileName.empty() ? std::string() : vx::app_profile::Location(m_strProfileName);
}

unsigned int RApplication::GetProfileInt(const char* section, const char* entry, int def) const {
    if (m_strProfileName.empty() || !IsUsable(section) || !IsUsable(entry))
        return static_cast<unsigned int>(def);
    return vx::app_profile::GetInt(m_strProfileName, section, entry, def);
}

bool RApplication::WriteProfileInt(const char* section, const char* entry, int value) {
    return !m_strProfileName.empty() && IsUsable(section) && IsUsable(entry) &&
           vx::app_profile::WriteInt(m_strProfileName, section, entry, value);
}

CGNString RApplication::GetProfileString(const char* section, const char* entry,
                                         const char* def) const {
    if (def == nullptr) def = "";
    if (m_strProfileName.empty() || !IsUsable(section) || !IsUsable(entry)) return CGNString(def);
    return CGNString(vx::app_profile::GetString(m_strProfileName, section, entry, def));
}

bool RApplication::WriteProfileString(const char* section, const char* entry, const char* value) {
    return !m_strProfileName.empty() && IsUsable(section) &&
           vx::app_profile::WriteString(m_strProfileName, section, entry, value);
}
