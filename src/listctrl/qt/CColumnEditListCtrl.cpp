#include "vxutil/listctrl/qt/CColumnEditListCtrl.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <algorithm>
#include <climits>
#include <vector>

#include "listctrl/ListTrace.h"
#include "listctrl/qt/ColumnEditDelegate.h"

namespace {

// Ids of the style's pictures; pictures registered with a list count up from 1.
constexpr vx::ColumnImage kSystemCheckMark = -1;
constexpr vx::ColumnImage kSystemCheckBox = -2;

}  // namespace

CColumnEditListCtrl::CColumnEditListCtrl(QWidget* parent)
    : QTreeView(parent),
      m_pModel(new QStandardItemModel(this)),
      m_settings([this] { return m_pModel->columnCount(); }),
      m_pDelegate(new vx::ColumnEditDelegate(this)) {
    setModel(m_pModel);
    setItemDelegate(m_pDelegate);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
}

CColumnEditListCtrl::~CColumnEditListCtrl() = default;

int CColumnEditListCtrl::InsertColumn(int column, const QString& header, int width,
                                      Qt::Alignment alignment) {
    if (column < 0) return -1;
    column = std::min(column, m_pModel->columnCount());
    if (!m_pModel->insertColumn(column)) return -1;
    auto* title = new QStandardItem(header);
    title->setTextAlignment(alignment | Qt::AlignVCenter);
    m_pModel->setHorizontalHeaderItem(column, title);
    this->header()->resizeSection(column, width);
    return column;
}

bool CColumnEditListCtrl::DeleteColumn(int column) {
    return HasColumn(column) && m_pModel->removeColumn(column);
}

int CColumnEditListCtrl::GetColumnCount() const {
    return m_pModel->columnCount();
}

int CColumnEditListCtrl::GetColumnWidth(int column) const {
    return HasColumn(column) ? header()->sectionSize(column) : 0;
}

bool CColumnEditListCtrl::SetColumnWidth(int column, int width) {
    if (!HasColumn(column)) return false;
    header()->resizeSection(column, width);
    return true;
}

int CColumnEditListCtrl::ValidateColumn(int column) const {
    vx::ListTrace trace("CColumnEditListCtrl::ValidateColumn");
    return HasColumn(column) ? 1 : 0;
}

bool CColumnEditListCtrl::HasColumn(int column) const {
    return column >= 0 && column < m_pModel->columnCount();
}

int CColumnEditListCtrl::InsertItem(int row, const QString& text) {
    if (row < 0) return -1;
    row = std::min(row, m_pModel->rowCount());
    m_pModel->insertRow(row, new QStandardItem(text));
    return row;
}

bool CColumnEditListCtrl::DeleteItem(int row) {
    return row >= 0 && m_pModel->removeRow(row);
}

bool CColumnEditListCtrl::DeleteAllItems() {
    return m_pModel->removeRows(0, m_pModel->rowCount());
}

int CColumnEditListCtrl::GetItemCount() const {
    return m_pModel->rowCount();
}

bool CColumnEditListCtrl::SetItemText(int row, int column, const QString& text) {
    if (row < 0 || row >= m_pModel->rowCount() || !HasColumn(column)) return false;
    if (QStandardItem* cell = m_pModel->item(row, column)) {
        cell->setText(text);
    } else {
        m_pModel->setItem(row, column, new QStandardItem(text));
    }
    return true;
}

QString CColumnEditListCtrl::GetItemText(int row, int column) const {
    const QStandardItem* cell = m_pModel->item(row, column);
    return cell != nullptr ? cell->text() : QString();
}

int CColumnEditListCtrl::SetColumnText(int row, int column, const QString& text) {
    vx::ListTrace trace("CColumnEditListCtrl::SetColumnText");
    return SetItemText(row, column, text) ? 1 : 0;
}

bool CColumnEditListCtrl::SetItemData(int row, std::intptr_t itemData) {
    QStandardItem* first = m_pModel->item(row, 0);
    if (first == nullptr) return false;
    first->setData(QVariant::fromValue<qlonglong>(itemData), kItemDataRole);
    return true;
}

std::intptr_t CColumnEditListCtrl::GetItemData(int row) const {
    const QStandardItem* first = m_pModel->item(row, 0);
    return first != nullptr ? static_cast<std::intptr_t>(first->data(kItemDataRole).toLongLong())
                            : 0;
}

bool CColumnEditListCtrl::SetItemChecked(int row, int column, bool checked) {
    if (row < 0 || row >= m_pModel->rowCount() || !HasColumn(column)) return false;
    return m_pModel->setData(m_pModel->index(row, column), checked ? Qt::Checked : Qt::Unchecked,
                             Qt::CheckStateRole);
}

bool CColumnEditListCtrl::IsItemChecked(int row, int column) const {
    return m_pModel->index(row, column).data(Qt::CheckStateRole).value<Qt::CheckState>() ==
           Qt::Checked;
}

bool CColumnEditListCtrl::SetItemSelected(int row, bool selected) {
    if (row < 0 || row >= m_pModel->rowCount()) return false;
    selectionModel()->select(m_pModel->index(row, 0), (selected ? QItemSelectionModel::Select
                                                                : QItemSelectionModel::Deselect) |
                                                          QItemSelectionModel::Rows);
    return true;
}

bool CColumnEditListCtrl::SetItemFocused(int row) {
    if (row < 0 || row >= m_pModel->rowCount()) return false;
    selectionModel()->setCurrentIndex(m_pModel->index(row, 0), QItemSelectionModel::NoUpdate);
    return true;
}

