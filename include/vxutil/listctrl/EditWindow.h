// What the edit logic needs of the edit window it serves. A toolkit adapter implements it over
// its line edit; tests over a plain string.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/listctrl/EditMessage.h"
#include "vxutil/runtime/WindowHandle.h"

namespace vx {

class VXUTIL_API EditWindow {
public:
    EditWindow() = default;
    EditWindow(const EditWindow&) = delete;
    EditWindow& operator=(const EditWindow&) = delete;
    virtual ~EditWindow();

    // False once the window is gone; the logic then sees an empty text and no selection.
    virtual bool Exists() const = 0;
    virtual CGNString GetText() const = 0;
    // The selection (or caret, when both are equal) as offsets into GetText().
    virtual void GetSel(int& start, int& end) const = 0;
    // True when `point` lies inside the window's client area.
    virtual bool ClientContains(ClientPoint point) const = 0;
    // Queues a key-down of `virtualKey` that comes back through the logic's
    // PreTranslateMessage later. It is meant for the logic only: delivering it to the window as
    // well would, in most toolkits, end the cell edit.
    virtual void PostKeyDown(unsigned virtualKey) = 0;
    // The warning sound of a refused keystroke (the exclamation sound on Windows).
    virtual void Beep() = 0;
    // The window the logic's messages are shown over.
    virtual WindowHandle PromptParent() const = 0;
};

}  // namespace vx
