#include "vxutil/gnrt/CGNAssert.h"

#include <atomic>
#include <cstdio>

namespace {

void WriteToStandardError(const char* file, int line, const char* expression) {
    std::fprintf(stderr, "%s(%d): assertion failed: %s\n", file != nullptr ? file : "?", line,
                 expression != nullptr ? expression : "?");
}

std::atomic<CGNAssert::Handler> g_handler{WriteToStandardError};
std::atomic<unsigned long> g_reportCount{0};

}  // namespace

void CGNAssert::Report(const char* file, int line, const char* expression) {
    ++g_reportCount;
    g_handler.load()(file, line, expression);
}

CGNAssert::Handler CGNAssert::SetHandler(Handler handler) {
    return g_handler.exchange(handler != nullptr ? handler : WriteToStandardError);
}

unsigned long CGNAssert::GetReportCount() {
    return g_reportCount.load();
}

void CGNAssert::ResetReportCount() {
    g_reportCount = 0;
}
