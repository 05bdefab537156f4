// Reads arbitrary text as decimal numbers: two operands on the first two lines. Whatever is
// accepted must write back to text that reads back to the same number, arithmetic on the two
// must give a number or the bad value, and the display rule must hold for any text and
// precision.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "vxutil/decimal/DecimalDisplay.h"
#include "vxutil/decimal/TKDecimal.h"
#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/gnrt/CGNDecimal.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

namespace {

void Ignore(const TKxmsg&) {}

// A result must be the bad value or a number whose text reads back exactly.
void CheckRoundTrip(const TKDecimal& value, TKStatus status) {
    if (status == TKStatus::kOverflow || status == TKStatus::kNotANumber) {
        Check(value.IsBad());
        return;
    }
    Check(!value.IsBad() && value.GetScale() >= 0 && value.GetScale() <= TKDecimal::kMaxScale);
    TKDecimal back;
    Check(TKDecimal::FromText(value.asString(), back) == TKStatus::kExact);
    Check(back.asString() == value.asString());
    Check(TKDecimal::Compare(back, value) == 0);
    Check(TKDecimal::FromPortable(value.ToPortable(), back) == TKStatus::kExact);
    Check(TKDecimal::Compare(back, value) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TKErrorHandler previous = TKSetErrorHandler(Ignore);
    (void)previous;
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::size_t newline = input.find('\n');
    const std::string first = input.substr(0, newline);
    const std::string second = newline == std::string::npos ? "1" : input.substr(newline + 1);

    TKDecimal a, b, result;
    const TKStatus statusA = TKDecimal::FromText(first, a);
    const TKStatus statusB = TKDecimal::FromText(second, b);
    CheckRoundTrip(a, statusA);
    CheckRoundTrip(b, statusB);
    for (auto operation :
         {TKDecimal::Add, TKDecimal::Subtract, TKDecimal::Multiply, TKDecimal::Divide}) {
        CheckRoundTrip(result, operation(a, b, result));
    }
    CheckRoundTrip(a.Round(static_cast<int>(size % 30)),
                   a.IsBad() ? TKStatus::kNotANumber : TKStatus::kExact);

    std::string display = "unchanged";
    const int precision = static_cast<int>(size % 31) - 1;
    if (!FormatDecimalForDisplay(first, precision, size % 2 == 0, display))
        Check(display == "unchanged");
    CGNDecimal regional(first.c_str());
    regional.ConvertToRegionalLocale(true);
    return 0;
}
