// The login dialog's presenter over the real user store of a fresh settings home, and the login
// owner's default set-up of the dialog window.
#include <functional>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "appenv/AppEnvTest.h"
#include "support/ScriptedPrompt.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/LoginField.h"
#include "vxutil/login/LoginPresenter.h"
#include "vxutil/login/WindowService.h"
#include "vxutil/platform/RApplication.h"

namespace vx::test {
namespace {

// The dialog's view, its controls' states as plain values, and its owner, whose Login notes how
// the view stood and takes the buttons away as a real owner does while it works. The users are
// stored in the order given; the dialog proposes `user` with the password "pw".
class Dialog : public ILoginView, public CLoginOwner {
public:
    Dialog(const std::string& users, const std::string& user) : presenter(*this, this, user, "pw") {
        std::istringstream words(users);
        for (std::string name; words >> name;)
            CAppEnv::AddUser(name.c_str(), "/h");
        CAppEnv::SetDefaultHomePath("/h/before");
    }

    WindowHandle Window() override { return this; }
    void SetUsers(const CGNStringList& list) override { entries = list, selected = -1; }
    void SelectUser(int index) override {
        selected = index;
        if (index >= 0) userText = entries.GetAt(index).str();
    }
    void SetUserText(const CGNString& user) override { userText = user.str(); }
    CGNString UserText() override { return userText; }
    void SetPassword(const CGNString& text) override { password = text.str(); }
    CGNString Password() override { return password; }
    void SetOkEnabled(bool on) override { okEnabled = on; }
    void SetCancelEnabled(bool on) override { cancelEnabled = on; }
    void SetAccountsButton(bool visible, bool enabled) override {
        accountsButton = visible + enabled;
    }
    void SetWindowEnabled(bool on) override { windowEnabled = on; }
    void SetBusy(bool on) override { busy = on; }
    void SetContextHelp(bool on) override { help = on; }
    AccountsOutcome RunAccounts(const CGNString& user, CLoginOwner*) override {
        EXPECT_EQ(user.str(), userText);  // started at the user shown
        return accounts();
    }
    void End(int code) override { ended = code; }
    int OnInitDialog(WindowHandle dialog) override { return dialog == Window() ? 7 : 0; }
    int Login(CGNString& user, CGNString& pw) override {
        loggedIn += user.str() + "/" + pw.str() + (busy && !windowEnabled ? " busy, disabled" : "");
        okEnabled = cancelEnabled = false;
        return loginResult;
    }

    // The user's own actions.
    void Type(const std::string& text) {
        userText = text;
        presenter.SetButtonState();
    }
    void Choose(int index) {
        SelectUser(index);
        presenter.OnSelChangeUser(index);
    }
    // "<list>|<selected entry>|<user text>|<password>|<OK on or off>"
    std::string Shown() const {
        return entries.Join(' ').str() + "|" + std::to_string(selected) + "|" + userText + "|" +
               password + "|" + (okEnabled ? "on" : "off");
    }

