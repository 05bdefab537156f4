// The delegate of the column-edit lists: it picks each cell's editor by its column's type,
// draws check-box and toggle-bitmap cells and greys disabled rows, and keeps an editor open
// while its text is refused.
//
// The keystroke logic of the number editors runs in eventFilter before the base class sees the
// event: the view installs the delegate as the editor's filter after createEditor returns, so a
// filter of the editor's own would run after the base class had already queued the commit of
// Return. A text is checked when the user ends the edit (Return, Tab, focus moving elsewhere in
// the window); a refused text shows its message and the editor stays open with the user's text.
#pragma once

#include <QStyledItemDelegate>

#include "listctrl/qt/ModalGuard.h"

class CColumnEditListCtrl;
class QLineEdit;

namespace vx {

class ColumnEditDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit ColumnEditDelegate(CColumnEditListCtrl* list);

    // Where a toggle-bitmap cell shows its pictures: an indicator-sized square in the middle of
    // the cell.
    static QRect ToggleImageRect(const QRect& cell, const QStyle* style);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    // Greyed rows and cells refused by CanEditThisItem get no editor, and their check boxes
    // do not change.
    bool CanEdit(const QModelIndex& index) const;
    // The checks of the editor's own type, then the list's IsEditTextValid; a refusal has been
    // shown to the user.
    bool Validate(QLineEdit* editor);
    bool ValidateNumber(QLineEdit* editor, unsigned type);
    void BrowseFolder(QLineEdit* editor) const;
    void PaintToggleImages(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const;
    bool ToggleCheckBox(QEvent* event, QAbstractItemModel* model,
                        const QStyleOptionViewItem& option, const QModelIndex& index);

    CColumnEditListCtrl* m_list;
    // Raised around every prompt and dialog shown for an editor (createEditor is const, and
    // the editors it makes count their prompts here).
    mutable ModalGuard m_modal;
};

}  // namespace vx
