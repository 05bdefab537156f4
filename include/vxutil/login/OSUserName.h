// The logon name of the operating-system account running the client.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

// POSIX: the name in the password database entry of the real user id, else $USER; Windows:
// GetUserNameA. At most 255 bytes; empty when it cannot be read.
VXUTIL_API CGNString ClientGetOSUserName();
