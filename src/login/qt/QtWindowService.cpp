#include "login/qt/QtWindowService.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "vxutil/runtime/qt/QtText.h"

namespace vx {
namespace {

QWidget* WidgetOf(WindowHandle window) {
    return static_cast<QWidget*>(window);
}

// `frame` moved by as little as possible to lie inside `area` (its top left corner wins when it
// is larger).
QRect KeptInside(QRect frame, const QRect& area) {
    frame.moveRight(std::min(frame.right(), area.right()));
    frame.moveBottom(std::min(frame.bottom(), area.bottom()));
    frame.moveLeft(std::max(frame.left(), area.left()));
    frame.moveTop(std::max(frame.top(), area.top()));
    return frame;
}

}  // namespace

CGNString QtWindowService::GetCaption(WindowHandle window) {
    return window != nullptr ? FromQString(WidgetOf(window)->windowTitle()) : CGNString();
}

void QtWindowService::SetCaption(WindowHandle window, const CGNString& caption) {
    if (window != nullptr) WidgetOf(window)->setWindowTitle(ToQString(caption));
}

void QtWindowService::CentreOnParent(WindowHandle window) {
    if (window == nullptr) return;
    QWidget* top = WidgetOf(window)->window();
    // A window not yet shown has no size of its own until its layout gave it one.
    if (!top->testAttribute(Qt::WA_Resized)) top->adjustSize();
    const QWidget* parent =
        top->parentWidget() != nullptr ? top->parentWidget()->window() : nullptr;
    const QScreen* screen = parent != nullptr ? parent->screen() : top->screen();
    const QRect area = screen->availableGeometry();
    QRect frame = top->frameGeometry();
    frame.moveCenter(parent != nullptr ? parent->frameGeometry().center() : area.center());
    top->move(KeptInside(frame, area).topLeft());
}

}  // namespace vx
