// The system information block of the about box.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

// The multi-line text: the operating system; free memory, swap space and the process's heap;
// the socket layer; the language and version of the resources in use. Labels come from the
// string table, so they follow the user's language. Lines end in CR LF on Windows, LF on POSIX.
VXUTIL_API CGNString ClientGetSystemInfo();
