// Users and home folders: the slot algebra in the registry, legacy migration, lookups.
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/platform/LegacyProfile.h"

namespace {

using vx::test::AppEnvTest;

struct Slot {
    std::string name;
    std::string folder;  // "<absent>": the slot has no "VXPATH%u"

    friend bool operator==(const Slot&, const Slot&) = default;
};

void PrintTo(const Slot& slot, std::ostream* out) {
    *out << slot.name << " -> " << slot.folder;
}

class UsersTest : public AppEnvTest {
protected:
    void Seed(const std::vector<Slot>& slots, const std::string& last) {
        for (std::size_t i = 0; i < slots.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            SetReg("USER" + n, slots[i].name);
            if (slots[i].folder != "<absent>") SetReg("VXPATH" + n, slots[i].folder);
        }
        if (last != "<absent>") SetRegNumber("LastUserLoggedIn", std::stoi(last));
    }

    // The slots as stored, up to the first without a name; also checks that nothing of a slot
    // is left behind after it.
    std::vector<Slot> StoredSlots() {
        std::vector<Slot> slots;
        for (int n = 1;; ++n) {
            const std::string name = Reg("USER" + std::to_string(n));
            const std::string folder = Reg("VXPATH" + std::to_string(n));
            if (name == "<absent>") {
                EXPECT_EQ(folder, "<absent>") << "slot " << n;
                return slots;
            }
            slots.push_back({name, folder});
        }
    }

