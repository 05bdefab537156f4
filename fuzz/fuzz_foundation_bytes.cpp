// Decodes arbitrary text as a byte list and checks that whatever is accepted encodes to
// lower-case hexadecimal that decodes to the same bytes, and that a refused text changes
// nothing.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "vxutil/foundation/CVXByteList.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

namespace {

bool SameBytes(const CVXByteList& a, const CVXByteList& b) {
    return a.GetType() == b.GetType() && a.GetLength() == b.GetLength() &&
           (a.GetLength() == 0 || std::memcmp(a.GetBytes(), b.GetBytes(), a.GetLength()) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const unsigned char seed[] = {0xde, 0xad};
    CVXByteList list(VXByteList{7, sizeof seed, const_cast<unsigned char*>(seed)});
    const CVXByteList before(list);
    if (!list.ReadText(text.c_str())) {
        Check(SameBytes(list, before));
        return 0;
    }
    const std::string written = list.GetText()->str();
    const std::size_t hex = written.rfind('\\') + 1;
    Check(written.size() - hex == 2 * static_cast<std::size_t>(list.GetLength()));
    Check(written.find_first_not_of("0123456789abcdef", hex) == std::string::npos);
    CVXByteList reread;
    Check(reread.ReadText(written.c_str()));
    Check(SameBytes(reread, list));
    return 0;
}
