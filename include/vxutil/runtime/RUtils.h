// Folder and number helpers that the dialogs and list editors share, exported for the client
// tools as well. Paths use the native separator ('\' on Windows, where '/' is accepted too; '/'
// on POSIX). Every function writes its ":Enter" and ":Exit" trace entries under "RUtils".
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/runtime/WindowHandle.h"

// 1 when `path` names something that exists: a file counts as well as a folder, and callers
// rely on nothing more than existence. An empty path gives 0.
VXUTIL_API int RIsValidDirectory(const CGNString& path);

// 1 when every path of the `separator`-separated list exists; blank entries are skipped. Stops
// at the first missing path and puts it in `firstInvalid` (emptied otherwise).
VXUTIL_API int RValidatePaths(CGNString paths, CGNString& firstInvalid, char separator);

// 1 when the folder exists, or did not and was created because the user answered Yes to the
// current RUserPrompt. A folder that cannot be created is reported to the user, and gives 0.
VXUTIL_API int RValidatePathWithCreate(const CGNString& path, vx::WindowHandle parent);

// Creates every missing level of `path`, from the root down; 1 when the folder exists
// afterwards. `security` is the SECURITY_ATTRIBUTES given to CreateDirectoryA on Windows (may
// be null); POSIX ignores it, and new folders get the process's default permissions.
VXUTIL_API int RCreateDirectory(const CGNString& path, void* security = nullptr);

// Copies the files of `source` into `target` (created as needed), and its folders as well when
// `recurse` is non-zero. Names beginning with "." are skipped, hidden ones included. A file
// that exists in the target already is kept, not overwritten, and counts as not copied; a
// failed entry does not stop the copy. On POSIX a symbolic link is copied as a link, and only
// regular files and links are copied. 1 when the target was made and every entry was copied.
VXUTIL_API int RCopyDirectory(const CGNString& source, const CGNString& target, int recurse);

// `path` with every component spelled as stored on disk (found by listing its parent folder),
// joined with native separators. A path that does not exist comes back as given.
VXUTIL_API CGNString RGetDiskCaseOfDirectory(const CGNString& path);

// The number a user typed: "0x" or "0X" and hexadecimal digits up to the first other
// character, else a decimal number as atoi reads it. Blanks around it are ignored; an empty
// text gives 0. Hexadecimal values wrap at 32 bits.
VXUTIL_API int RHexToInt(const CGNString& text);
