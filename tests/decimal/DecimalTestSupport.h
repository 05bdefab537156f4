// Helpers of the decimal tests.
#pragma once

#include <string>
#include <vector>

#include "vxutil/decimal/TKDecimal.h"
#include "vxutil/decimal/TKErrorHandlers.h"

namespace vx::test {

// The decimal written as `text`, which must fit exactly.
TKDecimal Dec(const char* text);

// Collects the texts of the non-fatal messages raised during its lifetime.
class CapturedMessages {
public:
    CapturedMessages();
    ~CapturedMessages();
    CapturedMessages(const CapturedMessages&) = delete;
    CapturedMessages& operator=(const CapturedMessages&) = delete;

    const std::vector<std::string>& texts() const { return s_texts; }

private:
    static void Capture(const TKxmsg& message);
    static std::vector<std::string> s_texts;
    TKErrorHandler m_previous;
};

}  // namespace vx::test
