// vxenv paths: the folders searched for macros and reports.
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/appenv/CAppEnv.h"

namespace vxenv {
namespace {

// The last user's home folder, else the default one, else none.
CGNString CurrentHomeFolder() {
    unsigned int slot = 0;
    char folder[vx::kHomeFolderBufferSize];
    CAppEnv::GetLastUserAndPath(&slot, folder, sizeof folder);
    CGNString home = folder;
    if (home.IsEmpty()) CAppEnv::GetDefaultHomePath(home);
    return home;
}

int PrintPaths(Context& context, Args& args,
               CAppEnv::flag (*read)(const CGNString&, CGNStringList&)) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 1, code)) return code;
    const CGNString home = args.size() == 1 ? CGNString(args[0]) : CurrentHomeFolder();
    // Without a home folder the search path would be relative to wherever vxenv runs.
    if (home.IsEmpty())
        return context.Fail(
            "no user has logged in and no default home folder is set: name the "
            "home folder");
    CGNStringList paths;
    read(home, paths);
    std::vector<std::string> texts;
    for (const CGNString& path : paths)
        texts.push_back(context.json() ? JsonString(path.view()) : path.str());
    if (context.json()) {
        context.Print(JsonArray(texts));
    } else {
        for (const std::string& text : texts)
            context.Print(text);
    }
    return kOk;
}

int Macro(Context& context, Args& args) {
    return PrintPaths(context, args, CAppEnv::GetMacroPathList);
}

int Report(Context& context, Args& args) {
    return PrintPaths(context, args, CAppEnv::GetReportPathList);
}

constexpr Command kCommands[] = {
    {"macro",
     "[HOMEFOLDER]",
     "folders searched for macros (default: the last user's home)",
     Macro,
     {}},
    {"report",
     "[HOMEFOLDER]",
     "folders searched for reports (default: the last user's home)",
     Report,
     {}},
};

}  // namespace

std::span<const Command> PathsCommands() {
    return kCommands;
}

}  // namespace vxenv
