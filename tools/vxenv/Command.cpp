#include "Command.h"

#include <algorithm>
#include <charconv>

#include "vxutil/platform/StoreError.h"

namespace vxenv {
namespace {

constexpr std::size_t kUsageColumn = 42;
constexpr std::size_t kLineWidth = 100;

std::string Join(const std::string& path, std::string_view name) {
    return path.empty() ? std::string(name) : path + " " + std::string(name);
}

bool IsHelp(std::string_view word) {
    return word == "--help" || word == "-h";
}

// Whether `option` is declared in `usage`, and whether it takes a value ("[--sep C]").
bool Declared(std::string_view usage, std::string_view option, bool& takesValue) {
    const std::string flag = "[" + std::string(option);
    for (std::size_t at = usage.find(flag); at != std::string_view::npos;
         at = usage.find(flag, at + 1)) {
        const char next = at + flag.size() < usage.size() ? usage[at + flag.size()] : ']';
        if (next == ']' || next == ' ') {
            takesValue = next == ' ';
            return true;
        }
    }
    return false;
}

// Prints `line` and then `text` from column `indent` on, wrapped at kLineWidth; the text starts
// on a new line when `line` reaches the column.
void PrintWrapped(std::FILE* out, std::string line, std::size_t indent, std::string_view text) {
    if (line.size() + 2 > indent) {
        std::fprintf(out, "%s\n", line.c_str());
        line.clear();
    }
    line.resize(indent, ' ');
    while (!text.empty()) {
        const std::size_t end = text.find(' ');
        const std::string_view word = text.substr(0, end);
        if (line.size() > indent && line.size() + 1 + word.size() > kLineWidth) {
            std::fprintf(out, "%s\n", line.c_str());
            line.assign(indent, ' ');
        }
        if (line.size() > indent) line += ' ';
        line += word;
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    std::fprintf(out, "%s\n", line.c_str());
}

int PrintLeafHelp(const Command& command, const std::string& path) {
    std::printf("Usage: vxenv [GLOBAL OPTIONS] %s%s%.*s\n", path.c_str(),
                command.arguments.empty() ? "" : " ", static_cast<int>(command.arguments.size()),
                command.arguments.data());
    PrintWrapped(stdout, "", 2, command.summary);
    return kOk;
}

// Sorts the words after a command's name into operands and the options its usage declares.
bool ParseArguments(Context& context, const Command& command, std::span<const std::string> words,
                    Args& args, bool& help, int& exitCode) {
    std::vector<std::string> operands;
    std::vector<std::pair<std::string, std::string>> options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--") {
            operands.insert(operands.end(), words.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                            words.end());
            break;
        }
        if (IsHelp(word)) {
            help = true;
            return true;
        }
        if (!word.starts_with("--")) {
            operands.push_back(word);
            continue;
        }
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        bool takesValue = false;
        if (!Declared(command.arguments, name, takesValue)) {
            const bool global = name == "--json" || name == "--home" || name == "--app";
            exitCode = context.UsageError("unknown option '" + name + "'" +
                                          (global ? " (global options go before the command)"
                                                  : " (write -- before an argument that begins "
                                                    "with --)"));
            return false;
        }
        if (!takesValue && equals != std::string::npos) {
            exitCode = context.UsageError(name + " takes no value");
            return false;
        }
        if (takesValue && equals == std::string::npos && i + 1 >= words.size()) {
            exitCode = context.UsageError(name + " needs a value");
            return false;
        }
        options.emplace_back(name, !takesValue                   ? std::string()
                                   : equals != std::string::npos ? word.substr(equals + 1)
                                                                 : words[++i]);
    }
    args = Args(std::move(operands));
    for (auto& [name, value] : options)
        args.AddOption(std::move(name), std::move(value));
    return true;
}

}  // namespace

const std::string* Args::Value(std::string_view option) const {
    const std::string* found = nullptr;
    for (const auto& [name, value] : m_options)
        if (name == option) found = &value;
    return found;
}

void Context::Print(std::string_view line) const {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
}

void Context::PrintFields(std::initializer_list<std::string_view> fields) const {
    std::string line;
    bool first = true;
    for (std::string_view field : fields) {
        if (!first) line += '\t';
        first = false;
        for (char c : field) {
            switch (c) {
                case '\t':
                    line += "\\t";
                    break;
                case '\n':
                    line += "\\n";
                    break;
                case '\r':
                    line += "\\r";
                    break;
                default:
                    line += c;
            }
        }
    }
    Print(line);
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

void PrintCommands(std::FILE* out, std::span<const Command> table, const std::string& path) {
    for (const Command& command : table) {
        const std::string commandPath = Join(path, command.name);
        if (!command.subcommands.empty()) {
            PrintCommands(out, command.subcommands, commandPath);
            continue;
        }
        std::string usage = "  " + commandPath;
        if (!command.arguments.empty()) usage += " " + std::string(command.arguments);
        PrintWrapped(out, usage, kUsageColumn, command.summary);
    }
}

int Dispatch(std::span<const Command> table, Context& context, std::span<const std::string> words,
             const std::string& path) {
    if (words.empty() || IsHelp(words[0])) {
        std::FILE* out = words.empty() ? stderr : stdout;
        std::fprintf(out, "Usage: vxenv [GLOBAL OPTIONS] %s%sCOMMAND ...\n\nCommands:\n",
                     path.c_str(), path.empty() ? "" : " ");
        PrintCommands(out, table, path);
        return words.empty() ? kUsage : kOk;
    }
    auto command = std::find_if(table.begin(), table.end(),
                                [&](const Command& c) { return c.name == words[0]; });
    if (command == table.end()) {
        context.SetPath(path);
        context.Fail("unknown command '" + words[0] + "' (see 'vxenv " + Join(path, "--help") +
                     "')");
        return kUsage;
    }
    const std::string commandPath = Join(path, command->name);
    if (!command->subcommands.empty())
        return Dispatch(command->subcommands, context, words.subspan(1), commandPath);
    context.SetPath(commandPath);
    context.SetUsage(command->arguments);
    Args args;
    bool help = false;
    int code = kOk;
    if (!ParseArguments(context, *command, words.subspan(1), args, help, code)) return code;
    return help ? PrintLeafHelp(*command, commandPath) : command->run(context, args);
}

bool ParseNumber(const std::string& text, long long least, long long most, long long& value) {
    const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    const char* first = text.data() + (hex ? 2 : 0);
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(first, last, value, hex ? 16 : 10);
    return first != last && (!hex || *first != '-') && error == std::errc() && end == last &&
           value >= least && value <= most;
}

}  // namespace vxenv
