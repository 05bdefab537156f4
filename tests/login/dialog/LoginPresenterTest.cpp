// The login dialog's behaviour against a fake view and owner, over real user stores in a fresh
// settings home.
#include "vxutil/login/LoginPresenter.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "FakeLoginView.h"
#include "appenv/AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/login/LoginField.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace {

// A fresh settings home with the blank-separated users stored in this order, and a dialog
// proposing `user` with the password "pw".
struct Dialog {
    Dialog(const std::string& users, const char* user) : presenter(view, &owner, user, "pw") {
        std::istringstream words(users);
        for (std::string name; words >> name;)
            CAppEnv::AddUser(name.c_str(), "/h");
        CAppEnv::SetDefaultHomePath("/h/before");
    }
    vx::test::TempHome home;
    vx::test::FakeLoginView view;
    vx::test::FakeLoginOwner owner{view};
    vx::LoginPresenter presenter;
};

using LoginPresenterTest = vx::test::AppEnvTest;

TEST_F(LoginPresenterTest, OpeningSelectsAKnownUserElseKeepsTheTextAsTyped) {
    const char* cases[][3] = {
        // stored users, proposed user, shown
        {"bob Ann carl", "ann", "Ann bob carl|0|Ann|pw|on"},
        {"bob Ann carl", "Zed", "Ann bob carl|-1|Zed|pw|on"},
        {"bob Ann carl", "", "Ann bob carl|-1||pw|off"},
        // Names equal but for case: upper case first, and the first one matches.
        {"ann Ann", "ANN", "Ann ann|0|Ann|pw|on"},
        {"", "zed", "|-1|zed|pw|on"},
    };
    for (const auto& c : cases) {
        Dialog d(c[0], c[1]);
        EXPECT_EQ(d.presenter.OnInitDialog(), 7);  // the owner's answer
        EXPECT_EQ(d.view.Shown(), c[2]) << c[0] << ": " << c[1];
        EXPECT_EQ(d.view.accountsButton, "shown+on");
        EXPECT_TRUE(d.view.contextHelp);
        EXPECT_EQ(d.presenter.DefaultHomePath(), "/h/before");
    }
}

// Choosing a user clears the password; typing never does.
TEST_F(LoginPresenterTest, ChoosingAUserClearsThePasswordAndTypingDoesNot) {
    Dialog d("ann bob", "ann");
    d.presenter.OnInitDialog();
    const char* steps[][2] = {
        {"type bo", "ann bob|0|bo|pw|on"},      {"type ", "ann bob|0||pw|off"},
        {"choose 1", "ann bob|1|bob||on"},      {"type bobby", "ann bob|1|bobby|pw|on"},
        {"choose -1", "ann bob|-1|bobby||off"},
    };
    for (const auto& s : steps) {
        d.view.password = "pw";
        d.view.cancelEnabled = false;
        const std::string step = s[0];
        if (step.starts_with("type"))
            d.view.Type(d.presenter, step.substr(5));
        else
            d.view.Choose(d.presenter, std::stoi(step.substr(7)));
        EXPECT_EQ(d.view.Shown(), s[1]) << step;
        EXPECT_EQ(d.view.cancelEnabled, step.starts_with("choose")) << step;
    }
}

TEST_F(LoginPresenterTest, OnlyALoginResultOfOneClosesTheDialog) {
    for (const int result : {1, 2, 0, -1}) {
        Dialog d("ann", "ann");
        d.owner.loginResult = result;
        d.presenter.OnInitDialog();
        d.view.password = "secret";
        d.presenter.OnOK();
        EXPECT_EQ(d.owner.loggedIn, "ann/secret busy+disabled");
        EXPECT_FALSE(d.view.busy);
        EXPECT_TRUE(d.view.windowEnabled);
        const bool closes = result == 1;
        EXPECT_EQ(d.view.ended, closes ? vx::kLoginDialogOk : 0) << result;
        // A failed login gives back the buttons that the owner took away, fields as typed.
        EXPECT_EQ(d.view.okEnabled && d.view.cancelEnabled, !closes) << result;
        EXPECT_EQ(d.view.Shown(), std::string("ann|0|ann|secret|") + (closes ? "off" : "on"));
    }
    Dialog d("ann", "ann");
    d.presenter.OnInitDialog();
    d.presenter.OnCancel();
    EXPECT_EQ(d.view.ended, vx::kLoginDialogCancel);
    EXPECT_EQ(d.owner.loggedIn, "");
}

