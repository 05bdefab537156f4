// The encoded text of a value, both ways. Real numbers are written and read in the "C"
// numeric locale, whatever the user's locale.
#include <cstdlib>

#include <string_view>

#include "foundation/Number32.h"
#include "foundation/value/EncodedFields.h"
#include "foundation/value/RealText.h"
#include "gnrt/MultiByte.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace {

using vx::encoded::ClientText;
using vx::encoded::ReadLong;
using vx::encoded::ReadUnsignedLong;
using vx::encoded::SkipField;
using vx::number32::AppendSigned;
using vx::number32::AppendUnsigned;

// A character count, a backslash, that many characters and a closing backslash (or the end).
bool ReadCounted(const char*& cursor, std::string_view& text) {
    std::uint32_t count = 0;
    if (!ReadUnsignedLong(cursor, count)) return false;
    const char* start = cursor;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (*cursor == '\0') return false;
        // No character is longer than this, and none runs over the terminating zero.
        cursor += vx::mb::CharLength(cursor, 4);
    }
    text = std::string_view(start, static_cast<std::size_t>(cursor - start));
    if (*cursor == '\\') {
        ++cursor;
    } else if (*cursor != '\0') {
        return false;
    }
    return true;
}

}  // namespace

bool CVXValueStruct::GetEncodedText(CGNString& out) const {
    out.Empty();
    AppendUnsigned(out, m_value.dataType);
    switch (m_value.dataType) {
        case VX_DATA_TYPE_NULL:
            return true;
        case VX_DATA_TYPE_KEYWORD:
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_TIME:
            out += '\\';
            AppendSigned(out, m_value.u.intVal);
            return true;
        case VX_DATA_TYPE_REAL:
            out += '\\';
            out += vx::value::FormatClassicReal(m_value.u.realVal);
            return true;
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
        case VX_DATA_TYPE_ATTACH:
            out += '\\';
            AppendUnsigned(out, static_cast<std::uint32_t>(m_strText.CharCount()));
            out += '\\';
            out += m_strText.c_str();
            return true;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            out += '\\';
            AppendUnsigned(out, m_value.u.ulongVal);
            return true;
        default:
            GN_ASSERT(!"value without an encoded text");
            return false;
    }
}

bool CVXValueStruct::Decode(const char*& cursor) {
    if (cursor == nullptr) return false;
    std::uint32_t type = 0;
    if (!ReadUnsignedLong(cursor, type)) return false;
    if (*cursor == '\0' && type != VX_DATA_TYPE_NULL) return false;
    std::int32_t number = 0;
    std::uint32_t unsignedNumber = 0;
    std::string_view counted;
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
            if (!ReadCounted(cursor, counted)) return false;
            if (type == VX_DATA_TYPE_ATTACH) {
                SetAttachment(ClientText(counted, true).c_str(), 0, 0, 0);
            } else {  // SetText, without copying the text once more
                Release();
                m_value.dataType = type;
                m_strText = ClientText(counted, type != VX_DATA_TYPE_DECIMAL);
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
