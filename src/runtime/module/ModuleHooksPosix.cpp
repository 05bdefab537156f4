// The shared object's load and unload hooks. Nothing refers to this file, so it is part of the
// shared library only: programs that link the static archive load the module themselves.
#include <dlfcn.h>

#include <climits>
#include <cstdlib>
#include <string>

#include "runtime/module/Module.h"
#include "runtime/module/ResourceName.h"

namespace {

const char kAnchor = 0;  // an object of this module, to ask the loader about

// The shared object as its soname in the folder of its real file: the same however it was
// loaded (through the soname or the development link), and the same across the patch releases
// of one major version, so that the localized catalogue keeps its name.
std::string ModulePath(void*& base) {
    Dl_info info{};
    if (::dladdr(&kAnchor, &info) == 0 || info.dli_fname == nullptr) return {};
    base = info.dli_fbase;
    char resolved[PATH_MAX];
    const char* file = ::realpath(info.dli_fname, resolved) != nullptr ? resolved : info.dli_fname;
    return std::string(vx::ModuleFolder(file)) + VXUTIL_MODULE_NAME;
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
