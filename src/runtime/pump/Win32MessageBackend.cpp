#include "runtime/pump/Win32MessageBackend.h"

#include <windows.h>

#include "vxutil/runtime/RMessageStation.h"

namespace vx {
namespace {

constexpr char kClassName[] = "VXMessageStation";
constexpr UINT kClassStyle = 0x40;  // CS_CLASSDC, as the station's class always had

HINSTANCE ThisModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        kClassName, &module);
    return module;
}

LRESULT CALLBACK StationProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* station = reinterpret_cast<RMessageStation*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (station != nullptr) {
        if (message == WM_TIMER) {
            station->OnTimer(static_cast<unsigned>(wParam));
            return 0;
        }
        if (message == WM_DESTROY) {
            station->OnDestroy();
            ::SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        }
    }
    return ::DefWindowProcA(window, message, wParam, lParam);
}

bool RegisterStationClass() {
    WNDCLASSA windowClass{};
    windowClass.style = kClassStyle;
    windowClass.lpfnWndProc = StationProc;
    windowClass.hInstance = ThisModule();
    windowClass.lpszClassName = kClassName;
    // Every station of the process shares the class.
    return ::RegisterClassA(&windowClass) != 0 || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

}  // namespace

bool Win32MessageQueue::DispatchFirst(unsigned message) {
    MSG msg;
    if (!::PeekMessageA(&msg, nullptr, message, message, PM_REMOVE)) return false;
    ::TranslateMessage(&msg);
    ::DispatchMessageA(&msg);
    return true;
}

Win32TimerSource::~Win32TimerSource() {
    Destroy();
}

bool Win32TimerSource::Create(RMessageStation& station) {
    if (Exists()) return true;
    if (!RegisterStationClass()) return false;
    HWND window = ::CreateWindowExA(0, kClassName, "", WS_POPUP, 0, 0, 0, 0, ::GetDesktopWindow(),
                                    nullptr, ThisModule(), nullptr);
    if (window == nullptr) return false;
    ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&station));
    m_window = window;
    return true;
}

bool Win32TimerSource::Set(unsigned id, unsigned milliseconds) {
    return Exists() && ::SetTimer(static_cast<HWND>(m_window), id, milliseconds, nullptr) != 0;
}

void Win32TimerSource::Kill(unsigned id) {
    if (Exists()) ::KillTimer(static_cast<HWND>(m_window), id);
}

void Win32TimerSource::Destroy() {
    if (!Exists()) return;
    ::DestroyWindow(static_cast<HWND>(m_window));  // WM_DESTROY reaches the station first
    m_window = nullptr;
}

}  // namespace vx
