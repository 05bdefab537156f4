// SQL pattern matching for the " LIKE " operator, by characters of the client's character set
// and case-sensitive: "%" matches any run of characters (none too), "_" one character,
// "[abc]" one of the set, "[^abc]" one character not in it, "[a-z]" one in the range. A "["
// without its "]" is an ordinary character.
#pragma once

#include <string_view>

namespace vx::qualifier {

bool MatchesLike(std::string_view text, std::string_view pattern);

}  // namespace vx::qualifier
