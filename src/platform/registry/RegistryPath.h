// Key paths and names of the registry: components separated by single backslashes, compared
// without regard to case. Only ASCII letters are folded; other characters compare exactly.
#pragma once

#include <string>
#include <string_view>

namespace vx::registry {

// Drops empty components, so that "SOFTWARE\\Korvel\" and "SOFTWARE\Korvel" name one key.
std::string NormalizeKeyPath(std::string_view path);

// The form under which a name or a normalized key path is compared.
std::string FoldCase(std::string_view text);

// Whether `text` folds to `folded`, without making the folded copy.
bool FoldsTo(std::string_view text, std::string_view folded);

// Whether the folded key `key` is `ancestor` itself or lies below it.
bool IsSameOrBelow(std::string_view key, std::string_view ancestor);

}  // namespace vx::registry
