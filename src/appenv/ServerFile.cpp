#include "appenv/ServerFile.h"

#include "vxutil/gnrt/FilePath.h"
#include "vxutil/platform/SafeFile.h"

namespace vx::appenv {
namespace {

// The file is a text file: its lines end as the platform's text files do.
#ifdef _WIN32
constexpr const char* kLineEnd = "\r\n";
#else
constexpr const char* kLineEnd = "\n";
#endif

std::string ServerFilePath(const CGNString& homeFolder) {
    return MakeFilePath(homeFolder, "VX").str();
}

}  // namespace

bool ReadServerLines(const CGNString& homeFolder, std::vector<std::string>& lines) {
    // An empty folder would name a file "VX" in whatever the current folder is.
    if (homeFolder.IsEmpty()) return false;
    std::string content;
    FileStamp stamp;
    if (!ReadWholeFile(ServerFilePath(homeFolder), content, stamp) || !stamp.exists) return false;
    lines.clear();
    for (std::size_t start = 0; start < content.size();) {
        std::size_t end = content.find('\n', start);
        if (end == std::string::npos) end = content.size();
        std::string line = content.substr(start, end - start);
        // Files written on Windows keep their carriage returns when read elsewhere.
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(std::move(line));
        start = end + 1;
    }
    return true;
}

bool WriteServerLines(const CGNString& homeFolder, const std::vector<std::string>& lines) {
    if (homeFolder.IsEmpty()) return false;
    std::string text;
    for (const std::string& line : lines)
        text += line + kLineEnd;
    return UpdateFile(
        ServerFilePath(homeFolder),
        [&](std::string& content) {
            content = text;
            return true;
        },
        FileAccess::Shared);
}

std::string FormatServerLine(const tagSERVERTYPE& server) {
    std::string line = server.m_bDisabled ? "#" : "";
    line += server.m_strName.str() + " ";
    line += server.m_bWorkflow ? "VX;" : ";";
    line += server.m_bNotifier ? "NT;" : ";";
    line += server.m_strWorkflowPort.str() + ";" + server.m_strWorkflowRpc.str() + ";" +
            server.m_strNotifierPort.str();
    return line;
}

}  // namespace vx::appenv
