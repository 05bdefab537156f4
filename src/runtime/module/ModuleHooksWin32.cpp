// The DLL's entry point. Nothing refers to this file, so it is part of the DLL only: programs
// that link the static archive load the module themselves.
#include <windows.h>

#include <string>

#include "runtime/module/Module.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        char path[MAX_PATH];
        const DWORD length = ::GetModuleFileNameA(instance, path, MAX_PATH);
        return vx::LoadModule(std::string(path, length), instance, vx::PreferredLanguages());
    }
    if (reason == DLL_PROCESS_DETACH) vx::UnloadModule();
    return TRUE;  // thread attach and detach need nothing
}
