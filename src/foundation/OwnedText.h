// The zero-terminated texts that the status and message wrappers own next to their records.
#pragma once

namespace vx::owned {

// A new copy of `text` on the free store (release with delete[]); null for a null text or when
// the copy cannot be allocated.
char* Copy(const char* text);

// Replaces the text owned through `slot` by a copy of `text`. False when a text was given but
// could not be copied (the slot is then null).
bool Replace(char*& slot, const char* text);

}  // namespace vx::owned
