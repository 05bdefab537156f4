// Date and time of the common runtime: an instant of the server's time type, 32-bit signed
// seconds since 1970-01-01 00:00:00 UTC.
//
// This holds what the foundation classes need today: the instant, its display text and the
// limits of the server's time type, shown to users in range messages. Texts are UTC calendar
// values, so that the limits read the same on every client.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CGNDateTime {
public:
    // Date styles of the display text.
    enum DateStyle {
        kDateShort = 1,    // 01/19/38: month, day, two-digit year
        kDateNumeric = 2,  // 01/19/2038
        kDateIso = 3,      // 2038-01-19; the style of the range messages
    };

    // What parseDateTime accepts. Dates are ISO 8601 (2038-01-19) or numeric in the user's
    // order of day, month and year (the locale's date format on POSIX, its date order on
    // Windows), or month/day/year as the display styles write them; a two-digit year below 70
    // is in the 2000s. A time of day is HH:MM or HH:MM:SS, 24 hours; after a date it follows a
    // blank or ISO's "T", and may end in "Z".
    enum ParseOption {
        kParseDate = 2,      // a date alone, at midnight
        kParseDateTime = 3,  // a date, optionally with a time of day
        kParseTime = 4,      // a time of day alone, on 1970-01-01
        // any other value: a date, a date with a time or a time alone
    };

    // The earliest and latest instants the server's time type holds.
    static constexpr std::int64_t kMinSeconds = 0;
    static constexpr std::int64_t kMaxSeconds = INT32_MAX;

    CGNDateTime() = default;
    explicit CGNDateTime(std::int64_t seconds) : m_nSeconds(seconds) {}

    std::int64_t GetSeconds() const { return m_nSeconds; }
    // Sets the instant from `text` read as `option` says (UTC, like the display texts); false,
    // leaving the instant as it was, for other text or an instant outside the server's range.
    bool parseDateTime(const char* text, int option);

    // The date in `style` (an unknown style gives kDateIso).
    CGNString FormatDate(int style) const;
    // The time of day, "HH:MM:SS" (24 hours).
    CGNString FormatTime() const;
    // The date in `style`, a blank and the time of day.
    CGNString FormatForDisplay(int style) const;

    // Limits of the server's time type as text: as dates in `style`, as times of day (which
    // run from 00:00:00 to 23:59:59), and as dates with times.
    static void GetMinMaxDateRange(int style, CGNString& min, CGNString& max);
    static void GetMinMaxTimeRange(CGNString& min, CGNString& max);
    static void GetMinMaxDateTimeRange(int style, CGNString& min, CGNString& max);

private:
    std::int64_t m_nSeconds = 0;
};
