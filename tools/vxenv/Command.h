// vxenv's command tables, argument handling and output.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vxenv {

// 0: done (or true); 1: the settings or the text said no, or the answer is false; 2: the command
// line is malformed.
enum ExitCode { kOk = 0, kFailed = 1, kUsage = 2 };

struct GlobalOptions {
    std::string home;  // empty: the environment decides
    std::string app = "vxenv";
    bool json = false;
};

// The operands and options of one command, after its name.
class Args {
public:
    Args() = default;
    explicit Args(std::vector<std::string> operands) : m_operands(std::move(operands)) {}

    void AddOption(std::string name, std::string value) {
        m_options.emplace_back(std::move(name), std::move(value));
    }
    bool Has(std::string_view option) const { return Value(option) != nullptr; }
    // The value of an option that takes one (the last one given); null when it was not given.
    const std::string* Value(std::string_view option) const;

    std::size_t size() const { return m_operands.size(); }
    bool empty() const { return m_operands.empty(); }
    const std::string& operator[](std::size_t index) const { return m_operands[index]; }

private:
    std::vector<std::string> m_operands;
    std::vector<std::pair<std::string, std::string>> m_options;
};

class Context;
using Runner = int (*)(Context&, Args&);

// A command, or a group of commands. A command's options are declared in its usage text:
// "[--all]" is a flag, "[--sep C]" takes a value ("--sep C" or "--sep=C").
struct Command {
    std::string_view name;
    std::string_view arguments;  // the usage after the command path, e.g. "NAME [VALUE]"
    std::string_view summary;
    Runner run = nullptr;                  // set for a command that does the work
    std::span<const Command> subcommands;  // set for a group of commands
};

class Context {
public:
    explicit Context(GlobalOptions options) : m_options(std::move(options)) {}
    const GlobalOptions& options() const { return m_options; }
    bool json() const { return m_options.json; }

    // The command path being run ("reg get"), for messages.
    void SetPath(std::string path) { m_path = std::move(path); }
    void SetUsage(std::string_view arguments) { m_arguments = arguments; }

    void Print(std::string_view line) const;
    // One tab-separated record; a tab, line feed or carriage return inside a field is written
    // as \t, \n or \r so that every record stays one line of fields. Backslashes stay as they
    // are: Windows paths are read far more often than such values (--json gives them exactly).
    void PrintFields(std::initializer_list<std::string_view> fields) const;
    // One line on standard error; returns the exit code to pass on.
    int Fail(std::string_view message) const;
    int UsageError(std::string_view message) const;
    // A usage error unless the command got between `least` and `most` operands.
    bool CheckCount(const Args& args, std::size_t least, std::size_t most, int& exitCode) const;

private:
    GlobalOptions m_options;
    std::string m_path;
    std::string_view m_arguments;
};

// Prints every command of `table` (and of its groups) under `path`, one usage line each.
void PrintCommands(std::FILE* out, std::span<const Command> table, const std::string& path);

// Runs the command that `words` name from `table` (a group's words start with the group's
// command), or prints the table's help.
int Dispatch(std::span<const Command> table, Context& context, std::span<const std::string> words,
             const std::string& path);

}  // namespace vxenv
