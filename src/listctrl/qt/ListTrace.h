// The method trace of the list controls' operations, all under the source name "RListCtrl".
#pragma once

#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"

namespace vx {

class ListTrace : public RMethodTrace {
public:
    // `method` is "<class>::<operation>".
    explicit ListTrace(const char* method) : RMethodTrace("RListCtrl", method, kTraceAllLevels) {}
};

}  // namespace vx
