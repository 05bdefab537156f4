// Users and home folders: the slot algebra in the registry, legacy migration, lookups.
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"

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

    // "names|folders" as listed, each part joined by blanks.
    static std::string List() {
        CGNStringList names, folders;
        EXPECT_EQ(CAppEnv::GetListOfUsers(names, folders), 1);
        return names.Join(' ').str() + "|" + folders.Join(' ').str();
    }

    // "<slot> <folder>" from GetLastUserAndPath.
    static std::string LastUser() {
        unsigned int slot = 7;
        char folder[vx::kHomeFolderBufferSize] = "stale";
        CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
        return std::to_string(static_cast<int>(slot)) + " " + folder;
    }
};

// "delete NAME", "add NAME FOLDER", "home NAME FOLDER", "rename OLD NEW", "last NAME".
int Apply(const std::string& operation) {
    std::istringstream words(operation);
    std::string verb, first, second;
    words >> verb >> first >> second;
    if (verb == "delete") return CAppEnv::DeleteUser(first.c_str());
    if (verb == "add") return CAppEnv::AddUser(first.c_str(), second.c_str());
    if (verb == "home") return CAppEnv::SetUserHomePath(first.c_str(), second.c_str());
    if (verb == "rename") return CAppEnv::RenameUser(first.c_str(), second.c_str());
    return CAppEnv::SetLastUserLoggedIn(first.c_str());
}

TEST_F(UsersTest, SlotsStayDenseThroughAddDeleteAndRename) {
    struct Case {
        const char* before;
        const char* lastBefore;
        const char* operation;
        int result;
        const char* after;
        const char* lastAfter;
    };
    // clang-format off
    const Case cases[] = {
        {"ann bob cid", "3",        "delete bob",        1, "ann cid",          "2"},
        {"ann bob cid", "2",        "delete bob",        1, "ann cid",          "-1"},
        {"ann bob cid", "1",        "delete bob",        1, "ann cid",          "1"},
        {"ann bob",     "<absent>", "delete ann",        1, "bob",              "-1"},
        {"ann",         "1",        "delete ann",        1, "",                 "-1"},
        {"ann bob",     "2",        "delete zed",        0, "ann bob",          "2"},
        {"ann",         "<absent>", "delete Ann",        0, "ann",              "<absent>"},
        // A moved slot without a folder keeps the folder that its new slot had.
        {"ann bob cid=", "3",       "delete bob",        1, "ann cid=/h/bob",   "2"},
        {"ann",         "1",        "add bob /h/bob",    1, "ann bob",          "1"},
        {"",            "<absent>", "add ann /h/ann",    1, "ann",              "<absent>"},
        {"ann bob",     "<absent>", "add ann /new",      1, "ann=/new bob",     "<absent>"},
        {"ann bob",     "<absent>", "home bob /new",     1, "ann bob=/new",     "<absent>"},
        {"ann bob",     "2",        "rename bob rob",    1, "ann rob=/h/bob",   "2"},
        {"ann",         "<absent>", "rename zed rob",    0, "ann",              "<absent>"},
        {"ann bob",     "<absent>", "last bob",          1, "ann bob",          "2"},
        {"ann bob",     "1",        "last zed",          1, "ann bob",          "-1"},
    };
    // clang-format on
    for (const Case& c : cases) {
        vx::test::TempHome fresh;
        Seed(c.before, c.lastBefore);
        EXPECT_EQ(Apply(c.operation), c.result) << c.before << ": " << c.operation;
        EXPECT_EQ(StoredSlots(), c.after) << c.before << ": " << c.operation;
        EXPECT_EQ(Reg("LastUserLoggedIn"), c.lastAfter) << c.before << ": " << c.operation;
    }
}

TEST_F(UsersTest, ListingGivesEachNameOnceWithItsFirstFolder) {
    Seed("ann bob ann=/other cid=");
    EXPECT_EQ(List(), "ann bob cid|/h/ann /h/bob ");
}

TEST_F(UsersTest, LegacyUsersMigrateOnFirstListingInTheirOrder) {
    Legacy("USER1", "old1");
    Legacy("Vxpath1", "/legacy/1");
    Legacy("USER2", "old2");
    Legacy("Vxpath2", "/legacy/2");
    Legacy("VXPATH0", "/legacy");
    EXPECT_EQ(List(), "old1 old2|/legacy/1 /legacy/2");
    EXPECT_EQ(StoredSlots(), "old1=/legacy/1 old2=/legacy/2");
    EXPECT_EQ(Reg("VXPATH0"), "/legacy");

    // From now on the registry is the store of record.
    Legacy("USER3", "late");
    EXPECT_EQ(List(), "old1 old2|/legacy/1 /legacy/2");
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

TEST_F(UsersTest, HomeFoldersFallBackToTheDefaultWhichMigratesFromLegacy) {
    CGNString folder = "stale";
    EXPECT_EQ(CAppEnv::GetDefaultHomePath(folder), 0);
    EXPECT_EQ(CAppEnv::FindHomeDirectory("zed", folder), 0);
    EXPECT_EQ(folder, "");

    Legacy("VXPATH0", "/legacy");
    EXPECT_EQ(CAppEnv::FindHomeDirectory("zed", folder), 1);
    EXPECT_EQ(folder, "/legacy");
    EXPECT_EQ(Reg("VXPATH0"), "/legacy");
    EXPECT_EQ(CAppEnv::SetDefaultHomePath("/home"), 1);
    EXPECT_EQ(CAppEnv::GetDefaultHomePath(folder), 1);
    EXPECT_EQ(folder, "/home");

    // The first "bob" has no folder: the search goes on to the next slot of that name.
    Seed("ann bob= bob=/h/bob2");
    EXPECT_EQ(CAppEnv::FindHomeDirectory("ann", folder), 1);
    EXPECT_EQ(folder, "/h/ann");
    EXPECT_EQ(CAppEnv::FindHomeDirectory("bob", folder), 1);
    EXPECT_EQ(folder, "/h/bob2");
}

TEST_F(UsersTest, LastUserAndPath) {
    EXPECT_EQ(LastUser(), "-1 ");
    Seed("ann bob=", "1");
    EXPECT_EQ(LastUser(), "1 /h/ann");
    SetRegNumber("LastUserLoggedIn", 2);
    EXPECT_EQ(LastUser(), "2 ");
    CAppEnv::GetLastUserAndPath(nullptr, nullptr, 0);
}

TEST_F(UsersTest, LastUserOfAnOlderClientIsTakenOverWithItsUsers) {
    Legacy("USER1", "old1");
    Legacy("USER2", "old2");
    Legacy("Vxpath2", "/legacy/2");
    Legacy("LastUserLoggedIn", "2");
    EXPECT_EQ(LastUser(), "2 /legacy/2");
    EXPECT_EQ(Reg("LastUserLoggedIn"), "2");
    EXPECT_EQ(StoredSlots(), "old1= old2=/legacy/2");
}

}  // namespace
