// A report-style list whose cells are edited in place: each column's cell type chooses the
// in-cell editor (text, check box, toggle bitmap, folder browse, hexadecimal or private number),
// columns may show images, and a screen point can be mapped to its column. The list is a
// QTreeView over its own QStandardItemModel and offers the row-and-column API that the dialogs
// ported from list-view code need.
//
// Edits are never started by Qt's edit triggers: a derived list or the dialog starts them with
// edit(index). An edit ends with editEnded only when its text was accepted and stored in the
// cell; an edit cancelled with Escape ends without it.
#pragma once

#include <QHash>
#include <QIcon>
#include <QList>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTreeView>
#include <cstdint>
#include <utility>

#include "vxutil/listctrl/ColumnSettings.h"
#include "vxutil/widgets_export.h"

class QStandardItemModel;

namespace vx {
class ColumnEditDelegate;
}

class VXUTIL_WIDGETS_API CColumnEditListCtrl : public QTreeView {
    Q_OBJECT
public:
    // The role that holds a row's item data word (on the row's first cell).
    static constexpr int kItemDataRole = Qt::UserRole + 1;

    explicit CColumnEditListCtrl(QWidget* parent = nullptr);
    ~CColumnEditListCtrl() override;

    // Columns. InsertColumn appends when `column` lies beyond the last one and returns the
    // column's index, or -1.
    int InsertColumn(int column, const QString& header, int width,
                     Qt::Alignment alignment = Qt::AlignLeft);
    bool DeleteColumn(int column);
    int GetColumnCount() const;
    int GetColumnWidth(int column) const;
    bool SetColumnWidth(int column, int width);
    // Non-zero when the column exists.
    int ValidateColumn(int column) const;

    // Rows. InsertItem appends when `row` lies beyond the last one and returns the row's index,
    // or -1.
    int InsertItem(int row, const QString& text);
    bool DeleteItem(int row);
    bool DeleteAllItems();
    int GetItemCount() const;
    bool SetItemText(int row, int column, const QString& text);
    QString GetItemText(int row, int column) const;
    // SetItemText under the list's trace; non-zero when the cell was set.
    int SetColumnText(int row, int column, const QString& text);
    bool SetItemData(int row, std::intptr_t itemData);
    std::intptr_t GetItemData(int row) const;
    // The check state of a check-box cell.
    bool SetItemChecked(int row, int column, bool checked);
    bool IsItemChecked(int row, int column) const;

    // Selection and focus, by rows.
    bool SetItemSelected(int row, bool selected);
    // Makes `row` the focused (current) row without changing the selection.
    bool SetItemFocused(int row);
    QList<int> GetSelectedRows() const;

    // Cell types (vx::kCellText ... vx::kCellPrivateNumber); column -1 is the default.
    bool EnableColumnType(int column, unsigned type);
    unsigned GetColumnType(int column) const;
    // The accepted range of a number column (hexadecimal or private); without one a column
    // accepts 0 to 0x7FFFFFFF.
    void SetColumnRange(int column, int minimum, int maximum);
    std::pair<int, int> GetColumnRange(int column) const;

    // Column images: ids from AddImage or the two system pictures.
    bool EnableColumnImage(int column, vx::ColumnImage image);
    vx::ColumnImage GetColumnImage(int column) const;
    bool EnableColumnImageOverlay(int column, vx::ColumnImage image);
    vx::ColumnImage GetColumnImageOverlay(int column) const;
    // Registers a picture with this list and returns its id.
    vx::ColumnImage AddImage(const QIcon& icon);
    QIcon GetImagePicture(vx::ColumnImage image) const;
    // The style's check mark and check box; a toggle cell whose overlay is the check box and
    // whose image is the check mark is drawn as a checked check box.
    static vx::ColumnImage LoadSystemCheckMarkBitmap();
    static vx::ColumnImage LoadSystemCheckBoxBitmap();
    // Redraws the cells after the states behind GetImage and GetImageOverlay changed.
    void UpdateColumnImages();

    // The column under a point given in screen coordinates, or -1 right of the last column.
    // Horizontal scrolling is not taken into account.
    int GetColumnFromPoint(const QPoint& globalPoint) const;

    // The running or last edit.
    QString GetOriginalLabel() const { return m_strOriginalLabel; }
    int GetLastItemEdited() const { return m_nLastRow; }
    int GetLastSubItemEdited() const { return m_nLastColumn; }
    bool IsInLabelEditMode() const;
    // Update mode holds repaints while a caller refills the list.
    void SetUpdateMode(bool on);
    bool IsUpdateMode() const { return m_bUpdateMode; }

    // Hooks for derived lists.
    virtual bool CanEditThisItem(int row, int column);
    // The last check of an edited text before it is stored; false keeps the editor open. The
    // hook may rewrite the text.
    virtual bool IsEditTextValid(int row, int column, QString& text);
    // Called with the stored text when an edit has ended and the editor is gone.
    virtual void EndLabelEdit(int row, int column, const QString& text);
    // The pictures of a toggle-bitmap cell: the image is drawn over the overlay; without an
    // overlay of its own the cell shows its column's overlay.
    virtual vx::ColumnImage GetImage(int row, int column);
    virtual vx::ColumnImage GetImageOverlay(int row, int column);

Q_SIGNALS:
    // The editor of a cell has been opened and shows the cell's text.
    void editStarted(int row, int column);
    // An accepted edit has been stored and its editor is gone; the model may be changed here.
    void editEnded(int row, int column);
    // The picture of a toggle-bitmap cell was clicked; the list changes nothing itself.
    void toggleBitmapClicked(int row, int column);

protected:
    // Rows shown greyed, whose cells cannot be edited.
    virtual bool IsRowEnabled(int row) const;
    // ValidateColumn without its trace, for the lists' own frequent checks.
    bool HasColumn(int column) const;
    vx::ColumnSettings& Settings() { return m_settings; }
    const vx::ColumnSettings& Settings() const { return m_settings; }
    QStandardItemModel* Model() const { return m_pModel; }

    void mousePressEvent(QMouseEvent* event) override;

protected Q_SLOTS:
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    friend class vx::ColumnEditDelegate;
    // Called by the delegate when it fills a new editor.
    void EditorOpened(QWidget* editor, const QModelIndex& index, const QString& text);
    QModelIndex EditingIndex() const { return m_editIndex; }

    QStandardItemModel* m_pModel;
    vx::ColumnSettings m_settings;
    vx::ColumnEditDelegate* m_pDelegate;
    QHash<int, std::pair<int, int>> m_ranges;
    QHash<vx::ColumnImage, QIcon> m_pictures;
    vx::ColumnImage m_nNextImage = 1;
    QPointer<QWidget> m_pEditor;
    QPersistentModelIndex m_editIndex;
    bool m_bCommitted = false;
    QString m_strOriginalLabel;
    int m_nLastRow = -1;
    int m_nLastColumn = -1;
    bool m_bUpdateMode = false;
};
