#include "Json.h"

#include <cstdio>

#ifdef _WIN32
#include <windows.h>
#else
#include "gnrt/MultiByte.h"
#endif

namespace vxenv {
namespace {

#ifdef _WIN32

std::string ToUtf8(std::string_view text) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size)));
    const int wideSize = static_cast<int>(wide.size());
    std::string utf8(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideSize,
                                                                  nullptr, 0, nullptr, nullptr)),
                     '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideSize, utf8.data(),
                        static_cast<int>(utf8.size()), nullptr, nullptr);
    return utf8;
}

#else

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = vx::mb::CharLength(text.data() + at, text.size() - at);
        const auto byte = static_cast<unsigned char>(text[at]);
        if (length == 1 && byte >= 0x80) {
            utf8 += static_cast<char>(0xC0 | (byte >> 6));
            utf8 += static_cast<char>(0x80 | (byte & 0x3F));
        } else {
            utf8.append(text, at, length);
        }
        at += length;
    }
    return utf8;
}

#endif

}  // namespace

std::string JsonString(std::string_view text) {
    std::string out = "\"";
    for (char c : ToUtf8(text)) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char escape[8];
                    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned char>(c));
                    out += escape;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

JsonObject& JsonObject::Add(std::string_view name, std::string_view text) {
    return AddRaw(name, JsonString(text));
}

JsonObject& JsonObject::Add(std::string_view name, long long number) {
    return AddRaw(name, std::to_string(number));
}

JsonObject& JsonObject::Add(std::string_view name, bool flag) {
    return AddRaw(name, flag ? "true" : "false");
}

JsonObject& JsonObject::AddRaw(std::string_view name, std::string json) {
    m_members.emplace_back(JsonString(name), std::move(json));
    return *this;
}

std::string JsonObject::Text() const {
    std::string out = "{";
    for (const auto& [name, value] : m_members) {
        if (out.size() > 1) out += ", ";
        out += name + ": " + value;
    }
    return out + "}";
}

std::string JsonArray(const std::vector<std::string>& elements) {
    std::string out = "[";
    for (const auto& element : elements) {
        if (out.size() > 1) out += ", ";
        out += element;
    }
    return out + "]";
}

}  // namespace vxenv
