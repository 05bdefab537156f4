#include <windows.h>

#include "runtime/lock/PlatformWindowLocker.h"

namespace vx {
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

}  // namespace vx
