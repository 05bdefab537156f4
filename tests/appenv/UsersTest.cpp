// Users and home folders: the slot algebra in the registry, legacy migration, lookups.
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/appenv/SettingsLayout.h"

namespace {

// Slots are written as "ann bob=/x cid=": in slot order, a bare name with the folder "/h/<name>",
// "name=folder" with another one, "name=" without any "VXPATH%u".
class UsersTest : public vx::test::AppEnvTest {
protected:
    void Seed(const std::string& slots, const std::string& last = "<absent>") {
        std::istringstream words(slots);
        std::string word;
        for (int n = 1; words >> word; ++n) {
            const auto equals = word.find('=');
            SetReg("USER" + std::to_string(n), word.substr(0, equals));
            const std::string folder =
                equals == std::string::npos ? "/h/" + word : word.substr(equals + 1);
            if (!folder.empty()) SetReg("VXPATH" + std::to_string(n), folder);
        }
        if (last != "<absent>") SetRegNumber("LastUserLoggedIn", std::stoi(last));
    }

    // The stored slots in the same notation, up to the first without a name.
    std::string StoredSlots() {
        std::string slots;
        for (int n = 1;; ++n) {
            const std::string name = Reg("USER" + std::to_string(n));
            const std::string folder = Reg("VXPATH" + std::to_string(n));
            if (name == "<absent>") {
                EXPECT_EQ(folder, "<absent>") << "left behind in slot " << n;
                return slots;
            }
            slots += (n > 1 ? " " : "") + name;
            if (folder != "/h/" + name) slots += "=" + (folder == "<absent>" ? "" : folder);
        }
    }
};

// Runs "delete NAME", "add NAME FOLDER", "home NAME FOLDER", "rename OLD NEW", "last NAME",
// "find NAME", "slot NAME", "default", "list", "lastpath" or "lastname"; gives the result and what
// the operation handed out, separated by blanks (a listing as "names|folders").
std::string Apply(const std::string& operation) {
    std::istringstream words(operation);
    std::string verb, first, second;
    words >> verb >> first >> second;
    CGNString folder = "stale";
    if (verb == "delete") return std::to_string(CAppEnv::DeleteUser(first.c_str()));
    if (verb == "add") return std::to_string(CAppEnv::AddUser(first.c_str(), second.c_str()));
    if (verb == "home")
        return std::to_string(CAppEnv::SetUserHomePath(first.c_str(), second.c_str()));
    if (verb == "rename") return std::to_string(CAppEnv::RenameUser(first.c_str(), second.c_str()));
    if (verb == "last") return std::to_string(CAppEnv::SetLastUserLoggedIn(first.c_str()));
    if (verb == "find")
        return std::to_string(CAppEnv::FindHomeDirectory(first.c_str(), folder)) + " " +
               folder.str();
    if (verb == "slot") return std::to_string(vx::UserSlot(first.c_str()));
    if (verb == "lastname") return std::to_string(vx::GetLastUserName(folder)) + " " + folder.str();
    if (verb == "default")
        return std::to_string(CAppEnv::GetDefaultHomePath(folder)) + " " + folder.str();
    if (verb == "list") {
        CGNStringList names, folders;
        const int result = CAppEnv::GetListOfUsers(names, folders);
        return std::to_string(result) + " " + names.Join(' ').str() + "|" + folders.Join(' ').str();
    }
    unsigned int slot = 7;
    char path[vx::kHomeFolderBufferSize] = "stale";
    CAppEnv::GetLastUserAndPath(&slot, path, sizeof path);
    return std::to_string(static_cast<int>(slot)) + " " + path;
}

TEST_F(UsersTest, SlotsStayDenseAndLookupsFollowThem) {
    struct Case {
        const char* before;
        const char* lastBefore;
        const char* operation;
        const char* result;
        const char* after;  // null when the slots do not change
        const char* lastAfter;
    };
    // clang-format off
    const Case cases[] = {
        {"ann bob cid",  "3",        "delete bob",     "1", "ann cid",        "2"},
        {"ann bob cid",  "2",        "delete bob",     "1", "ann cid",        "-1"},
        {"ann bob cid",  "1",        "delete bob",     "1", "ann cid",        "1"},
        {"ann bob",      "<absent>", "delete ann",     "1", "bob",            "-1"},
        {"ann bob",      "2",        "delete zed",     "0", nullptr,          "2"},
        // A moved slot without a folder keeps the folder that its new slot had.
        {"ann bob cid=", "3",        "delete bob",     "1", "ann cid=/h/bob", "2"},
        {"ann",          "1",        "add bob /h/bob", "1", "ann bob",        "1"},
        {"ann bob",      "<absent>", "add ann /new",   "1", "ann=/new bob",   "<absent>"},
        {"ann bob",      "<absent>", "home bob /new",  "1", "ann bob=/new",   "<absent>"},
        {"ann bob",      "2",        "rename bob rob", "1", "ann rob=/h/bob", "2"},
        {"ann",          "<absent>", "rename zed rob", "0", nullptr,          "<absent>"},
        {"ann bob",      "<absent>", "last bob",       "1", nullptr,          "2"},
        {"ann bob",      "1",        "last zed",       "1", nullptr,          "-1"},
        {"ann bob ann=/other cid=", "<absent>", "list", "1 ann bob cid|/h/ann /h/bob ", nullptr,
         "<absent>"},
        // The first "bob" has no folder: the search goes on to the next slot of that name.
        {"ann bob= bob=/h/bob2", "<absent>", "find bob", "1 /h/bob2", nullptr, "<absent>"},
        {"ann",          "<absent>", "find zed",       "0 ",       nullptr,   "<absent>"},
        {"",             "<absent>", "default",        "0 ",       nullptr,   "<absent>"},
        {"ann bob=",     "1",        "lastpath",       "1 /h/ann", nullptr,   "1"},
        {"ann bob=",     "2",        "lastpath",       "2 ",       nullptr,   "2"},
        {"ann",          "<absent>", "lastpath",       "-1 ",      nullptr,   "-1"},
        {"ann bob bob",  "<absent>", "slot bob",       "2",        nullptr,   "<absent>"},
        {"ann",          "<absent>", "slot zed",       "0",        nullptr,   "<absent>"},
        {"ann bob",      "2",        "lastname",       "1 bob",    nullptr,   "2"},
        {"ann",          "<absent>", "lastname",       "0 ",       nullptr,   "-1"},
        {"ann",          "5",        "lastname",       "0 ",       nullptr,   "5"},
    };
    // clang-format on
    for (const Case& c : cases) {
        vx::test::TempHome fresh;
        Seed(c.before, c.lastBefore);
        EXPECT_EQ(Apply(c.operation), c.result) << c.before << ": " << c.operation;
        EXPECT_EQ(StoredSlots(), c.after ? c.after : c.before) << c.before << ": " << c.operation;
        EXPECT_EQ(Reg("LastUserLoggedIn"), c.lastAfter) << c.before << ": " << c.operation;
    }
    CAppEnv::GetLastUserAndPath(nullptr, nullptr, 0);
}

TEST_F(UsersTest, LegacyUsersMigrateOnFirstListingInTheirOrder) {
    Legacy("USER1", "old1");
    Legacy("Vxpath1", "/legacy/1");
    Legacy("USER2", "old2");
    Legacy("Vxpath2", "/legacy/2");
    Legacy("VXPATH0", "/legacy");
    EXPECT_EQ(Apply("list"), "1 old1 old2|/legacy/1 /legacy/2");
    EXPECT_EQ(StoredSlots(), "old1=/legacy/1 old2=/legacy/2");
    EXPECT_EQ(Reg("VXPATH0"), "/legacy");

    // From now on the registry is the store of record.
    Legacy("USER3", "late");
    EXPECT_EQ(Apply("list"), "1 old1 old2|/legacy/1 /legacy/2");
}

TEST_F(UsersTest, LastUserOfAnOlderClientIsTakenOverWithItsUsers) {
    Legacy("USER1", "old1");
    Legacy("USER2", "old2");
    Legacy("Vxpath2", "/legacy/2");
    Legacy("LastUserLoggedIn", "2");
    EXPECT_EQ(Apply("lastpath"), "2 /legacy/2");
    EXPECT_EQ(Reg("LastUserLoggedIn"), "2");
    EXPECT_EQ(StoredSlots(), "old1= old2=/legacy/2");
}

TEST_F(UsersTest, RenameBeforeMigrationRenamesTheLegacyUser) {
    Legacy("USER1", "old1");
    Legacy("USER2", "old2");
    EXPECT_EQ(CAppEnv::RenameUser("old2", "new2"), 1);
    char name[128] = {};
    vx::LegacyProfileGetString("VXUser", "USER2", "", name, sizeof name);
    EXPECT_STREQ(name, "new2");
    EXPECT_EQ(Reg("USER1"), "<absent>");
}

TEST_F(UsersTest, TheDefaultHomeFolderMigratesFromLegacyAndAnswersForUnknownUsers) {
    Legacy("VXPATH0", "/legacy");
    EXPECT_EQ(Apply("find zed"), "1 /legacy");
    EXPECT_EQ(Reg("VXPATH0"), "/legacy");
    EXPECT_EQ(CAppEnv::SetDefaultHomePath("/home"), 1);
    EXPECT_EQ(Apply("default"), "1 /home");
}

}  // namespace
