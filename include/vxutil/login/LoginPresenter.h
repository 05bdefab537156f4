// The login dialog's behaviour, without a toolkit: it fills the view from the application
// environment, keeps the buttons' states, runs the owner's login and the accounts dialog, and
// ends the dialog. The view (ILoginView) forwards its controls' events to the On* operations
// and to SetButtonState.
//
// The user list is ordered by one rule everywhere: names compare with the case of ASCII letters
// ignored, and names equal that way by their bytes, so the order is the same in every locale and
// on every platform. Names are looked up in it exactly but without regard to case, as a user
// types them; the first match in list order wins.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/login/ILoginView.h"

class CLoginOwner;

namespace vx {

class VXUTIL_API LoginPresenter {
public:
    // `user` and `password` are proposed when the dialog opens, cut to what the fields hold.
    // The view and the owner (which may be null) outlive the presenter and are not owned.
    LoginPresenter(ILoginView& view, CLoginOwner* owner, const CGNString& user,
                   const CGNString& password);
    LoginPresenter(const LoginPresenter&) = delete;
    LoginPresenter& operator=(const LoginPresenter&) = delete;

    // Fills the view once it exists and returns the owner's OnInitDialog result (1 without an
    // owner): non-zero lets the toolkit place the focus itself.
    int OnInitDialog();
    // After the user edited the user text (never after the view or the presenter set it): OK is
    // enabled exactly when there is a user text; the accounts button follows its flag.
    void SetButtonState();
    // After the user chose entry `index` of the user list (-1: none). A changed user always
    // clears the password; typing a name does not.
    void OnSelChangeUser(int index);
    // Hands the user and the password to the owner's Login; only a result of exactly 1 closes
    // the dialog. Otherwise it stays open with the fields as they were typed.
    void OnOK();
    // Closes the dialog without calling the owner.
    void OnCancel();
    // Runs the accounts dialog and shows the user it leaves current, reloading the list when
    // the accounts dialog changed users.
    void OnLoginAccounts();

    // Whether the accounts button is shown and usable (> 0) or hidden and disabled. The flag
    // holds for the dialog's whole life: every button update applies it again.
    void EnableInfoButton(int enable);
    // Whether the title bar offers context help (non-zero).
    void EnableContextHelp(int enable);

    // The default home folder, as read when the dialog opened or the accounts dialog closed.
    const CGNString& DefaultHomePath() const { return m_strDefaultHomePath; }

private:
    // Reads the users again, sorted, into the list and the view.
    void LoadUsers();
    // Puts the user and the password into the view: the user as list entry `index`, or as typed
    // text when `index` is -1.
    void PushFields(int index);
    void PullFields();

    ILoginView& m_view;
    CLoginOwner* m_pOwner;
    CGNString m_strUser;
    CGNString m_strPassword;
    CGNStringList m_users;
    CGNString m_strDefaultHomePath;
    int m_bInfoButtonEnabled = 1;
    int m_bContextHelpEnabled = 1;
};

}  // namespace vx
