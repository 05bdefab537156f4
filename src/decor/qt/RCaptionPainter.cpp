#include "vxutil/decor/qt/RCaptionPainter.h"

#include <QMdiSubWindow>
#include <QPainter>
#include <QStyle>

#include "decor/qt/CaptionStyle.h"
#include "decor/qt/ColorRefQt.h"
#include "vxutil/runtime/RMethodTrace.h"

namespace {
constexpr char kTraceSource[] = "RCaptionPainter";
using CaptionTrace = RSourceTrace<kTraceSource>;
}  // namespace

RCaptionPainter::RCaptionPainter() = default;

RCaptionPainter::~RCaptionPainter() {
    UnInstall();
}

int RCaptionPainter::Install(QWidget* window, unsigned activeGradient) {
    CaptionTrace trace("RCaptionPainter::Install");
    if (window == nullptr) return 0;
    UnInstall();
    m_pWindow = window;
    m_nActiveGradient = activeGradient;
    if (qobject_cast<QMdiSubWindow*>(window) != nullptr) {
        m_pStyle = new CaptionStyle(*this, window->style()->name());
        m_pStyle->setParent(window);
        window->setStyle(m_pStyle);
    }
    return 1;
}

void RCaptionPainter::UnInstall() {
    CaptionTrace trace("RCaptionPainter::UnInstall");
    if (m_pWindow != nullptr && m_pStyle != nullptr) {
        m_pWindow->setStyle(nullptr);
        delete m_pStyle;
    }
    m_pStyle = nullptr;
    m_pWindow = nullptr;
}

void RCaptionPainter::SetGradient(int on) {
    if (m_state.gradientOn == (on != 0)) return;
    m_state.gradientOn = on != 0;
    if (m_pWindow != nullptr) m_pWindow->repaint();
}

void RCaptionPainter::Invalidate() {
    if (m_pWindow != nullptr) m_pWindow->update();
}

std::vector<vx::Band> RCaptionPainter::CaptionBands(const QPalette& palette, bool active, int cx,
                                                    int cy) const {
    vx::CaptionState state = m_state;
    state.activeCaption = vx::ToColorRef(palette.color(QPalette::Active, QPalette::Highlight));
    if (active && m_nActiveGradient == kColorToColor)
        return vx::GradientColorToColorBands(state, cx, cy, 1, 0);
    if (active) return vx::GradientBlackToColorBands(state, cx, cy, 1, 0);
    const vx::ColorRef inactive = vx::ToColorRef(palette.color(QPalette::Inactive, QPalette::Dark));
    return vx::GradientBlackToColorBands(state, cx, cy, 0, inactive);
}

QImage RCaptionPainter::PaintBands(const std::vector<vx::Band>& bands, int cx, int cy) {
    if (cx <= 0 || cy <= 0) return {};
    QImage image(cx, cy, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const vx::Band& band : bands)
        painter.fillRect(QRect(band.x, band.y, band.w, band.h), vx::ToQColor(band.color));
    return image;
}
