// Reads arbitrary text as an encoded qualifier. Whatever decodes must encode to a text that
// decodes and encodes again to the same text, and must show and evaluate without a crash.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/foundation/CVXFieldValueList.h"
#include "vxutil/foundation/CVXQualifierStruct.h"
#include "vxutil/gnrt/CGNAssert.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vx::fuzz::SilenceReports();
    const std::string text(reinterpret_cast<const char*>(data), size);
    CVXQualifierStruct qualifier;
    const char* cursor = text.c_str();
    if (!qualifier.Decode(cursor)) return 0;
    CGNString shown, first, second;
    qualifier.ToText(shown);
    CVXFieldValueList fields;
    CVXValueStruct value;
    value.SetInteger(7);
    fields.AddFieldValue(1, value);
    value.SetChar("abc");
    fields.AddFieldValue(2, value);
    bool result = false;
    qualifier.Evaluate(&fields, result);
    if (qualifier.Encode(first)) {
        CVXQualifierStruct again;
        const char* reread = first.c_str();
        Check(again.Decode(reread));
        Check(again.Encode(second));
        Check(first == second);
    }
    VXQualifierStruct record{};
    if (qualifier.CopyTo(record)) {
        const CVXQualifierStruct copy(record);
        Check(copy.Encode(second) == qualifier.Encode(first));
    }
    CVXQualifierStruct::FreeRecord(record);
    return 0;
}
