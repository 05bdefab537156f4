// A login view that keeps its controls' states as plain values, and an owner whose Login answers
// as scripted while noting what the view showed at that moment.
#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/ILoginView.h"
#include "vxutil/login/LoginPresenter.h"

namespace vx::test {

class FakeLoginView : public ILoginView {
public:
    WindowHandle Window() override { return this; }
    void SetUsers(const CGNStringList& list) override {
        entries = list;
        selected = -1;
    }
    void SelectUser(int index) override {
        selected = index;
        if (index >= 0) userText = entries.GetAt(index).str();
    }
    void SetUserText(const CGNString& user) override { userText = user.str(); }
    CGNString UserText() override { return userText; }
    void SetPassword(const CGNString& text) override { password = text.str(); }
    CGNString Password() override { return password; }
    void SetOkEnabled(bool enabled) override { okEnabled = enabled; }
    void SetCancelEnabled(bool enabled) override { cancelEnabled = enabled; }
    void SetAccountsButton(bool visible, bool enabled) override {
        accountsButton = std::string(visible ? "shown" : "hidden") + (enabled ? "+on" : "+off");
    }
    void SetWindowEnabled(bool enabled) override { windowEnabled = enabled; }
    void SetBusy(bool on) override { busy = on; }
    void SetContextHelp(bool enabled) override { contextHelp = enabled; }
    AccountsOutcome RunAccounts(const CGNString& user, CLoginOwner*) override {
        EXPECT_EQ(user.str(), userText);  // started at the user shown
        return accounts();
    }
    void End(int code) override { ended = code; }

    // The user's own actions.
    void Type(LoginPresenter& presenter, const std::string& text) {
        userText = text;
        presenter.SetButtonState();
    }
    void Choose(LoginPresenter& presenter, int index) {
        SelectUser(index);
        presenter.OnSelChangeUser(index);
    }

    // "<list>|<selected entry>|<user text>|<password>|<OK on or off>"
    std::string Shown() const {
        return entries.Join(' ').str() + "|" + std::to_string(selected) + "|" + userText + "|" +
               password + "|" + (okEnabled ? "on" : "off");
    }

    CGNStringList entries;
    int selected = -1;
    std::string userText, password, accountsButton;
    bool okEnabled = true, cancelEnabled = true, windowEnabled = true, busy = false;
    bool contextHelp = false;
    int ended = 0;  // 0 while open
    std::function<AccountsOutcome()> accounts = [] { return AccountsOutcome{}; };
};

class FakeLoginOwner : public CLoginOwner {
public:
    explicit FakeLoginOwner(FakeLoginView& view) : m_view(view) {}

    int OnInitDialog(WindowHandle dialog) override { return dialog == &m_view ? 7 : 0; }
    // Like a real owner, disables the buttons while it works.
    int Login(CGNString& user, CGNString& password) override {
        loggedIn += user.str() + "/" + password.str() + (m_view.busy ? " busy" : " idle") +
                    (m_view.windowEnabled ? "+enabled" : "+disabled");
        m_view.SetOkEnabled(false);
        m_view.SetCancelEnabled(false);
        return loginResult;
    }

    int loginResult = 0;
    std::string loggedIn;  // one "user/password busy+disabled" per call

private:
    FakeLoginView& m_view;
};

}  // namespace vx::test
