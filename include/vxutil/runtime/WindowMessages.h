// Identifiers of the window messages that the library's pumps and edit logic name. They keep
// their Win32 values on every platform: the message queues of other toolkits translate to and
// from them.
#pragma once

namespace vx {

inline constexpr unsigned kWmMove = 0x0003;
inline constexpr unsigned kWmSize = 0x0005;
inline constexpr unsigned kWmPaint = 0x000F;
inline constexpr unsigned kWmEraseBkgnd = 0x0014;
inline constexpr unsigned kWmSetCursor = 0x0020;
inline constexpr unsigned kWmNcCalcSize = 0x0083;
inline constexpr unsigned kWmNcHitTest = 0x0084;
inline constexpr unsigned kWmNcPaint = 0x0085;
inline constexpr unsigned kWmNcMouseMove = 0x00A0;
inline constexpr unsigned kWmKeyDown = 0x0100;
inline constexpr unsigned kWmChar = 0x0102;
inline constexpr unsigned kWmTimer = 0x0113;
inline constexpr unsigned kWmMouseMove = 0x0200;
inline constexpr unsigned kWmLButtonDown = 0x0201;
inline constexpr unsigned kWmUser = 0x0400;

}  // namespace vx
