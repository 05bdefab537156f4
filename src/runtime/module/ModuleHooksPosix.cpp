// The shared object's load and unload hooks. Nothing refers to this file, so it is part of the
// shared library only: programs that link the static archive load the module themselves.
#ifndef _WIN32

#include <dlfcn.h>

#include <climits>
#include <cstdlib>
#include <string>

#include "runtime/module/Module.h"

namespace {

const char kAnchor = 0;  // an object of this module, to ask the loader about

// The real file of the shared object, so that the name is the same however it was loaded
// (through the soname or the development link).
std::string ModulePath(void*& base) {
    Dl_info info{};
    if (::dladdr(&kAnchor, &info) == 0 || info.dli_fname == nullptr) return {};
    base = info.dli_fbase;
    char resolved[PATH_MAX];
    return ::realpath(info.dli_fname, resolved) != nullptr ? resolved : info.dli_fname;
}

__attribute__((constructor)) void OnLoad() {
    void* base = nullptr;
    const std::string path = ModulePath(base);
    vx::LoadModule(path, base, vx::PreferredLanguages());
}

__attribute__((destructor)) void OnUnload() {
    vx::UnloadModule();
}

}  // namespace

#endif
