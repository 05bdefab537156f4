// Values from text: the plain conversion and the validating setters for user input.
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

#include "foundation/Number32.h"
#include "foundation/value/EncodedFields.h"
#include "foundation/value/RealText.h"
#include "vxutil/decimal/TKDecimalPortable.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"
#include "vxutil/gnrt/CGNDateTime.h"

namespace {

using vx::encoded::ClientText;
using vx::number32::ToLong;

constexpr long long kIntegerLimit = 2147483647;

std::string Trimmed(const char* text) {
    std::string trimmed = text;
    const std::size_t first = trimmed.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    return trimmed.substr(first, trimmed.find_last_not_of(" \t") - first + 1);
}

bool IsEmpty(const char* text) {
    return text == nullptr || *text == '\0';
}

// Whole-text conversions: false unless every character is part of the number.
bool WholeLongLong(const std::string& text, long long& value, bool& inRange) {
    if (text.empty()) return false;
    char* end = nullptr;
    errno = 0;
    value = std::strtoll(text.c_str(), &end, 10);
    inRange = errno != ERANGE;
    return *end == '\0';
}

bool WholeDouble(const std::string& text, double& value) {
    if (text.empty()) return false;
    char* end = nullptr;
    value = vx::value::ParseReal(text.c_str(), &end);
    return *end == '\0' && std::isfinite(value);
}

std::uint32_t TimeError(int option) {
    switch (option) {
        case CGNDateTime::kParseDate:
            return VX_ERROR_TIME_DATE;
        case CGNDateTime::kParseDateTime:
            return VX_ERROR_TIME_DATETIME;
        case CGNDateTime::kParseTime:
            return VX_ERROR_TIME_TIME;
        default:
            return VX_ERROR_TIME_OTHER;
    }
}

}  // namespace

bool CVXValueStruct::SetFromText(std::uint32_t type, const char* text) {
    if (text == nullptr) text = "";
    switch (type) {
        case VX_DATA_TYPE_NULL:
            SetNull();
            return true;
        case VX_DATA_TYPE_KEYWORD:
            SetKeyword(ToLong(text));
            return true;
        case VX_DATA_TYPE_INTEGER:
            SetInteger(ToLong(text));
            return true;
        case VX_DATA_TYPE_REAL:
            SetReal(vx::value::ParseReal(text, nullptr));
            return true;
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
            SetText(type, ClientText(text, true).c_str());
            return true;
        case VX_DATA_TYPE_ATTACH:
            SetAttachment(ClientText(text, true).c_str(), 0, 0, 0);
            return true;
        case VX_DATA_TYPE_DECIMAL:
            SetDecimal(ClientText(text, false).c_str());
            return true;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG: {
            const std::uint32_t value = vx::number32::ToUnsignedLong(text);
            if (type == VX_DATA_TYPE_ENUM) SetEnum(value);
            if (type == VX_DATA_TYPE_BITMASK) SetBitmask(value);
            if (type == VX_DATA_TYPE_ULONG) SetUnsigned(value);
            return true;
        }
        case VX_DATA_TYPE_TIME: {
            CGNDateTime instant;
            SetTime(instant.parseDateTime(text, CGNDateTime::kParseDateTime)
                        ? static_cast<std::int32_t>(instant.GetSeconds())
                        : ToLong(text));
            return true;
        }
        default:
            GN_ASSERT(!"no value of this type is set from text");
            return false;
    }
}

void CVXValueStruct::Refuse(std::uint32_t error, const char* text, bool keepAsCharacter) {
    const CGNString refused(text);
    if (keepAsCharacter) SetChar(refused.c_str());
    m_nLastError = error;
    m_strLastErrorText = refused;
}

