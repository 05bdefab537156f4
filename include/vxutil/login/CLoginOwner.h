// The client tool's side of a login: the login dialog and the accounts dialog call back into an
// object of a class the client tool derives from CLoginOwner. The dialogs never talk to a server
// themselves; Login does.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/runtime/WindowHandle.h"

// The server API's per-session control record; only client tools that talk to a server know it.
struct VXControlStruct;

class VXUTIL_API CLoginOwner {
public:
    virtual ~CLoginOwner();

    // Called once when the login or accounts dialog `dialog` has been set up; the result becomes
    // the result of the dialog's own set-up. By default, through the installed
    // vx::WindowService, the caption gets the client tool's name (RApplication) as
    // caption + " - " + name, or the name alone when the caption was empty, and the dialog is
    // centred on its parent; returns 1.
    virtual int OnInitDialog(vx::WindowHandle dialog);
    // Logs `user` in with `password`; exactly 1 means success and lets the login dialog close.
    // Any other value keeps it open: the owner shows its own messages.
    virtual int Login(CGNString& user, CGNString& password) = 0;
    // Fills in the servers the client tool is logged in to now; by default leaves `servers` as
    // it is and returns 0.
    virtual int GetLoggedInServerArray(CGNStringList& servers);
    // The control record the client tool holds for `server`; null by default.
    virtual VXControlStruct* GetControlStruct(const CGNString& server);
    // Whether the accounts dialog shows the port columns when it first opens; 1 by default.
    virtual int ShowVXPortsByDefault();
};
