#include "vxutil/listctrl/qt/CColumnMenuListCtrl.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <utility>

#include "listctrl/ListTrace.h"

CColumnMenuListCtrl::CColumnMenuListCtrl(QWidget* parent) : CColumnEditListCtrl(parent) {}

bool CColumnMenuListCtrl::EnableContextMenu(int column, int menuId) {
    return Settings().EnableContextMenu(column, menuId);
}

int CColumnMenuListCtrl::GetContextMenu(int column) const {
    return Settings().GetContextMenu(column);
}

void CColumnMenuListCtrl::SetMenuProvider(MenuProvider provider) {
    m_menuProvider = std::move(provider);
}

void CColumnMenuListCtrl::contextMenuEvent(QContextMenuEvent* event) {
    vx::ListTrace trace("CColumnMenuListCtrl::OnContextMenu");
    QPoint at = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRect cell = visualRect(currentIndex());
        at = viewport()->mapToGlobal(cell.isValid() ? cell.center() : QPoint(0, 0));
    }
    const int menuId = GetContextMenu(GetColumnFromPoint(at));
    QMenu* menu = menuId != 0 && m_menuProvider ? m_menuProvider(menuId) : nullptr;
    if (menu == nullptr) {
        event->ignore();
        return;
    }
    menu->exec(at);
    event->accept();
}
