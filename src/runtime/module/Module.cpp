#include "runtime/module/Module.h"

#include <memory>

#include "gnrt/LocalizedStrings.h"
#include "runtime/module/ResourceName.h"
#include "runtime/pump/PlatformMessageBackend.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/RModule.h"
#include "vxutil/runtime/RTrace.h"

namespace vx {
namespace {

// The period of the module-wide station's timers, in milliseconds.
constexpr unsigned kStationFrequency = 250;

struct ModuleState {
    void* handle = nullptr;
    std::unique_ptr<LocaleResources> resources;
    // The first entry after load clears the previous run: every run of a client tool starts a
    // fresh log.
    RTrace trace{1, kTraceAllLevels, "Debug", "Trace", 1};
    MessageBackendPair backend = CreatePlatformMessageBackend();
    RMessageStation station{kStationFrequency, *backend.queue, *backend.timers};
};

// A plain pointer: the state must not be torn down by static destruction behind the unload
// hook's back.
ModuleState* g_module = nullptr;

bool LookupLocalized(unsigned id, std::string& text) {
    return g_module != nullptr && g_module->resources != nullptr &&
           g_module->resources->Lookup(id, text);
}

}  // namespace

int LoadModule(const std::string& modulePath, void* moduleHandle,
               const std::vector<std::string>& languages) {
    if (g_module != nullptr) return 1;
    g_module = new ModuleState;
    g_module->handle = moduleHandle;
    g_module->resources =
        OSAttachLocaleResDLL(modulePath, LocalizedResourceName(modulePath), languages);
    RTrace::SetModule(&g_module->trace);
    RMessageStation::SetModule(&g_module->station);
    // Without a localized library the built-in texts serve; nothing is shown here.
    SetLocalizedStringLookup(g_module->resources != nullptr ? LookupLocalized : nullptr);
    return 1;
}

void UnloadModule() {
    if (g_module == nullptr) return;
    SetLocalizedStringLookup(nullptr);
    // Only the module's own objects are withdrawn; a host may have installed others.
    if (RTrace::Module() == &g_module->trace) RTrace::SetModule(nullptr);
    delete g_module;  // the station first: it stops its pumps while its timers exist
    g_module = nullptr;
}

bool IsModuleLoaded() {
    return g_module != nullptr;
}

const LocaleResources* ModuleLocaleResources() {
    return g_module != nullptr ? g_module->resources.get() : nullptr;
}

}  // namespace vx

void* RGetResourceHandle() {
    const vx::ModuleState* module = vx::g_module;
    if (module == nullptr) return nullptr;
    return module->resources != nullptr ? module->resources->Handle() : module->handle;
}

const char* RGetResourceLanguage() {
    const vx::ModuleState* module = vx::g_module;
    if (module == nullptr || module->resources == nullptr) return "";
    return module->resources->Language().c_str();
}
