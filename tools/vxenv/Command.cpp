#include "Command.h"

#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "vxutil/platform/StoreError.h"

namespace vxenv {
namespace {

std::string Join(const std::string& path, std::string_view name) {
    return path.empty() ? std::string(name) : path + " " + std::string(name);
}

void PrintHelp(std::span<const Command> table, const std::string& path) {
    std::printf("usage: vxenv [--home DIR] [--app NAME] [--json] %s%sCOMMAND\n\ncommands:\n",
                path.c_str(), path.empty() ? "" : " ");
    for (const Command& command : table) {
        std::string usage = Join(path, command.name);
        if (!command.arguments.empty()) usage += " " + std::string(command.arguments);
        std::printf("  %-44s %.*s\n", usage.c_str(), static_cast<int>(command.summary.size()),
                    command.summary.data());
    }
}

bool IsHelp(const std::string& word) {
    return word == "--help" || word == "-h";
}

}  // namespace

bool Args::TakeFlag(std::string_view flag) {
    auto found = std::find(m_words.begin(), m_words.end(), flag);
    if (found == m_words.end()) return false;
    m_words.erase(found);
    return true;
}

void Context::Print(std::string_view line) const {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
}

int Context::Fail(std::string_view message) const {
    // A refused write names its file and cause; that goes on the same line.
    const std::string cause = vx::LastStoreError();
    std::fprintf(stderr, "vxenv: %s%s%.*s%s%s\n", m_path.c_str(), m_path.empty() ? "" : ": ",
                 static_cast<int>(message.size()), message.data(), cause.empty() ? "" : ": ",
                 cause.c_str());
    return kFailed;
}

int Context::UsageError(std::string_view message) const {
    std::fprintf(stderr, "vxenv: %s%s%.*s (usage: vxenv %s%s%.*s)\n", m_path.c_str(),
                 m_path.empty() ? "" : ": ", static_cast<int>(message.size()), message.data(),
                 m_path.c_str(), m_arguments.empty() ? "" : " ",
                 static_cast<int>(m_arguments.size()), m_arguments.data());
    return kUsage;
}

bool Context::CheckCount(const Args& args, std::size_t least, std::size_t most,
                         int& exitCode) const {
    if (args.size() < least) {
        exitCode = UsageError("missing arguments");
        return false;
    }
    if (args.size() > most) {
        exitCode = UsageError("unexpected argument '" + args[most] + "'");
        return false;
    }
    return true;
}

int Dispatch(std::span<const Command> table, Context& context, Args& args,
             const std::string& path) {
    if (args.empty() || IsHelp(args[0])) {
        PrintHelp(table, path);
        return args.empty() ? kUsage : kOk;
    }
    auto command = std::find_if(table.begin(), table.end(),
                                [&](const Command& c) { return c.name == args[0]; });
    if (command == table.end()) {
        context.SetPath(path);
        context.Fail("unknown command '" + args[0] + "' (see 'vxenv " + Join(path, "--help") +
                     "')");
        return kUsage;
    }
    std::string commandPath = Join(path, command->name);
    args.Shift();
    if (!command->subcommands.empty())
        return Dispatch(command->subcommands, context, args, commandPath);
    if (args.TakeFlag("--help") || args.TakeFlag("-h")) {
        std::printf("usage: vxenv %s %.*s\n%.*s\n", commandPath.c_str(),
                    static_cast<int>(command->arguments.size()), command->arguments.data(),
                    static_cast<int>(command->summary.size()), command->summary.data());
        return kOk;
    }
    context.SetPath(commandPath);
    context.SetUsage(command->arguments);
    return command->run(context, args);
}

}  // namespace vxenv

namespace vxenv {

bool ParseNumber(const std::string& text, long long least, long long most, long long& value) {
    if (text.empty()) return false;
    std::size_t used = 0;
    try {
        bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
        value = std::stoll(hex ? text.substr(2) : text, &used, hex ? 16 : 10);
        if (hex) used += 2;
    } catch (const std::exception&) {
        return false;
    }
    return used == text.size() && value >= least && value <= most;
}

}  // namespace vxenv
