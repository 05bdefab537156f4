#include "Json.h"

#include <cstdio>

namespace vxenv {

std::string JsonString(std::string_view text) {
    std::string out = "\"";
    for (char c : text) {
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
