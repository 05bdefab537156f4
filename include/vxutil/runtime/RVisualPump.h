// The ready-made pump for painting, sizing and cursor messages, so windows repaint and follow
// the mouse while the user interface waits.
#pragma once

#include "vxutil/export.h"
#include "vxutil/runtime/RMessagePump.h"

class VXUTIL_API RVisualPump : public RMessagePump {
public:
    // WM_PAINT, WM_ERASEBKGND, WM_NCPAINT, WM_SETCURSOR, WM_NCHITTEST, WM_NCMOUSEMOVE,
    // WM_MOUSEMOVE, WM_NCCALCSIZE, WM_SIZE and WM_MOVE, in this order.
    explicit RVisualPump(int limit = -1, int start = 0);
};
