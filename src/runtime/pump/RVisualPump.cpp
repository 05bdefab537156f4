#include "vxutil/runtime/RVisualPump.h"

#include "vxutil/runtime/WindowMessages.h"

RVisualPump::RVisualPump(int limit, int start)
    : RMessagePump(
          {vx::kWmPaint, vx::kWmEraseBkgnd, vx::kWmNcPaint, vx::kWmSetCursor, vx::kWmNcHitTest,
           vx::kWmNcMouseMove, vx::kWmMouseMove, vx::kWmNcCalcSize, vx::kWmSize, vx::kWmMove},
          limit, start) {}
