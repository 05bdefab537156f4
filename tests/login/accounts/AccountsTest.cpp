// The accounts presenter over fake lists and the real stores of a fresh settings home.
#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/ScriptedPrompt.h"
#include "support/TempHome.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/platform/ProfileFile.h"
#include "vxutil/platform/RApplication.h"

namespace vx::test {
namespace {

// Rows carry their selection along when rows are inserted or deleted, as in a list view.
class FakeList : public ListPort {
public:
    struct Row {
        std::array<std::string, 6> cells;
        bool selected = false;
    };
    int GetRowCount() const override { return static_cast<int>(rows.size()); }
    CGNString GetCellText(int row, int column) const override {
        return row >= 0 && row < GetRowCount() ? rows[row].cells[column] : "";
    }
    void SetCellText(int row, int column, const CGNString& text) override {
        rows.at(row).cells[column] = text.str();
    }
    void InsertRow(int row, const CGNString& text) override {
        rows.insert(rows.begin() + row, Row{{text.str()}});
    }
    void DeleteRow(int row) override { rows.erase(rows.begin() + row); }
    void SetRowSelected(int row, bool on) override { rows.at(row).selected = on; }
    void SetFocusedRow(int) override {}
    std::vector<int> GetSelectedRows() const override {
        std::vector<int> selected;
        for (int row = 0; row < GetRowCount(); ++row)
            if (rows[row].selected) selected.push_back(row);
        return selected;
    }
    void EditCell(int, int) override {}
    CGNString GetOriginalLabel() const override { return original; }
    void InsertColumn(int column, const CGNString&, int width) override {
        widths.insert(widths.begin() + column, width);
    }
    void DeleteColumn(int column) override { widths.erase(widths.begin() + column); }
    int GetColumnWidth(int column) const override {
        return column < static_cast<int>(widths.size()) ? widths[column] : 0;
    }

    void Select(const std::set<int>& which) {
        for (int row = 0; row < GetRowCount(); ++row)
            rows[row].selected = which.count(row) != 0;
    }

    std::vector<Row> rows;
    std::string original;
    std::vector<int> widths;
};

// The dialog of current user "bob", as its own view and owner; each user has the folder of its
// name, and "default" is the default home folder.
class Accounts : public AccountsView, public CLoginOwner {
public:
    explicit Accounts(const std::vector<std::string>& names = {}, bool open = true) {
        for (const std::string& name : names) {
            std::filesystem::create_directories(Folder(name));
            CAppEnv::AddUser(name, Folder(name));
        }
        std::filesystem::create_directories(Folder("default"));
        CAppEnv::SetDefaultHomePath(Folder("default"));
        if (open) presenter.OnInitDialog();
    }
    ~Accounts() override { RApplication::SetCurrent(m_previousApp); }

    void SetUsersTitle(const CGNString& title) override { usersTitle = title.str(); }
    void SetServersTitle(const CGNString&) override {}
    bool IsAdvancedOptionsChecked() const override { return advanced; }
    void SetAdvancedOptionsChecked(bool checked) override { advanced = checked; }
    void UpdateColumnImages() override {}
    WindowHandle GetWindowHandle() const override { return nullptr; }
    int Login(CGNString&, CGNString&) override { return 0; }
    int GetLoggedInServerArray(CGNStringList& list) override {
        for (const std::string& name : loggedIn)
            list.Add(name);
        return 1;
    }
    int ShowVXPortsByDefault() override { return portsByDefault; }

