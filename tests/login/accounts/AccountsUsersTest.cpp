// The user list of the accounts dialog: opening, edits of names and folders, deletion.
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AccountsHarness.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/platform/ProfileFile.h"

namespace {

using vx::test::Accounts;

TEST(AccountsUsersTest, OpeningListsFixedRowsThenUsersAndWritesNothing) {
    Accounts dialog;
    dialog.AddUser("ann", "ann");
    dialog.AddUser("bob", "bob");
    CAppEnv::SetDefaultHomePath(dialog.Folder("default"));
    CAppEnv::SetLastUserLoggedIn("ann");
    ASSERT_EQ(CAppEnv::SetLastUserAndPassword("ann", "secret"), 1);
    std::filesystem::remove(dialog.home.file("vxaccountstest.ini"));
    dialog.Open();
    EXPECT_EQ(dialog.UserRows(), "+=default, D=default, ann=ann, *bob=bob");
    EXPECT_EQ(dialog.users.GetCellText(0, 0).str(), "Click to add new user");
    EXPECT_EQ(dialog.users.GetCellText(1, 0).str(), "Default User");
    EXPECT_EQ(dialog.users.focused, 3);
    EXPECT_EQ(dialog.presenter.GetCurrentUser().str(), "bob");
    EXPECT_EQ(dialog.view.usersTitle, "Users ( ann )");
    EXPECT_EQ(dialog.view.serversTitle, "Servers");
    EXPECT_EQ(dialog.users.headers, (std::vector<std::string>{"User", "VX Home Folder"}));
    EXPECT_FALSE(std::filesystem::exists(dialog.home.file("vxaccountstest.ini")));

    // Without the current user among the users, "Default User" is selected.
    Accounts empty;
    empty.Open();
    EXPECT_EQ(empty.UserRows(), "+=default, *D=default");
    EXPECT_EQ(empty.view.usersTitle, "Users");
}

struct Edit {
    int row;
    int column;
    std::string text;  // "~name" is the folder of that name inside the settings home
};

struct EditCase {
    const char* what;
    std::vector<Edit> edits;
    bool accepted;
    std::string rows;
    std::string stored;
    int dirty;
    std::string message = "";
    std::string defaultFolder = "default";
};

// Users "ann" and "bob" in their own folders; the edited row is selected first, as a click
// selects it.
TEST(AccountsUsersTest, EditsStoreWhatTheRulesAllowAndRestoreTheRest) {
    const std::string stored = "ann=ann, bob=bob";
    // clang-format off
    const EditCase cases[] = {
        {"a user typed over the add row becomes row 2 and keeps the default folder",
         {{0, 0, "carl"}}, true,
         "+=default, D=default, *carl=default, ann=ann, bob=bob", "ann=ann, bob=bob, carl=default", 1},
        {"a folder prepared in the add row goes with the new user",
         {{0, 1, "~carl"}, {0, 0, "carl"}}, true,
         "+=default, D=default, *carl=carl, ann=ann, bob=bob", "ann=ann, bob=bob, carl=carl", 1},
        {"a rename keeps the folder", {{2, 0, "anna"}}, true,
         "+=default, D=default, *anna=ann, bob=bob", "anna=ann, bob=bob", 1},
        {"a name another row has is restored, and that row is pointed at", {{3, 0, "ann"}}, true,
         "+=default, D=default, *ann=ann, bob=bob", stored, 0},
        {"names differing in letter case only are different users", {{3, 0, "Ann"}}, true,
         "+=default, D=default, ann=ann, *Ann=bob", "ann=ann, Ann=bob", 1},
        {"the fixed row's name counts as taken", {{2, 0, "Default User"}}, true,
         "+=default, *D=default, ann=ann, bob=bob", stored, 0},
        {"Default User cannot be renamed", {{1, 0, "dora"}}, false,
         "+=default, *D=default, ann=ann, bob=bob", stored, 0},
        {"the add row's text is refused in any letter case", {{2, 0, "click TO add new USER"}}, false,
         "+=default, D=default, *ann=ann, bob=bob", stored, 0},
        {"Default User's folder becomes the default home folder, offered to new users",
         {{1, 1, "~other"}}, true,
         "+=other, *D=other, ann=ann, bob=bob", stored, 1, "", "other"},
        {"a relative folder is refused with its message and the cell restored",
         {{2, 1, "relative"}}, true,
         "+=default, D=default, *ann=ann, bob=bob", stored, 0,
         "Relative folder directory ('relative') is not suggested.  Please enter a fully-qualified "
         "folder location."},
    };
    // clang-format on
    for (const EditCase& c : cases) {
        SCOPED_TRACE(c.what);
        Accounts dialog;
        dialog.AddUser("ann", "ann");
        dialog.AddUser("bob", "bob");
        dialog.Open();
        bool accepted = true;
        for (const Edit& edit : c.edits) {
            const std::string text =
                edit.text[0] == '~' ? dialog.Folder(edit.text.substr(1)) : edit.text;
            accepted = dialog.EditUser(edit.row, edit.column, text) && accepted;
        }
        EXPECT_EQ(accepted, c.accepted);
        EXPECT_EQ(dialog.UserRows(), c.rows);
        EXPECT_EQ(dialog.StoredUsers(), c.stored);
        EXPECT_EQ(dialog.presenter.IsDirty(), c.dirty);
        EXPECT_EQ(dialog.Shown(), c.message);
        CGNString folder;
        CAppEnv::GetDefaultHomePath(folder);
        EXPECT_EQ(dialog.Short(folder.str()), c.defaultFolder);
    }
}

// A user with a folder of its own has the folder created and its name written into it; one
// who shares the default folder leaves that folder alone.
TEST(AccountsUsersTest, NewAndRenamedUsersAreRecordedInTheirOwnFolderOnly) {
    Accounts dialog;
    dialog.AddUser("ann", "ann");
    dialog.Open();
    dialog.EditUser(0, 0, "dora");
    dialog.EditUser(0, 1, dialog.Folder("new/carl"));
    dialog.EditUser(0, 0, "carl");
    dialog.EditUser(4, 0, "anna");
    EXPECT_EQ(dialog.StoredUsers(), "anna=ann, dora=default, carl=new/carl");
    EXPECT_EQ(dialog.presenter.GetCurrentUser().str(), "anna");  // the user the dialog ends on
    for (const auto& [folder, name] :
         {std::pair{"default", "<absent>"}, {"new/carl", "carl"}, {"ann", "anna"}}) {
        const CGNString file = MakeFilePath(dialog.Folder(folder).c_str(), "vx.ini");
        EXPECT_EQ(vx::ProfileGetString("User", "User", "<absent>", file.c_str()), name) << folder;
    }
}

TEST(AccountsUsersTest, MovedFolderTakesItsSettingsAlong) {
    for (const bool targetExists : {false, true}) {
        SCOPED_TRACE(targetExists ? "into an existing folder" : "into a new folder");
        Accounts dialog;
        dialog.AddUser("ann", "ann");
        vx::test::WriteBytes(dialog.Folder("ann/vx.ini"), "[User]\nUser=ann\n");
        vx::test::WriteBytes(dialog.Folder("ann/VX"), "alpha VX;;;;\n");
        vx::test::WriteBytes(dialog.Folder("ann/notes.txt"), "mine");
        if (targetExists) {
            std::filesystem::create_directories(dialog.Folder("moved"));
            vx::test::WriteBytes(dialog.Folder("moved/VX"), "kept VX;;;;\n");
        }
        dialog.Open();
        dialog.EditUser(2, 1, dialog.Folder("moved"));
        EXPECT_EQ(dialog.StoredUsers(), "ann=moved");
        EXPECT_EQ(vx::test::ReadBytes(dialog.Folder("moved/vx.ini")), "[User]\nUser=ann\n");
        // Settings files already there are kept; other files come along only into a new folder.
        EXPECT_EQ(vx::test::ReadBytes(dialog.Folder("moved/VX")),
                  targetExists ? "kept VX;;;;\n" : "alpha VX;;;;\n");
        EXPECT_EQ(std::filesystem::exists(dialog.Folder("moved/notes.txt")), !targetExists);
        EXPECT_EQ(dialog.presenter.IsDirty(), 1);
    }
}

// Bottom up, one question per user; No ends the run without rebuilding the list or touching
// the dirty flag, even after users of the same run were removed.
TEST(AccountsUsersTest, DeletionAsksPerUserAndStopsAtTheFirstNo) {
    const struct {
        std::vector<int> answers;
        std::string asked;
        std::string rows;
        std::string stored;
        int dirty;
    } cases[] = {
        // clang-format off
        {{vx::kIdYes, vx::kIdNo}, "cat bob",
         "*+=default, *D=default, *ann=ann, *bob=bob", "ann=ann, bob=bob", 0},
        {{vx::kIdYes, vx::kIdYes, vx::kIdYes}, "cat bob ann", "+=default, *D=default", "", 1},
        {{vx::kIdNo}, "cat",
         "*+=default, *D=default, *ann=ann, *bob=bob, *cat=cat", "ann=ann, bob=bob, cat=cat", 0},
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.asked);
        Accounts dialog;
        for (const char* name : {"ann", "bob", "cat"})
            dialog.AddUser(name, name);
        dialog.Open();
        dialog.users.selected = {0, 1, 2, 3, 4};
        dialog.prompt.answers.assign(c.answers.begin(), c.answers.end());
        const int insertedBefore = dialog.users.insertedRows;
        dialog.presenter.OnListDeleteKey(dialog.users);
        std::string asked;
        for (std::size_t i = 0; i < dialog.prompt.shown.size(); ++i) {
            const std::string& text = dialog.prompt.shown[i];
            asked += (i ? " " : "") + text.substr(25, text.size() - 27);
            EXPECT_EQ(text.substr(0, 25), "Permanently remove user '");
            EXPECT_EQ(dialog.prompt.styles[i],
                      vx::kMbYesNo | vx::kMbIconQuestion | vx::kMbDefButton2);
        }
        EXPECT_EQ(asked, c.asked);
        EXPECT_EQ(dialog.UserRows(), c.rows);
        EXPECT_EQ(dialog.StoredUsers(), c.stored);
        EXPECT_EQ(dialog.presenter.IsDirty(), c.dirty);
        EXPECT_EQ(dialog.users.insertedRows > insertedBefore, c.dirty == 1);  // rebuilt
    }
}

}  // namespace
