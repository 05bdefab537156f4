// vxenv: the command-line tool over the client's settings.
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "Command.h"
#include "Commands.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/platform/StoreError.h"

namespace vxenv {
namespace {

void SetHome(const std::string& home) {
#ifdef _WIN32
    _putenv_s("VX_CONFIG_HOME", home.c_str());
#else
    setenv("VX_CONFIG_HOME", home.c_str(), 1);
#endif
}

// Takes the global options out of `words`, wherever they stand before a "--".
bool TakeGlobalOptions(std::vector<std::string>& words, GlobalOptions& options) {
    for (std::size_t i = 0; i < words.size();) {
        const std::string& word = words[i];
        if (word == "--") {
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(i));
            break;
        }
        if (word == "--json") {
            options.json = true;
        } else if (word == "--home" || word == "--app") {
            if (i + 1 >= words.size() || words[i + 1].empty()) {
                std::fprintf(stderr, "vxenv: %s needs a value\n", word.c_str());
                return false;
            }
            (word == "--home" ? options.home : options.app) = words[i + 1];
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(i));
        } else {
            ++i;
            continue;
        }
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(i));
    }
    return true;
}

}  // namespace

std::span<const Command> TopLevelCommands() {
    static const Command table[] = {
        {"status", "", "show the settings home, the stores and the trace state", RunStatus, {}},
        {"reg", "get|set|delete NAME [VALUE]", "values under Korvel\\VXUser\\Users", nullptr,
         RegCommands()},
        {"profile", "get|set|delete FILE SECTION KEY [VALUE]", "keys of a profile file", nullptr,
         ProfileCommands()},
        {"trace", "on|off|level MASK|show|clear", "the library's trace log", nullptr,
         TraceCommands()},
        {"users", "list|add|delete|rename|default|last ...", "users and their home folders",
         nullptr, UsersCommands()},
        {"login", "show|remember ...", "the remembered login of the last user", nullptr,
         LoginCommands()},
        {"prefs", "list|get|set [KEY [VALUE]]", "preferences of the application profile", nullptr,
         PrefsCommands()},
        {"paths", "macro|report [HOMEFOLDER]", "folders searched for macros and reports", nullptr,
         PathsCommands()},
        {"servers", "list|set|attrs ...", "the servers of a user", nullptr, ServersCommands()},
        {"decode", "bytes|coords|value|qualifier|fields TEXT", "show an encoded text", nullptr,
         DecodeCommands()},
        {"whoami", "", "the logon name and security identifier of the current user", RunWhoami, {}},
        {"sysinfo", "", "the system information of the about box", RunSysinfo, {}},
        {"dirs", "validate|create|copy|case ...", "check, create, copy and spell folders", nullptr,
         DirsCommands()},
        {"hex", "TEXT", "the number a list cell reads from TEXT (0x for hexadecimal)", RunHex, {}},
        {"decimal", "show|calc ...", "decimal text as displayed, and decimal arithmetic", nullptr,
         DecimalCommands()},
        {"encode", "value TYPE TEXT", "the encoded text of a value", nullptr, EncodeCommands()},
        {"qual", "eval QUALIFIER [FIELDID=VALUE ...]", "evaluate a qualifier against field values",
         nullptr, QualCommands()},
    };
    return table;
}

}  // namespace vxenv

int main(int argc, char** argv) {
    using namespace vxenv;
    std::vector<std::string> words(argv + 1, argv + argc);
    GlobalOptions options;
    if (!TakeGlobalOptions(words, options)) return kUsage;
    if (!options.home.empty()) SetHome(options.home);

    RApplication app("vxenv", options.app);
    RApplication::SetCurrent(&app);
    Context context(options);
    Args args(std::move(words));
    vx::ClearStoreError();
    int code = Dispatch(TopLevelCommands(), context, args, "");
    // Setters without a result (preferences) report a refused write only here.
    if (code == kOk && !vx::LastStoreError().empty())
        code = context.Fail("a setting was not stored");
    RApplication::SetCurrent(nullptr);
    return code;
}
