#include <cstdlib>

#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUtils.h"

namespace {

int HexDigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

int RHexToInt(const CGNString& text) {
    RMethodTrace trace("RUtils", "RHexToInt", kTraceAllLevels);
    CGNString number = text;
    number.Trim();
    if (number.IsEmpty()) return 0;
    const std::string& digits = number.str();
    if (digits.size() > 1 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X')) {
        // No overflow check, as ever: the value wraps at 32 bits.
        unsigned value = 0;
        for (std::size_t i = 2; i < digits.size() && HexDigitValue(digits[i]) >= 0; ++i)
            value = value * 16u + static_cast<unsigned>(HexDigitValue(digits[i]));
        return static_cast<int>(value);
    }
    return std::atoi(digits.c_str());
}
