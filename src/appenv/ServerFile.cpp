#include "appenv/ServerFile.h"

#include "platform/file/SettingsStore.h"
#include "vxutil/gnrt/FilePath.h"

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

// The server file in the settings store: its lines without their line ends.
struct ServerDocument {
    std::vector<std::string> lines;

    static ServerDocument FromBytes(std::string_view content) {
        ServerDocument document;
        for (std::size_t start = 0; start < content.size();) {
            std::size_t end = content.find('\n', start);
            if (end == std::string::npos) end = content.size();
            std::string_view line = content.substr(start, end - start);
            // Files written on Windows keep their carriage returns when read elsewhere.
            if (line.ends_with('\r')) line.remove_suffix(1);
            document.lines.emplace_back(line);
            start = end + 1;
        }
        return document;
    }

    bool ToBytes(std::string& bytes, std::string&) const {
        bytes.clear();
        for (const std::string& line : lines)
            bytes += line + kLineEnd;
        return true;
    }
};

}  // namespace

bool ReadServerLines(const CGNString& homeFolder, std::vector<std::string>& lines) {
    // An empty folder would name a file "VX" in whatever the current folder is.
    if (homeFolder.IsEmpty()) return false;
    const std::string path = ServerFilePath(homeFolder);
    // A missing file reads as an empty document; here it is no list at all.
    if (!StatFile(path).exists) return false;
    const auto document = store::Read<ServerDocument>(path);
    if (!document) return false;
    lines = document->lines;
    return true;
}

bool WriteServerLines(const CGNString& homeFolder, const std::vector<std::string>& lines) {
    if (homeFolder.IsEmpty()) return false;
    return store::Edit<ServerDocument>(ServerFilePath(homeFolder), FileAccess::Shared,
                                       [&](ServerDocument& document) {
                                           // Written even when equal, so that the file exists.
                                           document.lines = lines;
                                           return true;
                                       });
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
