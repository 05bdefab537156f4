// Module start-up and shut-down. The shared library's load and unload hooks call these; the
// test suites, which link the library statically, call them directly.
#pragma once

#include <string>
#include <vector>

#include "runtime/module/LocaleResources.h"

namespace vx {

// Loads the module: creates the module-wide trace and message station, and attaches the
// localized resources of `modulePath` for the first of `languages` that has them, so that
// OSLoadString gives their texts. Returns 1: nothing here can refuse the load (a host
// framework that registers the library does that itself). Loading a loaded module changes
// nothing.
int LoadModule(const std::string& modulePath, void* moduleHandle,
               const std::vector<std::string>& languages);

// Detaches and frees the localized resources, destroys the station (stopping every pump still
// started) and the trace. Does nothing when the module is not loaded.
void UnloadModule();

bool IsModuleLoaded();

// The attached localized resources; null when the built-in ones serve.
const LocaleResources* ModuleLocaleResources();

}  // namespace vx