    std::string Folder(const std::string& name) const {
        return (home.path() / name).make_preferred().string();
    }
    // `text` with "/" separators and the settings home with the separator after it left out.
    std::string Short(std::string text) const {
        std::replace(text.begin(), text.end(), '\\', '/');
        const std::string base = (home.path() / "").generic_string();
        for (std::size_t at; (at = text.find(base)) != std::string::npos;)
            text.erase(at, base.size());
        return text;
    }
    // "+" for the add row, "D" for Default User, "=folder" after users, "*" when selected.
    std::string Rows(const FakeList& list) const {
        std::string text;
        for (int row = 0; row < list.GetRowCount(); ++row) {
            const auto& cells = list.rows[row].cells;
            text += std::string(row ? ", " : "") + (list.rows[row].selected ? "*" : "") +
                    (row == 0                      ? "+"
                     : row == 1 && &list == &users ? "D"
                                                   : cells[0]) +
                    (&list == &users ? "=" + cells[1] : "");
        }
        return Short(text);
    }
    std::string StoredUsers() const {
        CGNStringList names, folders;
        CAppEnv::GetListOfUsers(names, folders);
        std::string text;
        for (int i = 0; i < names.GetCount(); ++i)
            text += (i ? ", " : "") + names.GetAt(i).str() + "=" + folders.GetAt(i).str();
        return Short(text);
    }
    // Every message shown, joined by "|".
    std::string Shown() const {
        std::string text;
        for (const auto& question : prompt.asked)
            text += (text.empty() ? "" : "|") + question.text;
        return text;
    }
    void SelectUser(int row) {
        users.Select({row});
        presenter.OnItemchangedUserList();
    }
    // An in-cell edit: the click selects the row; false when the text is refused.
    bool Edit(FakeList& list, int row, int column, const std::string& text) {
        const bool user = &list == &users;
        user ? SelectUser(row) : list.Select({row});
        if (user ? !presenter.CanEditUserItem(row, column) ||
                       !presenter.IsUserEditTextValid(row, column, text)
                 : !presenter.CanEditServerItem(row, column) ||
                       !presenter.IsServerEditTextValid(row, column, text))
            return false;
        list.original = std::exchange(list.rows[row].cells[column], text);
        user ? presenter.OnEndLabelEditUserList(row, column)
             : presenter.OnEndLabelEditServerList(row, column);
        return true;
    }

