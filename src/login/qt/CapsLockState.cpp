#include "login/qt/CapsLockState.h"

#include <QGuiApplication>

#if defined(Q_OS_WIN)

#include <windows.h>

namespace vx {

std::optional<bool> CapsLockState() {
    return (GetKeyState(VK_CAPITAL) & 1) != 0;
}

}  // namespace vx

#elif QT_CONFIG(xcb)

#include <dlfcn.h>

// After Qt's headers: Xlib's macros (KeyPress, FocusIn, Bool ...) clash with Qt's names.
#include <X11/XKBlib.h>

namespace vx {

std::optional<bool> CapsLockState() {
    const auto* x11 = qGuiApp != nullptr
                          ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>()
                          : nullptr;
    if (x11 == nullptr || x11->display() == nullptr) return std::nullopt;
    // libX11 is in the process whenever Qt runs on X11 (its platform plugin uses it), so the
    // function is looked up there instead of linking the library for this one call.
    static const auto getState =
        reinterpret_cast<decltype(&XkbGetState)>(dlsym(RTLD_DEFAULT, "XkbGetState"));
    XkbStateRec state{};
    if (getState == nullptr || getState(x11->display(), XkbUseCoreKbd, &state) != Success)
        return std::nullopt;
    // Caps Lock is the locked Lock modifier, whichever indicator a keymap shows it with.
    return (state.locked_mods & LockMask) != 0;
}

}  // namespace vx

#else

namespace vx {

std::optional<bool> CapsLockState() {
    return std::nullopt;
}

}  // namespace vx

#endif
