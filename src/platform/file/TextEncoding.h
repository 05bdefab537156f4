// The byte encodings of settings files. Profile and registry files written on Windows come in
// the multi-byte code page, some with a UTF-8 byte-order mark, or in UTF-16 (regedit exports
// UTF-16LE with a byte-order mark; the profile functions read UTF-16 with or without one). A
// file is read into the client's multi-byte text and written back in the encoding it had, so
// that the programs that made it still read it; what cannot be written back without loss is
// refused rather than damaged.
#pragma once

#include <string>
#include <string_view>

namespace vx {

enum class TextEncoding { Plain, Utf8Bom, Utf16Le, Utf16LeNoBom, Utf16Be };

struct DecodedText {
    std::string text;
    TextEncoding encoding = TextEncoding::Plain;
    // False when writing the text back in its encoding would not give the bytes read (UTF-16
    // with unpaired surrogates, an odd last byte, or characters the code page lacks).
    bool faithful = true;
};

// A file without a byte-order mark whose second byte is zero and first is not is UTF-16LE:
// text in a byte encoding holds no zero bytes.
DecodedText DecodeText(std::string_view bytes);
// False when `text` cannot be written in `encoding` without loss (`bytes` is then unset).
bool EncodeText(std::string_view text, TextEncoding encoding, std::string& bytes);

// UTF-16LE bytes (without mark) to client text and back; an odd last byte is ignored.
std::string Utf16LeBytesToClient(std::string_view bytes);
std::string ClientToUtf16LeBytes(std::string_view text);

}  // namespace vx
