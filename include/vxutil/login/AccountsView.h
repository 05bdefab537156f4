// The accounts dialog as its presenter sees it, apart from the two lists (ListPort.h): the pane
// titles, the advanced-options check box, the toggle images and the window that prompts belong
// to.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/runtime/WindowHandle.h"

namespace vx {

class VXUTIL_API AccountsView {
public:
    virtual ~AccountsView();

    // The titles of the bars over the user list and the server list.
    virtual void SetUsersTitle(const CGNString& title) = 0;
    virtual void SetServersTitle(const CGNString& title) = 0;

    // The advanced server options check box, which shows the port columns.
    virtual bool IsAdvancedOptionsChecked() const = 0;
    virtual void SetAdvancedOptionsChecked(bool checked) = 0;

    // Repaints the toggle images and the row marks of the server list from the presenter's
    // GetServerImage and IsServerRowLoggedIn.
    virtual void UpdateColumnImages() = 0;

    // The dialog window, parent of every message the presenter shows.
    virtual WindowHandle GetWindowHandle() const = 0;
};

}  // namespace vx
