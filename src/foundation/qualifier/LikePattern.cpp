#include "foundation/qualifier/LikePattern.h"

#include <vector>

#include "gnrt/MultiByte.h"

namespace vx::qualifier {
namespace {

// The characters of `text`, each as its bytes.
std::vector<std::string_view> Characters(std::string_view text) {
    std::vector<std::string_view> characters;
    while (!text.empty()) {
        std::size_t length = vx::mb::CharLength(text.data(), text.size());
        if (length == 0) length = 1;
        characters.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return characters;
}

struct Token {
    enum Kind { kAnyRun, kOne, kSet, kLiteral } kind = kLiteral;
    std::string_view literal;
    bool negated = false;
    std::vector<std::pair<std::string_view, std::string_view>> ranges;  // single: first == last

    bool Matches(std::string_view c) const {
        if (kind == kOne) return true;
        if (kind == kLiteral) return c == literal;
        bool inSet = false;
        for (const auto& [first, last] : ranges)
            inSet = inSet || (first <= c && c <= last);
        return inSet != negated;
    }
};

std::vector<Token> Tokens(std::string_view pattern) {
    const std::vector<std::string_view> characters = Characters(pattern);
    std::vector<Token> tokens;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        Token token;
        const std::string_view c = characters[i];
        std::size_t close = i + 1;
        if (c == "[") {
            while (close < characters.size() && characters[close] != "]")
                ++close;
        }
        if (c == "%") {
            token.kind = Token::kAnyRun;
        } else if (c == "_") {
            token.kind = Token::kOne;
        } else if (c == "[" && close < characters.size()) {
            token.kind = Token::kSet;
            std::size_t j = i + 1;
            if (j < close && characters[j] == "^") {
                token.negated = true;
                ++j;
            }
            for (; j < close; ++j) {
                if (j + 2 < close && characters[j + 1] == "-") {
                    token.ranges.emplace_back(characters[j], characters[j + 2]);
                    j += 2;
                } else {
                    token.ranges.emplace_back(characters[j], characters[j]);
                }
            }
            i = close;
        } else {
            token.literal = c;
        }
        tokens.push_back(token);
    }
    return tokens;
}

}  // namespace

// Greedy matching that returns to the last "%" on a mismatch: linear in practice, and never
// worse than text length times pattern length.
bool MatchesLike(std::string_view text, std::string_view pattern) {
    const std::vector<std::string_view> characters = Characters(text);
    const std::vector<Token> tokens = Tokens(pattern);
    std::size_t t = 0, p = 0, starToken = tokens.size(), starText = 0;
    while (t < characters.size()) {
        if (p < tokens.size() && tokens[p].kind == Token::kAnyRun) {
            starToken = p++;
            starText = t;
        } else if (p < tokens.size() && tokens[p].Matches(characters[t])) {
            ++p;
            ++t;
        } else if (starToken < tokens.size()) {
            p = starToken + 1;
            t = ++starText;
        } else {
            return false;
        }
    }
    while (p < tokens.size() && tokens[p].kind == Token::kAnyRun)
        ++p;
    return p == tokens.size();
}

}  // namespace vx::qualifier
