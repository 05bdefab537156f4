// Where the settings stores live, for vxenv's status report.
#pragma once

#include <string>

namespace vxenv {

// The registry file on POSIX; the users key on Windows.
std::string SystemConfigLocation();
// True when the file (or, for a location in HKEY_CURRENT_USER, the registry key) exists.
bool StoreExists(const std::string& location);

}  // namespace vxenv
