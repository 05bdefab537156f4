#include "listctrl/qt/ColumnEditDelegate.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <memory>

#include "gnrt/StringTable.h"
#include "listctrl/qt/EditLogicAdapter.h"
#include "listctrl/qt/FolderBrowseEdit.h"
#include "vxutil/listctrl/RHexEditLogic.h"
#include "vxutil/listctrl/RangeMessage.h"
#include "vxutil/listctrl/RpcNumberRule.h"
#include "vxutil/listctrl/qt/CColumnEditListCtrl.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/RUtils.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {
namespace {

constexpr unsigned kBadNumberStyle = kMbOk | kMbIconExclamation;

const QStyle* StyleOf(const QStyleOptionViewItem& option) {
    return option.widget != nullptr ? option.widget->style() : QApplication::style();
}

bool IsNumberType(unsigned type) {
    return type == kCellHexadecimal || type == kCellPrivateNumber;
}

// Keys with which the user accepts the text; the base class commits on them.
bool IsCommitKey(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
           key == Qt::Key_Backtab;
}

// Focus is given back once the event that took it away has been handled.
void RefocusLater(QLineEdit* editor) {
    QTimer::singleShot(0, editor, [editor] { editor->setFocus(Qt::OtherFocusReason); });
}

}  // namespace

ColumnEditDelegate::ColumnEditDelegate(CColumnEditListCtrl* list)
    : QStyledItemDelegate(list), m_list(list) {}

QRect ColumnEditDelegate::ToggleImageRect(const QRect& cell, const QStyle* style) {
    QRect square(0, 0, style->pixelMetric(QStyle::PM_IndicatorWidth),
                 style->pixelMetric(QStyle::PM_IndicatorHeight));
    square.moveCenter(cell.center());
    return square;
}

QWidget* ColumnEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
    if (!CanEdit(index)) return nullptr;
    const unsigned type = m_list->GetColumnType(index.column());
    QLineEdit* editor = nullptr;
    if (type == kCellText) {
        editor = new QLineEdit(parent);
    } else if (type == kCellFolderBrowse) {
        auto* folder = new FolderBrowseEdit(parent);
        connect(folder, &FolderBrowseEdit::browseRequested, this,
                [this, folder] { BrowseFolder(folder); });
        editor = folder;
    } else if (IsNumberType(type)) {
        editor = new QLineEdit(parent);
        auto logic = std::make_unique<RHexEditLogic>();
        const auto [minimum, maximum] = m_list->GetColumnRange(index.column());
        logic->SetRange(minimum, maximum);
        new EditLogicAdapter(editor, std::move(logic), m_modal);
        // Composed input arrives as input-method events, which bypass the keystroke logic.
        editor->setAttribute(Qt::WA_InputMethodEnabled, false);
        editor->setInputMethodHints(Qt::ImhLatinOnly | Qt::ImhNoPredictiveText |
                                    Qt::ImhPreferNumbers);
    } else {
        return nullptr;  // check boxes and toggle bitmaps change without an editor
    }
    editor->setFrame(false);
    return editor;
}

void ColumnEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* edit = qobject_cast<QLineEdit*>(editor);
    // The view calls again when the cell changes under an open editor; the user's typing stays.
    if (edit == nullptr || editor == m_list->m_pEditor) return;
    const QString text = index.data(Qt::DisplayRole).toString();
    edit->setText(text);
    edit->selectAll();
    m_list->EditorOpened(editor, index, text);
}

void ColumnEditDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                      const QModelIndex& index) const {
    if (auto* edit = qobject_cast<QLineEdit*>(editor))
        model->setData(index, edit->text(), Qt::EditRole);
}

void ColumnEditDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                              const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

void ColumnEditDelegate::initStyleOption(QStyleOptionViewItem* option,
                                         const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant alignment =
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::TextAlignmentRole);
    if (alignment.isValid())
        option->displayAlignment =
            (Qt::Alignment(alignment.toInt()) & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
    if (m_list->GetColumnType(index.column()) == kCellCheckBox) {
        option->features |= QStyleOptionViewItem::HasCheckIndicator;
        const QVariant state = index.data(Qt::CheckStateRole);
        option->checkState = state.isValid() ? state.value<Qt::CheckState>() : Qt::Unchecked;
    }
    if (!m_list->IsRowEnabled(index.row())) option->state &= ~QStyle::State_Enabled;
}

void ColumnEditDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    if (m_list->GetColumnType(index.column()) == kCellToggleBitmap)
        PaintToggleImages(painter, option, index);
    else
        QStyledItemDelegate::paint(painter, option, index);
}

void ColumnEditDelegate::PaintToggleImages(QPainter* painter, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    cell.text.clear();
    const QStyle* style = StyleOf(option);
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const int row = index.row();
    const int column = index.column();
    ColumnImage overlay = m_list->GetImageOverlay(row, column);
    if (overlay == 0) overlay = m_list->GetColumnImageOverlay(column);
    const ColumnImage image = m_list->GetImage(row, column);
    const ColumnImage mark = CColumnEditListCtrl::LoadSystemCheckMarkBitmap();
    const ColumnImage box = CColumnEditListCtrl::LoadSystemCheckBoxBitmap();
    const QRect target = ToggleImageRect(cell.rect, style);

    // The system pictures are the style's check indicator: a check mark, alone or over the
    // check box, shows as a checked box.
    const auto isSystem = [&](ColumnImage id) { return id == mark || id == box; };
    if (isSystem(overlay) || isSystem(image)) {
        QStyleOptionViewItem check(cell);
        check.rect = target;
        check.state &= QStyle::State_Enabled;
        check.state |= overlay == mark || image == mark ? QStyle::State_On : QStyle::State_Off;
        style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, painter, cell.widget);
    }
    const QIcon::Mode mode =
        cell.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled;
    for (ColumnImage id : {overlay, image}) {
        if (id != 0 && !isSystem(id))
            m_list->GetImagePicture(id).paint(painter, target, Qt::AlignCenter, mode);
    }
}

