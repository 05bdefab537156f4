// The command groups of vxenv.
#pragma once

#include <span>
#include <string>

#include "Command.h"

namespace vxenv {

std::span<const Command> TopLevelCommands();

int RunStatus(Context& context, Args& args);
std::span<const Command> RegCommands();
std::span<const Command> ProfileCommands();
std::span<const Command> TraceCommands();
std::span<const Command> UsersCommands();
std::span<const Command> LoginCommands();
std::span<const Command> PrefsCommands();
std::span<const Command> PathsCommands();
std::span<const Command> ServersCommands();
std::span<const Command> DecodeCommands();
std::span<const Command> DecimalCommands();
std::span<const Command> EncodeCommands();
std::span<const Command> QualCommands();
int RunDecodeValue(Context& context, Args& args);
int RunDecodeQualifier(Context& context, Args& args);
int RunDecodeFields(Context& context, Args& args);
int RunWhoami(Context& context, Args& args);
int RunSysinfo(Context& context, Args& args);
std::span<const Command> DirsCommands();
int RunHex(Context& context, Args& args);

// The users the client knows (CAppEnv), for the users, login, paths and servers commands.
bool IsKnownUser(const std::string& name);
// The home folder of `user` (the last user when empty) into `folder`; on failure reports why and
// sets `exitCode`.
bool UserHomeFolder(Context& context, const std::string& user, std::string& folder, int& exitCode);

// Parses a whole decimal (or 0x hexadecimal) 32-bit number; false for anything else.
bool ParseNumber(const std::string& text, long long least, long long most, long long& value);

}  // namespace vxenv
