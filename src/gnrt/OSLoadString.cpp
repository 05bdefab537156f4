#include "vxutil/gnrt/OSLoadString.h"

#include <atomic>

#include "gnrt/LocalizedStrings.h"
#include "gnrt/StringTable.h"

namespace vx {
namespace {
std::atomic<LocalizedStringLookup> g_localizedLookup{nullptr};
}  // namespace

LocalizedStringLookup SetLocalizedStringLookup(LocalizedStringLookup lookup) {
    return g_localizedLookup.exchange(lookup);
}

}  // namespace vx

int OSLoadString(unsigned int id, CGNString& out) {
    std::string localized;
    vx::LocalizedStringLookup lookup = vx::g_localizedLookup.load();
    if (lookup != nullptr && lookup(id, localized)) {
        out = CGNString(std::move(localized));
    } else {
        out = vx::BuiltInString(id);  // null empties the string
    }
    return static_cast<int>(out.GetLength());
}
