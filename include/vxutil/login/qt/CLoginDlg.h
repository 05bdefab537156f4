// The login dialog: who logs in, with which password. The client tool's CLoginOwner performs the
// login; the dialog stays open until the owner's Login returns 1 or the user cancels. exec()
// returns vx::kLoginDialogOk (1) or vx::kLoginDialogCancel (2).
//
// The users come from the application environment, sorted; choosing another one clears the
// password. The password's reveal action shows only what the user typed, never the password the
// caller proposed. The dialog's size is remembered in the client profile ("Desktop"/
// "LoginGeometry") when it closes.
#pragma once

#include <QString>
#include <memory>

#include "vxutil/decor/qt/CWDialog.h"
#include "vxutil/widgets_export.h"

class CLoginOwner;

class VXUTIL_WIDGETS_API CLoginDlg : public CWDialog {
    Q_OBJECT
public:
    // `user` and `password` are proposed at first. `owner` (not owned, may be null) performs the
    // login and is told, through its OnInitDialog, once the dialog is set up, which happens here.
    CLoginDlg(const QString& user, CLoginOwner* owner, QWidget* parent, const QString& password);
    ~CLoginDlg() override;

    // > 0: the accounts button is shown and usable; otherwise hidden and disabled, for the
    // dialog's whole life.
    void EnableInfoButton(int enable);
    // Non-zero: the caption offers context help.
    void EnableContextHelp(int enable);

    // Runs the dialog modally: 1 once the owner's Login returned 1, else 2.
    int exec() override;

public Q_SLOTS:
    // Cancels, except while a login runs.
    void reject() override;
    void done(int result) override;

protected:
    bool event(QEvent* event) override;

private:
    struct Parts;
    std::unique_ptr<Parts> m_pParts;
};
