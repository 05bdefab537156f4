// The assertion facility of the common runtime.
//
// A failed assertion is reported with its file, line and expression and the program goes on:
// programming errors in the foundation classes must never end a client tool. Reports go to the
// installed handler (by default a line on standard error) and are counted.
#pragma once

#include "vxutil/export.h"

class VXUTIL_API CGNAssert {
  public:
    using Handler = void (*)(const char* file, int line, const char* expression);

    // Records one failed assertion.
    static void Report(const char* file, int line, const char* expression);
    // Installs `handler` (null restores the default) and returns the previous one.
    static Handler SetHandler(Handler handler);
    // Number of reports since the process started or the count was last reset.
    static unsigned long GetReportCount();
    static void ResetReportCount();
};

// Evaluates `expression`; when it is false, reports it and yields false.
#define GN_ASSERT(expression) \
    ((expression) ? true : (CGNAssert::Report(__FILE__, __LINE__, #expression), false))