// An integer given as real text is truncated toward zero; beyond the 32-bit range it is refused
// like any integer out of range.
bool CVXValueStruct::SetIntegerFromUser(const char* text) {
    if (IsEmpty(text)) {
        SetNull();
        return true;
    }
    const std::string trimmed = Trimmed(text);
    long long integer = 0;
    bool inRange = true;
    double real = 0;
    if (WholeLongLong(trimmed, integer, inRange)) {
        if (!inRange || !IsIntegerTextInRange(std::to_string(integer).c_str())) {
            Refuse(VX_ERROR_INTEGER_RANGE, text, true);
            return false;
        }
    } else if (WholeDouble(trimmed, real)) {
        real = std::trunc(real);
        if (std::fabs(real) > static_cast<double>(kIntegerLimit)) {
            Refuse(VX_ERROR_INTEGER_RANGE, text, true);
            return false;
        }
        integer = static_cast<long long>(real);
    } else {
        Refuse(VX_ERROR_NOT_A_NUMBER, text, true);
        return false;
    }
    SetInteger(static_cast<std::int32_t>(integer));
    return true;
}

bool CVXValueStruct::SetUnsignedFromUser(std::uint32_t type, const char* text) {
    if (IsEmpty(text)) {
        SetNull();
        return true;
    }
    const std::string trimmed = Trimmed(text);
    long long value = 0;
    bool inRange = true;
    if (trimmed.empty() || trimmed[0] < '0' || trimmed[0] > '9' ||
        !WholeLongLong(trimmed, value, inRange) || !inRange || value > 0xFFFFFFFFLL) {
        Refuse(VX_ERROR_NOT_A_NUMBER, text, false);
        return false;
    }
    const auto number = static_cast<std::uint32_t>(value);
    if (type == VX_DATA_TYPE_ENUM) {
        SetEnum(number);
    } else if (type == VX_DATA_TYPE_BITMASK) {
        SetBitmask(number);
    } else {
        SetUnsigned(number);
    }
    return true;
}

bool CVXValueStruct::SetRealFromUser(const char* text) {
    if (IsEmpty(text)) {
        SetNull();
        return true;
    }
    double value = 0;
    if (!WholeDouble(Trimmed(text), value)) {
        Refuse(VX_ERROR_NOT_A_REAL, text, true);
        return false;
    }
    SetReal(value);
    return true;
}

// Exponent form (1.5e3) is rewritten in plain digits (1500); other text is kept as typed.
bool CVXValueStruct::SetDecimalFromUser(const char* text) {
    if (IsEmpty(text)) {
        SetNull();
        return true;
    }
    const std::string trimmed = Trimmed(text);
    const TKDecimalPortable portable = TKDecimalPortable::FromText(trimmed);
    if (portable.GetState() != TKDecimalPortable::kNormal) {
        Refuse(VX_ERROR_NOT_A_DECIMAL, text, false);
        return false;
    }
    const bool exponent = trimmed.find_first_of("eE") != std::string::npos;
    SetDecimal(exponent ? portable.asString().c_str() : trimmed.c_str());
    return true;
}

bool CVXValueStruct::SetTimeFromUser(std::int64_t seconds) {
    if (seconds < CGNDateTime::kMinSeconds || seconds > CGNDateTime::kMaxSeconds) {
        Refuse(VX_ERROR_TIME_DATE, std::to_string(seconds).c_str(), false);
        return false;
    }
    SetTime(static_cast<std::int32_t>(seconds));
    return true;
}

bool CVXValueStruct::SetTimeFromUser(const char* text, int option, bool reportErrors) {
    if (IsEmpty(text)) {
        SetNull();
        return true;
    }
    CGNDateTime instant;
    long long seconds = 0;
    bool inRange = true;
    if (instant.parseDateTime(text, option)) {
        SetTime(static_cast<std::int32_t>(instant.GetSeconds()));
        return true;
    }
    if (WholeLongLong(Trimmed(text), seconds, inRange) && inRange && seconds >= 0 &&
        seconds <= CGNDateTime::kMaxSeconds) {
        SetTime(static_cast<std::int32_t>(seconds));
        return true;
    }
    if (reportErrors) Refuse(TimeError(option), text, false);
    return false;
}

bool CVXValueStruct::IsIntegerTextInRange(const char* text) {
    if (text == nullptr) return false;
    const bool negative = text[0] == '-';
    const char* digits = negative ? text + 1 : text;
    if (*digits < '0' || *digits > '9') return false;
    const char* limit = negative ? "-2147483647" : "2147483647";
    const std::size_t length = std::strlen(text), limitLength = std::strlen(limit);
    return length < limitLength || (length == limitLength && std::strcmp(text, limit) <= 0);
}
