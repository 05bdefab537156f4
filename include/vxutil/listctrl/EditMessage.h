// The keyboard and mouse messages an edit logic sees before its edit window does, in Win32
// terms, and the logic's verdict on one of them.
#pragma once

#include "vxutil/runtime/WindowMessages.h"

namespace vx {

// A point in the edit window's client coordinates.
struct ClientPoint {
    int x = 0;
    int y = 0;
};

struct EditMessage {
    // kWmKeyDown, kWmChar, kWmLButtonDown; any other identifier passes the logic untouched.
    unsigned message = 0;
    // The virtual-key code of a key-down, the character code of a character message.
    unsigned code = 0;
    // Where a click happened; meaningless for other messages.
    ClientPoint point;

    static EditMessage KeyDown(unsigned virtualKey) { return {kWmKeyDown, virtualKey, {}}; }
    static EditMessage Char(unsigned character) { return {kWmChar, character, {}}; }
    static EditMessage LButtonDown(ClientPoint at) { return {kWmLButtonDown, 0, at}; }
};

struct EditFilterResult {
    // The message must not reach the edit window: the keystroke was refused (and beeped).
    bool swallowed = false;
    // For an accepted character message that the logic rewrote (an "X" after a leading "0"
    // becomes "x"): the character to insert instead of the typed one; -1 otherwise.
    int replacementChar = -1;
};

}  // namespace vx
