// Profile files on Windows: the system's own private profile functions.
#include "vxutil/platform/ProfileFile.h"

#include <windows.h>

#include <cstring>

#include "platform/file/Folders.h"
#include "platform/file/StoreFailure.h"
#include "platform/profile/ProfileEdit.h"
#include "vxutil/platform/SettingsHome.h"

namespace vx {
namespace {

std::string PathOf(const char* file) {
    return ResolveSettingsFile(file ? file : "");
}

}  // namespace

unsigned long ProfileGetString(const char* section, const char* key, const char* def, char* buffer,
                               unsigned long size, const char* file) {
    if (!buffer || size == 0) return 0;
    return ::GetPrivateProfileStringA(section, key, def, buffer, size, PathOf(file).c_str());
}

std::string ProfileGetString(const char* section, const char* key, const char* def,
                             const char* file) {
    // A result that fills the buffer may have been cut: read again into a larger one.
    const unsigned long reserve = section && key ? 1 : 2;
    std::string text(256, '\0');
    for (;;) {
        const unsigned long size = static_cast<unsigned long>(text.size());
        const unsigned long got = ProfileGetString(section, key, def, text.data(), size, file);
        if (got + reserve < size || size >= (1ul << 28)) {
            text.resize(got);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

unsigned int ProfileGetInt(const char* section, const char* key, int def, const char* file) {
    return ::GetPrivateProfileIntA(section, key, def, PathOf(file).c_str());
}

bool ProfileWriteString(const char* section, const char* key, const char* value, const char* file) {
    const std::string path = PathOf(file);
    // The settings home may not exist yet; no other folder is made, as the system function
    // makes none.
    if (section) CreateSettingsHomeFor(path);
    // A line break would write a second line that reads back as something else.
    if (value && std::strpbrk(value, "\r\n"))
        return StoreFailure(path, "a value holds a line break");
    return ::WritePrivateProfileStringA(section, key, value, path.c_str()) != FALSE ||
           StoreFailure(path, LastSystemErrorText());
}

bool ProfileWriteValues(const char* section, std::initializer_list<ProfileKeyValue> values,
                        const char* file) {
    for (const ProfileKeyValue& entry : values)
        if (!ProfileWriteString(section, entry.key, entry.value, file)) return false;
    return true;
}

}  // namespace vx
