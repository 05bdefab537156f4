// vxenv decode value|qualifier|fields, encode value and qual eval: the encoded texts of values,
// qualifiers and entry-list field lists, and qualifiers evaluated against given field values.
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/foundation/CVXEntryListFieldList.h"
#include "vxutil/foundation/CVXFieldValueList.h"
#include "vxutil/foundation/CVXQualifierStruct.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace vxenv {
namespace {

struct TypeName {
    std::uint32_t code;
    const char* name;
};

constexpr TypeName kTypes[] = {
    {VX_DATA_TYPE_NULL, "null"},       {VX_DATA_TYPE_KEYWORD, "keyword"},
    {VX_DATA_TYPE_INTEGER, "integer"}, {VX_DATA_TYPE_REAL, "real"},
    {VX_DATA_TYPE_CHAR, "character"},  {VX_DATA_TYPE_DIARY, "diary"},
    {VX_DATA_TYPE_ENUM, "enumerated"}, {VX_DATA_TYPE_TIME, "time"},
    {VX_DATA_TYPE_BITMASK, "bitmask"}, {VX_DATA_TYPE_BYTES, "bytes"},
    {VX_DATA_TYPE_DECIMAL, "decimal"}, {VX_DATA_TYPE_ATTACH, "attachment"},
    {VX_DATA_TYPE_ULONG, "unsigned"},  {VX_DATA_TYPE_COORDS, "coordinates"},
};

const char* NameOfType(std::uint32_t code) {
    for (const TypeName& type : kTypes) {
        if (type.code == code) return type.name;
    }
    return "unknown";
}

// A type by name or by code.
bool TypeOf(const std::string& word, std::uint32_t& code) {
    for (const TypeName& type : kTypes) {
        if (word == type.name || word == std::to_string(type.code)) {
            code = type.code;
            return true;
        }
    }
    return false;
}

// The library's assertions and decimal messages are the tool's own failure messages here.
class Quiet {
public:
    Quiet()
        : m_assert(CGNAssert::SetHandler([](const char*, int, const char*) {})),
          m_errors(TKSetErrorHandler([](const TKxmsg&) {})) {}
    ~Quiet() {
        CGNAssert::SetHandler(m_assert);
        TKSetErrorHandler(m_errors);
    }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

private:
    CGNAssert::Handler m_assert;
    TKErrorHandler m_errors;
};

// A whole encoded text: decoding must succeed and use all of it.
template <class Decodable>
bool DecodeWhole(Decodable& object, const std::string& text) {
    const char* cursor = text.c_str();
    return object.Decode(cursor) && cursor != nullptr && *cursor == '\0';
}

}  // namespace

int RunDecodeValue(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    Quiet quiet;
    CVXValueStruct value;
    if (!DecodeWhole(value, args[0]))
        return context.Fail("'" + args[0] + "' is not an encoded value");
    CGNString display, literal, encoded;
    value.ToText(display);
    value.GetLiteralText(literal);
    value.GetEncodedText(encoded);
    if (context.json()) {
        context.Print(JsonObject()
                          .Add("type", NameOfType(value.GetDataType()))
                          .Add("code", static_cast<long long>(value.GetDataType()))
                          .Add("display", display.view())
                          .Add("literal", literal.view())
                          .Add("encoded", encoded.view())
                          .Text());
        return kOk;
    }
    context.Print(std::string("type ") + NameOfType(value.GetDataType()) + " (" +
                  std::to_string(value.GetDataType()) + ")");
    context.Print("display " + display.str());
    context.Print("literal " + literal.str());
    context.Print("encoded " + encoded.str());
    return kOk;
}

int RunDecodeQualifier(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    Quiet quiet;
    CVXQualifierStruct qualifier;
    if (!DecodeWhole(qualifier, args[0]))
        return context.Fail("'" + args[0] + "' is not an encoded qualifier");
    CGNString text;
    qualifier.ToText(text);
    context.Print(context.json() ? JsonObject().Add("display", text.view()).Text() : text.str());
    return kOk;
}

