#include "runtime/lock/PlatformWindowLocker.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vx {

#ifdef _WIN32
namespace {

class Win32WindowLocker : public WindowUpdateLocker {
public:
    bool Lock(WindowHandle window) override {
        return ::LockWindowUpdate(static_cast<HWND>(window)) != FALSE;
    }
    void Unlock() override { ::LockWindowUpdate(nullptr); }
};

}  // namespace

WindowUpdateLocker* PlatformWindowLocker() {
    static Win32WindowLocker locker;
    return &locker;
}
#else
WindowUpdateLocker* PlatformWindowLocker() {
    return nullptr;
}
#endif

}  // namespace vx
