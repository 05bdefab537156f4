// A scope that writes "<source>:<method>:Enter" on construction and "...:Exit" on destruction
// through the module-wide trace.
#pragma once

#include <string>

#include "vxutil/export.h"
#include "vxutil/runtime/RTrace.h"

class VXUTIL_API RMethodTrace {
public:
    RMethodTrace(const char* sourceName, const char* methodName, unsigned long level);
    RMethodTrace(const RMethodTrace&) = delete;
    RMethodTrace& operator=(const RMethodTrace&) = delete;
    virtual ~RMethodTrace();

    // Pass straight to the module-wide trace; 0 when there is none.
    virtual int Trace(const char* text, unsigned long level);
    virtual int Trace(int value, unsigned long level);

private:
    void WriteEdge(const char* edge);

    std::string m_strSource;
    std::string m_strMethod;
    unsigned long m_nLevel;
};

// The scope of one subsystem's operations, at every trace level under the subsystem's source
// name: `inline constexpr char kSource[] = "RListCtrl"; using ListTrace = RSourceTrace<kSource>;`
// then `ListTrace trace("CKorvelListCtrl::ToggleValue");`.
template <const char* Source>
class RSourceTrace : public RMethodTrace {
public:
    explicit RSourceTrace(const char* method) : RMethodTrace(Source, method, kTraceAllLevels) {}
};
