// Feeds arbitrary bytes to the profile parser as a file, then reads, writes and deletes keys
// the way the profile functions do, and checks what must always hold: a rewrite keeps every
// byte it does not concern, a written value reads back, a removed one is gone.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/profile/ProfileDocument.h"
#include "platform/profile/ProfileResult.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

namespace {

// Names and a value taken from the input's last bytes, so that the fuzzer steers them too.
struct Request {
    std::string section = "Section";
    std::string key = "Key";
    std::string value = "Value";
};

Request RequestFrom(std::string_view bytes) {
    Request request;
    if (bytes.size() < 3) return request;
    const std::string_view tail =
        bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 24));
    const std::size_t third = tail.size() / 3;
    request.section = tail.substr(0, third);
    request.key = tail.substr(third, third);
    request.value = tail.substr(2 * third);
    return request;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    // The bytes as a file: written back exactly as read, or refused.
    std::string written;
    std::string why;
    if (vx::ProfileDocument::FromBytes(bytes).ToBytes(written, why)) Check(written == bytes);
    vx::ProfileDocument document = vx::ProfileDocument::Parse(bytes);
    Check(document.Serialize() == bytes);

    for (const std::string& section : document.SectionNames()) {
        for (const std::string& key : document.KeyNames(section)) {
            const auto value = document.Find(section, key);
            Check(value.has_value());
            char buffer[8];
            vx::CopyProfileValue(*value, buffer, sizeof buffer);
        }
        char list[16];
        vx::CopyProfileList(vx::JoinProfileNames(document.KeyNames(section)), list, sizeof list);
    }
    vx::ParseProfileInt(bytes.substr(0, 32));

    const Request request = RequestFrom(bytes);
    if (!vx::ProfileDocument::CanStore(request.section, request.key, request.value)) return 0;

    vx::ProfileDocument edited = vx::ProfileDocument::Parse(bytes);
    edited.SetValue(request.section, request.key, request.value);
    vx::ProfileDocument reread = vx::ProfileDocument::Parse(edited.Serialize());
    const auto stored = reread.Find(request.section, request.key);
    Check(stored.has_value());
    vx::ProfileDocument expected = vx::ProfileDocument::Parse("[s]\r\nk=" + request.value + "\r\n");
    Check(stored == expected.Find("s", "k"));

    reread.RemoveKey(request.section, request.key);
    Check(!vx::ProfileDocument::Parse(reread.Serialize()).Find(request.section, request.key));
    reread.RemoveSection(request.section);
    Check(vx::ProfileDocument::Parse(reread.Serialize()).KeyNames(request.section).empty());
    return 0;
}
