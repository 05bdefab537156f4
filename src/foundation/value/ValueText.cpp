// The display, literal and qualifier texts of a value.
#include <algorithm>
#include <cmath>

#include "foundation/value/RealText.h"
#include "vxutil/decimal/DecimalDisplay.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"
#include "vxutil/gnrt/CGNDateTime.h"

namespace {

struct Keyword {
    std::int32_t number;
    const char* name;
};

// Searched in this order, first match first: "NULL" carries -1 and stands between 16 and 17.
constexpr Keyword kKeywords[] = {
    {0, "DEFAULT"},   {1, "USER"},         {2, "TIMESTAMP"}, {3, "TIME"},       {4, "DATE"},
    {5, "SCHEMA"},    {6, "SERVER"},       {7, "WEEKDAY"},   {8, "GROUPS"},     {9, "OPERATION"},
    {10, "HARDWARE"}, {11, "OS"},          {12, "DATABASE"}, {13, "LASTID"},    {14, "LASTCOUNT"},
    {15, "VERSION"},  {16, "VUI"},         {-1, "NULL"},     {17, "GUIDETEXT"}, {18, "FIELDHELP"},
    {19, "GUIDE"},    {20, "APPLICATION"}, {21, "NO"},
};

// Text inside double quotes with the specials written as escapes.
CGNString Quoted(const CGNString& text) {
    CGNString expanded = text;
    expanded.ExpandSpecials();
    CGNString quoted;
    quoted.Format("\"%s\"", expanded.c_str());
    return quoted;
}

}  // namespace

const char* CVXValueStruct::KeywordName(std::int32_t keyword) {
    for (const Keyword& entry : kKeywords) {
        if (entry.number == keyword) return entry.name;
    }
    return nullptr;
}

// Display text by type: keywords as "$NAME$"; numbers in decimal; reals by the real-number
// rule (6 places when no precision is set); texts as they are; times through
// CGNDateTime::FormatForDisplay with the time option; decimals by the decimal display rule.
void CVXValueStruct::ToText(CGNString& out) const {
    out.Empty();
    switch (m_value.dataType) {
        case VX_DATA_TYPE_NULL:
            break;
        case VX_DATA_TYPE_KEYWORD:
            if (const char* name = KeywordName(m_value.u.intVal)) out.Format("$%s$", name);
            break;
        case VX_DATA_TYPE_INTEGER:
            out.Format("%ld", static_cast<long>(m_value.u.intVal));
            break;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            out.Format("%lu", static_cast<unsigned long>(m_value.u.ulongVal));
            break;
        case VX_DATA_TYPE_REAL:
            out = vx::value::FormatReal(m_value.u.realVal, m_nPrecision == -1 ? 6 : m_nPrecision,
                                        true);
            break;
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_ATTACH:
            out = m_strText;
            break;
        case VX_DATA_TYPE_TIME:
            out = CGNDateTime(m_value.u.intVal).FormatForDisplay(m_nTimeOption);
            break;
        case VX_DATA_TYPE_DECIMAL: {
            std::string display;
            if (FormatDecimalForDisplay(m_strText.view(), m_nPrecision, false, display))
                out = display;
            break;
        }
        default:
            GN_ASSERT(!"value without a display text");
            break;
    }
}

void CVXValueStruct::GetLiteralText(CGNString& out) const {
    out.Empty();
    switch (m_value.dataType) {
        case VX_DATA_TYPE_NULL:
            break;
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_TIME:  // the raw seconds, not a date
            out.Format("%ld", static_cast<long>(m_value.u.intVal));
            break;
        case VX_DATA_TYPE_ENUM:
            out.Format("%lu", static_cast<unsigned long>(m_value.u.ulongVal));
            break;
        case VX_DATA_TYPE_REAL: {
            std::string text = vx::value::FormatReal(m_value.u.realVal, 15, true).str();
            std::replace(text.begin(), text.end(), ',', '.');
            out = text;
            break;
        }
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
        case VX_DATA_TYPE_ATTACH:
            out = Quoted(m_strText);
            break;
        default:
            // Required: every type without a literal form writes this placeholder.
            out = "TODO:";
            break;
    }
}

void CVXValueStruct::GetQualifierText(CGNString& out) const {
    out.Empty();
    switch (m_value.dataType) {
        case VX_DATA_TYPE_NULL:
            out = "$NULL$";
            break;
        case VX_DATA_TYPE_KEYWORD:
            out.Format("$-%d$", static_cast<int>(m_value.u.intVal));
            break;
        case VX_DATA_TYPE_INTEGER:
            out.Format("%ld", static_cast<long>(m_value.u.intVal));
            break;
        case VX_DATA_TYPE_REAL:
            out.Format("%f", m_value.u.realVal);
            break;
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
        case VX_DATA_TYPE_ATTACH:
            out.Format("\"%s\"", m_strText.c_str());
            break;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_TIME:
            out.Format("%ld", static_cast<long>(m_value.u.intVal));
            break;
        default:
            GN_ASSERT(!"value without a qualifier text");
            out = "TODO";
            break;
    }
}
