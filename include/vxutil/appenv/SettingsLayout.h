// Where CAppEnv keeps the client's settings and what it gives when a value is absent, for tools
// that show the settings (vxenv) without knowing how the stores are laid out.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {

// The users key of the user registry and its root.
inline constexpr const char* kUsersKeyPath = "Korvel\\VXUser\\Users";
inline constexpr const char* kUsersKeyRoot = "SOFTWARE";

// The registry slot (1, 2, ...) that holds the user `name`; 0 when no slot does.
VXUTIL_API unsigned UserSlot(const CGNString& name);
// The user that logged in last; false (and "") when nobody is remembered or the slot has no
// name.
VXUTIL_API bool GetLastUserName(CGNString& name);
// The macro search path as the application profile holds it ("" when not set); the folders it
// gives come from CAppEnv::GetMacroPathList.
VXUTIL_API CGNString GetMacroPathSetting();

// The values of the preferences when the application profile holds none.
namespace preference_default {
inline constexpr unsigned kMenuStyle = 1;
inline constexpr unsigned kItemsThreshold = 200;
inline constexpr unsigned kLevelThreshold = 4;
inline constexpr int kOpenListAtStart = 0;
inline constexpr int kStepSize = 10;
inline constexpr int kMaxInQuery = 1000;
inline constexpr int kLimitItemsReturn = 1;
inline constexpr int kCloseAfterSubmit = 0;
inline constexpr unsigned long kRpcTimeout = 0;  // all three time-outs
inline constexpr int kShowLangDllNotFound = 1;
}  // namespace preference_default

}  // namespace vx
