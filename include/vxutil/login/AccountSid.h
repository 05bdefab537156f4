// Who runs the client at the operating-system level: the security identifier of the current
// user. On Windows it is the process token's user; on POSIX the identifier S-1-22-1-<uid>, the
// usual form for a Unix user, held in the same binary layout.
#pragma once

#include "vxutil/export.h"

// Stores in `*sid` a pointer to the current user's identifier and returns 1; 0 on failure
// (a null `sid` included). The identifier stays valid until the thread's next call.
VXUTIL_API int ClientGetBinarySid(void** sid);

// Writes the identifier's text ("S-1-5-21-...") and sets `*size` to its length without the
// terminating zero; returns 1. A buffer of fewer than 28 + 12 bytes per sub-authority gives 0,
// the needed size in `*size` and the insufficient-buffer error (122, ERROR_INSUFFICIENT_BUFFER,
// as the thread's last error on Windows; ERANGE in errno on POSIX). Null arguments, or an
// identifier that cannot be read or is not valid, give 0.
VXUTIL_API int ClientGetTextSid(char* buffer, unsigned long* size);
