// A client tool in miniature: linked to the shared library, not to the static archive the test
// suites use, so that the library's load hook (shared object constructor, DllMain) runs before
// main, its unload hook at exit, and the calls below go through the exported interface.
//   vxutil_shared_smoke [language]   language: the catalogue the load hook must have attached
#include <cstdio>
#include <cstring>

#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/RModule.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUtils.h"

namespace {

int g_failures = 0;

void Check(bool passed, const char* what) {
    if (passed) return;
    std::fprintf(stderr, "FAILED: %s\n", what);
    ++g_failures;
}

}  // namespace

int main(int argc, char** argv) {
    const char* language = argc > 1 ? argv[1] : "";
    Check(RGetResourceHandle() != nullptr, "the load hook loaded the module");
    Check(RTrace::Module() != nullptr, "the module-wide trace exists");
    Check(RMessageStation::Module() != nullptr, "the module-wide message station exists");
    Check(std::strcmp(RGetResourceLanguage(), language) == 0,
          "the catalogue of the expected language is attached");

    CGNString text;
    Check(OSLoadString(3055, text) > 0, "the string table answers");
    CVXValueStruct value;
    value.SetInteger(42);
    Check(value.GetEncodedText(text) && text.str() == "2\\42", "a value encodes");
    Check(RHexToInt("0x1F") == 31, "a utility function answers");
    if (g_failures == 0) std::puts("the shared library loaded and answered");
    return g_failures == 0 ? 0 : 1;
}
