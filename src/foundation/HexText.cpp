#include "foundation/HexText.h"

namespace vx::hex {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

// The value of a hexadecimal digit, or -1.
int DigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

void Append(std::string& out, const unsigned char* bytes, std::size_t length) {
    const std::size_t start = out.size();
    out.resize(start + 2 * length);
    char* digit = out.data() + start;
    for (std::size_t i = 0; i < length; ++i) {
        *digit++ = kDigits[bytes[i] >> 4];
        *digit++ = kDigits[bytes[i] & 0x0F];
    }
}

std::size_t DigitRun(const char* text) {
    std::size_t run = 0;
    while (DigitValue(text[run]) >= 0)
        ++run;
    return run;
}

void Decode(const char* text, unsigned char* bytes, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        bytes[i] =
            static_cast<unsigned char>(DigitValue(text[2 * i]) << 4 | DigitValue(text[2 * i + 1]));
    }
}

}  // namespace vx::hex
