#include "login/qt/AccountsLists.h"

#include <QKeyEvent>

#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/runtime/qt/QtText.h"

void CUserServerList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        Q_EMIT deleteKeyPressed();
        event->accept();
        return;
    }
    CKorvelListCtrl::keyPressEvent(event);
}

bool CUserList::CanEditThisItem(int row, int column) {
    return m_presenter == nullptr || m_presenter->CanEditUserItem(row, column);
}

bool CUserList::IsDirectEdit(int column, int row) {
    return (m_presenter != nullptr && m_presenter->IsUserDirectEdit(row, column)) ||
           CKorvelListCtrl::IsDirectEdit(column, row);
}

bool CUserList::IsEditTextValid(int row, int column, QString& text) {
    return (m_presenter == nullptr ||
            m_presenter->IsUserEditTextValid(row, column, vx::FromQString(text))) &&
           CKorvelListCtrl::IsEditTextValid(row, column, text);
}

bool CServerList::CanEditThisItem(int row, int column) {
    return m_presenter == nullptr || m_presenter->CanEditServerItem(row, column);
}

bool CServerList::IsEditTextValid(int row, int column, QString& text) {
    return (m_presenter == nullptr ||
            m_presenter->IsServerEditTextValid(row, column, vx::FromQString(text))) &&
           CKorvelListCtrl::IsEditTextValid(row, column, text);
}

vx::ColumnImage CServerList::GetImage(int row, int column) {
    const bool checked = m_presenter != nullptr && m_presenter->GetServerImage(row, column) == 1;
    return checked ? LoadSystemCheckMarkBitmap() : 0;
}

vx::ColumnImage CServerList::GetImageOverlay(int row, int column) {
    const bool shown = m_presenter != nullptr && m_presenter->GetServerImage(row, column) >= 0;
    return shown ? LoadSystemCheckBoxBitmap() : 0;
}

void CServerList::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    if (m_presenter == nullptr || !m_presenter->IsServerRowLoggedIn(index.row()))
        return CKorvelListCtrl::drawRow(painter, option, index);
    QStyleOptionViewItem bold(option);
    bold.font.setBold(true);
    CKorvelListCtrl::drawRow(painter, bold, index);
}