    TempHome home;
    CGNStringList entries;
    int selected = -1, ended = 0, loginResult = 0, accountsButton = -1;
    std::string userText, password, loggedIn;
    bool okEnabled = true, cancelEnabled = true, windowEnabled = true, busy = false, help = false;
    std::function<AccountsOutcome()> accounts = [] { return AccountsOutcome{}; };
    LoginPresenter presenter;
};

using LoginPresenterTest = AppEnvTest;

TEST_F(LoginPresenterTest, OpeningSelectsAKnownUserElseKeepsTheTextAsTyped) {
    const char* cases[][3] = {
        // stored users, proposed user, shown
        {"bob Ann carl", "ann", "Ann bob carl|0|Ann|pw|on"},
        {"bob Ann carl", "Zed", "Ann bob carl|-1|Zed|pw|on"},
        {"bob Ann carl", "", "Ann bob carl|-1||pw|off"},
        // Names equal but for case: upper case first, and the first one matches.
        {"ann Ann", "ANN", "Ann ann|0|Ann|pw|on"},
    };
    for (const auto& c : cases) {
        Dialog d(c[0], c[1]);
        EXPECT_EQ(d.presenter.OnInitDialog(), 7);  // the owner's answer
        EXPECT_EQ(d.Shown(), c[2]) << c[0] << ": " << c[1];
        EXPECT_TRUE(d.accountsButton == 2 && d.help);  // shown and enabled, context help on
    }
}

// Choosing a user clears the password and gives Cancel back; typing does neither.
TEST_F(LoginPresenterTest, ChoosingAUserClearsThePasswordAndTypingDoesNot) {
    Dialog d("ann bob", "ann");
    d.presenter.OnInitDialog();
    const char* steps[][2] = {
        {"type bo", "ann bob|0|bo|pw|on"},
        {"type ", "ann bob|0||pw|off"},
        {"choose 1", "ann bob|1|bob||on cancel"},
        {"type bobby", "ann bob|1|bobby|pw|on"},
        {"choose -1", "ann bob|-1|bobby||off cancel"},
    };
    for (const auto& s : steps) {
        d.password = "pw";
        d.cancelEnabled = false;
        const std::string step = s[0];
        step[0] == 't' ? d.Type(step.substr(5)) : d.Choose(std::stoi(step.substr(7)));
        EXPECT_EQ(d.Shown() + (d.cancelEnabled ? " cancel" : ""), s[1]) << step;
    }
}

// Busy and disabled around the owner's Login; a failed one gives back the buttons it took.
TEST_F(LoginPresenterTest, OnlyALoginResultOfOneClosesTheDialog) {
    for (const int result : {1, 2}) {
        Dialog d("ann", "ann");
        d.loginResult = result;
        d.presenter.OnInitDialog();
        d.password = "secret";
        d.presenter.OnOK();
        EXPECT_EQ(d.loggedIn, "ann/secret busy, disabled");
        EXPECT_FALSE(d.busy || !d.windowEnabled);
        EXPECT_EQ(d.ended, result == 1 ? kLoginDialogOk : 0);
        EXPECT_EQ(d.okEnabled && d.cancelEnabled, result != 1);
    }
}

// "Bob" is shown with the password "pw" when the accounts dialog opens; it may rename Bob to
// Rob (r), delete Bob (d) or add dan (a).
TEST_F(LoginPresenterTest, AccountsDialogDecidesTheUserShownAfterwards) {
    const struct {
        char change;
        AccountsOutcome outcome;  // left with OK, dirty, its current user
        const char* shown;
    } cases[] = {
        {'r', {true, true, "Rob"}, "ann carl Rob|2|Rob||on"},
        {'r', {false, true, "Rob"}, "ann carl Rob|0|ann|pw|on"},  // gone: the first takes its place
        {' ', {true, false, "Bob"}, "ann Bob carl|1|Bob|pw|on"},
        // Found without regard to case, but another spelling still counts as another user.
        {' ', {true, false, "BOB"}, "ann Bob carl|1|Bob||on"},
        {'d', {true, true, ""}, "ann carl|-1|||off"},
        {'d', {false, true, ""}, "ann carl|0|ann|pw|on"},
        {'a', {true, false, "Bob"}, "ann Bob carl|1|Bob|pw|on"},  // not dirty: not read again
    };
    for (const auto& c : cases) {
        Dialog d("Bob carl ann", "bob");
        d.presenter.OnInitDialog();
        d.accounts = [&c] {
            if (c.change == 'r') CAppEnv::RenameUser("Bob", "Rob");
            if (c.change == 'd') CAppEnv::DeleteUser("Bob");
            if (c.change == 'a') CAppEnv::AddUser("dan", "/h");
            CAppEnv::SetDefaultHomePath("/h/after");
            return c.outcome;
        };
        d.presenter.OnLoginAccounts();
        EXPECT_EQ(d.Shown(), c.shown) << c.change << c.outcome.accepted;
        EXPECT_EQ(d.presenter.DefaultHomePath(), "/h/after");
    }
}

// The client tool's flags hold whatever the dialog does afterwards.
TEST_F(LoginPresenterTest, FlagsSetBeforeOpeningHoldForTheDialogsLife) {
    Dialog d("ann", "ann");
    d.presenter.EnableInfoButton(0);
    d.presenter.EnableContextHelp(0);
    d.presenter.OnInitDialog();
    d.accountsButton = 2;  // as a toolkit might show it again
    d.Type("an");
    d.presenter.OnOK();
    d.presenter.OnLoginAccounts();
    EXPECT_TRUE(d.accountsButton == 0 && !d.help);  // hidden and disabled
    d.presenter.EnableInfoButton(1);
    EXPECT_EQ(d.accountsButton, 2);
}

// 30 bytes of stored text, however many characters that is.
TEST_F(LoginPresenterTest, FieldsHoldThirtyBytes) {
    const std::string thirty = std::string(28, 'u') + "\xC3\xA9";  // 29 characters
    EXPECT_TRUE(FitsLoginField(thirty) && !FitsLoginField(thirty + "u"));
#ifndef _WIN32
    // A proposed user too long for its field is cut, never inside a character (UTF-8 here).
    Dialog cut("", "u" + thirty);
    cut.presenter.OnInitDialog();
    EXPECT_EQ(cut.userText, std::string(29, 'u'));
#endif
    // A stored name too long for the field can be chosen, but is refused with a message rather
    // than cut into another user's name.
    ScriptedPrompt prompt;
    Dialog d(std::string(31, 'x'), "");
    d.presenter.OnInitDialog();
    d.Choose(0);
    d.presenter.OnOK();
    EXPECT_EQ(d.loggedIn + std::to_string(d.ended) + (d.busy ? " busy" : ""), "0");
    EXPECT_EQ(prompt.asked.size(), 1u);
}

// One window, whose caption the service keeps along with what was done to it.
struct FakeWindowService : WindowService {
    ~FakeWindowService() override { SetCurrent(previous); }
    CGNString GetCaption(WindowHandle) override { return caption; }
    void SetCaption(WindowHandle, const CGNString& text) override { caption = text.str() + "|"; }
    void CentreOnParent(WindowHandle w) override { caption += w == this ? "centred" : "other"; }
    std::string caption;
    WindowService* previous = SetCurrent(this);
};

// The client tool's name goes into the caption, and the dialog is centred.
TEST(LoginOwnerTest, SetUpPutsTheToolsNameIntoTheCaptionAndCentres) {
    struct Owner : CLoginOwner {
        int Login(CGNString&, CGNString&) override { return 0; }
    };
    const char* cases[][3] = {
        // tool's name (null: no application object), caption, caption after ("|": set)
        {"Tool", "Login", "Login - Tool|centred"},
        {"Tool", "", "Tool|centred"},
        {"", "Login", "Logincentred"},
        {nullptr, "Login", "Logincentred"},
    };
    for (const auto& c : cases) {
        RApplication app(c[0] != nullptr ? c[0] : "", "vxlogindialogtest");
        RApplication* previous = RApplication::SetCurrent(c[0] != nullptr ? &app : nullptr);
        FakeWindowService windows;
        windows.caption = c[1];
        EXPECT_EQ(Owner().OnInitDialog(&windows), 1);
        EXPECT_EQ(windows.caption, c[2]) << c[1];
        RApplication::SetCurrent(previous);
    }
}

}  // namespace
}  // namespace vx::test
