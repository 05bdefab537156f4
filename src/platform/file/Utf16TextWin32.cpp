#include "platform/file/Utf16Text.h"

#include <windows.h>

#include <climits>

namespace vx {

std::string Utf16ToClient(std::u16string_view text) {
    if (text.empty() || text.size() > INT_MAX / 4) return {};
    const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
    const int wideLength = static_cast<int>(text.size());
    const int length =
        WideCharToMultiByte(CP_ACP, 0, wide, wideLength, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(length > 0 ? length : 0), '\0');
    if (length > 0)
        WideCharToMultiByte(CP_ACP, 0, wide, wideLength, out.data(), length, nullptr, nullptr);
    return out;
}

std::u16string ClientToUtf16(std::string_view text) {
    if (text.empty() || text.size() > INT_MAX) return {};
    const int textLength = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), textLength, nullptr, 0);
    std::u16string out(static_cast<std::size_t>(length > 0 ? length : 0), u'\0');
    if (length > 0)
        MultiByteToWideChar(CP_ACP, 0, text.data(), textLength,
                            reinterpret_cast<wchar_t*>(out.data()), length);
    return out;
}

}  // namespace vx
