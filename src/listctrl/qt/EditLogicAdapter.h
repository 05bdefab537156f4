// Runs a keystroke logic (RBaseEditLogic and its derivatives) over a QLineEdit: the logic's
// edit window is the line edit, and the line edit's key and mouse events are translated into
// the Win32 key-down, character and button messages the logic judges. The owner of the line
// edit hands every event to Filter before the line edit and its delegate see it.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>

#include "listctrl/qt/ModalGuard.h"
#include "vxutil/listctrl/EditWindow.h"
#include "vxutil/listctrl/RBaseEditLogic.h"

class QEvent;
class QKeyEvent;
class QLineEdit;

namespace vx {

class EditLogicAdapter : public QObject, public EditWindow {
    Q_OBJECT
public:
    // A key press in Win32 terms: the virtual-key code of its key-down (0 when the key has
    // none the logic knows) and the character message that follows (-1 for none).
    struct Keystroke {
        unsigned virtualKey = 0;
        int character = -1;
    };
    // Qt's key codes are not virtual-key codes: Qt::Key_Period has the value of VK_DELETE, so
    // keys are mapped one by one. Return, Enter, Escape and Tab get no character: in an item
    // view those keys end the edit, which the delegate handles. Ctrl with a letter gives the
    // control characters 1 to 26, whatever text the event carries.
    static Keystroke Translate(const QKeyEvent& event);

    // The warning sound of refused keystrokes, for every adapter; null restores the default
    // (QApplication::beep). Returns the previous one.
    using Beeper = std::function<void()>;
    static Beeper SetBeeper(Beeper beeper);

    // Becomes a child of `edit`; prompts of the logic are counted by `guard`, which must
    // outlive the adapter.
    EditLogicAdapter(QLineEdit* edit, std::unique_ptr<RBaseEditLogic> logic, ModalGuard& guard);
    ~EditLogicAdapter() override;

    // The adapter of `edit`, or null.
    static EditLogicAdapter* Of(const QObject* edit);
    RBaseEditLogic& Logic() const { return *m_logic; }

    // Runs the logic on one event of the line edit; true when the event must be dropped. A
    // character the logic rewrote is inserted here and its event dropped.
    bool Filter(QEvent* event);

    // EditWindow
    bool Exists() const override;
    CGNString GetText() const override;
    void GetSel(int& start, int& end) const override;
    bool ClientContains(ClientPoint point) const override;
    // The key-down comes back to the logic alone: delivering Return to the line edit would end
    // the cell edit.
    void PostKeyDown(unsigned virtualKey) override;
    void Beep() override;
    WindowHandle PromptParent() const override;

private:
    EditFilterResult Run(const EditMessage& message);

    QPointer<QLineEdit> m_edit;
    std::unique_ptr<RBaseEditLogic> m_logic;
    ModalGuard& m_guard;
};

}  // namespace vx
