#include "platform/registry/RegistryEncoding.h"

#include "platform/registry/Utf16Text.h"

namespace vx::registry {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeMark = "\xFF\xFE";

}  // namespace

std::string Utf16LeBytesToClient(std::string_view bytes) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[i]);
        const auto high = static_cast<unsigned char>(bytes[i + 1]);
        units += static_cast<char16_t>(low | (high << 8));
    }
    return Utf16ToClient(units);
}

std::string ClientToUtf16LeBytes(std::string_view text) {
    std::string bytes;
    for (char16_t unit : ClientToUtf16(text)) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

DecodedText DecodeRegistryFile(std::string_view bytes) {
    if (bytes.starts_with(kUtf16LeMark))
        return {Utf16LeBytesToClient(bytes.substr(kUtf16LeMark.size())), TextEncoding::Utf16Le};
    if (bytes.starts_with(kUtf8Mark))
        return {std::string(bytes.substr(kUtf8Mark.size())), TextEncoding::Utf8Bom};
    return {std::string(bytes), TextEncoding::Plain};
}

std::string EncodeRegistryFile(std::string_view text, TextEncoding encoding) {
    switch (encoding) {
        case TextEncoding::Utf16Le:
            return std::string(kUtf16LeMark) + ClientToUtf16LeBytes(text);
        case TextEncoding::Utf8Bom:
            return std::string(kUtf8Mark) + std::string(text);
        case TextEncoding::Plain:
            break;
    }
    return std::string(text);
}

}  // namespace vx::registry
