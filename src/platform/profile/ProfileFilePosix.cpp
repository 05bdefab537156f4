// The profile file engine of POSIX systems: the Windows private profile functions rebuilt on
// the profile document, the process-wide cache and the safe file writer.
#include "vxutil/platform/ProfileFile.h"

#include "platform/profile/ProfileCache.h"
#include "platform/profile/ProfileDocument.h"
#include "platform/profile/ProfileResult.h"
#include "vxutil/platform/SafeFile.h"
#include "vxutil/platform/SettingsHome.h"

namespace vx {
namespace {

struct Answer {
    std::string text;  // a value, or names each followed by a zero
    bool isList = false;
};

Answer Look(const char* section, const char* key, const char* def, const char* file) {
    const auto document = ProfileCache::Instance().Get(ResolveSettingsFile(file ? file : ""));
    if (!section) return {JoinProfileNames(document->SectionNames()), true};
    if (!key) {
        // A section without keys, or none at all, gives the default as Windows does.
        const auto names = document->KeyNames(section);
        if (!names.empty()) return {JoinProfileNames(names), true};
    } else if (auto value = document->Find(section, key)) {
        return {std::move(*value), false};
    }
    return {std::string(ProfileDefault(def)), false};
}

// The one change a write makes; false when it leaves the document as it was.
bool Apply(ProfileDocument& document, const char* section, const char* key, const char* value) {
    if (!key) return document.RemoveSection(section);
    if (!value) return document.RemoveKey(section, key);
    return document.SetValue(section, key, value);
}

}  // namespace

unsigned long ProfileGetString(const char* section, const char* key, const char* def, char* buffer,
                               unsigned long size, const char* file) {
    if (!buffer || size == 0) return 0;
    const Answer answer = Look(section, key, def, file);
    return answer.isList ? CopyProfileList(answer.text, buffer, size)
                         : CopyProfileValue(answer.text, buffer, size);
}

std::string ProfileGetString(const char* section, const char* key, const char* def,
                             const char* file) {
    return Look(section, key, def, file).text;
}

unsigned int ProfileGetInt(const char* section, const char* key, int def, const char* file) {
    const std::string text = Look(section, key, "", file).text;
    return text.empty() ? static_cast<unsigned int>(def) : ParseProfileInt(text);
}

bool ProfileWriteString(const char* section, const char* key, const char* value, const char* file) {
    // With every argument null the Windows function flushes its cache; ours has nothing
    // unwritten.
    if (!section) return !key && !value;
    if (!ProfileDocument::CanStore(section, key ? key : "", value ? value : "")) return false;
    const std::string path = ResolveSettingsFile(file ? file : "");
    bool tooLarge = false;
    const bool written = UpdateFile(
        path,
        [&](std::string& content) {
            tooLarge = content.size() > kMaxProfileBytes;
            if (tooLarge) return false;
            ProfileDocument document = ProfileDocument::Parse(content);
            if (!Apply(document, section, key, value)) return false;
            content = document.Serialize();
            return true;
        },
        FileAccess::OwnerOnly);
    ProfileCache::Instance().Forget(path);
    return written && !tooLarge;
}

}  // namespace vx
