// vxenv's command tables, argument handling and output.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vxenv {

enum ExitCode { kOk = 0, kFailed = 1, kUsage = 2 };

struct GlobalOptions {
    std::string home;  // empty: the environment decides
    std::string app = "vxenv";
    bool json = false;
};

// The words of a command line after the command's own name.
class Args {
public:
    explicit Args(std::vector<std::string> words) : m_words(std::move(words)) {}
    // Removes `flag` wherever it stands; true when it was there.
    bool TakeFlag(std::string_view flag);
    std::size_t size() const { return m_words.size(); }
    bool empty() const { return m_words.empty(); }
    const std::string& operator[](std::size_t index) const { return m_words[index]; }
    // Drops the first word (the name of a subcommand).
    void Shift() { m_words.erase(m_words.begin()); }

private:
    std::vector<std::string> m_words;
};

class Context;
using Runner = int (*)(Context&, Args&);

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
    // One line on standard error; returns the exit code to pass on.
    int Fail(std::string_view message) const;
    int UsageError(std::string_view message) const;
    // A usage error unless the command got between `least` and `most` words.
    bool CheckCount(const Args& args, std::size_t least, std::size_t most, int& exitCode) const;

private:
    GlobalOptions m_options;
    std::string m_path;
    std::string_view m_arguments;
};

// Runs the command named by the first word of `args` from `table`, or prints the table's help.
int Dispatch(std::span<const Command> table, Context& context, Args& args, const std::string& path);

}  // namespace vxenv
