// vxenv profile: one key of a profile ("INI") file.
#include "Commands.h"
#include "Json.h"
#include "vxutil/platform/ProfileFile.h"

namespace vxenv {
namespace {

int Get(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 3, 3, code)) return code;
    // Two different defaults tell an absent key from an empty one.
    const char* file = args[0].c_str();
    std::string value = vx::ProfileGetString(args[1].c_str(), args[2].c_str(), "\x01", file);
    if (value == "\x01" &&
        vx::ProfileGetString(args[1].c_str(), args[2].c_str(), "\x02", file) == "\x02")
        return context.Fail("no key '" + args[2] + "' in section '" + args[1] + "'");
    context.Print(
        context.json()
            ? JsonObject().Add("section", args[1]).Add("key", args[2]).Add("value", value).Text()
            : value);
    return kOk;
}

int Set(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 4, 4, code)) return code;
    if (!vx::ProfileWriteString(args[1].c_str(), args[2].c_str(), args[3].c_str(), args[0].c_str()))
        return context.Fail("could not write " + args[0]);
    return kOk;
}

int Delete(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 3, 3, code)) return code;
    if (!vx::ProfileWriteString(args[1].c_str(), args[2].c_str(), nullptr, args[0].c_str()))
        return context.Fail("could not write " + args[0]);
    return kOk;
}

constexpr Command kCommands[] = {
    {"get", "FILE SECTION KEY", "print a key's value", Get, {}},
    {"set", "FILE SECTION KEY VALUE", "write a key", Set, {}},
    {"delete", "FILE SECTION KEY", "remove a key", Delete, {}},
};

}  // namespace

std::span<const Command> ProfileCommands() {
    return kCommands;
}

}  // namespace vxenv
