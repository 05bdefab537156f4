// CGNDateTime::parseDateTime: reading dates and times that users type.
#include <cstdint>
#include <string_view>

#include "vxutil/gnrt/CGNDateTime.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <langinfo.h>
#endif

namespace {

enum class Order { kMonthDayYear, kDayMonthYear, kYearMonthDay };

struct Fields {
    std::int64_t year = 1970;
    int month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

// The order of day, month and year in the user's numeric dates.
Order UserOrder() {
#ifdef _WIN32
    char order[4] = {};
    GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_IDATE, order, sizeof order);
    return order[0] == '1'   ? Order::kDayMonthYear
           : order[0] == '2' ? Order::kYearMonthDay
                             : Order::kMonthDayYear;
#else
    // The positions of the day, month and year conversions in the locale's date format.
    std::string_view format = nl_langinfo(D_FMT);
    const std::size_t day = format.find("%d"), month = format.find("%m");
    std::size_t year = format.find("%y");
    if (year == std::string_view::npos) year = format.find("%Y");
    if (day == std::string_view::npos || month == std::string_view::npos ||
        year == std::string_view::npos)
        return Order::kMonthDayYear;
    if (year < month) return Order::kYearMonthDay;
    return day < month ? Order::kDayMonthYear : Order::kMonthDayYear;
#endif
}

// A cursor over the text with the few readers the forms need.
class Reader {
public:
    explicit Reader(std::string_view text) : m_text(text) {}
    bool AtEnd() const { return m_text.empty(); }
    // 1 to `most` digits; `digits` tells how many were read.
    bool Number(int most, std::int64_t& value, int& digits) {
        value = 0;
        digits = 0;
        while (digits < most && !m_text.empty() && m_text[0] >= '0' && m_text[0] <= '9') {
            value = value * 10 + (m_text[0] - '0');
            m_text.remove_prefix(1);
            ++digits;
        }
        return digits > 0;
    }
    bool Number(int most, int& value) {
        std::int64_t wide = 0;
        int digits = 0;
        if (!Number(most, wide, digits)) return false;
        value = static_cast<int>(wide);
        return true;
    }
    bool Take(char c) {
        if (m_text.empty() || m_text[0] != c) return false;
        m_text.remove_prefix(1);
        return true;
    }
    bool TakeAny(std::string_view set, char& taken) {
        if (m_text.empty() || set.find(m_text[0]) == std::string_view::npos) return false;
        taken = m_text[0];
        m_text.remove_prefix(1);
        return true;
    }
    void SkipBlanks() {
        while (!m_text.empty() && (m_text[0] == ' ' || m_text[0] == '\t'))
            m_text.remove_prefix(1);
    }

private:
    std::string_view m_text;
};

bool ReadIsoDate(Reader& reader, Fields& fields) {
    std::int64_t year = 0;
    int digits = 0;
    if (!reader.Number(4, year, digits) || digits != 4 || !reader.Take('-') ||
        !reader.Number(2, fields.month) || !reader.Take('-') || !reader.Number(2, fields.day))
        return false;
    fields.year = year;
    return true;
}

// Three numbers with the same separator, in `order`.
bool ReadNumericDate(Reader& reader, Order order, Fields& fields) {
    std::int64_t parts[3] = {};
    int digits[3] = {};
    char separator = 0, second = 0;
    if (!reader.Number(4, parts[0], digits[0]) || !reader.TakeAny("/.-", separator) ||
        !reader.Number(4, parts[1], digits[1]) || !reader.TakeAny("/.-", second) ||
        second != separator || !reader.Number(4, parts[2], digits[2]))
        return false;
    const int yearAt = order == Order::kYearMonthDay ? 0 : 2;
    const int monthAt = order == Order::kMonthDayYear ? 0 : 1;
    const int dayAt = order == Order::kMonthDayYear ? 1 : (order == Order::kDayMonthYear ? 0 : 2);
    std::int64_t year = parts[yearAt];
    if (digits[yearAt] <= 2) year += year < 70 ? 2000 : 1900;
    fields.year = year;
    fields.month = static_cast<int>(parts[monthAt]);
    fields.day = static_cast<int>(parts[dayAt]);
    return digits[monthAt] <= 2 && digits[dayAt] <= 2;
}

bool ReadTime(Reader& reader, Fields& fields) {
    if (!reader.Number(2, fields.hour) || !reader.Take(':') || !reader.Number(2, fields.minute))
        return false;
    if (reader.Take(':') && !reader.Number(2, fields.second)) return false;
    reader.Take('Z');
    return true;
}

bool IsLeap(std::int64_t year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

bool Valid(const Fields& f) {
    static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (f.month < 1 || f.month > 12 || f.day < 1) return false;
    const int days = kDays[f.month - 1] + (f.month == 2 && IsLeap(f.year) ? 1 : 0);
    return f.day <= days && f.hour < 24 && f.minute < 60 && f.second < 60;
}

// Days from 1970-01-01 to the date (the "days from civil" algorithm).
std::int64_t DayNumber(std::int64_t year, int month, int day) {
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

// An ISO date, a date in the user's order, or one as the display styles write it (month first).
bool ReadDate(std::string_view text, Reader& reader, Fields& fields) {
    auto attempt = [&](auto read) {
        Reader candidateReader(text);
        Fields candidate;
        if (!read(candidateReader, candidate) || !Valid(candidate)) return false;
        reader = candidateReader;
        fields = candidate;
        return true;
    };
    return attempt(ReadIsoDate) ||
           attempt([](Reader& r, Fields& f) { return ReadNumericDate(r, UserOrder(), f); }) ||
           attempt(
               [](Reader& r, Fields& f) { return ReadNumericDate(r, Order::kMonthDayYear, f); });
}

bool Parse(std::string_view text, int option, Fields& fields) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    Reader reader(text);
    const bool timeOnly = option == CGNDateTime::kParseTime;
    if (!timeOnly && ReadDate(text, reader, fields)) {
        if (option == CGNDateTime::kParseDate || reader.AtEnd()) return reader.AtEnd();
        if (!reader.Take('T')) reader.SkipBlanks();
        return ReadTime(reader, fields) && reader.AtEnd() && Valid(fields);
    }
    if (option == CGNDateTime::kParseDate || option == CGNDateTime::kParseDateTime) return false;
    reader = Reader(text);
    return ReadTime(reader, fields) && reader.AtEnd() && Valid(fields);
}

}  // namespace

bool CGNDateTime::parseDateTime(const char* text, int option) {
    Fields fields;
    if (text == nullptr || !Parse(text, option, fields)) return false;
    const std::int64_t seconds = DayNumber(fields.year, fields.month, fields.day) * 86400 +
                                 fields.hour * 3600 + fields.minute * 60 + fields.second;
    if (seconds < kMinSeconds || seconds > kMaxSeconds) return false;
    m_nSeconds = seconds;
    return true;
}
