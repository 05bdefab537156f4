#include "login/qt/KorvelListPort.h"

#include "vxutil/listctrl/qt/CKorvelListCtrl.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {

int KorvelListPort::GetRowCount() const {
    return m_list.GetItemCount();
}

CGNString KorvelListPort::GetCellText(int row, int column) const {
    return FromQString(m_list.GetItemText(row, column));
}

void KorvelListPort::SetCellText(int row, int column, const CGNString& text) {
    m_list.SetItemText(row, column, ToQString(text));
}

void KorvelListPort::InsertRow(int row, const CGNString& text) {
    m_list.InsertItem(row, ToQString(text));
}

void KorvelListPort::DeleteRow(int row) {
    m_list.DeleteItem(row);
}

void KorvelListPort::SetRowSelected(int row, bool selected) {
    m_list.SetItemSelected(row, selected);
}

void KorvelListPort::SetFocusedRow(int row) {
    if (m_list.SetItemFocused(row)) m_list.scrollTo(m_list.currentIndex());
}

std::vector<int> KorvelListPort::GetSelectedRows() const {
    const QList<int> rows = m_list.GetSelectedRows();
    return {rows.begin(), rows.end()};
}

void KorvelListPort::EditCell(int row, int column) {
    m_list.setFocus(Qt::OtherFocusReason);
    m_list.edit(m_list.model()->index(row, column));
}

CGNString KorvelListPort::GetOriginalLabel() const {
    return FromQString(m_list.GetOriginalLabel());
}

void KorvelListPort::InsertColumn(int column, const CGNString& header, int width) {
    if (column < 0 || column >= static_cast<int>(m_columns.size())) return;
    const AccountsColumn& settings = m_columns[static_cast<std::size_t>(column)];
    const Qt::Alignment alignment = settings.centred ? Qt::AlignHCenter : Qt::AlignLeft;
    if (m_list.InsertColumn(column, ToQString(header), width, alignment) != column) return;
    m_list.EnableColumnType(column, settings.type);
    m_list.EnableColumnSize(column, settings.sizeable);
    m_list.EnableColumnToggle(column, settings.toggles,
                              static_cast<unsigned>(settings.toggleCommand));
    m_list.EnableDirectEdit(column, settings.directEdit);
    m_list.EnableContextMenu(column, settings.menuId);
    if (settings.maximum > settings.minimum)
        m_list.SetColumnRange(column, settings.minimum, settings.maximum);
}

void KorvelListPort::DeleteColumn(int column) {
    m_list.DeleteColumn(column);
}

int KorvelListPort::GetColumnWidth(int column) const {
    return m_list.GetColumnWidth(column);
}

}  // namespace vx
