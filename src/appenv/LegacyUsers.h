// The section "VXUser" of the legacy profile, where clients before the user registry kept their
// users. Values are read into 128-byte buffers, as those clients wrote them.
#pragma once

#include "vxutil/gnrt/CGNString.h"

namespace vx::appenv {

// "USER%u"; "" when absent.
CGNString LegacyUserName(unsigned slot);
// "Vxpath%u"; "" when absent.
CGNString LegacyUserFolder(unsigned slot);
// "VXPATH0"; "" when absent.
CGNString LegacyDefaultFolder();
// "LastUserLoggedIn"; -1 when absent.
long LegacyLastUser();
// Writes "USER%u", cut to the 127 bytes older clients can read back.
bool WriteLegacyUserName(unsigned slot, const CGNString& name);

}  // namespace vx::appenv
