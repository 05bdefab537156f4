#include "vxutil/decor/qt/CWDialog.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWhatsThis>
#include <QWindow>

namespace {

bool IsHelpKey(const QEvent* event) {
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_F1 &&
           (key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

}  // namespace

CWDialog::CWDialog(QWidget* parent) : QDialog(parent) {
    // Qt 6 no longer gives dialogs the button; it must be asked for before the window exists.
    setWindowFlag(Qt::WindowContextHelpButtonHint, true);
}

void CWDialog::EnableContextHelp(bool enable) {
    m_bContextHelp = enable;
    if (!isVisible()) {
        setWindowFlag(Qt::WindowContextHelpButtonHint, enable);
        return;
    }
    // setWindowFlag on a shown dialog hides it and ends a running exec(); the native window's
    // flags can change in place.
    if (QWindow* window = windowHandle())
        window->setFlags(enable ? window->flags() | Qt::WindowContextHelpButtonHint
                                : window->flags() & ~Qt::WindowContextHelpButtonHint);
}

bool CWDialog::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            // Accepting the override keeps an application-wide F1 action from firing.
            if (IsHelpKey(event)) {
                event->accept();
                return true;
            }
            break;
        case QEvent::EnterWhatsThisMode:
            if (isActiveWindow()) QWhatsThis::leaveWhatsThisMode();
            return true;
        case QEvent::WhatsThis:
        case QEvent::QueryWhatsThis:
            event->ignore();
            return true;
        default:
            break;
    }
    return QDialog::event(event);
}

void CWDialog::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();  // shows nothing: only menus the controls handle themselves appear
}
