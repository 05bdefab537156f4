// The two kinds of message the accounts dialog shows: errors, and the questions before a
// deletion.
#pragma once

#include "vxutil/gnrt/CGNString.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx::accounts {

inline void ShowError(WindowHandle parent, const CGNString& text) {
    RUserPrompt::Current().Show(parent, text.c_str(), nullptr, kMbOk | kMbIconStop);
}

// Yes/No with No as the default button; true for Yes.
inline bool AskRemove(WindowHandle parent, const CGNString& question) {
    return RUserPrompt::Current().Show(parent, question.c_str(), nullptr,
                                       kMbYesNo | kMbIconQuestion | kMbDefButton2) == kIdYes;
}

}  // namespace vx::accounts
