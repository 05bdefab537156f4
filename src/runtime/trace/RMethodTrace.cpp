#include "vxutil/runtime/RMethodTrace.h"

#include "vxutil/runtime/RTrace.h"

RMethodTrace::RMethodTrace(const char* sourceName, const char* methodName, unsigned long level)
    : m_strSource(sourceName != nullptr ? sourceName : ""),
      m_strMethod(methodName != nullptr ? methodName : ""),
      m_nLevel(level) {
    WriteEdge(":Enter");
}

RMethodTrace::~RMethodTrace() {
    WriteEdge(":Exit");
}

void RMethodTrace::WriteEdge(const char* edge) {
    std::string text = m_strSource + ":" + m_strMethod + edge;
    Trace(text.c_str(), m_nLevel);
}

int RMethodTrace::Trace(const char* text, unsigned long level) {
    RTrace* trace = RTrace::Module();
    return trace != nullptr ? trace->Trace(text, level) : 0;
}

int RMethodTrace::Trace(int value, unsigned long level) {
    RTrace* trace = RTrace::Module();
    return trace != nullptr ? trace->Trace(value, level) : 0;
}
