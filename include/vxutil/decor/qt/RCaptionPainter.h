// Paints window captions with a colour gradient instead of the flat caption colour.
//
// Only captions that Qt draws itself can be painted: the title bars of MDI child windows
// (QMdiSubWindow). The captions of top-level windows belong to the window manager on Linux,
// which keeps its own menus, shading and accessibility; installing on such a window succeeds
// and leaves the caption as the desktop draws it.
#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "vxutil/decor/CaptionGradient.h"
#include "vxutil/widgets_export.h"

class CaptionStyle;

class VXUTIL_WIDGETS_API RCaptionPainter {
public:
    // Active captions ramp from a pale tint to the active caption colour; inactive ones fade
    // from black to the inactive caption colour.
    enum Gradient : unsigned { kColorToColor = 0, kBlackToColor = 1 };

    RCaptionPainter();
    RCaptionPainter(const RCaptionPainter&) = delete;
    RCaptionPainter& operator=(const RCaptionPainter&) = delete;
    ~RCaptionPainter();

    // Paints the caption of `window` from now on with `activeGradient` for the active window;
    // a painter serves one window at a time. 1 on success, 0 without a window.
    int Install(QWidget* window, unsigned activeGradient = kColorToColor);
    // Gives the caption back to its default painting.
    void UnInstall();
    // Switches the gradient on or off (off after construction); a change repaints at once.
    void SetGradient(int on);
    int GetGradient() const { return m_state.gradientOn ? 1 : 0; }
    // Repaints the caption.
    void Invalidate();

    // The bands of a caption `cx` by `cy` device pixels, active or not, in `palette`'s colours.
    std::vector<vx::Band> CaptionBands(const QPalette& palette, bool active, int cx, int cy) const;
    // `bands` painted into an image of `cx` by `cy` pixels with a plain copy, as they overlap.
    static QImage PaintBands(const std::vector<vx::Band>& bands, int cx, int cy);

private:
    QPointer<QWidget> m_pWindow;
    CaptionStyle* m_pStyle = nullptr;  // owned by the window once installed
    unsigned m_nActiveGradient = kColorToColor;
    vx::CaptionState m_state;
};
