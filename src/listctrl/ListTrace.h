// The method trace of the list controls' operations, all under the source name "RListCtrl".
#pragma once

#include "vxutil/runtime/RMethodTrace.h"

namespace vx {

inline constexpr char kListTraceSource[] = "RListCtrl";
// Opened with "<class>::<operation>".
using ListTrace = RSourceTrace<kListTraceSource>;

}  // namespace vx
