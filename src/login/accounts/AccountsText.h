// Texts of the accounts dialog, in the user's language.
#pragma once

#include "gnrt/StringTable.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/gnrt/OSLoadString.h"

namespace vx::accounts {

// Headers of the server list's columns; the port columns follow the fixed ones.
inline constexpr unsigned kServerHeaders[] = {
    kStrAccountsServerColumn,       kStrAccountsWorkflowColumn, kStrAccountsNotifierColumn,
    kStrAccountsWorkflowPortColumn, kStrAccountsRpcColumn,      kStrAccountsNotifierPortColumn,
};
inline constexpr int kFixedServerColumns = 3;

inline CGNString Text(unsigned id) {
    CGNString text;
    OSLoadString(id, text);
    return text;
}

}  // namespace vx::accounts
