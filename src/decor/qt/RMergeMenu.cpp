#include "vxutil/decor/qt/RMergeMenu.h"

#include <QAction>
#include <QMenu>
#include <map>
#include <memory>

#include "vxutil/decor/MenuMerge.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

// The merge's view of a QMenuBar or QMenu. Adapters of pop-ups are made on demand and live as
// long as the adapter of the menu they belong to.
class QtMergeMenu final : public vx::MergeMenu {
public:
    explicit QtMergeMenu(QWidget* menu) : m_menu(menu) {}

    int GetItemCount() const override { return static_cast<int>(m_menu->actions().size()); }
    std::string GetItemText(int index) const override {
        return vx::FromQString(ActionAt(index)->text()).str();
    }
    bool IsSeparator(int index) const override { return ActionAt(index)->isSeparator(); }
    vx::MergeMenu* GetSubMenu(int index) const override {
        QMenu* popup = ActionAt(index)->menu();
        return popup != nullptr ? AdapterOf(popup) : nullptr;
    }

    bool InsertItem(int before, const vx::MergeMenu& source, int sourceIndex) override {
        m_menu->insertAction(Before(before),
                             static_cast<const QtMergeMenu&>(source).ActionAt(sourceIndex));
        return true;
    }
    bool InsertSeparator(int before) override {
        auto* separator = new QAction(m_menu);
        separator->setSeparator(true);
        m_menu->insertAction(Before(before), separator);
        return true;
    }
    vx::MergeMenu* CreatePopup() override { return AdapterOf(new QMenu(m_menu)); }
    bool InsertPopup(int before, vx::MergeMenu& popup, const vx::MergeMenu& source,
                     int sourceIndex) override {
        const QAction* model = static_cast<const QtMergeMenu&>(source).ActionAt(sourceIndex);
        auto* menu = static_cast<QMenu*>(static_cast<QtMergeMenu&>(popup).m_menu);
        menu->setTitle(model->text());
        menu->setIcon(model->icon());
        menu->menuAction()->setEnabled(model->isEnabled());
        menu->menuAction()->setVisible(model->isVisible());
        m_menu->insertAction(Before(before), menu->menuAction());
        return true;
    }

private:
    QAction* ActionAt(int index) const { return m_menu->actions().at(index); }
    QAction* Before(int index) const {
        return index == kAppend || index >= GetItemCount() ? nullptr : ActionAt(index);
    }
    QtMergeMenu* AdapterOf(QMenu* popup) const {
        std::unique_ptr<QtMergeMenu>& adapter = m_popups[popup];
        if (adapter == nullptr) adapter = std::make_unique<QtMergeMenu>(popup);
        return adapter.get();
    }

    QWidget* m_menu;
    mutable std::map<QMenu*, std::unique_ptr<QtMergeMenu>> m_popups;
};

}  // namespace

int RMergeMenu(QWidget* destination, const QWidget* source, bool topLevel) {
    if (destination == nullptr || source == nullptr) return 0;
    QtMergeMenu to(destination);
    // The merge reads the source and never changes it.
    const QtMergeMenu from(const_cast<QWidget*>(source));
    return vx::MergeMenus(to, from, topLevel);
}
