#include "platform/registry/RegistryPath.h"

namespace vx::registry {

std::string NormalizeKeyPath(std::string_view path) {
    std::string normalized;
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t end = path.find('\\', start);
        if (end == std::string_view::npos) end = path.size();
        if (end > start) {
            if (!normalized.empty()) normalized += '\\';
            normalized += path.substr(start, end - start);
        }
        start = end + 1;
    }
    return normalized;
}

std::string FoldCase(std::string_view text) {
    std::string folded(text);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return folded;
}

bool FoldsTo(std::string_view text, std::string_view folded) {
    if (text.size() != folded.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != folded[i])
            return false;
    }
    return true;
}

bool IsSameOrBelow(std::string_view key, std::string_view ancestor) {
    if (!key.starts_with(ancestor)) return false;
    return key.size() == ancestor.size() || key[ancestor.size()] == '\\';
}

}  // namespace vx::registry
