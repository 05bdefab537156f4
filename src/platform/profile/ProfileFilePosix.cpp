// The profile file engine of POSIX systems: the Windows private profile functions rebuilt on
// the profile document and the settings store.
#include "platform/file/SettingsStore.h"
#include "platform/profile/ProfileDocument.h"
#include "platform/profile/ProfileEdit.h"
#include "platform/profile/ProfileResult.h"
#include "vxutil/platform/ProfileFile.h"
#include "vxutil/platform/SettingsHome.h"

namespace vx {
namespace {

struct Answer {
    std::string text;  // a value, or names each followed by a zero
    bool isList = false;
};

Answer Look(const char* section, const char* key, const char* def, const char* file) {
    static const ProfileDocument kEmpty;
    const auto parsed = store::Read<ProfileDocument>(ResolveSettingsFile(file ? file : ""));
    // An unreadable file reads as an empty one, as with the Windows functions.
    const ProfileDocument* document = parsed ? parsed.get() : &kEmpty;
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

// The change of one key; false when it leaves the document as it was.
bool Apply(ProfileDocument& document, const char* section, const char* key, const char* value) {
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
    if (!key) {
        return store::Edit<ProfileDocument>(
            ResolveSettingsFile(file ? file : ""), FileAccess::OwnerOnly,
            [&](ProfileDocument& document) { return document.RemoveSection(section); });
    }
    return ProfileWriteValues(section, {{key, value}}, file);
}

bool ProfileWriteValues(const char* section, std::initializer_list<ProfileKeyValue> values,
                        const char* file) {
    const std::string path = ResolveSettingsFile(file ? file : "");
    for (const ProfileKeyValue& entry : values)
        if (!ProfileDocument::CanStore(section, entry.key, entry.value ? entry.value : ""))
            return StoreFailure(path, "a name or value holds a line break or cannot be a key");
    return store::Edit<ProfileDocument>(
        path, FileAccess::OwnerOnly, [&](ProfileDocument& document) {
            bool changed = false;
            for (const ProfileKeyValue& entry : values)
                changed = Apply(document, section, entry.key, entry.value) || changed;
            return changed;
        });
}

}  // namespace vx
