// The folder that holds the client's settings files on POSIX: $VX_CONFIG_HOME when set and not
// empty, else $XDG_CONFIG_HOME/korvel (when that is an absolute path), else
// $HOME/.config/korvel. It is created, for its owner only, on first write.
// On Windows the stores live in the registry and the Windows profile; there the folder is
// $VX_CONFIG_HOME when set (tools and tests run with an explicit home), else the Windows
// folder, where the system itself looks for profile files named without a folder.
#pragma once

#include <string>

#include "vxutil/export.h"

namespace vx {

// The settings home, without a trailing separator; read from the environment at each call.
VXUTIL_API std::string SettingsHome();

// Creates the settings home and its missing parents (owner-only permissions for new folders);
// true when it exists afterwards.
VXUTIL_API bool EnsureSettingsHome();

// Resolves a profile or store file name: a name without a path separator names a file in the
// settings home (as Windows looks for such profile files in its own folder); any other path is
// used as given.
VXUTIL_API std::string ResolveSettingsFile(const std::string& name);

}  // namespace vx
