// RIsValidDirectory, RValidatePaths and RValidatePathWithCreate.
#include "gnrt/StringTable.h"
#include "runtime/files/FileSystem.h"
#include "vxutil/runtime/MessageText.h"
#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/RUtils.h"

namespace {
// The question and the error keep the styles client tools have always shown: Yes/No with the
// exclamation icon and No as the default (0x134), and OK with the stop icon (0x10).
constexpr unsigned kAskCreateStyle = vx::kMbYesNo | vx::kMbIconExclamation | vx::kMbDefButton2;
constexpr unsigned kCreateFailedStyle = vx::kMbOk | vx::kMbIconStop;
static_assert(kAskCreateStyle == 0x134 && kCreateFailedStyle == 0x10);
}  // namespace

int RIsValidDirectory(const CGNString& path) {
    RMethodTrace trace("RUtils", "RIsValidDirectory", kTraceAllLevels);
    return !path.IsEmpty() && vx::PathExists(path.str()) ? 1 : 0;
}

int RValidatePaths(CGNString paths, CGNString& firstInvalid, char separator) {
    RMethodTrace trace("RUtils", "RValidatePaths", kTraceAllLevels);
    firstInvalid.Empty();
    if (paths.IsEmpty()) return 1;
    paths.TrimRight();
    int result = 1;
    while (result && !paths.IsEmpty()) {
        paths.TrimLeft();
        CGNString token;
        const int at = paths.Find(separator);
        if (at < 0) {
            token = paths;
            paths.Empty();
        } else {
            token = paths.Left(static_cast<std::size_t>(at));
            paths = paths.Mid(static_cast<std::size_t>(at) + 1);
        }
        token.Trim();
        if (token.IsEmpty()) continue;
        if (!RIsValidDirectory(token)) {
            result = 0;
            if (firstInvalid.IsEmpty()) firstInvalid = token;
        }
    }
    return result;
}

int RValidatePathWithCreate(const CGNString& path, vx::WindowHandle parent) {
    RMethodTrace trace("RUtils", "RValidatePathWithCreate", kTraceAllLevels);
    if (RIsValidDirectory(path)) return 1;
    RUserPrompt& prompt = RUserPrompt::Current();
    const CGNString question = vx::LoadMessageText(vx::kStrFolderMissingCreate, {path.view()});
    if (prompt.Show(parent, question.c_str(), nullptr, kAskCreateStyle) != vx::kIdYes) return 0;
    if (RCreateDirectory(path, nullptr)) return 1;
    const CGNString error = vx::LoadMessageText(vx::kStrFolderCreateFailed, {path.view()});
    prompt.Show(parent, error.c_str(), nullptr, kCreateFailedStyle);
    return 0;
}
