// The style an MDI child gets while a caption painter is installed on it: the title bar's
// background is the painter's gradient, then icon, text and buttons as the base style has them.
#pragma once

#include <QProxyStyle>

class RCaptionPainter;

class CaptionStyle final : public QProxyStyle {
public:
    // Builds on a style of `baseKey`'s kind; the proxy owns its base, so it must not be given
    // the application's style object itself.
    CaptionStyle(const RCaptionPainter& painter, const QString& baseKey);

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

private:
    void DrawButton(SubControl button, StandardPixmap icon, const QStyleOptionComplex* option,
                    QPainter* painter, const QWidget* widget) const;

    const RCaptionPainter& m_painter;
};
