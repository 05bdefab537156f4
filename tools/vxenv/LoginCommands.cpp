// vxenv login: the remembered login of the last user, as the login dialog proposes it.
#include <string>

#include "Commands.h"
#include "Json.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/platform/StoreError.h"

namespace vxenv {
namespace {

constexpr std::size_t kMaxBytes = vx::kNameBufferSize - 1;
// Shown instead of a password; the same for every length so that it gives nothing away.
constexpr const char* kMask = "********";

int Show(Context& context, Args& args) {
    const bool showPassword = args.Has("--show-password");
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    char user[vx::kNameBufferSize] = {};
    char password[vx::kNameBufferSize] = {};
    if (!CAppEnv::GetLastUserAndPassword(user, password))
        return context.Fail("no login is remembered");
    char osUser[vx::kNameBufferSize] = {};
    CAppEnv::GetLastOSUser(osUser);
    const std::string shown = showPassword || password[0] == '\0' ? password : kMask;
    if (context.json()) {
        context.Print(
            JsonObject().Add("user", user).Add("password", shown).Add("os_user", osUser).Text());
    } else {
        context.Print(std::string("user: ") + user);
        context.Print("password: " + shown);
        context.Print(std::string("os user: ") + osUser);
    }
    return kOk;
}

int Remember(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 2, 2, code)) return code;
    const std::string& user = args[0];
    if (user.empty() || user.size() > kMaxBytes || args[1].size() > kMaxBytes)
        return context.UsageError("user and password have at most 30 characters");
    if (!IsKnownUser(user)) return context.Fail("no user '" + user + "'");
    if (!CAppEnv::SetLastUserAndPassword(user.c_str(), args[1].c_str()))
        return context.Fail(vx::LastStoreError().empty()
                                ? "could not store the login (is a default home folder set?)"
                                : "could not store the login");
    if (!CAppEnv::SetLastUserLoggedIn(user.c_str()))
        return context.Fail("could not store the last user");
    return kOk;
}

constexpr Command kCommands[] = {
    {"show", "[--show-password]", "the last user's remembered login (password masked)", Show, {}},
    {"remember", "USER PASSWORD", "remember a login as the login dialog does", Remember, {}},
};

}  // namespace

std::span<const Command> LoginCommands() {
    return kCommands;
}

}  // namespace vxenv
