#include "foundation/HexText.h"

#include <array>

namespace vx::hex {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

// The value of every byte read as a hexadecimal digit of either case, or -1.
constexpr auto kValues = [] {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 10; ++i)
        values['0' + i] = static_cast<signed char>(i);
    for (int i = 0; i < 6; ++i) {
        values['a' + i] = static_cast<signed char>(10 + i);
        values['A' + i] = static_cast<signed char>(10 + i);
    }
    return values;
}();

int DigitValue(char c) {
    return kValues[static_cast<unsigned char>(c)];
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
