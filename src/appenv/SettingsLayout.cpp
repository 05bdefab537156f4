#include "vxutil/appenv/SettingsLayout.h"

#include "appenv/UserRegistry.h"
#include "vxutil/appenv/CAppEnv.h"

namespace vx {

unsigned UserSlot(const CGNString& name) {
    unsigned slot = 0;
    appenv::ReadUsers([&](const appenv::UserSlots& users) { slot = users.Find(name).match; });
    return slot;
}

bool GetLastUserName(CGNString& name) {
    unsigned slot = 0;
    char folder[kHomeFolderBufferSize];
    // Asked through CAppEnv so that an older client's last user is taken over first.
    CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
    bool named = false;
    if (slot != static_cast<unsigned>(appenv::kNoSlot)) {
        appenv::ReadUsers([&](const appenv::UserSlots& users) {
            named = users.Name(slot, name) && !name.IsEmpty();
        });
    }
    if (!named) name = CGNString();
    return named;
}

}  // namespace vx
