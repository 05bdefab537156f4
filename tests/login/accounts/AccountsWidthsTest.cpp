// The server column widths and the advanced server options switch in the client profile.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AccountsHarness.h"

namespace {

class Widths : public vx::test::Accounts {
public:
    std::string Stored(const char* key) const {
        return app.GetProfileString("Desktop", key, "<absent>").str();
    }
    void Switch(bool on) {
        view.advanced = on;
        presenter.OnAdvancedServerOptions();
    }
};

TEST(AccountsWidthsTest, OpeningUsesTheStoredSettingsAndWritesNothing) {
    Widths byDefault;
    byDefault.owner.portsByDefault = 1;
    byDefault.Open();
    EXPECT_EQ(byDefault.servers.widths, (std::vector<int>{150, 50, 50, 75, 75, 80}));
    EXPECT_EQ(byDefault.servers.headers.back(), "Ntfy TCP Port");
    EXPECT_TRUE(byDefault.view.advanced);
    EXPECT_EQ(byDefault.Stored("AccountsColumn"), "<absent>");
    EXPECT_EQ(byDefault.Stored("AdvancedServerOptions"), "<absent>");

    Widths stored;
    stored.owner.portsByDefault = 1;
    stored.app.WriteProfileString("Desktop", "AccountsColumn", "120;40;45;70;71;72");
    stored.app.WriteProfileInt("Desktop", "AdvancedServerOptions", 0);
    const std::string before = vx::test::ReadBytes(stored.home.file("vxaccountstest.ini"));
    stored.Open();
    EXPECT_EQ(stored.servers.widths, (std::vector<int>{120, 40, 45}));
    EXPECT_FALSE(stored.view.advanced);
    EXPECT_EQ(vx::test::ReadBytes(stored.home.file("vxaccountstest.ini")), before);
}

// Each switch stores its state and the widths as they were before it; columns that are hidden
// keep their stored widths, through a close with OK as well.
TEST(AccountsWidthsTest, EachSwitchWritesBothSettingsAndHiddenWidthsSurvive) {
    Widths dialog;
    dialog.Open();
    dialog.servers.widths[0] = 200;
    dialog.Switch(true);
    EXPECT_EQ(dialog.Stored("AdvancedServerOptions"), "1");
    EXPECT_EQ(dialog.Stored("AccountsColumn"), "200;50;50;75;75;80");
    EXPECT_EQ(dialog.servers.widths, (std::vector<int>{200, 50, 50, 75, 75, 80}));

    dialog.servers.widths[3] = 90;
    dialog.Switch(false);
    EXPECT_EQ(dialog.Stored("AdvancedServerOptions"), "0");
    EXPECT_EQ(dialog.Stored("AccountsColumn"), "200;50;50;90;75;80");
    EXPECT_EQ(dialog.servers.headers.size(), 3u);

    dialog.servers.widths[1] = 60;
    dialog.presenter.OnOK();
    EXPECT_EQ(dialog.Stored("AccountsColumn"), "200;60;50;90;75;80");

    // A stored text with fewer entries gives the defaults for the rest.
    dialog.app.WriteProfileString("Desktop", "AccountsColumn", "10;20");
    EXPECT_EQ(dialog.presenter.GetServerColumnWidths().str(), "200;60;50;75;75;80");
}

}  // namespace
