#include "vxutil/runtime/RLockWindowUpdate.h"

#include "runtime/lock/PlatformWindowLocker.h"

namespace vx {
WindowUpdateLocker::~WindowUpdateLocker() = default;
}  // namespace vx

namespace {

vx::WindowUpdateLocker* g_installedLocker = nullptr;

vx::WindowUpdateLocker* CurrentLocker() {
    return g_installedLocker != nullptr ? g_installedLocker : vx::PlatformWindowLocker();
}

}  // namespace

vx::WindowHandle RLockWindowUpdate::m_hWndLock = nullptr;
int RLockWindowUpdate::m_nCount = 0;

RLockWindowUpdate::RLockWindowUpdate(vx::WindowHandle window) : m_hWnd(window) {
    ++m_nCount;
    if (m_hWndLock != nullptr || m_hWnd == nullptr) return;
    vx::WindowUpdateLocker* locker = CurrentLocker();
    m_hWndLock = locker != nullptr && locker->Lock(m_hWnd) ? m_hWnd : nullptr;
}

RLockWindowUpdate::~RLockWindowUpdate() {
    --m_nCount;
    if (m_hWndLock == nullptr || m_nCount > 0) return;
    if (vx::WindowUpdateLocker* locker = CurrentLocker()) locker->Unlock();
    m_hWndLock = nullptr;
}

int RLockWindowUpdate::IsLocked() {
    return m_hWndLock != nullptr ? 1 : 0;
}

vx::WindowUpdateLocker* RLockWindowUpdate::SetLocker(vx::WindowUpdateLocker* locker) {
    vx::WindowUpdateLocker* previous = g_installedLocker;
    g_installedLocker = locker;
    return previous;
}
