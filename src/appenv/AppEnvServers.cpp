// The servers of a user: the server file "VX" in the user's home folder.
#include <string>
#include <string_view>
#include <vector>

#include "appenv/AppEnvTrace.h"
#include "appenv/ServerFile.h"
#include "gnrt/MultiByte.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/foundation/CVXServerNameList.h"

using namespace vx::appenv;

namespace {

// Widths of the two words GetServerList reads from a line.
constexpr std::size_t kMaxNameBytes = 64;
constexpr std::size_t kMaxTypeBytes = 24;

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// The next blank-separated word of `line` from `position`, cut to `maxBytes` at a character
// boundary; `position` moves past it.
std::string NextWord(std::string_view line, std::size_t& position, std::size_t maxBytes) {
    const std::size_t start = std::min(line.find_first_not_of(' ', position), line.size());
    position = std::min(line.find(' ', start), line.size());
    const std::string_view word = line.substr(start, position - start);
    return std::string(word.substr(0, vx::mb::CutLength(word.data(), word.size(), maxBytes)));
}

// The name GetServerList gives for a line, or false to skip the line.
bool ListedName(std::string_view line, bool allEntries, bool workflowServers, std::string& name) {
    std::size_t position = 0;
    name = NextWord(line, position, kMaxNameBytes);
    const std::string type = NextWord(line, position, kMaxTypeBytes);
    if (name.empty() || Contains(name, "\t")) return false;
    if (allEntries) {
        // Disabled entries are listed too, without their mark.
        if (Contains(name, "#")) name.erase(0, 1);
        return true;
    }
    return !type.empty() && Contains(type, workflowServers ? "VX" : "NT") && !Contains(name, "#");
}

struct ServerAttributes {
    CAppEnv::flag disabled = 0;
    CAppEnv::flag workflow = 0;
    CAppEnv::flag notifier = 0;
    std::string ports[3];  // workflow TCP port, workflow RPC number, notifier TCP port
};

// Reads the attributes of the line that belongs to `server`: the line whose first word, without
// a leading "#", is the name. False when there is none.
bool FindServerLine(const std::vector<std::string>& lines, const CGNString& server,
                    ServerAttributes& found) {
    for (const std::string& text : lines) {
        CGNString line = text;
        line.Trim();
        const bool disabled = line.GetLength() > 0 && line[0] == '#';
        if (disabled) line = line.Mid(1).TrimLeft();
        const int blank = line.Find(' ');
        const CGNString name = blank < 0 ? line : line.Left(static_cast<std::size_t>(blank));
        if (!(name == server)) continue;

        const std::string type = blank < 0 ? std::string() : line.Mid(blank + 1).str();
        found.disabled = disabled ? 1 : 0;
        found.workflow = Contains(type, "VX") ? 1 : 0;
        found.notifier = Contains(type, "NT") ? 1 : 0;
        // "VX;NT;port;rpc;port": older files hold the tags only and leave the ports empty.
        std::vector<std::string> fields(1);
        for (char c : type) {
            if (c == ';') {
                fields.emplace_back();
            } else {
                fields.back().push_back(c);
            }
        }
        if (fields.size() >= 4)
            for (std::size_t i = 0; i < 3 && i + 2 < fields.size(); ++i)
                found.ports[i] = fields[i + 2];
        return true;
    }
    return false;
}

// Both overloads of GetServerAttributes: the flags are cleared and the strings emptied first, so
// a server that is not found leaves nothing behind. A null `notifierPort` is not filled.
CAppEnv::flag ReadServerAttributes(const CGNString& homeFolder, const CGNString& server,
                                   CAppEnv::flag& disabled, CAppEnv::flag& workflow,
                                   CAppEnv::flag& notifier, CGNString& workflowPort,
                                   CGNString& workflowRpc, CGNString* notifierPort) {
    ServerAttributes found;
    std::vector<std::string> lines;
    const bool read = !server.IsEmpty() && ReadServerLines(homeFolder, lines) &&
                      FindServerLine(lines, server, found);
    disabled = found.disabled;
    workflow = found.workflow;
    notifier = found.notifier;
    workflowPort = found.ports[0];
    workflowRpc = found.ports[1];
    if (notifierPort != nullptr) *notifierPort = found.ports[2];
    return read ? 1 : 0;
}

}  // namespace

CAppEnv::flag CAppEnv::GetServerList(const CGNString& homeFolder, CVXServerNameList& list,
                                     flag allEntries, flag workflowServers) {
    AppEnvTrace trace("CAppEnv::GetServerList");
    std::vector<std::string> lines;
    if (!ReadServerLines(homeFolder, lines)) return 0;
    std::string name;
    for (const std::string& line : lines) {
        if (ListedName(line, allEntries != 0, workflowServers != 0, name))
            list.AddServer(CVXServerNameType(name.c_str()));
    }
    return 1;
}

CAppEnv::flag CAppEnv::SetVXServerList(const CGNString& homeFolder, const CVXServerNameList& list) {
    AppEnvTrace trace("CAppEnv::SetVXServerList");
    // The whole file is replaced: notifier-only and disabled entries are not kept.
    std::vector<std::string> lines;
    for (int i = 0; i < list.GetCount(); ++i)
        if (const CVXServerNameType* server = list.GetServer(i))
            lines.push_back(std::string(server->GetName()) + " VX");
    return WriteServerLines(homeFolder, lines) ? 1 : 0;
}

CAppEnv::flag CAppEnv::SetServerList(const CGNString& homeFolder, const ServerTypeList& servers) {
    AppEnvTrace trace("CAppEnv::SetServerList");
    std::vector<std::string> lines;
    for (const tagSERVERTYPE* server : servers)
        if (server != nullptr) lines.push_back(FormatServerLine(*server));
    return WriteServerLines(homeFolder, lines) ? 1 : 0;
}

CAppEnv::flag CAppEnv::GetServerAttributes(const CGNString& homeFolder, const CGNString& server,
                                           flag& disabled, flag& workflow, flag& notifier,
                                           CGNString& workflowPort, CGNString& workflowRpc,
                                           CGNString& notifierPort) {
    AppEnvTrace trace("CAppEnv::GetServerAttributes");
    return ReadServerAttributes(homeFolder, server, disabled, workflow, notifier, workflowPort,
                                workflowRpc, &notifierPort);
}

CAppEnv::flag CAppEnv::GetServerAttributes(const CGNString& homeFolder, const CGNString& server,
                                           flag& disabled, flag& workflow, flag& notifier,
                                           CGNString& workflowPort, CGNString& workflowRpc) {
    AppEnvTrace trace("CAppEnv::GetServerAttributes");
    return ReadServerAttributes(homeFolder, server, disabled, workflow, notifier, workflowPort,
                                workflowRpc, nullptr);
}
