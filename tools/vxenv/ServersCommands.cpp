// vxenv servers: the servers a user logs in to (the server file in the user's home folder).
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/foundation/CVXServerNameList.h"

namespace vxenv {
namespace {

int List(Context& context, Args& args) {
    const bool all = args.Has("--all");
    const bool notifier = args.Has("--notifier");
    int code = kOk;
    std::string folder;
    if (!context.CheckCount(args, 0, 1, code) ||
        !UserHomeFolder(context, args.empty() ? "" : args[0], folder, code))
        return code;
    CVXServerNameList list;
    if (!CAppEnv::GetServerList(folder.c_str(), list, all, !notifier))
        return context.Fail("no server file in " + folder);
    std::vector<std::string> names;
    for (int i = 0; i < list.GetCount(); ++i) {
        const std::string name = list.GetServer(i)->GetName();
        names.push_back(context.json() ? JsonString(name) : name);
    }
    if (context.json()) {
        context.Print(JsonArray(names));
    } else {
        for (const std::string& name : names)
            context.Print(name);
    }
    return kOk;
}

// Splits `text` at `separator`; "a,,b" gives three pieces.
std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> pieces(1);
    for (char c : text) {
        if (c == separator) {
            pieces.emplace_back();
        } else {
            pieces.back().push_back(c);
        }
    }
    return pieces;
}

// Reads FLAGS (comma-separated "vx", "nt", "off"; empty for none) into the record.
bool ParseFlags(const std::string& text, tagSERVERTYPE& server) {
    if (text.empty()) return true;
    for (const std::string& flag : Split(text, ',')) {
        if (flag == "vx") {
            server.m_bWorkflow = 1;
        } else if (flag == "nt") {
            server.m_bNotifier = 1;
        } else if (flag == "off") {
            server.m_bDisabled = 1;
        } else {
            return false;
        }
    }
    return true;
}

// Reads "TCP,RPC,NTTCP" (each may be empty) into the record.
bool ParsePorts(const std::string& text, tagSERVERTYPE& server) {
    const std::vector<std::string> ports = Split(text, ',');
    if (ports.size() > 3) return false;
    CGNString* fields[] = {&server.m_strWorkflowPort, &server.m_strWorkflowRpc,
                           &server.m_strNotifierPort};
    for (std::size_t i = 0; i < ports.size(); ++i) {
        long long number = 0;
        const long long most = i == 1 ? 4294967295LL : 65535;
        if (!ports[i].empty() && !ParseNumber(ports[i], 0, most, number)) return false;
        *fields[i] = ports[i];
    }
    return true;
}

// SERVER[:FLAGS[:PORTS]]; without FLAGS the server is a workflow server.
bool ParseServer(const std::string& text, tagSERVERTYPE& server) {
    const std::vector<std::string> parts = Split(text, ':');
    const std::string& name = parts[0];
    if (parts.size() > 3 || name.empty() || name.size() > 64 || name[0] == '#' ||
        name.find_first_of(" \t\r\n;") != std::string::npos)
        return false;
    server.m_strName = name;
    if (parts.size() == 1) {
        server.m_bWorkflow = 1;
        return true;
    }
    return ParseFlags(parts[1], server) && (parts.size() < 3 || ParsePorts(parts[2], server));
}

int Set(Context& context, Args& args) {
    int code = kOk;
    std::string folder;
    if (!context.CheckCount(args, 1, std::numeric_limits<std::size_t>::max(), code)) return code;
    // An empty list would empty the user's server file: far more often a forgotten argument
    // than a wish.
    if (args.size() == 1) return context.UsageError("name at least one server");
    if (!UserHomeFolder(context, args[0], folder, code)) return code;
    std::vector<tagSERVERTYPE> records(args.size() - 1);
    ServerTypeList servers;
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (!ParseServer(args[i], records[i - 1]))
            return context.UsageError("cannot read server '" + args[i] + "'");
        servers.push_back(&records[i - 1]);
    }
    if (!CAppEnv::SetServerList(folder.c_str(), servers))
        return context.Fail("could not write the server file in " + folder);
    return kOk;
}

// A port or RPC number as JSON: the number, or null when the file gives none (or no number).
std::string JsonPort(const CGNString& text) {
    long long number = 0;
    return ParseNumber(text.str(), 0, UINT32_MAX, number) ? std::to_string(number) : "null";
}

const char* YesNo(CAppEnv::flag value) {
    return value ? "yes" : "no";
}

int Attrs(Context& context, Args& args) {
    int code = kOk;
    std::string folder;
    if (!context.CheckCount(args, 2, 2, code) || !UserHomeFolder(context, args[0], folder, code))
        return code;
    CAppEnv::flag disabled = 0, workflow = 0, notifier = 0;
    CGNString port, rpc, notifierPort;
    if (!CAppEnv::GetServerAttributes(folder.c_str(), args[1].c_str(), disabled, workflow, notifier,
                                      port, rpc, notifierPort))
        return context.Fail("user '" + args[0] + "' has no server '" + args[1] + "'");
    if (context.json()) {
        context.Print(JsonObject()
                          .Add("server", args[1])
                          .Add("disabled", disabled != 0)
                          .Add("workflow", workflow != 0)
                          .Add("notifier", notifier != 0)
                          .AddRaw("tcp_port", JsonPort(port))
                          .AddRaw("rpc", JsonPort(rpc))
                          .AddRaw("notifier_tcp_port", JsonPort(notifierPort))
                          .Text());
        return kOk;
    }
    context.Print(std::string("disabled: ") + YesNo(disabled));
    context.Print(std::string("workflow server: ") + YesNo(workflow));
    context.Print(std::string("notifier server: ") + YesNo(notifier));
    context.Print("workflow tcp port: " + port.str());
    context.Print("workflow rpc number: " + rpc.str());
    context.Print("notifier tcp port: " + notifierPort.str());
    return kOk;
}

constexpr Command kCommands[] = {
    {"list",
     "[USER] [--all] [--notifier]",
     "the user's workflow servers (--notifier: notifier servers; --all: every entry, disabled "
     "ones too); USER defaults to the last user",
     List,
     {}},
    {"set",
     "USER SERVER[:FLAGS[:TCP,RPC,NTTCP]]...",
     "replace the user's servers. FLAGS: comma-separated vx (workflow server), nt (notifier "
     "server), off (disabled), default vx; then the workflow TCP port, RPC number and notifier "
     "TCP port, each may be left empty. Example: main:vx,nt:2020,390600,2021 backup:off,vx",
     Set,
     {}},
    {"attrs", "USER SERVER", "a server's flags and ports", Attrs, {}},
};

}  // namespace

std::span<const Command> ServersCommands() {
    return kCommands;
}

}  // namespace vxenv
