#include "vxutil/listctrl/qt/CKorvelListCtrl.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QStandardItemModel>

#include "listctrl/ListTrace.h"
#include "vxutil/listctrl/ItemEnabledData.h"

CKorvelListCtrl::CKorvelListCtrl(QWidget* parent) : CColumnMenuListCtrl(parent) {
    connect(Model(), &QAbstractItemModel::columnsInserted, this,
            &CKorvelListCtrl::ApplyColumnSizing);
    connect(Model(), &QAbstractItemModel::columnsRemoved, this,
            &CKorvelListCtrl::ApplyColumnSizing);
}

bool CKorvelListCtrl::IsItemSelected(int row) const {
    vx::ListTrace trace("CKorvelListCtrl::IsItemSelected");
    return row >= 0 && row < GetItemCount() && selectionModel()->isSelected(Model()->index(row, 0));
}

bool CKorvelListCtrl::IsItemFocused(int row) const {
    vx::ListTrace trace("CKorvelListCtrl::IsItemFocused");
    return row >= 0 && row < GetItemCount() && currentIndex().row() == row;
}

bool CKorvelListCtrl::IsItemEnabled(int row) const {
    vx::ListTrace trace("CKorvelListCtrl::IsItemEnabled");
    return IsRowEnabled(row);
}

void CKorvelListCtrl::SetItemEnabled(int row, bool enable) {
    vx::ListTrace trace("CKorvelListCtrl::SetItemEnabled");
    if (SetItemData(row, vx::ItemDataForEnabled(enable))) viewport()->update();
}

bool CKorvelListCtrl::IsRowEnabled(int row) const {
    return row >= 0 && row < GetItemCount() && vx::IsItemDataEnabled(GetItemData(row));
}

bool CKorvelListCtrl::EnableColumnSize(int column, bool enable) {
    if (!Settings().EnableColumnSize(column, enable)) return false;
    ApplyColumnSizing();
    return true;
}

bool CKorvelListCtrl::CanColumnSize(int column) {
    return Settings().CanColumnSize(column);
}

void CKorvelListCtrl::ApplyColumnSizing() {
    for (int column = 0; column < GetColumnCount(); ++column)
        header()->setSectionResizeMode(
            column, CanColumnSize(column) ? QHeaderView::Interactive : QHeaderView::Fixed);
}

bool CKorvelListCtrl::EnableColumnToggle(int column, bool enable, unsigned commandId) {
    return Settings().EnableColumnToggle(column, enable, commandId);
}

bool CKorvelListCtrl::CanToggle(int column) {
    return Settings().CanToggle(column);
}

void CKorvelListCtrl::ToggleValue(int column) {
    vx::ListTrace trace("CKorvelListCtrl::ToggleValue");
    if (!HasColumn(column) || !CanToggle(column)) return;
    const unsigned command = Settings().GetToggleCommand(column);
    QMetaObject::invokeMethod(
        this, [this, command] { Q_EMIT commandPosted(command); }, Qt::QueuedConnection);
}

bool CKorvelListCtrl::EnableDirectEdit(int column, bool enable) {
    return Settings().EnableDirectEdit(column, enable);
}

bool CKorvelListCtrl::IsDirectEdit(int column, int) {
    return Settings().IsDirectEdit(column);
}

void CKorvelListCtrl::DirectEdit(int column, int row) {
    vx::ListTrace trace("CKorvelListCtrl::DirectEdit");
    if (!HasColumn(column) || !IsDirectEdit(column, row)) return;
    const QPersistentModelIndex cell(Model()->index(row, column));
    QMetaObject::invokeMethod(
        this,
        [this, cell] {
            // An editor that refused its text is still open: it keeps the edit.
            if (cell.isValid() && state() != EditingState) edit(cell, AllEditTriggers, nullptr);
        },
        Qt::QueuedConnection);
}

void CKorvelListCtrl::mousePressEvent(QMouseEvent* event) {
    vx::ListTrace trace("CKorvelListCtrl::OnLButtonDown");
    const bool editing = state() == EditingState;
    CColumnMenuListCtrl::mousePressEvent(event);
    if (editing || event->button() != Qt::LeftButton) return;
    const int column = GetColumnFromPoint(event->globalPosition().toPoint());
    if (column < 0) return;
    ToggleValue(column);
    DirectEdit(column, indexAt(event->position().toPoint()).row());
}
