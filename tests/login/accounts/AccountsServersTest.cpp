// The server list of the accounts dialog: filling, edits, toggles, deletion, ports, commands.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AccountsHarness.h"

namespace {

using vx::test::StoreFailed;

// Lines of a server file as written.
std::string Lines(const std::vector<std::string>& lines) {
#ifdef _WIN32
    const std::string eol = "\r\n";
#else
    const std::string eol = "\n";
#endif
    std::string text;
    for (const std::string& line : lines)
        text += line + eol;
    return text;
}

const std::string kAnnServers = Lines({"alpha VX;NT;2000;390600;2001", "#beta VX;;;;"});

// User "ann" (row 2) selected, with alpha (both kinds, ports set) and beta (workflow only,
// disabled). The current user "bob" has alpha only.
class AnnsServers : public vx::test::Accounts {
public:
    AnnsServers() {
        AddUser("ann", "ann");
        AddUser("bob", "bob");
        vx::test::WriteBytes(Folder("ann/VX"), kAnnServers);
        vx::test::WriteBytes(Folder("bob/VX"), Lines({"alpha VX"}));
        Open();
        SelectUser(2);
    }
    void SelectUser(int row) {
        users.selected = {row};
        presenter.OnItemchangedUserList();
    }
    std::string File() const { return vx::test::ReadBytes(Folder("ann/VX")); }
};

TEST(AccountsServersTest, ListShowsTheSelectedUsersServersWithTheirSwitches) {
    AnnsServers dialog;
    EXPECT_EQ(dialog.ServerRows(), "+, alpha, beta");
    EXPECT_EQ(dialog.servers.GetCellText(0, 0).str(), "Click to add new server");
    EXPECT_EQ(dialog.servers.headers,
              (std::vector<std::string>{"Server Name", "VX Svr", "Ntfy Svr"}));
    const int images[3][3] = {{-1, -1, -1}, {-1, 1, 1}, {-1, 1, 0}};
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(dialog.presenter.GetServerImage(row, column), images[row][column]);

    // Logged-in servers are those of the current user's session, in any letter case.
    dialog.owner.loggedIn = {"ALPHA"};
    EXPECT_EQ(dialog.presenter.IsServerLoggedIn("bob", "Alpha"), 1);
    EXPECT_EQ(dialog.presenter.IsServerLoggedIn("ann", "alpha"), 0);
    EXPECT_EQ(dialog.presenter.IsServerLoggedIn("bob", "beta"), 0);
    dialog.SelectUser(3);
    EXPECT_TRUE(dialog.presenter.IsServerRowLoggedIn(1));

    // The add row of the users has nowhere to keep servers yet.
    dialog.SelectUser(0);
    EXPECT_EQ(dialog.ServerRows(), "+");
    EXPECT_FALSE(dialog.presenter.CanEditServerItem(0, 0));
}

TEST(AccountsServersTest, NameEditsStoreWhatTheRulesAllowAndRestoreTheRest) {
    const struct {
        const char* what;
        int row;
        std::string text;
        bool accepted;
        std::string rows;
        std::string file;
        std::string message = "";
    } cases[] = {
        // clang-format off
        {"a server typed over the add row becomes the second row, as a workflow server",
         0, "gamma", true, "+, *gamma, alpha, beta",
         Lines({"gamma VX;;;;", "alpha VX;NT;2000;390600;2001", "#beta VX;;;;"})},
        {"a rename keeps switches and ports", 1, "delta", true, "+, *delta, beta",
         Lines({"delta VX;NT;2000;390600;2001", "#beta VX;;;;"})},
        {"a name another row has is restored, and that row is pointed at",
         2, "alpha", true, "+, *alpha, beta", kAnnServers},
        {"names differing in letter case only are different servers", 2, "Alpha", true,
         "+, alpha, *Alpha", Lines({"alpha VX;NT;2000;390600;2001", "#Alpha VX;;;;"})},
        {"the add row's text is refused in any letter case",
         1, "click to add NEW server", false, "+, *alpha, beta", kAnnServers},
        {"a name the server file cannot hold is refused with the reason",
         0, "my server", false, "*+, alpha, beta", kAnnServers,
         "'my server' cannot be used as a server name.  A server name has at most 64 characters, "
         "contains no blanks and does not begin with '#'."},
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        AnnsServers dialog;
        EXPECT_EQ(dialog.EditServer(c.row, 0, c.text), c.accepted);
        EXPECT_EQ(dialog.ServerRows(), c.rows);
        EXPECT_EQ(dialog.File(), c.file);
        EXPECT_EQ(dialog.presenter.IsDirty(), c.file == kAnnServers ? 0 : 1);
        EXPECT_EQ(dialog.Shown(), c.message);
    }
}

// Column switches go to every selected server row, never to the add row, and are stored.
TEST(AccountsServersTest, TogglesApplyToTheSelectedServers) {
    AnnsServers dialog;
    dialog.servers.selected = {0, 1, 2};
    dialog.presenter.OnKorvelNotifyToggleBitmap(0, 2);  // the add row has no switch
    EXPECT_EQ(dialog.File(), kAnnServers);
    // alpha's notifier switch was on: off for both.
    dialog.presenter.OnKorvelNotifyToggleBitmap(1, 2);
    EXPECT_EQ(dialog.File(), Lines({"alpha VX;;2000;390600;2001", "#beta VX;;;;"}));
    // The menu toggles: on for all unless all have it, then off.
    EXPECT_TRUE(dialog.presenter.GetCommandState(vx::kCmdWorkflowServer).checked);
    dialog.presenter.ToggleSelServerColumn(1);
    EXPECT_FALSE(dialog.presenter.GetCommandState(vx::kCmdConnectAtLogin).checked);
    dialog.presenter.OnCommand(vx::kCmdConnectAtLogin);
    EXPECT_EQ(dialog.File(), Lines({"alpha ;;2000;390600;2001", "beta ;;;;"}));
    EXPECT_EQ(dialog.presenter.GetServerImage(2, 1), 0);
    EXPECT_EQ(dialog.presenter.IsDirty(), 1);
}

TEST(AccountsServersTest, DeletionAsksPerServerAndStopsAtTheFirstNo) {
    const struct {
        std::vector<int> answers;
        std::string rows;
        std::string file;
        int dirty;
    } cases[] = {
        {{vx::kIdYes, vx::kIdNo}, "*+, *alpha", Lines({"alpha VX;NT;2000;390600;2001"}), 0},
        {{vx::kIdYes, vx::kIdYes}, "+", "", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.rows);
        AnnsServers dialog;
        dialog.servers.selected = {0, 1, 2};
        dialog.prompt.answers.assign(c.answers.begin(), c.answers.end());
        const int insertedBefore = dialog.servers.insertedRows;
        dialog.presenter.OnListDeleteKey(dialog.servers);
        const std::string question = "Permanently remove the selected servers from user 'ann'?";
        EXPECT_EQ(dialog.Shown(), question + "|" + question);
        EXPECT_EQ(dialog.ServerRows(), c.rows);
        EXPECT_EQ(dialog.File(), c.file);
        EXPECT_EQ(dialog.presenter.IsDirty(), c.dirty);
        EXPECT_EQ(dialog.servers.insertedRows > insertedBefore, c.dirty == 1);  // rebuilt
    }
}

TEST(AccountsServersTest, PortCellsAcceptNumbersTheServerCanUse) {
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
    dialog.view.advanced = true;
    dialog.presenter.OnAdvancedServerOptions();
    std::size_t refused = 0;
    for (const auto& c : cases) {
        EXPECT_EQ(dialog.presenter.IsServerEditTextValid(1, c.column, c.text), c.accepted)
            << c.column << ": " << c.text;
        refused += c.accepted ? 0 : 1;
    }
    // Every refusal tells the user why.
    ASSERT_EQ(dialog.prompt.shown.size(), refused);
    EXPECT_EQ(dialog.prompt.shown[0],
              "A private server's RPC socket number must be 390600 or in the range of "
              "390680-390694.");
    EXPECT_EQ(dialog.prompt.shown[3].rfind("Invalid number, 65536.\n", 0), 0u);
    EXPECT_NE(dialog.prompt.shown[3].find("range is 0 to 65535.\nHexadecimal range is 0x0 to "
                                          "0xFFFF."),
              std::string::npos);

    // Accepted ports are stored with the server; the add row has none.
    EXPECT_FALSE(dialog.presenter.CanEditServerItem(0, 3));
    EXPECT_TRUE(dialog.EditServer(1, 3, " 0x1F90 "));
    EXPECT_TRUE(dialog.EditServer(2, 5, "7000"));
    EXPECT_EQ(dialog.File(), Lines({"alpha VX;NT;0x1F90;390600;2001", "#beta VX;;;;7000"}));
    EXPECT_EQ(dialog.servers.rows[1],
              (std::vector<std::string>{"alpha", "", "", "0x1F90", "390600", "2001"}));
}

TEST(AccountsServersTest, CommandsFollowTheSelection) {
    AnnsServers dialog;
    std::string texts;
    for (const auto& entry : vx::AccountsMenu(vx::kMenuServerName))
        texts += (entry.command == 0 ? std::string("-") : entry.text.str()) + "|";
    EXPECT_EQ(texts,
              "Edit Server|Delete Server|-|VX Server|Notifier Server|Connect to server at "
              "login|-|Edit Ports|Properties...|");

    const auto enabled = [&](int command) {
        return dialog.presenter.GetCommandState(command).enabled;
    };
    dialog.servers.selected = {0};
    EXPECT_TRUE(enabled(vx::kCmdEditServer));
    EXPECT_FALSE(enabled(vx::kCmdDeleteServer));
    dialog.servers.selected = {1, 2};
    EXPECT_FALSE(enabled(vx::kCmdEditServer));
    EXPECT_TRUE(enabled(vx::kCmdDeleteServer));
    dialog.users.selected = {1};
    EXPECT_FALSE(enabled(vx::kCmdEditUser));  // "Default User" keeps its name
    EXPECT_FALSE(enabled(vx::kCmdDeleteUser));
    EXPECT_TRUE(enabled(vx::kCmdEditUserFolder));

    // Properties summarise the one selected server; Edit Ports shows the ports to edit them.
    dialog.users.selected = {2};
    dialog.servers.selected = {2};
    dialog.presenter.OnCommand(vx::kCmdServerProperties);
    EXPECT_EQ(dialog.Shown(),
              "Server: beta\nUser: ann\n\nVX server: Yes\nNotifier server: No\nConnect at login: "
              "No\nLogged in now: No\n\nVX TCP port: (default)\nVX RPC #: (default)\nNotifier "
              "TCP port: (default)");
    EXPECT_FALSE(enabled(vx::kCmdEditNotifierPort));
    dialog.presenter.OnCommand(vx::kCmdEditPorts);
    dialog.presenter.OnCommand(vx::kCmdEditNotifierPort);
    EXPECT_TRUE(dialog.view.advanced);
    EXPECT_EQ(dialog.servers.editorsStarted, (std::vector<std::pair<int, int>>{{2, 3}, {2, 5}}));
}

// A folder the server file cannot be written to: every change is undone in the list, the dirty
// flag stays as it was, and the user is told what was not saved.
TEST(AccountsServersTest, FailedStoresLeaveTheListAsItWas) {
    AnnsServers dialog;
    vx::test::WriteBytes(dialog.Folder("blocked"), "a file, not a folder");
    dialog.users.SetCellText(2, 1, dialog.Folder("blocked/ann"));
    dialog.prompt.answers = {vx::kIdOk, vx::kIdYes};
    dialog.EditServer(0, 0, "gamma");
    dialog.servers.selected = {1};
    dialog.presenter.OnListDeleteKey(dialog.servers);
    dialog.presenter.ToggleSelServerColumn(1);
    EXPECT_EQ(dialog.ServerRows(), "+, *alpha, beta");
    EXPECT_EQ(dialog.presenter.GetServerImage(1, 1), 1);
    EXPECT_EQ(dialog.presenter.IsDirty(), 0);
    EXPECT_EQ(dialog.Shown(), StoreFailed("gamma") +
                                  "|Permanently remove the selected servers from user 'ann'?|" +
                                  StoreFailed("alpha") + "|" + StoreFailed("alpha"));
}

}  // namespace
