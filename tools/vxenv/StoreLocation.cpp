#include "StoreLocation.h"

#include <filesystem>

#include "vxutil/appenv/SettingsLayout.h"
#include "vxutil/gnrt/OSConfigReg.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vxenv {
namespace {
constexpr std::string_view kCurrentUser = "HKEY_CURRENT_USER\\";
}

std::string SystemConfigLocation() {
#ifdef _WIN32
    return vx::SystemConfigLocation() + "\\" + vx::kUsersKeyRoot + "\\" + vx::kUsersKeyPath;
#else
    return vx::SystemConfigLocation();
#endif
}

bool StoreExists(const std::string& location) {
#ifdef _WIN32
    if (location.starts_with(kCurrentUser)) {
        HKEY key = nullptr;
        std::string path = location.substr(kCurrentUser.size());
        if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
            return false;
        RegCloseKey(key);
        return true;
    }
#endif
    std::error_code error;
    return std::filesystem::exists(location, error);
}

}  // namespace vxenv
