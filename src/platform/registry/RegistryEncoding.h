// The byte encodings of a registry file. regedit exports UTF-16LE with a byte order mark;
// REGEDIT4 files and files written by hand are in the multi-byte code page, some with a UTF-8
// byte order mark. A file is read into the client's multi-byte text and written back in the
// encoding it had, so that regedit still recognises it.
#pragma once

#include <string>
#include <string_view>

namespace vx::registry {

enum class TextEncoding { Plain, Utf8Bom, Utf16Le };

struct DecodedText {
    std::string text;
    TextEncoding encoding = TextEncoding::Plain;
};

DecodedText DecodeRegistryFile(std::string_view bytes);
std::string EncodeRegistryFile(std::string_view text, TextEncoding encoding);

// UTF-16LE bytes (without mark) to client text and back; an odd last byte is ignored.
std::string Utf16LeBytesToClient(std::string_view bytes);
std::string ClientToUtf16LeBytes(std::string_view text);

}  // namespace vx::registry
