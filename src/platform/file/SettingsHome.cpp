#include "vxutil/platform/SettingsHome.h"

#include <cstdlib>
#include <vector>

#include "platform/file/Folders.h"
#include "vxutil/gnrt/FilePath.h"

#ifndef _WIN32
#include <pwd.h>
#include <unistd.h>
#endif

namespace vx {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

#ifdef _WIN32
// Where Windows itself looks for a profile file named without a folder.
std::string DefaultHome() {
    return Environment("WINDIR");
}
#else
std::string UserHomeFolder() {
    std::string home = Environment("HOME");
    if (!home.empty()) return home;
    std::vector<char> scratch(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, scratch.data(), scratch.size(), &found) == 0 && found &&
        found->pw_dir)
        return found->pw_dir;
    return "";
}

std::string DefaultHome() {
    // The XDG base directory rules say a relative $XDG_CONFIG_HOME is to be ignored.
    const std::string xdg = Environment("XDG_CONFIG_HOME");
    if (!xdg.empty() && xdg[0] == '/') return xdg + "/korvel";
    const std::string home = UserHomeFolder();
    return home.empty() ? "" : home + "/.config/korvel";
}
#endif

std::string WithoutTrailingSeparators(std::string path) {
    while (path.size() > 1 && IsPathSeparator(path.back()))
        path.pop_back();
    return path;
}

// A name without any folder part: neither a separator nor, on Windows, a drive.
bool IsBareName(const std::string& name) {
    for (char c : name)
        if (IsPathSeparator(c)) return false;
#ifdef _WIN32
    if (name.size() >= 2 && name[1] == ':') return false;
#endif
    return true;
}

}  // namespace

std::string SettingsHome() {
    std::string home = Environment("VX_CONFIG_HOME");
    if (home.empty()) home = DefaultHome();
    return WithoutTrailingSeparators(std::move(home));
}

bool EnsureSettingsHome() {
    const std::string home = SettingsHome();
    return !home.empty() && CreateFolderTree(home);
}

std::string ResolveSettingsFile(const std::string& name) {
    if (name.empty()) return "";
    if (!IsBareName(name)) return name;
    const std::string home = SettingsHome();
    if (home.empty()) return "";
    return MakeFilePath(home.c_str(), name.c_str()).str();
}

void CreateSettingsHomeFor(const std::string& file) {
    const std::string home = SettingsHome();
    if (!home.empty() && ParentFolder(file) == home) CreateFolderTree(home);
}

}  // namespace vx
