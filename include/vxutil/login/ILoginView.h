// What the login dialog's presenter needs of the window that shows it: a passive view. The view
// turns its controls' events into calls of LoginPresenter and does what the presenter tells it;
// it decides nothing itself.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/runtime/WindowHandle.h"

class CLoginOwner;

namespace vx {

// Results of ShowLoginDialog, which are the codes the dialog ends with.
inline constexpr int kLoginDialogOk = 1;           // the owner's Login returned 1
inline constexpr int kLoginDialogCancel = 2;       // the user cancelled
inline constexpr int kLoginDialogNotCreated = -1;  // the dialog could not be shown at all

// How the accounts dialog was left.
struct AccountsOutcome {
    bool accepted = false;  // left with OK rather than Cancel
    bool dirty = false;     // users or folders were changed while it was open
    CGNString currentUser;  // the user current in it when it closed
};

class VXUTIL_API ILoginView {
public:
    virtual ~ILoginView();

    // The dialog's window, handed to the owner's OnInitDialog.
    virtual WindowHandle Window() = 0;

    // Replaces the entries of the user list, in the order given, and leaves none selected
    // without touching the user text.
    virtual void SetUsers(const CGNStringList& users) = 0;
    // Selects entry `index` of the user list, which shows its text as the user text.
    virtual void SelectUser(int index) = 0;
    virtual void SetUserText(const CGNString& user) = 0;
    virtual CGNString UserText() = 0;
    virtual void SetPassword(const CGNString& password) = 0;
    virtual CGNString Password() = 0;

    virtual void SetOkEnabled(bool enabled) = 0;
    virtual void SetCancelEnabled(bool enabled) = 0;
    virtual void SetAccountsButton(bool visible, bool enabled) = 0;
    // Enables or disables the whole dialog, so that nothing can be pressed while a login runs.
    virtual void SetWindowEnabled(bool enabled) = 0;
    // Shows that a login is under way (the busy cursor), or no longer.
    virtual void SetBusy(bool busy) = 0;
    // Whether the title bar offers context help.
    virtual void SetContextHelp(bool enabled) = 0;

    // Runs the accounts dialog modally over this one, starting at `user`, for `owner`.
    virtual AccountsOutcome RunAccounts(const CGNString& user, CLoginOwner* owner) = 0;
    // Closes the dialog with `code` (kLoginDialogOk or kLoginDialogCancel).
    virtual void End(int code) = 0;
};

}  // namespace vx
