// The reveal action of a password edit (an eye at its trailing end). It shows only what the user
// typed: a password the program put into the edit (a remembered one) stays hidden, and the
// action absent, until the user clears the field or types over all of it.
#pragma once

#include <QObject>

class QAction;
class QLineEdit;

namespace vx {

class PasswordReveal : public QObject {
    Q_OBJECT
public:
    // Adds the action to `edit`, which must outlive this object.
    explicit PasswordReveal(QLineEdit& edit);

    // Puts `text` into the edit on the program's behalf (nothing changes when the edit holds it
    // already); a non-empty text cannot be revealed.
    void SetProgramText(const QString& text);
    QAction* Action() const { return m_action; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnTextEdited(const QString& text);
    void Reveal(bool shown);
    void Update();

    QLineEdit& m_edit;
    QAction* m_action;
    bool m_programText = false;
    // Whether the whole text was selected when the user's last key arrived: typing then
    // replaces all of it.
    bool m_allSelected = false;
};

}  // namespace vx
