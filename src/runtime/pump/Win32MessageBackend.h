// The Win32 message queue and timer source: the thread's own queue, and timers of a hidden
// pop-up window that deliver WM_TIMER to the station. Windows only.
#pragma once

#include "runtime/pump/MessageBackend.h"

namespace vx {

class Win32MessageQueue : public MessageQueue {
public:
    // PeekMessageA with the identifier as both filter bounds, then TranslateMessage and
    // DispatchMessageA.
    bool DispatchFirst(unsigned message) override;
};

class Win32TimerSource : public TimerSource {
public:
    ~Win32TimerSource() override;

    // Registers the station's window class (class style 0x40) and creates a WS_POPUP window
    // of no size, owned by the desktop window, that is never shown.
    bool Create(RMessageStation& station) override;
    bool Exists() const override { return m_window != nullptr; }
    bool Set(unsigned id, unsigned milliseconds) override;
    void Kill(unsigned id) override;
    void Destroy() override;

private:
    void* m_window = nullptr;  // HWND
};

}  // namespace vx
