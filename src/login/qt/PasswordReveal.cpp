#include "login/qt/PasswordReveal.h"

#include <QAction>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include "gnrt/StringTable.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {
namespace {

// The desktop theme's eye, else a drawn one in the edit's text colour.
QIcon EyeIcon(const QColor& color) {
    QIcon icon = QIcon::fromTheme(QStringLiteral("view-visible"));
    if (!icon.isNull()) return icon;
    for (const int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 16.0, size / 16.0);
        painter.setPen(QPen(color, 1.2));
        QPainterPath lids;
        lids.moveTo(1, 8);
        lids.quadTo(8, 1, 15, 8);
        lids.quadTo(8, 15, 1, 8);
        painter.drawPath(lids);
        painter.setBrush(color);
        painter.drawEllipse(QPointF(8, 8), 2.5, 2.5);
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace

PasswordReveal::PasswordReveal(QLineEdit& edit)
    : m_edit(edit),
      m_action(edit.addAction(EyeIcon(edit.palette().color(QPalette::Text)),
                              QLineEdit::TrailingPosition)) {
    m_action->setCheckable(true);
    connect(m_action, &QAction::toggled, this, &PasswordReveal::Reveal);
    connect(&m_edit, &QLineEdit::textEdited, this, &PasswordReveal::OnTextEdited);
    m_edit.installEventFilter(this);
    Reveal(false);
    Update();
}

void PasswordReveal::SetProgramText(const QString& text) {
    if (text == m_edit.text()) return;
    m_edit.setText(text);
    m_programText = !text.isEmpty();
    Update();
}

bool PasswordReveal::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::InputMethod)
        m_allSelected = m_edit.selectionLength() == m_edit.text().size();
    return QObject::eventFilter(watched, event);
}

void PasswordReveal::OnTextEdited(const QString& text) {
    if (text.isEmpty() || m_allSelected) m_programText = false;
    Update();
}

void PasswordReveal::Reveal(bool shown) {
    m_edit.setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    const QString tip = Tr(shown ? kStrLoginHidePassword : kStrLoginShowPassword);
    m_action->setText(tip);
    m_action->setToolTip(tip);
}

void PasswordReveal::Update() {
    const bool offered = !m_programText && !m_edit.text().isEmpty();
    if (!offered) m_action->setChecked(false);
    m_action->setVisible(offered);
}

}  // namespace vx
