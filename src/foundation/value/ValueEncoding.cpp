// The encoded text of a value, both ways. Real numbers are written and read in the "C"
// numeric locale, whatever the user's locale.
#include <cstdlib>
#include <cstring>

#include "foundation/value/EncodedFields.h"
#include "foundation/value/RealText.h"
#include "vxutil/decimal/NumericLocaleScope.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"
#include "vxutil/gnrt/MultiByte.h"

namespace {

using vx::encoded::ClientText;
using vx::encoded::ReadLong;
using vx::encoded::ReadUnsignedLong;
using vx::encoded::SkipField;

// A character count, a backslash, that many characters and a closing backslash (or the end).
bool ReadCounted(const char*& cursor, CGNString& text) {
    std::uint32_t count = 0;
    if (!ReadUnsignedLong(cursor, count)) return false;
    const char* start = cursor;
    std::size_t available = std::strlen(cursor);
    for (std::uint32_t i = 0; i < count; ++i) {
        std::size_t length = vx::mb::CharLength(cursor, available);
        if (length == 0) return false;
        cursor += length;
        available -= length;
    }
    text = CGNString(start, static_cast<std::size_t>(cursor - start));
    if (*cursor == '\\') {
        ++cursor;
    } else if (*cursor != '\0') {
        return false;
    }
    return true;
}

}  // namespace

bool CVXValueStruct::GetEncodedText(CGNString& out) const {
    out.Format("%u", static_cast<unsigned>(m_value.dataType));
    CGNString value;
    switch (m_value.dataType) {
        case VX_DATA_TYPE_NULL:
            return true;
        case VX_DATA_TYPE_KEYWORD:
            value.Format("\\%d", static_cast<int>(m_value.u.intVal));
            break;
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_TIME:
            value.Format("\\%ld", static_cast<long>(m_value.u.intVal));
            break;
        case VX_DATA_TYPE_REAL: {
            NumericLocaleScope classic;
            value = CGNString("\\") + vx::value::FormatReal(m_value.u.realVal, -1, true);
            break;
        }
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
        case VX_DATA_TYPE_ATTACH:
            value.Format("\\%d\\%s", static_cast<int>(m_strText.CharCount()), m_strText.c_str());
            break;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            value.Format("\\%lu", static_cast<unsigned long>(m_value.u.ulongVal));
            break;
        default:
            GN_ASSERT(!"value without an encoded text");
            return false;
    }
    out += value;
    return true;
}

bool CVXValueStruct::Decode(const char*& cursor) {
    if (cursor == nullptr) return false;
    std::uint32_t type = 0;
    if (!ReadUnsignedLong(cursor, type)) return false;
    if (*cursor == '\0' && type != VX_DATA_TYPE_NULL) return false;
    std::int32_t number = 0;
    std::uint32_t unsignedNumber = 0;
    CGNString text;
    switch (type) {
        case VX_DATA_TYPE_NULL:
            SetNull();
            return true;
        case VX_DATA_TYPE_KEYWORD:
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_TIME:
            if (!ReadLong(cursor, number)) return false;
            if (type == VX_DATA_TYPE_KEYWORD) SetKeyword(number);
            if (type == VX_DATA_TYPE_INTEGER) SetInteger(number);
            if (type == VX_DATA_TYPE_TIME) SetTime(number);
            return true;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            if (!ReadUnsignedLong(cursor, unsignedNumber)) return false;
            if (type == VX_DATA_TYPE_ENUM) SetEnum(unsignedNumber);
            if (type == VX_DATA_TYPE_BITMASK) SetBitmask(unsignedNumber);
            if (type == VX_DATA_TYPE_ULONG) SetUnsigned(unsignedNumber);
            return true;
        case VX_DATA_TYPE_REAL: {
            char* end = nullptr;
            const double real = vx::value::ParseReal(cursor, &end);
            if (end == cursor) return false;
            cursor = end;
            if (*cursor == '\\') ++cursor;
            SetReal(real);
            return true;
        }
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_ATTACH:
        case VX_DATA_TYPE_DECIMAL:
            if (!ReadCounted(cursor, text)) return false;
            text = ClientText(text.c_str(), type != VX_DATA_TYPE_DECIMAL);
            if (type == VX_DATA_TYPE_ATTACH) {
                SetAttachment(text.c_str(), 0, 0, 0);
            } else {
                SetText(type, text.c_str());
            }
            return true;
        case VX_DATA_TYPE_BYTES:
        case VX_DATA_TYPE_COORDS:
            GN_ASSERT(!"bytes and coordinates have no encoded value text");
            SkipField(cursor);
            return true;
        default:
            GN_ASSERT(!"encoded value of unknown type");
            return false;
    }
}
