#include "vxutil/runtime/RTrace.h"

#include <atomic>
#include <cstdio>
#include <ctime>

#include "vxutil/platform/RApplication.h"

namespace {

constexpr const char* kLevelEntry = "Level";

// The application whose profile holds the trace, or null when there is none to write to.
RApplication* ProfileOwner() {
    RApplication* app = RApplication::Current();
    return app != nullptr && !app->GetProfileName().empty() ? app : nullptr;
}

std::string EntryName(int number) {
    char name[16];
    std::snprintf(name, sizeof name, "%i", number);
    return name;
}

std::string LocalTimeText() {
    std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    char text[128];
    std::size_t length = std::strftime(text, sizeof text, "%c", &local);
    return std::string(text, length);
}

}  // namespace

RTrace::RTrace(int clearPending, unsigned long level, const char* section, const char* switchEntry,
               int startNumber)
    : m_bClearPending(clearPending),
      m_nLevel(level),
      m_strSection(section != nullptr ? section : ""),
      m_strSwitchEntry(switchEntry != nullptr ? switchEntry : ""),
      m_strTimestampEntry("Timestamp" + EntryName(startNumber)),
      m_nStart(startNumber),
      m_nNext(startNumber) {}

RTrace::~RTrace() = default;

int RTrace::IsTracing() const {
    if (m_strSection.empty() || m_strSwitchEntry.empty()) return 0;
    RApplication* app = ProfileOwner();
    if (app == nullptr) return 0;
    // Read at every entry so that support staff can switch tracing while the tool runs.
    int value =
        static_cast<int>(app->GetProfileInt(m_strSection.c_str(), m_strSwitchEntry.c_str(), 0));
    return value > 0 ? 1 : 0;
}

bool RTrace::BeginEntry(unsigned long level) {
    if (!IsTracing() || IsTraceLevel(level) == 0 || ProfileOwner() == nullptr) return false;
    if (m_bClearPending) {
        Clear();
        m_bClearPending = 0;
    }
    // The level check above used the mask of the previous run: the entry that opens a run is
    // written even when the run's "Level" turns out to mask it.
    if (m_nNext <= m_nStart) SetTimestamp();
    return true;
}

std::string RTrace::NextEntryName() {
    return EntryName(m_nNext++);
}

int RTrace::Trace(const char* text, unsigned long level) {
    if (text == nullptr || !BeginEntry(level)) return 0;
    RApplication* app = ProfileOwner();
    return app->WriteProfileString(m_strSection.c_str(), NextEntryName().c_str(), text) ? 1 : 0;
}

int RTrace::Trace(int value, unsigned long level) {
    if (!BeginEntry(level)) return 0;
    RApplication* app = ProfileOwner();
    return app->WriteProfileInt(m_strSection.c_str(), NextEntryName().c_str(), value) ? 1 : 0;
}

void RTrace::SetTimestamp() {
    RApplication* app = ProfileOwner();
    if (m_strTimestampEntry.empty() || app == nullptr) return;
    app->WriteProfileString(m_strSection.c_str(), m_strTimestampEntry.c_str(),
                            LocalTimeText().c_str());
    m_nLevel = GetStoredLevel();
}

int RTrace::WriteSwitch(int value) {
    RApplication* app = ProfileOwner();
    if (m_strSection.empty() || m_strSwitchEntry.empty() || app == nullptr) return 0;
    return app->WriteProfileInt(m_strSection.c_str(), m_strSwitchEntry.c_str(), value) ? 1 : 0;
}

int RTrace::WriteStoredLevel(unsigned long level) {
    RApplication* app = ProfileOwner();
    if (m_strSection.empty() || app == nullptr) return 0;
    return app->WriteProfileInt(m_strSection.c_str(), kLevelEntry, static_cast<int>(level)) ? 1 : 0;
}

unsigned long RTrace::GetStoredLevel() const {
    const RApplication* app = ProfileOwner();
    if (m_strSection.empty() || app == nullptr) return m_nLevel;
    return app->GetProfileInt(m_strSection.c_str(), kLevelEntry, static_cast<int>(m_nLevel));
}

void RTrace::Clear() {
    RApplication* app = ProfileOwner();
    if (m_strSection.empty() || m_strSwitchEntry.empty() || app == nullptr) return;
    const char* section = m_strSection.c_str();
    for (int number = m_nStart;; ++number) {
        std::string name = EntryName(number);
        if (app->GetProfileString(section, name.c_str(), "").IsEmpty()) break;
        if (!app->WriteProfileString(section, name.c_str(), nullptr)) break;
    }
    app->WriteProfileString(section, m_strTimestampEntry.c_str(), nullptr);
    m_nNext = m_nStart;
}

namespace {
// Module start-up creates the module-wide trace and withdraws it at unload.
std::atomic<RTrace*> g_moduleTrace{nullptr};
}  // namespace

RTrace* RTrace::Module() {
    return g_moduleTrace.load();
}

RTrace* RTrace::SetModule(RTrace* trace) {
    return g_moduleTrace.exchange(trace);
}
