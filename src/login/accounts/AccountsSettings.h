// The accounts dialog's two settings in the client tool's profile, section "Desktop": the server
// column widths and the advanced server options switch. Without a current application there is
// no profile: reads give the defaults and writes do nothing.
#pragma once

#include <array>

#include "vxutil/gnrt/CGNString.h"

namespace vx::accounts {

inline constexpr const char* kDefaultServerColumnWidths = "150;50;50;75;75;80";
using ServerColumnWidths = std::array<int, 6>;

// "Desktop"/"AccountsColumn" as stored, else the default.
CGNString ReadServerColumnWidthsText();
// The stored widths; entries the text does not have keep their defaults.
ServerColumnWidths ReadServerColumnWidths();
void WriteServerColumnWidths(const CGNString& widths);

// "Desktop"/"AdvancedServerOptions", else `def`.
bool ReadAdvancedServerOptions(bool def);
void WriteAdvancedServerOptions(bool on);

}  // namespace vx::accounts
