// vxenv reg: the values under the users key of the system configuration store.
#include "Commands.h"
#include "Json.h"
#include "vxutil/appenv/SettingsLayout.h"
#include "vxutil/gnrt/OSConfigReg.h"

namespace vxenv {
namespace {

using vx::kUsersKeyPath;
constexpr const char* kRegistryRoot = vx::kUsersKeyRoot;

int Get(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    CGNString value;
    if (OSGetSystemConfigReg(value, "", kUsersKeyPath, args[0].c_str(), kRegistryRoot) <= 0)
        return context.Fail("no value '" + args[0] + "'");
    context.Print(context.json()
                      ? JsonObject().Add("name", args[0]).Add("value", value.view()).Text()
                      : value.str());
    return kOk;
}

int Set(Context& context, Args& args) {
    const bool dword = args.Has("--dword");
    int code = kOk;
    if (!context.CheckCount(args, 2, 2, code)) return code;
    int stored = 0;
    if (dword) {
        long long number = 0;
        if (!ParseNumber(args[1], -2147483648LL, 4294967295LL, number))
            return context.UsageError("'" + args[1] + "' is not a 32-bit number");
        int value = static_cast<int>(static_cast<unsigned int>(number));
        stored = OSSetSystemConfigReg(value, kUsersKeyPath, args[0].c_str(), kRegistryRoot);
    } else {
        stored =
            OSSetSystemConfigReg(args[1].c_str(), kUsersKeyPath, args[0].c_str(), kRegistryRoot);
    }
    return stored > 0 ? kOk : context.Fail("could not store '" + args[0] + "'");
}

int Delete(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    if (OSDelSystemConfigReg(kUsersKeyPath, args[0].c_str(), kRegistryRoot) <= 0)
        return context.Fail("could not delete '" + args[0] + "'");
    return kOk;
}

constexpr Command kCommands[] = {
    {"get", "NAME", "print a value", Get, {}},
    {"set", "NAME VALUE [--dword]", "store a string (a number with --dword)", Set, {}},
    {"delete", "NAME", "remove a value", Delete, {}},
};

}  // namespace

std::span<const Command> RegCommands() {
    return kCommands;
}

}  // namespace vxenv
