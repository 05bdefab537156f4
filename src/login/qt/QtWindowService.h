// The window service of Qt widgets: the handles the core passes are QWidget pointers.
#pragma once

#include "vxutil/login/WindowService.h"

namespace vx {

class QtWindowService : public WindowService {
public:
    CGNString GetCaption(WindowHandle window) override;
    void SetCaption(WindowHandle window, const CGNString& caption) override;
    // Centres the window on its parent's window, or on its screen's free area when it has no
    // parent; either way it is kept inside that screen's free area.
    void CentreOnParent(WindowHandle window) override;
};

}  // namespace vx
