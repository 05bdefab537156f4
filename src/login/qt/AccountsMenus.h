// The context menus of the accounts dialog's lists, built on first use from the menu tables,
// with one action per command shared by every menu that shows it. Each menu takes the enabled
// and checked states of its entries from the presenter as it opens.
#pragma once

#include <QHash>
#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace vx {

class AccountsPresenter;
struct AccountsMenuEntry;

class AccountsMenus {
public:
    using Runner = std::function<void(int command)>;

    // The menus and actions belong to `owner`; a chosen command reaches `run` once the menu
    // has closed.
    AccountsMenus(QWidget& owner, const AccountsPresenter& presenter, Runner run);

    // The menu of a menu id, or null for none.
    QMenu* Menu(int menuId);

private:
    QAction* Action(const AccountsMenuEntry& entry);
    void UpdateStates(const QMenu& menu) const;

    QWidget& m_owner;
    const AccountsPresenter& m_presenter;
    Runner m_run;
    QHash<int, QAction*> m_actions;
    QHash<int, QMenu*> m_menus;
};

}  // namespace vx
