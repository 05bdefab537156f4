#include "vxutil/gnrt/CGNDateTime.h"

namespace {

constexpr std::int64_t kSecondsPerDay = 86400;

struct CivilDate {
    std::int64_t year;
    unsigned month;  // 1-12
    unsigned day;    // 1-31
};

// The proleptic Gregorian date of a day number counted from 1970-01-01 (the "days from civil"
// algorithm run backwards); exact over the whole 64-bit range the caller can pass.
CivilDate DateOfDay(std::int64_t day) {
    day += 719468;  // shift the epoch to 0000-03-01
    const std::int64_t era = (day >= 0 ? day : day - 146096) / 146097;
    const auto dayOfEra = static_cast<std::uint64_t>(day - era * 146097);
    const std::uint64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::uint64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::uint64_t shiftedMonth = (5 * dayOfYear + 2) / 153;  // March is 0
    const auto dayOfMonth = static_cast<unsigned>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    const auto month =
        static_cast<unsigned>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    const std::int64_t year = static_cast<std::int64_t>(yearOfEra) + era * 400 + (month <= 2);
    return {year, month, dayOfMonth};
}

std::int64_t FloorDiv(std::int64_t value, std::int64_t divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

}  // namespace

CGNString CGNDateTime::FormatDate(int style) const {
    const CivilDate date = DateOfDay(FloorDiv(m_nSeconds, kSecondsPerDay));
    const long long year = date.year;
    CGNString text;
    switch (style) {
        case kDateShort:
            text.Format("%02u/%02u/%02lld", date.month, date.day, ((year % 100) + 100) % 100);
            break;
        case kDateNumeric:
            text.Format("%02u/%02u/%04lld", date.month, date.day, year);
            break;
        default:
            text.Format("%04lld-%02u-%02u", year, date.month, date.day);
            break;
    }
    return text;
}

CGNString CGNDateTime::FormatTime() const {
    const std::int64_t second = m_nSeconds - FloorDiv(m_nSeconds, kSecondsPerDay) * kSecondsPerDay;
    CGNString text;
    text.Format("%02d:%02d:%02d", static_cast<int>(second / 3600),
                static_cast<int>(second / 60 % 60), static_cast<int>(second % 60));
    return text;
}

CGNString CGNDateTime::FormatForDisplay(int style) const {
    return FormatDate(style) + " " + FormatTime();
}

void CGNDateTime::GetMinMaxDateRange(int style, CGNString& min, CGNString& max) {
    min = CGNDateTime(kMinSeconds).FormatDate(style);
    max = CGNDateTime(kMaxSeconds).FormatDate(style);
}

void CGNDateTime::GetMinMaxTimeRange(CGNString& min, CGNString& max) {
    min = CGNDateTime(0).FormatTime();
    max = CGNDateTime(kSecondsPerDay - 1).FormatTime();
}

void CGNDateTime::GetMinMaxDateTimeRange(int style, CGNString& min, CGNString& max) {
    min = CGNDateTime(kMinSeconds).FormatForDisplay(style);
    max = CGNDateTime(kMaxSeconds).FormatForDisplay(style);
}
