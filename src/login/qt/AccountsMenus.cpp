#include "login/qt/AccountsMenus.h"

#include <QAction>
#include <QMenu>
#include <utility>

#include "vxutil/login/AccountsControls.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {

AccountsMenus::AccountsMenus(QWidget& owner, const AccountsPresenter& presenter, Runner run)
    : m_owner(owner), m_presenter(presenter), m_run(std::move(run)) {}

QMenu* AccountsMenus::Menu(int menuId) {
    if (QMenu* built = m_menus.value(menuId)) return built;
    const std::vector<AccountsMenuEntry> entries = AccountsMenu(menuId);
    if (entries.empty()) return nullptr;
    auto* menu = new QMenu(&m_owner);
    for (const AccountsMenuEntry& entry : entries) {
        if (entry.command == 0)
            menu->addSeparator();
        else
            menu->addAction(Action(entry));
    }
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu] { UpdateStates(*menu); });
    m_menus.insert(menuId, menu);
    return menu;
}

QAction* AccountsMenus::Action(const AccountsMenuEntry& entry) {
    if (QAction* shared = m_actions.value(entry.command)) return shared;
    auto* action = new QAction(ToQString(entry.text), &m_owner);
    action->setCheckable(entry.checkable);
    action->setData(entry.command);
    // Queued, as a menu command is posted: the command may open an editor or ask a question,
    // which should find the menu gone and the focus back in the list.
    QObject::connect(
        action, &QAction::triggered, &m_owner, [this, command = entry.command] { m_run(command); },
        Qt::QueuedConnection);
    m_actions.insert(entry.command, action);
    return action;
}

void AccountsMenus::UpdateStates(const QMenu& menu) const {
    for (QAction* action : menu.actions()) {
        if (action->isSeparator()) continue;
        const AccountsCommandState state = m_presenter.GetCommandState(action->data().toInt());
        action->setEnabled(state.enabled);
        action->setChecked(action->isCheckable() && state.checked);
    }
}

}  // namespace vx