int RunDecodeFields(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    CVXEntryListFieldList fields;
    if (!fields.Decode(args[0].c_str()))
        return context.Fail("'" + args[0] + "' is not an encoded entry-list field list");
    std::vector<std::string> items;
    for (int i = 0; i < fields.GetCount(); ++i) {
        const CVXEntryListFieldStruct& field = *fields.GetField(i);
        if (context.json()) {
            items.push_back(JsonObject()
                                .Add("field", static_cast<long long>(field.GetFieldId()))
                                .Add("width", static_cast<long long>(field.GetColumnWidth()))
                                .Add("separator", field.GetSeparator().view())
                                .Text());
        } else {
            context.Print("field " + std::to_string(field.GetFieldId()) + " width " +
                          std::to_string(field.GetColumnWidth()) + " separator \"" +
                          field.GetSeparator().str() + "\"");
        }
    }
    if (context.json()) context.Print(JsonArray(items));
    return kOk;
}

namespace {

struct Range {
    long long least;
    long long most;
};

// The numbers a value of `type` holds; false for the types that hold no whole number.
bool RangeOf(std::uint32_t type, Range& range) {
    switch (type) {
        case VX_DATA_TYPE_KEYWORD:
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_TIME:
            range = {INT32_MIN, INT32_MAX};
            return true;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            range = {0, UINT32_MAX};
            return true;
        default:
            return false;
    }
}

// The value text is read as the client reads typed text: a leading number, the rest ignored (a
// time may be a date instead). A number the type cannot hold would be cut to one it can, so it is
// refused here.
bool Representable(std::uint32_t type, const std::string& text, Range& range) {
    if (!RangeOf(type, range)) return true;
    char* end = nullptr;
    errno = 0;
    const long long number = std::strtoll(text.c_str(), &end, 10);
    return end == text.c_str() ||
           (errno != ERANGE && number >= range.least && number <= range.most);
}

int EncodeValue(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 2, 2, code)) return code;
    std::uint32_t type = 0;
    if (!TypeOf(args[0], type)) return context.UsageError("'" + args[0] + "' is not a data type");
    Range range{};
    if (!Representable(type, args[1], range))
        return context.Fail("'" + args[1] + "' is outside the " + NameOfType(type) + " range " +
                            std::to_string(range.least) + " to " + std::to_string(range.most));
    Quiet quiet;
    CVXValueStruct value;
    CGNString encoded;
    if (!value.SetFromText(type, args[1].c_str()) || !value.GetEncodedText(encoded))
        return context.Fail(std::string("a ") + NameOfType(type) + " value has no encoded text");
    context.Print(context.json() ? JsonObject().Add("encoded", encoded.view()).Text()
                                 : encoded.str());
    return kOk;
}

int Eval(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1000, code)) return code;
    Quiet quiet;
    CVXQualifierStruct qualifier;
    if (!DecodeWhole(qualifier, args[0]))
        return context.Fail("'" + args[0] + "' is not an encoded qualifier");
    CVXFieldValueList fields;
    for (std::size_t i = 1; i < args.size(); ++i) {
        const std::string& pair = args[i];
        const std::size_t equals = pair.find('=');
        long long id = 0;
        CVXValueStruct value;
        if (equals == std::string::npos || !ParseNumber(pair.substr(0, equals), 0, UINT32_MAX, id))
            return context.UsageError("'" + pair + "' is not FIELDID=ENCODEDVALUE");
        if (!DecodeWhole(value, pair.substr(equals + 1)))
            return context.Fail("'" + pair.substr(equals + 1) + "' is not an encoded value");
        fields.AddFieldValue(static_cast<std::uint32_t>(id), value);
    }
    bool result = false;
    if (!qualifier.Evaluate(&fields, result))
        return context.Fail("the qualifier cannot be evaluated with these fields");
    context.Print(context.json() ? JsonObject().Add("result", result).Text()
                                 : (result ? "true" : "false"));
    return result ? kOk : kFailed;
}

}  // namespace

std::span<const Command> EncodeCommands() {
    static const Command table[] = {
        {"value",
         "TYPE TEXT",
         "the encoded text of a value of TYPE (a name or code) from TEXT",
         EncodeValue,
         {}},
    };
    return table;
}

std::span<const Command> QualCommands() {
    static const Command table[] = {
        {"eval",
         "QUALIFIER [FIELDID=ENCODEDVALUE ...]",
         "evaluate an encoded qualifier against field values: true (status 0) or false (1)",
         Eval,
         {}},
    };
    return table;
}

}  // namespace vxenv
