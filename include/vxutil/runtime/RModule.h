// The library as a loaded module.
#pragma once

#include "vxutil/export.h"

// The handle of the library's resources: the attached localized resource library (on Windows
// its HMODULE; on POSIX its message catalogue) when there is one, else the module's own handle.
// Null while the module is not loaded.
VXUTIL_API void* RGetResourceHandle();

// The language of the attached localized resources ("de", "de_DE"), so that a toolkit's own
// texts can follow the library's choice; empty while the built-in English texts serve.
VXUTIL_API const char* RGetResourceLanguage();
