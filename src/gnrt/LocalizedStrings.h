// The hook through which module start-up puts the attached localized resources in front of the
// built-in string table.
#pragma once

#include <string>

namespace vx {

// Sets `text` to the localized text of string `id`; false when the localized resources have none.
using LocalizedStringLookup = bool (*)(unsigned id, std::string& text);

// Makes OSLoadString ask `lookup` first (null: built-in texts only); returns the previous lookup.
LocalizedStringLookup SetLocalizedStringLookup(LocalizedStringLookup lookup);

}  // namespace vx
