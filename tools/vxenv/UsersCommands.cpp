// vxenv users: the client's users, their home folders, the default folder and the last user.
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/appenv/SettingsLayout.h"

namespace vxenv {
namespace {

// The login dialog takes names of at most this many bytes.
constexpr std::size_t kMaxNameBytes = vx::kNameBufferSize - 1;

struct User {
    std::string name;
    std::string folder;
};

std::vector<User> ListUsers() {
    CGNStringList names, folders;
    CAppEnv::GetListOfUsers(names, folders);
    std::vector<User> users;
    for (int i = 0; i < names.GetCount(); ++i)
        users.push_back({names.GetAt(i).str(), folders.GetAt(i).str()});
    return users;
}

bool CheckName(Context& context, const std::string& name, int& exitCode) {
    if (name.empty() || name.size() > kMaxNameBytes) {
        exitCode = context.UsageError("a user name has 1 to 30 characters");
        return false;
    }
    return true;
}

int List(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    std::vector<std::string> objects;
    for (const User& user : ListUsers()) {
        const unsigned slot = vx::UserSlot(user.name);
        if (context.json()) {
            objects.push_back(JsonObject()
                                  .Add("slot", static_cast<long long>(slot))
                                  .Add("name", user.name)
                                  .Add("home", user.folder)
                                  .Text());
        } else {
            context.PrintFields({std::to_string(slot), user.name, user.folder});
        }
    }
    if (context.json()) context.Print(JsonArray(objects));
    return kOk;
}

int Add(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 2, 2, code) || !CheckName(context, args[0], code)) return code;
    if (args[1].empty()) return context.UsageError("the home folder is empty");
    if (!CAppEnv::AddUser(args[0].c_str(), args[1].c_str()))
        return context.Fail("could not store user '" + args[0] + "'");
    return kOk;
}

int Delete(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    if (!CAppEnv::DeleteUser(args[0].c_str())) return context.Fail("no user '" + args[0] + "'");
    return kOk;
}

int Rename(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 2, 2, code) || !CheckName(context, args[1], code)) return code;
    if (IsKnownUser(args[1])) return context.Fail("user '" + args[1] + "' exists already");
    if (!CAppEnv::RenameUser(args[0].c_str(), args[1].c_str()))
        return context.Fail("no user '" + args[0] + "'");
    return kOk;
}

int Default(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 1, code)) return code;
    if (args.size() == 1) {
        if (args[0].empty()) return context.UsageError("the home folder is empty");
        if (!CAppEnv::SetDefaultHomePath(args[0].c_str()))
            return context.Fail("could not store the default home folder");
        return kOk;
    }
    CGNString folder;
    if (!CAppEnv::GetDefaultHomePath(folder)) return context.Fail("no default home folder is set");
    context.Print(context.json() ? JsonObject().Add("home", folder.view()).Text() : folder.str());
    return kOk;
}

int Last(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 1, code)) return code;
    if (args.size() == 1) {
        if (!IsKnownUser(args[0])) return context.Fail("no user '" + args[0] + "'");
        if (!CAppEnv::SetLastUserLoggedIn(args[0].c_str()))
            return context.Fail("could not store the last user");
        return kOk;
    }
    CGNString name;
    if (!vx::GetLastUserName(name)) return context.Fail("no user has logged in yet");
    context.Print(context.json() ? JsonObject().Add("name", name.view()).Text() : name.str());
    return kOk;
}

constexpr Command kCommands[] = {
    {"list", "", "one line per user: slot, name, home folder (tab separated)", List, {}},
    {"add", "NAME FOLDER", "add a user, or give an existing one a new home folder", Add, {}},
    {"delete", "NAME", "remove a user; later users move up one slot", Delete, {}},
    {"rename", "OLD NEW", "rename a user, keeping its slot and home folder", Rename, {}},
    {"default", "[FOLDER]", "show or set the default home folder", Default, {}},
    {"last", "[NAME]", "show or set the user that logged in last", Last, {}},
};

}  // namespace

std::span<const Command> UsersCommands() {
    return kCommands;
}

bool IsKnownUser(const std::string& name) {
    for (const User& user : ListUsers())
        if (user.name == name) return true;
    return false;
}

bool UserHomeFolder(Context& context, const std::string& user, std::string& folder, int& exitCode) {
    CGNString last;
    const bool known = !user.empty() || vx::GetLastUserName(last);
    const std::string name = user.empty() ? last.str() : user;
    if (!known) {
        exitCode = context.Fail("no user given and no user has logged in yet");
        return false;
    }
    CGNString found;
    if (!IsKnownUser(name)) {
        exitCode = context.Fail("no user '" + name + "'");
    } else if (!CAppEnv::FindHomeDirectory(name.c_str(), found) || found.IsEmpty()) {
        exitCode = context.Fail("user '" + name + "' has no home folder");
    } else {
        folder = found.str();
        return true;
    }
    return false;
}

}  // namespace vxenv