TEST_F(LoginPresenterTest, AccountsDialogDecidesTheUserShownAfterwards) {
    struct Case {
        const char* change;  // made in the accounts dialog: "rename A B", "delete A", "add A"
        vx::AccountsOutcome outcome;  // left with OK, dirty, its current user
        const char* shown;
    };
    // clang-format off
    const Case cases[] = {
        {"rename Bob Rob", {true, true, "Rob"},   "ann carl Rob|2|Rob||on"},
        {"",               {true, false, "Bob"},  "ann Bob carl|1|Bob|pw|on"},
        // Found without regard to case, but another spelling still counts as another user.
        {"",               {true, false, "BOB"},  "ann Bob carl|1|Bob||on"},
        {"",               {true, false, "zed"},  "ann Bob carl|0|ann||on"},
        {"",               {false, false, "ann"}, "ann Bob carl|1|Bob|pw|on"},
        {"delete Bob",     {true, true, ""},      "ann carl|-1|||off"},
        // The user shown before is gone: the first in the list takes its place.
        {"delete Bob",     {false, true, ""},     "ann carl|0|ann|pw|on"},
        {"rename Bob Rob", {false, true, "Rob"},  "ann carl Rob|0|ann|pw|on"},
        // Not reported dirty: the list is not read again.
        {"add dan",        {true, false, "Bob"},  "ann Bob carl|1|Bob|pw|on"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Dialog d("Bob carl ann", "bob");
        d.presenter.OnInitDialog();
        d.view.accounts = [&c] {
            std::istringstream words(c.change);
            std::string verb, first, second;
            words >> verb >> first >> second;
            if (verb == "rename") CAppEnv::RenameUser(first.c_str(), second.c_str());
            if (verb == "delete") CAppEnv::DeleteUser(first.c_str());
            if (verb == "add") CAppEnv::AddUser(first.c_str(), "/h");
            CAppEnv::SetDefaultHomePath("/h/after");
            return c.outcome;
        };
        d.presenter.OnLoginAccounts();
        EXPECT_EQ(d.view.Shown(), c.shown) << c.change << " " << c.outcome.currentUser.str();
        EXPECT_EQ(d.presenter.DefaultHomePath(), "/h/after");
    }
}

// The client tool's flags hold whatever the dialog does afterwards.
TEST_F(LoginPresenterTest, FlagsSetBeforeOpeningHoldForTheDialogsLife) {
    Dialog d("ann", "ann");
    d.presenter.EnableInfoButton(0);
    d.presenter.EnableContextHelp(0);
    d.view.accountsButton = "shown+on";
    d.presenter.OnInitDialog();
    EXPECT_FALSE(d.view.contextHelp);
    d.view.accountsButton = "shown+on";  // as a toolkit might show it again
    d.view.Type(d.presenter, "an");
    d.presenter.OnOK();
    d.presenter.OnLoginAccounts();
    EXPECT_EQ(d.view.accountsButton, "hidden+off");
    d.presenter.EnableInfoButton(1);
    EXPECT_EQ(d.view.accountsButton, "shown+on");
}

// 30 bytes of stored text, however many characters that is.
TEST_F(LoginPresenterTest, FieldsHoldThirtyBytes) {
    std::string accented;  // fifteen two-byte characters
    for (int i = 0; i < 15; ++i)
        accented += "\xC3\xA9";
    EXPECT_TRUE(vx::FitsLoginField(accented));
    EXPECT_FALSE(vx::FitsLoginField(accented + "a"));
#ifndef _WIN32
    // A proposed user too long for its field is cut, never inside a character (UTF-8 here).
    Dialog cut("", (std::string(29, 'u') + "\xC3\xA9").c_str());
    cut.presenter.OnInitDialog();
    EXPECT_EQ(cut.view.userText, std::string(29, 'u'));
#endif

    // A stored name too long for the field can be chosen, but is refused rather than cut into
    // another user's name.
    struct Prompt : RUserPrompt {
        int Show(vx::WindowHandle, const char* text, const char*, unsigned) override {
            shown.push_back(text);
            return vx::kIdOk;
        }
        std::vector<std::string> shown;
    } prompt;
    RUserPrompt* previous = RUserPrompt::SetCurrent(&prompt);
    Dialog d(std::string(31, 'x'), "");
    d.presenter.OnInitDialog();
    d.view.Choose(d.presenter, 0);
    d.presenter.OnOK();
    RUserPrompt::SetCurrent(previous);
    EXPECT_EQ(d.owner.loggedIn, "");
    EXPECT_EQ(d.view.ended, 0);
    EXPECT_FALSE(d.view.busy);
    CGNString message;
    OSLoadString(3156, message);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{message.str()});
}

}  // namespace