    TempHome home;
    RApplication app{"AccountsTest", "vxaccountstest"};
    ScriptedPrompt prompt;
    std::string usersTitle;
    bool advanced = false;
    std::vector<std::string> loggedIn;
    int portsByDefault = 0;
    FakeList users, servers;
    AccountsPresenter presenter{*this, users, servers, "bob", this};

private:
    RApplication* m_previousApp = RApplication::SetCurrent(&app);
};

TEST(AccountsTest, OpeningShowsTheUsersAndWritesNothing) {
    Accounts dialog({"ann", "bob"}, false);
    dialog.portsByDefault = 1;
    CAppEnv::SetLastUserLoggedIn("ann");
    ASSERT_EQ(CAppEnv::SetLastUserAndPassword("ann", "secret"), 1);
    std::filesystem::remove(dialog.home.file("vxaccountstest.ini"));
    dialog.presenter.OnInitDialog();
    EXPECT_EQ(dialog.Rows(dialog.users), "+=default, D=default, ann=ann, *bob=bob");
    EXPECT_EQ(dialog.usersTitle, "Users ( ann )");  // the remembered login
    // The owner's choice when nothing is stored: the port columns shown.
    EXPECT_EQ(dialog.servers.widths, (std::vector<int>{150, 50, 50, 75, 75, 80}));
    EXPECT_FALSE(std::filesystem::exists(dialog.home.file("vxaccountstest.ini")));

    // Without the current user among the users "Default User" is selected; a stored switch wins.
    Accounts other({}, false);
    other.portsByDefault = 1;
    other.app.WriteProfileInt("Desktop", "AdvancedServerOptions", 0);
    other.presenter.OnInitDialog();
    EXPECT_EQ(other.Rows(other.users), "+=default, *D=default");
    EXPECT_EQ(other.servers.widths.size(), 3u);
}

// Dirty exactly when something was stored; the dialog ends on the selected row's user.
TEST(AccountsTest, UserEditsStoreWhatTheRulesAllowAndRestoreTheRest) {
    const std::string kAnnBob = "ann=ann, bob=bob";
    const struct {
        int row, column;
        std::string text;  // "~name" is the folder of that name inside the settings home
        bool accepted;
        std::string rows, stored, shown = "", defaultFolder = "default";
        std::string named = "";     // "folder=name": the user named in the folder's settings file
        std::string prepared = "";  // a folder typed into the add row first
    } cases[] = {
        // A user typed over the add row goes to row 2 with the default folder, left unwritten.
        {0, 0, "carl", true, "+=default, D=default, *carl=default, ann=ann, bob=bob",
         "ann=ann, bob=bob, carl=default", "", "default", "default=<absent>"},
        // A folder prepared in the add row is created for the new user.
        {0, 0, "carl", true, "+=default, D=default, *carl=carl, ann=ann, bob=bob",
         "ann=ann, bob=bob, carl=carl", "", "default", "carl=carl", "carl"},
        {2, 0, "anna", true, "+=default, D=default, *anna=ann, bob=bob", "anna=ann, bob=bob", "",
         "default", "ann=anna"},
        // A name another row has is restored, and that row is pointed at; letter case counts.
        {3, 0, "ann", true, "+=default, D=default, *ann=ann, bob=bob", kAnnBob},
        {3, 0, "Ann", true, "+=default, D=default, ann=ann, *Ann=bob", "ann=ann, Ann=bob"},
        {2, 0, "Default User", true, "+=default, *D=default, ann=ann, bob=bob", kAnnBob},
        {1, 0, "dora", false, "+=default, *D=default, ann=ann, bob=bob", kAnnBob},
        {2, 0, "click TO add new USER", false, "+=default, D=default, *ann=ann, bob=bob", kAnnBob},
        // Default User's folder is the default home folder, offered to new users.
        {1, 1, "~other", true, "+=other, *D=other, ann=ann, bob=bob", kAnnBob, "", "other"},
        {2, 1, "relative", true, "+=default, D=default, *ann=ann, bob=bob", kAnnBob,
         "Relative folder directory ('relative') is not suggested.  Please enter a fully-qualified "
         "folder location."},
        // A moved folder takes the settings along.
        {2, 1, "~moved", true, "+=default, D=default, *ann=moved, bob=bob", "ann=moved, bob=bob",
         "", "default", "moved=ann"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        Accounts dialog({"ann", "bob"});
        WriteBytes(dialog.Folder("ann/vx.ini"), "[User]\nUser=ann\n");
        if (!c.prepared.empty()) dialog.Edit(dialog.users, 0, 1, dialog.Folder(c.prepared));
        EXPECT_EQ(dialog.Edit(dialog.users, c.row, c.column,
                              c.text[0] == '~' ? dialog.Folder(c.text.substr(1)) : c.text),
                  c.accepted);
        EXPECT_EQ(dialog.Rows(dialog.users), c.rows);
        EXPECT_EQ(dialog.StoredUsers(), c.stored);
        EXPECT_EQ(dialog.Shown(), c.shown);
        CGNString folder;
        CAppEnv::GetDefaultHomePath(folder);
        EXPECT_EQ(dialog.Short(folder.str()), c.defaultFolder);
        EXPECT_EQ(dialog.presenter.IsDirty(), c.stored != kAnnBob || c.defaultFolder != "default");
        const int row = dialog.users.GetSelectedRows().front();
        EXPECT_TRUE(row < 2 ||
                    dialog.presenter.GetCurrentUser() == dialog.users.GetCellText(row, 0));
        if (const auto at = c.named.find('='); at != std::string::npos) {
            const CGNString file =
                MakeFilePath(dialog.Folder(c.named.substr(0, at)).c_str(), "vx.ini");
            EXPECT_EQ(ProfileGetString("User", "User", "<absent>", file.c_str()),
                      c.named.substr(at + 1));
        }
    }
}

// Bottom up, never the fixed rows; No ends the run without a rebuild (which would leave one row
// selected) or a dirty flag, even after users of the run were removed.
TEST(AccountsTest, UserDeletionAsksPerUserAndStopsAtTheFirstNo) {
    for (const bool no : {true, false}) {
        Accounts dialog({"ann", "bob", "cat"});
        dialog.users.Select({1});
        EXPECT_FALSE(dialog.presenter.GetCommandState(kCmdDeleteUser).enabled);
        dialog.users.Select({0, 1, 2, 3, 4});
        dialog.prompt.answers = {kIdYes, no ? kIdNo : kIdYes, kIdYes};
        dialog.presenter.OnListDeleteKey(dialog.users);
        std::string asked;
        for (const auto& question : dialog.prompt.asked) {
            EXPECT_EQ(question.style, kMbYesNo | kMbIconQuestion | kMbDefButton2);
            asked += question.text;
        }
        EXPECT_EQ(asked, "Permanently remove user 'cat'?Permanently remove user 'bob'?" +
                             std::string(no ? "" : "Permanently remove user 'ann'?"));
        EXPECT_EQ(dialog.Rows(dialog.users),
                  no ? "*+=default, *D=default, *ann=ann, *bob=bob" : "+=default, *D=default");
        EXPECT_EQ(dialog.StoredUsers(), no ? "ann=ann, bob=bob" : "");
        EXPECT_EQ(dialog.presenter.IsDirty(), no ? 0 : 1);
    }
}

const std::string kAnnServers = "alpha VX;NT;2000;390600;2001\n#beta VX;;;;\n";

// User "ann" selected, with alpha (both kinds, ports set) and beta (workflow only, disabled).
class AnnsServers : public Accounts {
public:
    AnnsServers() : Accounts({"ann", "bob"}) {
        WriteBytes(Folder("ann/VX"), kAnnServers);
        SelectUser(2);
    }
    // Ann's server file without the "\r" of any line ends.
    std::string File() const {
        std::string text = ReadBytes(Folder("ann/VX"));
        text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
        return text;
    }
};

TEST(AccountsTest, ServerEditsStoreWhatTheRulesAllowAndRestoreTheRest) {
    AnnsServers dialog;
    EXPECT_FALSE(dialog.Edit(dialog.servers, 0, 0, "my server"));
    EXPECT_FALSE(dialog.Edit(dialog.servers, 1, 0, "click to add NEW server"));
    EXPECT_EQ(dialog.Shown(),
              "'my server' cannot be used as a server name.  A server name has at most 64 "
              "characters, contains no blanks and does not begin with '#'.");
    // A name another row has is restored, and that row is pointed at.
    EXPECT_TRUE(dialog.Edit(dialog.servers, 2, 0, "alpha"));
    EXPECT_EQ(dialog.Rows(dialog.servers) + "|" + dialog.File(), "+, *alpha, beta|" + kAnnServers);
    EXPECT_EQ(dialog.presenter.IsDirty(), 0);
    // Over the add row: the second row, as a workflow server. A rename keeps switches and ports.
    EXPECT_TRUE(dialog.Edit(dialog.servers, 0, 0, "gamma"));
    EXPECT_EQ(dialog.Rows(dialog.servers), "+, *gamma, alpha, beta");
    EXPECT_TRUE(dialog.Edit(dialog.servers, 2, 0, "delta"));
    EXPECT_EQ(dialog.File(), "gamma VX;;;;\ndelta VX;NT;2000;390600;2001\n#beta VX;;;;\n");
    EXPECT_EQ(dialog.presenter.IsDirty(), 1);
    // Deletion asks per server, bottom up, and stops at the first No without a rebuild.
    dialog.servers.Select({0, 1, 2, 3});
    dialog.prompt.answers = {kIdYes, kIdNo};
    dialog.presenter.OnListDeleteKey(dialog.servers);
    EXPECT_EQ(dialog.Rows(dialog.servers), "*+, *gamma, *delta");
    EXPECT_EQ(dialog.File(), "gamma VX;;;;\ndelta VX;NT;2000;390600;2001\n");
}

// Switches go to every selected server row, never to the add row, and are stored.
TEST(AccountsTest, TogglesApplyToTheSelectedServers) {
    AnnsServers dialog;
    dialog.servers.Select({0, 1, 2});
    dialog.presenter.OnKorvelNotifyToggleBitmap(0, 2);  // the add row has no switch
    EXPECT_EQ(dialog.File(), kAnnServers);
    // alpha's notifier switch was on: off for both.
    dialog.presenter.OnKorvelNotifyToggleBitmap(1, 2);
    EXPECT_EQ(dialog.File(), "alpha VX;;2000;390600;2001\n#beta VX;;;;\n");
    // The menu toggles: on for all unless all have it, then off.
    EXPECT_TRUE(dialog.presenter.GetCommandState(kCmdWorkflowServer).checked);
    dialog.presenter.ToggleSelServerColumn(1);
    EXPECT_FALSE(dialog.presenter.GetCommandState(kCmdConnectAtLogin).checked);
    dialog.presenter.OnCommand(kCmdConnectAtLogin);
    EXPECT_EQ(dialog.File(), "alpha ;;2000;390600;2001\nbeta ;;;;\n");
    EXPECT_EQ(dialog.presenter.GetServerImage(2, 1), 0);
    EXPECT_EQ(dialog.presenter.IsDirty(), 1);

    // Logged-in servers are those of the session's user, in any letter case.
    dialog.loggedIn = {"ALPHA"};
    EXPECT_EQ(dialog.presenter.IsServerLoggedIn("bob", "Alpha"), 1);
    EXPECT_EQ(dialog.presenter.IsServerLoggedIn("ann", "alpha"), 0);
    // The add row of the users has nowhere to keep servers yet.
    dialog.SelectUser(0);
    EXPECT_EQ(dialog.Rows(dialog.servers), "+");
    EXPECT_FALSE(dialog.presenter.CanEditServerItem(0, 0));
}

TEST(AccountsTest, PortCellsAcceptNumbersTheServerCanUse) {
    const struct {
        int column;
        const char* text;
        bool accepted;
    } cases[] = {
        {4, "390679", false}, {4, "390680", true}, {4, "390694", true},  {4, "390695", false},
        {4, "390600", true},  {4, "0", true},      {4, "0x5F5C8", true}, {4, "12ab", false},
        {3, "65535", true},   {3, "65536", false}, {3, "0x1F90", true},  {5, "-1", false},
        {5, "", true},        {5, " 8080 ", true},
    };
    AnnsServers dialog;
    dialog.advanced = true;
    dialog.presenter.OnAdvancedServerOptions();
    std::size_t refused = 0;
    for (const auto& c : cases) {
        EXPECT_EQ(dialog.presenter.IsServerEditTextValid(1, c.column, c.text), c.accepted)
            << c.column << ": " << c.text;
        refused += c.accepted ? 0 : 1;
    }
    // Every refusal tells the user why.
    ASSERT_EQ(dialog.prompt.asked.size(), refused);
    EXPECT_EQ(dialog.prompt.asked[0].text,
              "A private server's RPC socket number must be 390600 or in the range of "
              "390680-390694.");
    EXPECT_TRUE(dialog.Edit(dialog.servers, 2, 3, " 0x1F90 "));
    EXPECT_EQ(dialog.File(), "alpha VX;NT;2000;390600;2001\n#beta VX;;0x1F90;;\n");
}

// An unwritable server file: every change is undone in the list, the dirty flag kept.
TEST(AccountsTest, FailedStoresLeaveTheListAsItWas) {
    AnnsServers dialog;
    WriteBytes(dialog.Folder("blocked"), "a file, not a folder");
    dialog.users.SetCellText(2, 1, dialog.Folder("blocked/ann"));
    dialog.prompt.answers = {kIdOk, kIdYes};
    dialog.Edit(dialog.servers, 0, 0, "gamma");
    dialog.servers.Select({1});
    dialog.presenter.OnListDeleteKey(dialog.servers);
    dialog.presenter.ToggleSelServerColumn(1);
    EXPECT_EQ(dialog.Rows(dialog.servers), "+, *alpha, beta");
    EXPECT_EQ(dialog.presenter.GetServerImage(1, 1), 1);
    EXPECT_EQ(dialog.presenter.IsDirty(), 0);
    const auto failed = [](const std::string& change) {
        return "Unable to save the change to '" + change +
               "', so it has been undone.  Please make sure that the settings can be written "
               "and try again.";
    };
    EXPECT_EQ(dialog.Shown(), failed("gamma") +
                                  "|Permanently remove the selected servers from user 'ann'?|" +
                                  failed("alpha") + "|" + failed("alpha"));
}

// Each switch stores its state and the widths before it; hidden columns keep theirs, also on OK.
TEST(AccountsTest, EachSwitchWritesBothSettingsAndHiddenWidthsSurvive) {
    Accounts dialog;
    auto& widths = dialog.servers.widths;
    const auto stored = [&](const char* key) {
        return dialog.app.GetProfileString("Desktop", key, "").str();
    };
    const auto change = [&](bool advanced, const char* expected) {
        dialog.advanced = advanced;
        dialog.presenter.OnAdvancedServerOptions();
        EXPECT_EQ(stored("AdvancedServerOptions") + " " + stored("AccountsColumn"), expected);
    };
    widths[0] = 200;
    change(true, "1 200;50;50;75;75;80");
    EXPECT_EQ(widths, (std::vector<int>{200, 50, 50, 75, 75, 80}));
    widths[3] = 90;
    change(false, "0 200;50;50;90;75;80");
    widths[1] = 60;
    dialog.presenter.OnOK();
    EXPECT_EQ(stored("AccountsColumn"), "200;60;50;90;75;80");
    // A stored text with fewer entries gives the defaults for the rest.
    dialog.app.WriteProfileString("Desktop", "AccountsColumn", "10;20");
    EXPECT_EQ(dialog.presenter.GetServerColumnWidths().str(), "200;60;50;75;75;80");
}

}  // namespace
}  // namespace vx::test
