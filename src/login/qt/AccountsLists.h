// The two lists of the accounts dialog. Their edit hooks are the dialog's rules, so each list
// asks the dialog's presenter once the dialog has attached it; the rules differ between the
// lists on purpose (a single click edits only the users' add row; only servers have toggles).
#pragma once

#include "vxutil/listctrl/qt/CKorvelListCtrl.h"

namespace vx {
class AccountsPresenter;
}

// What both lists share: the presenter and the Delete key, which the dialog handles for
// whichever list has the focus.
class CUserServerList : public CKorvelListCtrl {
    Q_OBJECT
public:
    using CKorvelListCtrl::CKorvelListCtrl;

    void Attach(vx::AccountsPresenter* presenter) { m_presenter = presenter; }

Q_SIGNALS:
    void deleteKeyPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

    vx::AccountsPresenter* m_presenter = nullptr;
};

class CUserList : public CUserServerList {
    Q_OBJECT
public:
    using CUserServerList::CUserServerList;

    bool CanEditThisItem(int row, int column) override;
    bool IsDirectEdit(int column, int row) override;
    bool IsEditTextValid(int row, int column, QString& text) override;
};

class CServerList : public CUserServerList {
    Q_OBJECT
public:
    using CUserServerList::CUserServerList;

    bool CanEditThisItem(int row, int column) override;
    bool IsEditTextValid(int row, int column, QString& text) override;
    // A checked or unchecked box on every server row; the add row has no switches.
    vx::ColumnImage GetImage(int row, int column) override;
    vx::ColumnImage GetImageOverlay(int row, int column) override;

protected:
    // Servers the client is logged in to now are shown in bold.
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
};
