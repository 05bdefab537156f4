// Reads arbitrary text as an encoded value and as user input of each type. Whatever decodes
// must encode to a text that decodes and encodes again to the same text, and every text form
// must be producible without a crash.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vx::fuzz::SilenceReports();
    const std::string text(reinterpret_cast<const char*>(data), size);
    CVXValueStruct value;
    const char* cursor = text.c_str();
    CGNString first, second, shown;
    if (value.Decode(cursor)) {
        Check(cursor >= text.c_str() && cursor <= text.c_str() + text.size());
        value.ToText(shown);
        value.GetLiteralText(shown);
        value.GetQualifierText(shown);
        if (value.GetEncodedText(first)) {
            CVXValueStruct again;
            const char* reread = first.c_str();
            Check(again.Decode(reread));
            Check(again.GetEncodedText(second));
            Check(first == second);
        }
    }
    CVXValueStruct input;
    input.SetIntegerFromUser(text.c_str());
    input.SetUnsignedFromUser(VX_DATA_TYPE_ULONG, text.c_str());
    input.SetRealFromUser(text.c_str());
    input.SetDecimalFromUser(text.c_str());
    input.SetTimeFromUser(text.c_str(), static_cast<int>(size % 5), true);
    input.ToText(shown);
    return 0;
}
