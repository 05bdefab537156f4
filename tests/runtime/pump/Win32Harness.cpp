#ifdef _WIN32

#include <windows.h>

#include "pump/PumpHarness.h"
#include "runtime/pump/Win32MessageBackend.h"

namespace vx::test {
namespace {

constexpr char kClassName[] = "VXPumpTestWindow";

LRESULT CALLBACK RecordingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* dispatched = reinterpret_cast<Dispatched*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (dispatched != nullptr && message >= WM_MOUSEMOVE && message != WM_TIMER) {
        dispatched->emplace_back(message, static_cast<unsigned>(wParam));
        return 0;
    }
    return ::DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

struct Win32Harness::Backend {
    Win32MessageQueue queue;
    Win32TimerSource timers;
};

Win32Harness::Win32Harness() : m_backend(std::make_unique<Backend>()) {
    // A short period: the tests wait for real ticks.
    m_station = std::make_unique<RMessageStation>(10, m_backend->queue, m_backend->timers);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = RecordingProc;
    windowClass.hInstance = ::GetModuleHandleA(nullptr);
    windowClass.lpszClassName = kClassName;
    ::RegisterClassA(&windowClass);
    HWND window = ::CreateWindowExA(0, kClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                    windowClass.hInstance, nullptr);
    ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&dispatched));
    m_window = window;
}

Win32Harness::~Win32Harness() {
    m_station.reset();
    ::DestroyWindow(static_cast<HWND>(m_window));
    // Nothing posted by a test outlives it in the thread's queue.
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
    }
}

void Win32Harness::Post(unsigned message, unsigned tag) {
    ::PostMessageA(static_cast<HWND>(m_window), message, tag, 0);
}

bool Win32Harness::Tick() {
    const ULONGLONG deadline = ::GetTickCount64() + 5000;
    MSG msg;
    while (::GetTickCount64() < deadline) {
        if (::PeekMessageA(&msg, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
            ::DispatchMessageA(&msg);
            return true;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_TIMER);
    }
    return false;
}

}  // namespace vx::test

#endif
