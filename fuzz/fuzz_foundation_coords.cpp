// Reads arbitrary text as a coordinate list and checks that whatever is accepted writes back to
// a definition text that reads back to the same points, and that a refused text changes
// nothing.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "vxutil/foundation/CVXCoordList.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    CVXCoordList list;
    list.SetBox(1, 2, 3, 4);
    const CVXCoordList before(list);
    const char* cursor = text.c_str();
    if (!list.ReadText(cursor)) {
        Check(list.IsEqual(before));
        Check(cursor == text.c_str());
        return 0;
    }
    Check(cursor == nullptr || (cursor >= text.c_str() && cursor <= text.c_str() + text.size()));

    const std::string written = list.GetText()->str();
    CVXCoordList reread;
    const char* at = written.c_str();
    Check(reread.ReadText(at));
    Check(reread.IsEqual(list));
    Check(reread.GetText()->str() == written);

    // The interpretations and moves work on whatever was read.
    std::int32_t a = 0, b = 0, c = 0, d = 0;
    int vertical = 0;
    list.GetLine(a, b, c, vertical);
    list.GetBox(a, b, c, d);
    list.GetPosition(a, b, c, d);
    list.MoveTo(a, b);
    list.Offset(c, d);
    return 0;
}
