// The window type at the library's toolkit-free interfaces.
#pragma once

namespace vx {

// An HWND on Windows; the widgets library passes its QWidget pointers. Null means none.
using WindowHandle = void*;

}  // namespace vx
