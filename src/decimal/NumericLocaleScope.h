// Switches the numeric locale to "C" for the scope's lifetime and restores the previous one:
// real numbers are written and read with "." whatever the user's locale.
//
// The locale is process-wide; like the rest of the library this belongs to the user-interface
// thread.
#pragma once

#include <string>

#include "vxutil/export.h"

class VXUTIL_API NumericLocaleScope {
public:
    NumericLocaleScope();
    ~NumericLocaleScope();
    NumericLocaleScope(const NumericLocaleScope&) = delete;
    NumericLocaleScope& operator=(const NumericLocaleScope&) = delete;

private:
    std::string m_strPrevious;
};
