#include "platform/profile/ProfileResult.h"

#include <algorithm>
#include <cstring>

namespace vx {
namespace {

// The value of a digit in any base up to 36; 36 for anything else.
unsigned int DigitValue(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned int>(c - '0');
    if (c >= 'a' && c <= 'z') return static_cast<unsigned int>(c - 'a' + 10);
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned int>(c - 'A' + 10);
    return 36;
}

}  // namespace

std::string JoinProfileNames(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names) {
        joined += name;
        joined += '\0';
    }
    return joined;
}

unsigned long CopyProfileValue(std::string_view value, char* buffer, unsigned long size) {
    if (!buffer || size == 0) return 0;
    const std::size_t count = std::min<std::size_t>(value.size(), size - 1);
    std::memcpy(buffer, value.data(), count);
    buffer[count] = '\0';
    return static_cast<unsigned long>(count);
}

unsigned long CopyProfileList(std::string_view names, char* buffer, unsigned long size) {
    if (!buffer || size == 0) return 0;
    // Windows keeps the closing zero out of a buffer that the list fills exactly, and cuts it.
    if (names.size() + 2 <= size) {
        std::memcpy(buffer, names.data(), names.size());
        buffer[names.size()] = '\0';
        return static_cast<unsigned long>(names.size());
    }
    if (size < 2) {
        buffer[0] = '\0';
        return 0;
    }
    std::memcpy(buffer, names.data(), size - 2);
    buffer[size - 2] = '\0';
    buffer[size - 1] = '\0';
    return size - 2;
}

std::string_view ProfileDefault(const char* def) {
    std::string_view text = def ? def : "";
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

unsigned int ParseProfileInt(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && static_cast<unsigned char>(text[at]) <= ' ')
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) negative = text[at++] == '-';
    // The prefixes are lower case only, as the Windows number reader knows them.
    const char prefix = at + 1 < text.size() && text[at] == '0' ? text[at + 1] : '\0';
    const unsigned int base = prefix == 'x' ? 16 : prefix == 'o' ? 8 : prefix == 'b' ? 2 : 10;
    if (base != 10) at += 2;
    unsigned int value = 0;  // unsigned arithmetic wraps modulo 2^32, as the Windows reader does
    for (; at < text.size(); ++at) {
        const unsigned int digit = DigitValue(text[at]);
        if (digit >= base) break;
        value = value * base + digit;
    }
    return negative ? 0u - value : value;
}

}  // namespace vx