    static std::pair<std::vector<std::string>, std::vector<std::string>> List() {
        CGNStringList names, folders;
        EXPECT_EQ(CAppEnv::GetListOfUsers(names, folders), 1);
        std::pair<std::vector<std::string>, std::vector<std::string>> result;
        for (const CGNString& name : names)
            result.first.push_back(name.str());
        for (const CGNString& folder : folders)
            result.second.push_back(folder.str());
        return result;
    }
};

struct SlotCase {
    const char* what;
    std::vector<Slot> before;
    const char* lastBefore;
    std::function<int()> operation;
    int result;
    std::vector<Slot> after;
    const char* lastAfter;
};

const Slot kAnn{"ann", "/h/ann"};
const Slot kBob{"bob", "/h/bob"};
const Slot kCid{"cid", "/h/cid"};

TEST_F(UsersTest, SlotsStayDenseThroughAddDeleteAndRename) {
    const SlotCase cases[] = {
        {"delete the middle one, last after it",
         {kAnn, kBob, kCid},
         "3",
         [] { return CAppEnv::DeleteUser("bob"); },
         1,
         {kAnn, kCid},
         "2"},
        {"delete the last user itself",
         {kAnn, kBob, kCid},
         "2",
         [] { return CAppEnv::DeleteUser("bob"); },
         1,
         {kAnn, kCid},
         "-1"},
        {"delete after the last user",
         {kAnn, kBob, kCid},
         "1",
         [] { return CAppEnv::DeleteUser("bob"); },
         1,
         {kAnn, kCid},
         "1"},
        {"delete with nobody remembered",
         {kAnn, kBob},
         "<absent>",
         [] { return CAppEnv::DeleteUser("ann"); },
         1,
         {kBob},
         "-1"},
        {"delete the only user",
         {kAnn},
         "1",
         [] { return CAppEnv::DeleteUser("ann"); },
         1,
         {},
         "-1"},
        {"delete an unknown user",
         {kAnn, kBob},
         "2",
         [] { return CAppEnv::DeleteUser("zed"); },
         0,
         {kAnn, kBob},
         "2"},
        {"names are compared with their case",
         {kAnn},
         "<absent>",
         [] { return CAppEnv::DeleteUser("Ann"); },
         0,
         {kAnn},
         "<absent>"},
        // A moved slot without a folder leaves the previous folder in place.
        {"delete before a slot without folder",
         {kAnn, kBob, {"cid", "<absent>"}},
         "3",
         [] { return CAppEnv::DeleteUser("bob"); },
         1,
         {kAnn, {"cid", "/h/bob"}},
         "2"},
        {"add a new user",
         {kAnn},
         "1",
         [] { return CAppEnv::AddUser("bob", "/h/bob"); },
         1,
         {kAnn, kBob},
         "1"},
        {"add to an empty list",
         {},
         "<absent>",
         [] { return CAppEnv::AddUser("ann", "/h/ann"); },
         1,
         {kAnn},
         "<absent>"},
        {"add an existing user",
         {kAnn, kBob},
         "<absent>",
         [] { return CAppEnv::AddUser("ann", "/new"); },
         1,
         {{"ann", "/new"}, kBob},
         "<absent>"},
        {"set a home path",
         {kAnn, kBob},
         "<absent>",
         [] { return CAppEnv::SetUserHomePath("bob", "/new"); },
         1,
         {kAnn, {"bob", "/new"}},
         "<absent>"},
        {"rename keeps slot and folder",
         {kAnn, kBob},
         "2",
         [] { return CAppEnv::RenameUser("bob", "rob"); },
         1,
         {kAnn, {"rob", "/h/bob"}},
         "2"},
        {"rename an unknown user",
         {kAnn},
         "<absent>",
         [] { return CAppEnv::RenameUser("zed", "rob"); },
         0,
         {kAnn},
         "<absent>"},
        {"remember a user",
         {kAnn, kBob},
         "<absent>",
         [] { return CAppEnv::SetLastUserLoggedIn("bob"); },
         1,
         {kAnn, kBob},
         "2"},
        {"remember an unknown user",
         {kAnn, kBob},
         "1",
         [] { return CAppEnv::SetLastUserLoggedIn("zed"); },
         1,
         {kAnn, kBob},
         "-1"},
    };
    for (const SlotCase& c : cases) {
        vx::test::TempHome fresh;  // a fresh store for each case
        Seed(c.before, c.lastBefore);
        EXPECT_EQ(c.operation(), c.result) << c.what;
        EXPECT_EQ(StoredSlots(), c.after) << c.what;
        EXPECT_EQ(Reg("LastUserLoggedIn"), c.lastAfter) << c.what;
    }
}

TEST_F(UsersTest, DeletingEveryUserInTurnKeepsTheLastUserPointingAtTheSameName) {
    Seed({kAnn, kBob, kCid, {"dan", "/h/dan"}}, "4");
    for (const char* name : {"bob", "ann", "cid"}) {
        ASSERT_EQ(CAppEnv::DeleteUser(name), 1);
        const std::string last = Reg("LastUserLoggedIn");
        EXPECT_EQ(Reg("USER" + last), "dan") << "after deleting " << name;
    }
    EXPECT_EQ(StoredSlots(), (std::vector<Slot>{{"dan", "/h/dan"}}));
}

TEST_F(UsersTest, ListingGivesEachNameOnceWithItsFirstFolder) {
    Seed({kAnn, kBob, {"ann", "/other"}, {"cid", "<absent>"}}, "<absent>");
    const auto [names, folders] = List();
    EXPECT_EQ(names, (std::vector<std::string>{"ann", "bob", "cid"}));
    EXPECT_EQ(folders, (std::vector<std::string>{"/h/ann", "/h/bob", ""}));
}

TEST_F(UsersTest, LegacyUsersMigrateOnFirstListingInTheirOrder) {
    vx::LegacyProfileWriteString("VXUser", "USER1", "old1");
    vx::LegacyProfileWriteString("VXUser", "Vxpath1", "/legacy/1");
    vx::LegacyProfileWriteString("VXUser", "USER2", "old2");
    vx::LegacyProfileWriteString("VXUser", "Vxpath2", "/legacy/2");
    vx::LegacyProfileWriteString("VXUser", "VXPATH0", "/legacy");

    const auto first = List();
    EXPECT_EQ(first.first, (std::vector<std::string>{"old1", "old2"}));
    EXPECT_EQ(first.second, (std::vector<std::string>{"/legacy/1", "/legacy/2"}));
    EXPECT_EQ(StoredSlots(), (std::vector<Slot>{{"old1", "/legacy/1"}, {"old2", "/legacy/2"}}));
    EXPECT_EQ(Reg("VXPATH0"), "/legacy");

    // From now on the registry is the store of record.
    vx::LegacyProfileWriteString("VXUser", "USER3", "late");
    EXPECT_EQ(List(), first);
}

TEST_F(UsersTest, RenameBeforeMigrationRenamesTheLegacyUser) {
    vx::LegacyProfileWriteString("VXUser", "USER1", "old1");
    vx::LegacyProfileWriteString("VXUser", "USER2", "old2");
    EXPECT_EQ(CAppEnv::RenameUser("old2", "new2"), 1);
    char name[128] = {};
    vx::LegacyProfileGetString("VXUser", "USER2", "", name, sizeof name);
    EXPECT_STREQ(name, "new2");
    EXPECT_EQ(Reg("USER1"), "<absent>");
}

TEST_F(UsersTest, DefaultHomePathComesFromTheRegistryOrMigratesFromLegacy) {
    CGNString folder = "stale";
    EXPECT_EQ(CAppEnv::GetDefaultHomePath(folder), 0);
    EXPECT_EQ(folder, "");

    vx::LegacyProfileWriteString("VXUser", "VXPATH0", "/legacy");
    EXPECT_EQ(CAppEnv::GetDefaultHomePath(folder), 1);
    EXPECT_EQ(folder, "/legacy");
    EXPECT_EQ(Reg("VXPATH0"), "/legacy");

    EXPECT_EQ(CAppEnv::SetDefaultHomePath("/home"), 1);
    EXPECT_EQ(CAppEnv::GetDefaultHomePath(folder), 1);
    EXPECT_EQ(folder, "/home");
}

TEST_F(UsersTest, FindHomeDirectoryFallsBackToTheDefaultFolder) {
    Seed({kAnn, {"bob", "<absent>"}, {"bob", "/h/bob2"}}, "<absent>");
    CGNString folder;
    EXPECT_EQ(CAppEnv::FindHomeDirectory("ann", folder), 1);
    EXPECT_EQ(folder, "/h/ann");
    // The first "bob" has no folder; the search goes on to the next slot of that name.
    EXPECT_EQ(CAppEnv::FindHomeDirectory("bob", folder), 1);
    EXPECT_EQ(folder, "/h/bob2");

    EXPECT_EQ(CAppEnv::FindHomeDirectory("zed", folder), 0);
    EXPECT_EQ(folder, "");
    SetReg("VXPATH0", "/default");
    EXPECT_EQ(CAppEnv::FindHomeDirectory("zed", folder), 1);
    EXPECT_EQ(folder, "/default");
}

TEST_F(UsersTest, LastUserAndPath) {
    unsigned int slot = 7;
    char folder[vx::kHomeFolderBufferSize] = "stale";
    CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
    EXPECT_EQ(slot, 0xFFFFFFFFu);
    EXPECT_STREQ(folder, "");

    Seed({kAnn, {"bob", ""}}, "1");
    CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
    EXPECT_EQ(slot, 1u);
    EXPECT_STREQ(folder, "/h/ann");

    SetRegNumber("LastUserLoggedIn", 2);
    CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
    EXPECT_EQ(slot, 2u);
    EXPECT_STREQ(folder, "");

    // Null arguments are tolerated.
    CAppEnv::GetLastUserAndPath(nullptr, nullptr, 0);
}

TEST_F(UsersTest, LastUserOfAnOlderClientIsTakenOverWithItsUsers) {
    vx::LegacyProfileWriteString("VXUser", "USER1", "old1");
    vx::LegacyProfileWriteString("VXUser", "Vxpath1", "/legacy/1");
    vx::LegacyProfileWriteString("VXUser", "USER2", "old2");
    vx::LegacyProfileWriteString("VXUser", "Vxpath2", "/legacy/2");
    vx::LegacyProfileWriteString("VXUser", "LastUserLoggedIn", "2");

    unsigned int slot = 0;
    char folder[vx::kHomeFolderBufferSize] = {};
    CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
    EXPECT_EQ(slot, 2u);
    EXPECT_STREQ(folder, "/legacy/2");
    EXPECT_EQ(Reg("LastUserLoggedIn"), "2");
    EXPECT_EQ(Reg("USER2"), "old2");
}

}  // namespace
