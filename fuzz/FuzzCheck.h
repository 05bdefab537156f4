// Shared pieces of the fuzz targets.
#pragma once

#include <cstdlib>

#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace vx::fuzz {

// A property the target checks; a violation ends the run so that libFuzzer keeps the input.
inline void Check(bool condition) {
    if (!condition) std::abort();
}

// Assertion reports and decimal messages are expected on broken input: keep them off the
// fuzzer's output. Called once per process.
inline void SilenceReports() {
    static const bool silenced = [] {
        CGNAssert::SetHandler([](const char*, int, const char*) {});
        TKSetErrorHandler([](const TKxmsg&) {});
        return true;
    }();
    (void)silenced;
}

}  // namespace vx::fuzz
