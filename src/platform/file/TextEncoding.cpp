#include "platform/file/TextEncoding.h"

#include "platform/file/Utf16Text.h"

namespace vx {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeMark = "\xFF\xFE";
constexpr std::string_view kUtf16BeMark = "\xFE\xFF";

std::u16string Units(std::string_view bytes, bool bigEndian) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units += static_cast<char16_t>(bigEndian ? (first << 8) | second : first | (second << 8));
    }
    return units;
}

std::string Bytes(std::u16string_view units, bool bigEndian) {
    std::string bytes;
    bytes.reserve(units.size() * 2);
    for (char16_t unit : units) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

std::string_view MarkOf(TextEncoding encoding) {
    switch (encoding) {
        case TextEncoding::Utf8Bom:
            return kUtf8Mark;
        case TextEncoding::Utf16Le:
            return kUtf16LeMark;
        case TextEncoding::Utf16Be:
            return kUtf16BeMark;
        case TextEncoding::Plain:
        case TextEncoding::Utf16LeNoBom:
            break;
    }
    return {};
}

TextEncoding Detect(std::string_view bytes) {
    for (TextEncoding marked :
         {TextEncoding::Utf8Bom, TextEncoding::Utf16Le, TextEncoding::Utf16Be})
        if (bytes.starts_with(MarkOf(marked))) return marked;
    if (bytes.size() >= 2 && bytes[0] != '\0' && bytes[1] == '\0')
        return TextEncoding::Utf16LeNoBom;
    return TextEncoding::Plain;
}

bool IsUtf16(TextEncoding encoding) {
    return encoding == TextEncoding::Utf16Le || encoding == TextEncoding::Utf16LeNoBom ||
           encoding == TextEncoding::Utf16Be;
}

}  // namespace

std::string Utf16LeBytesToClient(std::string_view bytes) {
    return Utf16ToClient(Units(bytes, false));
}

std::string ClientToUtf16LeBytes(std::string_view text) {
    return Bytes(ClientToUtf16(text), false);
}

DecodedText DecodeText(std::string_view bytes) {
    DecodedText decoded;
    decoded.encoding = Detect(bytes);
    const std::string_view body = bytes.substr(MarkOf(decoded.encoding).size());
    if (!IsUtf16(decoded.encoding)) {
        decoded.text = body;
        return decoded;
    }
    decoded.text = Utf16ToClient(Units(body, decoded.encoding == TextEncoding::Utf16Be));
    std::string again;
    decoded.faithful = EncodeText(decoded.text, decoded.encoding, again) && again == bytes;
    return decoded;
}

bool EncodeText(std::string_view text, TextEncoding encoding, std::string& bytes) {
    if (!IsUtf16(encoding)) {
        bytes = std::string(MarkOf(encoding)) + std::string(text);
        return true;
    }
    const std::u16string units = ClientToUtf16(text);
    // Client text that has no UTF-16 form (invalid UTF-8 on POSIX) comes back different.
    if (Utf16ToClient(units) != text) return false;
    bytes = std::string(MarkOf(encoding)) + Bytes(units, encoding == TextEncoding::Utf16Be);
    return true;
}

}  // namespace vx
