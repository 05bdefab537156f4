// A nesting scope that freezes the drawing of one window while several changes are made to it.
//
// The platform allows one locked window at a time, so only the outermost live scope locks;
// inner scopes, for that window or another, only count. The window is unlocked when the last
// scope ends.
#pragma once

#include "vxutil/export.h"
#include "vxutil/runtime/WindowHandle.h"

namespace vx {

// Freezes and thaws a window's drawing: LockWindowUpdate on Windows; the widgets library
// installs one for its widgets. Without one (POSIX without a toolkit) no window is locked.
class VXUTIL_API WindowUpdateLocker {
public:
    virtual ~WindowUpdateLocker();
    virtual bool Lock(WindowHandle window) = 0;
    virtual void Unlock() = 0;
};

}  // namespace vx

class VXUTIL_API RLockWindowUpdate {
public:
    explicit RLockWindowUpdate(vx::WindowHandle window);
    RLockWindowUpdate(const RLockWindowUpdate&) = delete;
    RLockWindowUpdate& operator=(const RLockWindowUpdate&) = delete;
    ~RLockWindowUpdate();

    // Non-zero while a window is locked.
    static int IsLocked();
    // Installs the locker the scopes use (null: the platform's own); returns the previous one.
    static vx::WindowUpdateLocker* SetLocker(vx::WindowUpdateLocker* locker);

private:
    vx::WindowHandle m_hWnd;

    static vx::WindowHandle m_hWndLock;  // the window currently locked, or null
    static int m_nCount;                 // live scopes
};
