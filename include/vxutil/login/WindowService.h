// The few window operations the core's dialog logic needs and cannot do without a toolkit:
// reading and setting a window's caption and centring it on its parent. The widgets library
// installs its own service for its windows; until one is installed every operation does nothing
// (the caption reads as empty).
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/runtime/WindowHandle.h"

namespace vx {

class VXUTIL_API WindowService {
public:
    WindowService() = default;
    WindowService(const WindowService&) = delete;
    WindowService& operator=(const WindowService&) = delete;
    virtual ~WindowService();

    // Captions are in the client's multi-byte form, as every text at the core's interfaces.
    virtual CGNString GetCaption(WindowHandle window) = 0;
    virtual void SetCaption(WindowHandle window, const CGNString& caption) = 0;
    // Centres `window` on its parent, or on the screen when it has none.
    virtual void CentreOnParent(WindowHandle window) = 0;

    // The installed service, else one that does nothing.
    static WindowService& Current();
    // Installs `service` (null: the do-nothing one again; the caller keeps ownership); returns
    // the previously installed one.
    static WindowService* SetCurrent(WindowService* service);
};

}  // namespace vx
