// A column-edit list with a context menu per column. The list knows menus by id only: the
// dialog that owns the list builds each menu from its own actions, so that the commands of the
// menu reach the dialog.
#pragma once

#include <functional>

#include "vxutil/listctrl/qt/CColumnEditListCtrl.h"

class QMenu;

class VXUTIL_WIDGETS_API CColumnMenuListCtrl : public CColumnEditListCtrl {
    Q_OBJECT
public:
    // The menu of an id, or null for none; the provider keeps the menu.
    using MenuProvider = std::function<QMenu*(int menuId)>;

    explicit CColumnMenuListCtrl(QWidget* parent = nullptr);

    // Column -1 sets the default menu, shown for columns without one of their own and right of
    // the last column; any other column must exist. Id 0 is no menu.
    bool EnableContextMenu(int column, int menuId);
    int GetContextMenu(int column) const;
    void SetMenuProvider(MenuProvider provider);

protected:
    // Shows the menu of the column under the point; without one the event goes on to the
    // parent. A menu asked for from the keyboard opens at the current cell.
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    MenuProvider m_menuProvider;
};
