// The server file of a home folder: the file "VX", one server per line.
#pragma once

#include <string>
#include <vector>

#include "vxutil/appenv/ServerType.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx::appenv {

// The lines of the folder's server file without their line ends. False when the folder is empty
// or the file is missing or unreadable.
bool ReadServerLines(const CGNString& homeFolder, std::vector<std::string>& lines);

// Replaces the whole file with `lines`, each ended by the platform's text line end. False when
// the folder is empty or the file cannot be written.
bool WriteServerLines(const CGNString& homeFolder, const std::vector<std::string>& lines);

// A record as a full line: "#" when disabled, the name, one blank, "VX" when a workflow server,
// ";", "NT" when a notifier server, then ";" before each of the three port values. Every such
// line has exactly four ";".
std::string FormatServerLine(const tagSERVERTYPE& server);

}  // namespace vx::appenv
