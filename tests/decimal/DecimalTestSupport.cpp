#include "DecimalTestSupport.h"

#include <gtest/gtest.h>

namespace vx::test {

std::vector<std::string> CapturedMessages::s_texts;

TKDecimal Dec(const char* text) {
    TKDecimal value;
    EXPECT_EQ(TKDecimal::FromText(text, value), TKStatus::kExact) << text;
    return value;
}

CapturedMessages::CapturedMessages() : m_previous(TKSetErrorHandler(Capture)) {
    s_texts.clear();
}

CapturedMessages::~CapturedMessages() {
    TKSetErrorHandler(m_previous);
}

void CapturedMessages::Capture(const TKxmsg& message) {
    s_texts.emplace_back(message.why());
}

}  // namespace vx::test
