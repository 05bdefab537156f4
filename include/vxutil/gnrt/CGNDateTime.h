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

    // The earliest and latest instants the server's time type holds.
    static constexpr std::int64_t kMinSeconds = 0;
    static constexpr std::int64_t kMaxSeconds = INT32_MAX;

    CGNDateTime() = default;
    explicit CGNDateTime(std::int64_t seconds) : m_seconds(seconds) {}

    std::int64_t GetSeconds() const { return m_seconds; }

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
    std::int64_t m_seconds = 0;
};
