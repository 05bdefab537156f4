#include "vxutil/decimal/TKErrorHandlers.h"

#include <atomic>
#include <cstdlib>

#include "decimal/FatalPrompt.h"
#include "vxutil/runtime/RTrace.h"

namespace {

void TraceMessage(const TKxmsg& message) {
    if (RTrace* trace = RTrace::Module()) trace->Trace(message.why(), kTraceAllLevels);
}

void ShowAndExit(const TKxmsg& message) {
    vx::decimal::ShowFatalPrompt(message.why());
    std::exit(1);
}

std::atomic<TKErrorHandler> g_errorHandler{TraceMessage};
std::atomic<TKErrorHandler> g_fatalHandler{ShowAndExit};

}  // namespace

TKErrorHandler TKSetErrorHandler(TKErrorHandler handler) {
    return g_errorHandler.exchange(handler != nullptr ? handler : TraceMessage);
}

TKErrorHandler TKSetFatalHandler(TKErrorHandler handler) {
    return g_fatalHandler.exchange(handler != nullptr ? handler : ShowAndExit);
}

void TKReportError(const TKxmsg& message) {
    g_errorHandler.load()(message);
}

void TKReportFatal(const TKxmsg& message) {
    g_fatalHandler.load()(message);
}
