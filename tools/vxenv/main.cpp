// vxenv: the command-line tool over the client's settings.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
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

void PrintHelp(std::FILE* out) {
    std::fputs(
        "Usage: vxenv [--home DIR] [--app NAME] [--json] COMMAND [ARGUMENTS]\n"
        "  or:  vxenv --help | --version\n"
        "Reads and changes the settings of the VX client tools through the library they use, and\n"
        "shows the texts they exchange with the workflow server.\n\n"
        "Global options (before the command):\n"
        "  --home DIR    the settings home (else $VX_CONFIG_HOME and the XDG folders decide)\n"
        "  --app NAME    the client tool whose profile holds the preferences (default vxenv)\n"
        "  --json        machine-readable output: one UTF-8 JSON value\n"
        "  --help        this help; 'vxenv COMMAND --help' for one command\n"
        "  --version     the version of vxenv\n"
        "Options may be written --option VALUE or --option=VALUE; '--' ends the options.\n\n"
        "Commands:\n",
        out);
    PrintCommands(out, TopLevelCommands(), "");
    std::fputs("\nExit status: 0 done (or true), 1 failed (or false), 2 malformed command line.\n",
               out);
}

// An application profile name becomes a file name in the settings home (a registry key on
// Windows): a name, never a path.
bool IsProfileName(const std::string& name) {
    if (name.empty() || name == "." || name == "..") return false;
    for (unsigned char c : name)
        if (c < 0x20 || c == '/' || c == '\\' || c == ':') return false;
    return true;
}

// Reads the global options in front of the command into `options`; `next` is left at the
// command. Gives -1 to go on, or the exit code to end with.
int ReadGlobalOptions(const std::vector<std::string>& words, GlobalOptions& options,
                      std::size_t& next) {
    for (next = 0; next < words.size() && words[next].starts_with("-"); ++next) {
        const std::string& word = words[next];
        if (word == "--") {
            ++next;
            break;
        }
        if (word == "--help" || word == "-h") {
            PrintHelp(stdout);
            return kOk;
        }
        if (word == "--version") {
            std::printf("vxenv %s\n", VXENV_VERSION);
            return kOk;
        }
        if (word == "--json") {
            options.json = true;
            continue;
        }
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        if (name != "--home" && name != "--app") {
            std::fprintf(stderr, "vxenv: unknown option '%s' (see 'vxenv --help')\n", name.c_str());
            return kUsage;
        }
        std::string value;
        if (equals != std::string::npos) {
            value = word.substr(equals + 1);
        } else if (next + 1 < words.size()) {
            value = words[++next];
        }
        if (value.empty()) {
            std::fprintf(stderr, "vxenv: %s needs a value\n", name.c_str());
            return kUsage;
        }
        if (name == "--app" && !IsProfileName(value)) {
            std::fprintf(stderr,
                         "vxenv: --app takes the name of a client tool's profile, not a path: "
                         "'%s'\n",
                         value.c_str());
            return kUsage;
        }
        (name == "--home" ? options.home : options.app) = value;
    }
    if (next < words.size()) return -1;
    PrintHelp(stderr);
    return kUsage;
}

// A command whose output could not be written has not done its work (a full disk, a closed
// pipe): say so and fail.
int CheckOutput(int code) {
    if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return code;
    const int error = errno;
    std::fprintf(stderr, "vxenv: could not write the output: %s\n", std::strerror(error));
    return code == kOk ? kFailed : code;
}

}  // namespace

std::span<const Command> TopLevelCommands() {
    static const Command table[] = {
        {"status", "", "show the settings home, the stores and the trace state", RunStatus, {}},
        {"reg", "", "values under the users key", nullptr, RegCommands()},
        {"profile", "", "keys of a profile file", nullptr, ProfileCommands()},
        {"trace", "", "the library's trace log", nullptr, TraceCommands()},
        {"users", "", "users and their home folders", nullptr, UsersCommands()},
        {"login", "", "the remembered login of the last user", nullptr, LoginCommands()},
        {"prefs", "", "preferences of the application profile", nullptr, PrefsCommands()},
        {"paths", "", "folders searched for macros and reports", nullptr, PathsCommands()},
        {"servers", "", "the servers of a user", nullptr, ServersCommands()},
        {"decode", "", "show an encoded text", nullptr, DecodeCommands()},
        {"encode", "", "the encoded text of a value", nullptr, EncodeCommands()},
        {"qual", "", "evaluate a qualifier against field values", nullptr, QualCommands()},
        {"decimal", "", "decimal text as displayed, and decimal arithmetic", nullptr,
         DecimalCommands()},
        {"whoami", "", "the logon name and security identifier of the current user", RunWhoami, {}},
        {"sysinfo", "", "the system information of the about box", RunSysinfo, {}},
        {"dirs", "", "check, create, copy and spell folders", nullptr, DirsCommands()},
        {"hex", "TEXT", "the number a list cell reads from TEXT (0x for hexadecimal)", RunHex, {}},
    };
    return table;
}

}  // namespace vxenv

int main(int argc, char** argv) {
    using namespace vxenv;
    const std::vector<std::string> words(argv + 1, argv + argc);
    GlobalOptions options;
    std::size_t command = 0;
    if (const int code = ReadGlobalOptions(words, options, command); code >= 0)
        return CheckOutput(code);
    if (!options.home.empty()) SetHome(options.home);

    RApplication app("vxenv", options.app);
    RApplication::SetCurrent(&app);
    Context context(options);
    vx::ClearStoreError();
    int code = Dispatch(TopLevelCommands(), context, std::span(words).subspan(command), "");
    // Setters without a result (preferences) report a refused write only here.
    if (code == kOk && !vx::LastStoreError().empty())
        code = context.Fail("a setting was not stored");
    RApplication::SetCurrent(nullptr);
    return CheckOutput(code);
}