bool ColumnEditDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                     const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (m_list->GetColumnType(index.column()) == kCellCheckBox)
        return CanEdit(index) && ToggleCheckBox(event, model, option, index);
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

bool ColumnEditDelegate::CanEdit(const QModelIndex& index) const {
    return m_list->IsRowEnabled(index.row()) &&
           m_list->CanEditThisItem(index.row(), index.column());
}

bool ColumnEditDelegate::ToggleCheckBox(QEvent* event, QAbstractItemModel* model,
                                        const QStyleOptionViewItem& option,
                                        const QModelIndex& index) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick: {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            QStyleOptionViewItem cell(option);
            initStyleOption(&cell, index);
            const QRect indicator = StyleOf(option)->subElementRect(
                QStyle::SE_ItemViewItemCheckIndicator, &cell, cell.widget);
            if (mouse->button() != Qt::LeftButton ||
                !indicator.contains(mouse->position().toPoint()))
                return false;
            // A press on the box is taken so that only the release toggles.
            if (event->type() != QEvent::MouseButtonRelease) return true;
            break;
        }
        case QEvent::KeyPress: {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key != Qt::Key_Space && key != Qt::Key_Select) return false;
            break;
        }
        default:
            return false;
    }
    const bool checked = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    return model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool ColumnEditDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<QLineEdit*>(object);
    if (editor == nullptr) return QStyledItemDelegate::eventFilter(object, event);
    const QPointer<QLineEdit> alive(editor);
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress: {
            if (EditLogicAdapter* logic = EditLogicAdapter::Of(editor);
                logic && logic->Filter(event))
                return true;
            if (!alive) return true;
            const bool commitKey = event->type() == QEvent::KeyPress &&
                                   IsCommitKey(static_cast<QKeyEvent*>(event)->key());
            if (commitKey && !Validate(editor)) {
                if (alive) RefocusLater(editor);
                return true;
            }
            break;
        }
        case QEvent::FocusOut: {
            // The editor stays open while a prompt of its own is up, and when the window or a
            // pop-up merely takes the focus for a while.
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (m_modal.Active() || reason == Qt::ActiveWindowFocusReason ||
                reason == Qt::PopupFocusReason)
                return true;
            if (!Validate(editor)) {
                if (alive) RefocusLater(editor);
                return true;
            }
            break;
        }
        default:
            break;
    }
    return alive ? QStyledItemDelegate::eventFilter(object, event) : true;
}

bool ColumnEditDelegate::Validate(QLineEdit* editor) {
    const QPersistentModelIndex index(m_list->EditingIndex());
    if (!index.isValid()) return true;
    ModalGuard::Scope modal(m_modal);
    const QPointer<QLineEdit> alive(editor);
    const unsigned type = m_list->GetColumnType(index.column());
    if (type == kCellFolderBrowse &&
        RValidatePathWithCreate(FromQString(editor->text()), editor->window()) == 0)
        return false;
    if (IsNumberType(type) && !ValidateNumber(editor, type)) return false;
    if (!alive || !index.isValid()) return false;
    QString text = editor->text();
    if (!m_list->IsEditTextValid(index.row(), index.column(), text) || !alive) return false;
    if (text != editor->text()) editor->setText(text);
    return true;
}

bool ColumnEditDelegate::ValidateNumber(QLineEdit* editor, unsigned type) {
    const EditLogicAdapter* adapter = EditLogicAdapter::Of(editor);
    if (adapter == nullptr) return true;
    auto& logic = static_cast<RHexEditLogic&>(adapter->Logic());
    const CGNString text = FromQString(editor->text());
    // Pasted or dropped text never went through the keystroke checks.
    if (!RHexEditLogic::VerifyHexNumber(text)) {
        const CGNString message =
            NumberRangeMessage(text, logic.GetMinRange(), logic.GetMaxRange());
        RUserPrompt::Current().Show(editor->window(), message.c_str(), nullptr, kBadNumberStyle);
        return false;
    }
    const QPointer<QLineEdit> alive(editor);
    if (!logic.CheckRange(text)) return false;
    return type != kCellPrivateNumber || (alive && CheckPrivateRpcNumber(text, editor->window()));
}

void ColumnEditDelegate::BrowseFolder(QLineEdit* editor) const {
    const QPointer<QLineEdit> alive(editor);
    QString folder;
    {
        ModalGuard::Scope modal(m_modal);
        folder = QFileDialog::getExistingDirectory(m_list->window(), Tr(kStrSelectFolder),
                                                   editor->text(), QFileDialog::ShowDirsOnly);
    }
    if (!alive) return;
    if (!folder.isEmpty()) editor->setText(QDir::toNativeSeparators(folder));
    editor->setFocus(Qt::OtherFocusReason);
}

}  // namespace vx
