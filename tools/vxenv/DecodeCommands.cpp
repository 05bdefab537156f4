// vxenv decode: the display form of the foundation classes' encoded texts.
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/foundation/CVXByteList.h"
#include "vxutil/foundation/CVXCoordList.h"

namespace vxenv {
namespace {

// The bytes in hexadecimal: the encoded text after its type and length.
std::string Hex(CVXByteList& list) {
    const std::string& text = list.GetText()->str();
    return text.substr(text.rfind('\\') + 1);
}

int Bytes(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    CVXByteList list;
    if (!list.ReadText(args[0].c_str())) return context.Fail("not a byte list: " + args[0]);
    if (context.json()) {
        context.Print(JsonObject()
                          .Add("type", static_cast<long long>(list.GetType()))
                          .Add("length", static_cast<long long>(list.GetLength()))
                          .Add("bytes", Hex(list))
                          .Text());
    } else {
        context.Print("type " + std::to_string(list.GetType()));
        context.Print("length " + std::to_string(list.GetLength()));
        context.Print("bytes " + Hex(list));
    }
    return kOk;
}

// One shape the points may form, by name, with its numbers in order.
struct Shape {
    const char* name;
    bool formed;
    std::vector<std::pair<const char*, long long>> values;
    int vertical = -1;  // a line's direction (0 or 1); -1 for the other shapes
};

std::vector<Shape> ShapesOf(const CVXCoordList& list) {
    std::int32_t a = 0, b = 0, c = 0, d = 0;
    int vertical = 0;
    std::vector<Shape> shapes;
    bool formed = list.GetLine(a, b, c, vertical);
    shapes.push_back({"line", formed, {{"x", a}, {"y", b}, {"length", c}}, vertical != 0});
    formed = list.GetBox(a, b, c, d);
    shapes.push_back({"box", formed, {{"left", a}, {"top", b}, {"width", c}, {"height", d}}});
    formed = list.GetPosition(a, b, c, d);
    shapes.push_back({"position", formed, {{"x", a}, {"y", b}, {"width", c}, {"height", d}}});
    return shapes;
}

// Every shape is a member, null when the points do not form it, so that the object keeps one
// shape whatever the points.
std::string JsonOf(const CVXCoordList& list, const std::vector<Shape>& shapes) {
    std::vector<std::string> points;
    for (std::uint32_t i = 0; i < list.GetCount(); ++i) {
        const VXCoordStruct* point = list.GetPoint(i);
        points.push_back(JsonArray({std::to_string(point->x), std::to_string(point->y)}));
    }
    JsonObject object;
    object.AddRaw("points", JsonArray(points));
    for (const Shape& shape : shapes) {
        JsonObject values;
        for (const auto& [name, value] : shape.values)
            values.Add(name, value);
        if (shape.vertical >= 0) values.Add("vertical", shape.vertical != 0);
        object.AddRaw(shape.name, shape.formed ? values.Text() : "null");
    }
    return object.Text();
}

int Coords(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    CVXCoordList list;
    const char* cursor = args[0].c_str();
    // A text without its closing backslash leaves the cursor null.
    if (!list.ReadText(cursor) || cursor == nullptr || *cursor != '\0')
        return context.Fail("not a coordinate list: " + args[0]);
    const std::vector<Shape> shapes = ShapesOf(list);
    if (context.json()) {
        context.Print(JsonOf(list, shapes));
        return kOk;
    }
    context.Print("points " + std::to_string(list.GetCount()));
    for (std::uint32_t i = 0; i < list.GetCount(); ++i) {
        const VXCoordStruct* point = list.GetPoint(i);
        context.Print("  " + std::to_string(point->x) + " " + std::to_string(point->y));
    }
    for (const Shape& shape : shapes) {
        if (!shape.formed) continue;
        std::string line = shape.name;
        for (const auto& [name, value] : shape.values)
            line += std::string(" ") + name + " " + std::to_string(value);
        if (shape.vertical >= 0) line += " vertical " + std::to_string(shape.vertical);
        context.Print(line);
    }
    return kOk;
}

}  // namespace

std::span<const Command> DecodeCommands() {
    static const Command table[] = {
        {"bytes",
         "TEXT",
         "a byte list's encoded text (TYPE\\LENGTH\\HEX): its type, length and bytes",
         Bytes,
         {}},
        {"coords",
         "TEXT",
         "a coordinate list's definition text (COUNT\\X\\Y\\...): its points and the line, box "
         "or position they form",
         Coords,
         {}},
        {"value",
         "TEXT",
         "an encoded value: its type, display, literal and encoded texts",
         RunDecodeValue,
         {}},
        {"qualifier", "TEXT", "an encoded qualifier's display text", RunDecodeQualifier, {}},
        {"fields",
         "TEXT",
         "an encoded entry-list field list: each column's field, width and "
         "separator",
         RunDecodeFields,
         {}},
    };
    return table;
}

}  // namespace vxenv
