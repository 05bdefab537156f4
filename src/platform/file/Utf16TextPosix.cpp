#include "platform/file/Utf16Text.h"

#include <cstdint>

namespace vx {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendUtf8(std::string& out, char32_t code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (code >> 18));
        out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

void AppendUtf16(std::u16string& out, char32_t code) {
    if (code < 0x10000) {
        out += static_cast<char16_t>(code);
    } else {
        code -= 0x10000;
        out += static_cast<char16_t>(0xD800 | (code >> 10));
        out += static_cast<char16_t>(0xDC00 | (code & 0x3FF));
    }
}

// Decodes one UTF-8 sequence at `pos`, advancing it; a malformed, overlong or truncated
// sequence yields the replacement character and consumes one byte.
char32_t NextCodePoint(std::string_view text, std::size_t& pos) {
    const auto lead = static_cast<unsigned char>(text[pos]);
    std::size_t length = 1;
    char32_t code = lead;
    char32_t minimum = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, code = lead & 0x1F, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, code = lead & 0x0F, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, code = lead & 0x07, minimum = 0x10000;
    } else if (lead >= 0x80) {
        ++pos;
        return kReplacement;
    }
    if (pos + length > text.size()) {
        ++pos;
        return kReplacement;
    }
    for (std::size_t i = 1; i < length; ++i) {
        const auto trail = static_cast<unsigned char>(text[pos + i]);
        if ((trail & 0xC0) != 0x80) {
            ++pos;
            return kReplacement;
        }
        code = (code << 6) | (trail & 0x3F);
    }
    if (code < minimum || code > 0x10FFFF || IsHighSurrogate(code) || IsLowSurrogate(code)) {
        ++pos;
        return kReplacement;
    }
    pos += length;
    return code;
}

}  // namespace

std::string Utf16ToClient(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (IsHighSurrogate(code) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            ++i;
        } else if (IsHighSurrogate(code) || IsLowSurrogate(code)) {
            code = kReplacement;
        }
        AppendUtf8(out, code);
    }
    return out;
}

std::u16string ClientToUtf16(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();)
        AppendUtf16(out, NextCodePoint(text, pos));
    return out;
}

}  // namespace vx
