#include "vxutil/login/CLoginOwner.h"

#include "login/dialog/LoginDialogTrace.h"
#include "vxutil/login/WindowService.h"
#include "vxutil/platform/RApplication.h"

CLoginOwner::~CLoginOwner() = default;

int CLoginOwner::OnInitDialog(vx::WindowHandle dialog) {
    vx::login::LoginDialogTrace trace("CLoginOwner::OnInitDialog");
    vx::WindowService& windows = vx::WindowService::Current();
    const RApplication* app = RApplication::Current();
    const CGNString title = app != nullptr ? app->GetAppName() : std::string();
    if (!title.IsEmpty()) {
        const CGNString caption = windows.GetCaption(dialog);
        windows.SetCaption(dialog, caption.IsEmpty() ? title : caption + " - " + title);
    }
    windows.CentreOnParent(dialog);
    return 1;
}

int CLoginOwner::GetLoggedInServerArray(CGNStringList&) {
    return 0;
}

VXControlStruct* CLoginOwner::GetControlStruct(const CGNString&) {
    return nullptr;
}

int CLoginOwner::ShowVXPortsByDefault() {
    return 1;
}
