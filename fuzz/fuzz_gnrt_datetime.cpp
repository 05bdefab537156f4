// Reads arbitrary text as a date and time with every parse option. Whatever parses must lie in
// the server's range, and its ISO display text must parse back to the same instant.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "vxutil/gnrt/CGNDateTime.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (int option = 1; option <= 4; ++option) {
        CGNDateTime instant;
        if (!instant.parseDateTime(text.c_str(), option)) continue;
        Check(instant.GetSeconds() >= CGNDateTime::kMinSeconds &&
              instant.GetSeconds() <= CGNDateTime::kMaxSeconds);
        CGNDateTime back;
        Check(back.parseDateTime(instant.FormatForDisplay(CGNDateTime::kDateIso).c_str(), 1));
        Check(back.GetSeconds() == instant.GetSeconds());
    }
    return 0;
}
