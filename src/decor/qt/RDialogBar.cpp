#include "vxutil/decor/qt/RDialogBar.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>

#include "decor/qt/ColorRefQt.h"
#include "decor/qt/DialogBarHub.h"
#include "decor/qt/LogFontQt.h"
#include "gnrt/StringTable.h"
#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

constexpr char kTraceSource[] = "RDialogBar";
using BarTrace = RSourceTrace<kTraceSource>;

// The system colours a bar falls back on, as Qt's palette names them.
vx::DialogBarSystemColors SystemColors(const QPalette& palette) {
    return {vx::ToColorRef(palette.color(QPalette::Dark)),
            vx::ToColorRef(palette.color(QPalette::HighlightedText))};
}

}  // namespace

RDialogBar::RDialogBar(QWidget* parent) : QFrame(parent), m_pLabel(new QLabel(this)) {
    m_pLabel->setObjectName(QStringLiteral("text_%1").arg(kTextControlId));
    setAutoFillBackground(true);
    setFrameShape(QFrame::NoFrame);
    setMinimumHeight(fontMetrics().height() + 10);
    ReloadLook();
    connect(&vx::DialogBarHub::Instance(), &vx::DialogBarHub::lookChanged, this,
            &RDialogBar::ReloadLook);
}

int RDialogBar::CreateBar(QWidget* parent, unsigned, unsigned barId) {
    BarTrace trace("RDialogBar::CreateBar");
    if (parent == nullptr) return 0;
    setParent(parent);
    setObjectName(QStringLiteral("dialogBar_%1").arg(barId));
    show();
    return 1;
}

void RDialogBar::SetDisplayText(const char* text) {
    m_pLabel->setText(vx::ToQString(text != nullptr ? text : ""));
    setAccessibleName(m_pLabel->text());
}

void RDialogBar::SetDisplayText(int stringId) {
    m_pLabel->setText(vx::Tr(static_cast<unsigned>(stringId)));
    setAccessibleName(m_pLabel->text());
}

QString RDialogBar::GetDisplayText() const {
    return m_pLabel->text();
}

void RDialogBar::SetDisplayTextColor(RDialogBar* source, int redraw, int store, int broadcast) {
    BarTrace trace("RDialogBar::SetDisplayTextColor");
    const QColor color = source != nullptr ? source->m_text : GetTextColor();
    if (store) SaveRegistryTextColor(color);
    SetBarTextColor(color);
    Publish(redraw, broadcast);
}

void RDialogBar::SetDisplayBkColor(RDialogBar* source, int redraw, int store, int broadcast) {
    BarTrace trace("RDialogBar::SetDisplayBkColor");
    const QColor color = source != nullptr ? source->m_background : GetBkgndColor();
    if (store) SaveRegistryBkgndColor(color);
    SetBarBkgnd(color);
    Publish(redraw, broadcast);
}

void RDialogBar::SetDisplayFont(RDialogBar* source, int redraw, int store, int broadcast) {
    BarTrace trace("RDialogBar::SetDisplayFont");
    const vx::LogFont font = source != nullptr ? source->m_font : GetTextFont();
    if (store) SaveRegistryTextFont(font);
    SetBarFont(font);
    Publish(redraw, broadcast);
}

void RDialogBar::OnFontChange() {
    BarTrace trace("RDialogBar::OnFontChange");
    const std::optional<QFont> chosen =
        vx::DialogBarChooser::Current().ChooseFont(window(), m_pLabel->font());
    if (!chosen) return;
    SaveRegistryTextFont(vx::MergeQFont(m_font, *chosen, font()));
    Publish(0, 1);
}

void RDialogBar::OnBkgndColorChange() {
    BarTrace trace("RDialogBar::OnBkgndColorChange");
    const std::optional<QColor> chosen =
        vx::DialogBarChooser::Current().ChooseColor(window(), m_background);
    if (!chosen) return;
    SaveRegistryBkgndColor(*chosen);
    Publish(0, 1);
}

void RDialogBar::Publish(int redraw, int broadcast) {
    if (redraw) update();
    if (broadcast) Q_EMIT vx::DialogBarHub::Instance().lookChanged();
}

void RDialogBar::SetBarTextColor(const QColor& color) {
    m_text = color;
    QPalette palette = m_pLabel->palette();
    palette.setColor(QPalette::WindowText, color);
    m_pLabel->setPalette(palette);
}

void RDialogBar::SetBarBkgnd(const QColor& color) {
    m_background = color;
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, color);
    setPalette(palette);
}

void RDialogBar::SetBarFont(const vx::LogFont& font) {
    m_font = font;
    m_pLabel->setFont(vx::ToQFont(font, this->font()));
}

QColor RDialogBar::GetBkgndColor() const {
    return vx::ToQColor(vx::LoadDialogBarBackground(SystemColors(palette()).buttonShadow));
}

QColor RDialogBar::GetTextColor() const {
    return vx::ToQColor(vx::LoadDialogBarTextColor(SystemColors(palette()).captionText));
}

vx::LogFont RDialogBar::GetTextFont() const {
    return vx::LoadDialogBarFont();
}

bool RDialogBar::SaveRegistryBkgndColor(const QColor& color) {
    return vx::SaveDialogBarBackground(vx::ToColorRef(color));
}

bool RDialogBar::SaveRegistryTextColor(const QColor& color) {
    return vx::SaveDialogBarTextColor(vx::ToColorRef(color));
}

bool RDialogBar::SaveRegistryTextFont(const vx::LogFont& font) {
    return vx::SaveDialogBarFont(font);
}

void RDialogBar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    if (const std::optional<vx::BarRect> text = vx::DialogBarTextRect(width(), height()))
        m_pLabel->setGeometry(text->x, text->y, text->w, text->h);
}

void RDialogBar::contextMenuEvent(QContextMenuEvent* event) {
    if (!m_bDefaultMenu) {
        QFrame::contextMenuEvent(event);
        return;
    }
    QMenu menu(this);
    connect(menu.addAction(vx::Tr(vx::kStrDialogBarFont)), &QAction::triggered, this,
            &RDialogBar::OnFontChange);
    connect(menu.addAction(vx::Tr(vx::kStrDialogBarBackground)), &QAction::triggered, this,
            &RDialogBar::OnBkgndColorChange);
    menu.exec(event->globalPos());
}

void RDialogBar::ReloadLook() {
    SetBarBkgnd(GetBkgndColor());
    SetBarTextColor(GetTextColor());
    SetBarFont(GetTextFont());
}
