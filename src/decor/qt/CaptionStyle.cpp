#include "decor/qt/CaptionStyle.h"

#include <QPainter>
#include <QStyleOptionTitleBar>

#include "vxutil/decor/qt/RCaptionPainter.h"

CaptionStyle::CaptionStyle(const RCaptionPainter& painter, const QString& baseKey)
    : QProxyStyle(baseKey), m_painter(painter) {}

void CaptionStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || title == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    // Bands are one device pixel wide whatever the scaling.
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QRect area = title->rect;
    const int cx = qRound(area.width() * ratio);
    const int cy = qRound(area.height() * ratio);
    const bool active = title->titleBarState & Qt::WindowActive || title->state & State_Active;
    QImage caption =
        RCaptionPainter::PaintBands(m_painter.CaptionBands(title->palette, active, cx, cy), cx, cy);
    caption.setDevicePixelRatio(ratio);
    painter->drawImage(area.topLeft(), caption);

    const QRect iconArea = subControlRect(CC_TitleBar, title, SC_TitleBarSysMenu, widget);
    if (!title->icon.isNull() && iconArea.isValid()) title->icon.paint(painter, iconArea);
    QRect label = subControlRect(CC_TitleBar, title, SC_TitleBarLabel, widget);
    if (iconArea.isValid()) label.setLeft(qMax(label.left(), iconArea.right() + 4));
    painter->save();
    painter->setPen(title->palette.color(active ? QPalette::Active : QPalette::Inactive,
                                         QPalette::HighlightedText));
    painter->drawText(
        label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter->fontMetrics().elidedText(title->text, Qt::ElideRight, label.width()));
    painter->restore();
    // The base style would fill its own background over the bands, so the buttons are drawn
    // here from the style's standard icons.
    DrawButton(SC_TitleBarMinButton, SP_TitleBarMinButton, title, painter, widget);
    DrawButton(SC_TitleBarMaxButton, SP_TitleBarMaxButton, title, painter, widget);
    DrawButton(SC_TitleBarNormalButton, SP_TitleBarNormalButton, title, painter, widget);
    DrawButton(SC_TitleBarCloseButton, SP_TitleBarCloseButton, title, painter, widget);
}

void CaptionStyle::DrawButton(SubControl button, StandardPixmap icon,
                              const QStyleOptionComplex* option, QPainter* painter,
                              const QWidget* widget) const {
    if (!(option->subControls & button)) return;
    const QRect area = subControlRect(CC_TitleBar, option, button, widget);
    if (area.isValid()) standardIcon(icon, option, widget).paint(painter, area);
}
