// The accounts dialog: the client's users with their home folders (upper pane) and the servers
// of the selected user with their switches and ports (lower pane). Every change is stored when
// its cell edit ends; Cancel does not undo stored changes, so IsDirty is how a caller learns
// that something changed.
#pragma once

#include <QString>
#include <memory>

#include "vxutil/decor/qt/CWDialog.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/widgets_export.h"

class CLoginOwner;

class VXUTIL_WIDGETS_API CLoginPropDlg : public CWDialog {
    Q_OBJECT
public:
    // `user` is the user to select at first; `owner` (not owned, may be null) tells which
    // servers are logged in and whether the port columns show at first.
    CLoginPropDlg(const QString& user, QWidget* parent, CLoginOwner* owner);
    ~CLoginPropDlg() override;

    // Non-zero once a change of users, folders or servers was stored.
    int IsDirty() const;
    // The user the dialog ended on.
    QString GetCurrentUser() const;
    // The six server column widths as stored under "Desktop"/"AccountsColumn".
    CGNString GetServerColumnWidths() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_pParts;
};