QList<int> CColumnEditListCtrl::GetSelectedRows() const {
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool CColumnEditListCtrl::EnableColumnType(int column, unsigned type) {
    if (!m_settings.EnableColumnType(column, type)) return false;
    viewport()->update();
    return true;
}

unsigned CColumnEditListCtrl::GetColumnType(int column) const {
    return m_settings.GetColumnType(column);
}

void CColumnEditListCtrl::SetColumnRange(int column, int minimum, int maximum) {
    m_ranges.insert(column, {minimum, maximum});
}

std::pair<int, int> CColumnEditListCtrl::GetColumnRange(int column) const {
    return m_ranges.value(column, {0, INT_MAX});
}

bool CColumnEditListCtrl::EnableColumnImage(int column, vx::ColumnImage image) {
    return m_settings.EnableColumnImage(column, image);
}

vx::ColumnImage CColumnEditListCtrl::GetColumnImage(int column) const {
    return m_settings.GetColumnImage(column);
}

bool CColumnEditListCtrl::EnableColumnImageOverlay(int column, vx::ColumnImage image) {
    return m_settings.EnableColumnImageOverlay(column, image);
}

vx::ColumnImage CColumnEditListCtrl::GetColumnImageOverlay(int column) const {
    return m_settings.GetColumnImageOverlay(column);
}

vx::ColumnImage CColumnEditListCtrl::AddImage(const QIcon& icon) {
    const vx::ColumnImage id = m_nNextImage++;
    m_pictures.insert(id, icon);
    return id;
}

QIcon CColumnEditListCtrl::GetImagePicture(vx::ColumnImage image) const {
    return m_pictures.value(image);
}

vx::ColumnImage CColumnEditListCtrl::LoadSystemCheckMarkBitmap() {
    vx::ListTrace trace("CColumnEditListCtrl::LoadSystemCheckMarkBitmap");
    return kSystemCheckMark;
}

vx::ColumnImage CColumnEditListCtrl::LoadSystemCheckBoxBitmap() {
    vx::ListTrace trace("CColumnEditListCtrl::LoadSystemCheckBoxBitmap");
    return kSystemCheckBox;
}

void CColumnEditListCtrl::UpdateColumnImages() {
    vx::ListTrace trace("CColumnEditListCtrl::UpdateColumnImages");
    viewport()->update();
}

int CColumnEditListCtrl::GetColumnFromPoint(const QPoint& globalPoint) const {
    vx::ListTrace trace("CColumnEditListCtrl::GetColumnFromPoint");
    std::vector<int> widths;
    for (int column = 0; column < m_pModel->columnCount(); ++column)
        widths.push_back(header()->sectionSize(column));
    return vx::ColumnFromX(widths, viewport()->mapFromGlobal(globalPoint).x());
}

bool CColumnEditListCtrl::IsInLabelEditMode() const {
    return state() == EditingState;
}

void CColumnEditListCtrl::SetUpdateMode(bool on) {
    m_bUpdateMode = on;
    setUpdatesEnabled(!on);
}

bool CColumnEditListCtrl::CanEditThisItem(int, int) {
    vx::ListTrace trace("CColumnEditListCtrl::CanEditThisItem");
    return true;
}

bool CColumnEditListCtrl::IsEditTextValid(int, int, QString&) {
    vx::ListTrace trace("CColumnEditListCtrl::IsEditTextValid");
    return true;
}

void CColumnEditListCtrl::EndLabelEdit(int, int, const QString&) {
    vx::ListTrace trace("CColumnEditListCtrl::EndLabelEdit");
}

vx::ColumnImage CColumnEditListCtrl::GetImage(int, int) {
    return 0;
}

vx::ColumnImage CColumnEditListCtrl::GetImageOverlay(int, int) {
    return 0;
}

bool CColumnEditListCtrl::IsRowEnabled(int) const {
    return true;
}

void CColumnEditListCtrl::mousePressEvent(QMouseEvent* event) {
    // An editor still open here has refused its text while losing the focus to this click:
    // the click must not move the current cell, which would commit the editor unchecked.
    if (state() == EditingState) {
        event->accept();
        return;
    }
    QTreeView::mousePressEvent(event);
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = event->position().toPoint();
    const QModelIndex index = indexAt(at);
    if (index.isValid() && GetColumnType(index.column()) == vx::kCellToggleBitmap &&
        vx::ColumnEditDelegate::ToggleImageRect(visualRect(index), style()).contains(at))
        Q_EMIT toggleBitmapClicked(index.row(), index.column());
}

void CColumnEditListCtrl::commitData(QWidget* editor) {
    QTreeView::commitData(editor);
    if (editor != nullptr && editor == m_pEditor) m_bCommitted = true;
}

void CColumnEditListCtrl::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    // Tab must not open the next cell: the dialog may rebuild the rows when this edit ends.
    if (hint == QAbstractItemDelegate::EditNextItem ||
        hint == QAbstractItemDelegate::EditPreviousItem)
        hint = QAbstractItemDelegate::NoHint;
    const bool ending = editor != nullptr && editor == m_pEditor;
    const QPersistentModelIndex index = m_editIndex;
    const bool committed = m_bCommitted;
    QTreeView::closeEditor(editor, hint);
    if (!ending) return;
    m_pEditor = nullptr;
    m_editIndex = QPersistentModelIndex();
    m_bCommitted = false;
    if (!committed || !index.isValid()) return;
    const int row = index.row();
    const int column = index.column();
    EndLabelEdit(row, column, GetItemText(row, column));
    Q_EMIT editEnded(row, column);
}

void CColumnEditListCtrl::EditorOpened(QWidget* editor, const QModelIndex& index,
                                       const QString& text) {
    m_pEditor = editor;
    m_editIndex = index;
    m_bCommitted = false;
    m_strOriginalLabel = text;
    m_nLastRow = index.row();
    m_nLastColumn = index.column();
    Q_EMIT editStarted(m_nLastRow, m_nLastColumn);
}
