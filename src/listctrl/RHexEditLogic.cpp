#include "vxutil/listctrl/RHexEditLogic.h"

#include <algorithm>
#include <climits>
#include <string>

#include "vxutil/listctrl/RangeMessage.h"
#include "vxutil/listctrl/VirtualKeys.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/RUtils.h"

namespace {

// A click reads the window text through a buffer of the classic path length.
constexpr std::size_t kClickTextLimit = 260;
constexpr unsigned kOutOfRangeStyle = vx::kMbOk | vx::kMbIconExclamation;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsHexDigit(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// The test texts are lower-cased, so the prefix is always "0x" by the time the checks see it.
bool HasHexPrefix(const CGNString& text) {
    return text.GetLength() >= 2 && text[0] == '0' && text[1] == 'x';
}

}  // namespace

RHexEditLogic::RHexEditLogic(vx::EditWindow* editWindow)
    : RBaseEditLogic(editWindow), m_nMinRange(0), m_nMaxRange(INT_MAX) {
    m_nAllowMask = vx::kAllowDigits | vx::kAllowUpperCase | vx::kAllowLowerCase;
}

bool RHexEditLogic::CheckInput(const CGNString& text, unsigned& ch) {
    if (!RBaseEditLogic::CheckInput(text, ch)) return false;
    if (ch >= '0' && ch <= '9') return CheckNumber(text);
    if (ch >= 'A' && ch <= 'Z') return CheckLetterUC(text, ch);
    if (ch >= 'a' && ch <= 'z') return CheckLetterLC(text, ch);
    return true;
}

bool RHexEditLogic::CheckLength(const CGNString& text) {
    return RBaseEditLogic::CheckLength(text) && RHexToInt(text) <= m_nMaxRange;
}

bool RHexEditLogic::CheckFormat(const CGNString& text) {
    if (!RBaseEditLogic::CheckFormat(text)) return false;
    const int x = text.Find('x');
    if (x >= 0) return x == 1 && text[0] == '0';
    const std::string& chars = text.str();
    return std::all_of(chars.begin(), chars.end(), IsDigit);
}

bool RHexEditLogic::CheckNonPrintChar(const CGNString& text, unsigned virtualKey) {
    return RBaseEditLogic::CheckNonPrintChar(text, virtualKey) &&
           (virtualKey != vx::kVkReturn || CheckRange(text));
}

void RHexEditLogic::Click(vx::ClientPoint point) {
    vx::EditWindow* window = GetEditWindow();
    if (window == nullptr || !window->Exists() || !window->ClientContains(point)) return;
    CGNString text = window->GetText().Left(kClickTextLimit);
    // The checks are written for the lower-cased texts the keystrokes build.
    text.MakeLower();
    if (CheckLength(text) && CheckFormat(text) && VerifyHexNumber(text))
        window->PostKeyDown(vx::kVkReturn);
    else
        window->Beep();
}

bool RHexEditLogic::CheckRange(const CGNString& text) {
    const int value = RHexToInt(text);
    if (value >= m_nMinRange && value <= m_nMaxRange) return true;
    const CGNString message = vx::NumberRangeMessage(text, m_nMinRange, m_nMaxRange);
    vx::WindowHandle parent =
        GetEditWindow() != nullptr ? GetEditWindow()->PromptParent() : nullptr;
    RUserPrompt::Current().Show(parent, message.c_str(), nullptr, kOutOfRangeStyle);
    return false;
}

bool RHexEditLogic::CheckNumber(const CGNString& text) {
    const int x = text.Find('x');
    return x < 0 || m_nStartSel > x;
}

bool RHexEditLogic::CheckLetterUC(const CGNString& text, unsigned& ch) {
    return CheckLetter(text, ch, 'A', 'F', 'X');
}

bool RHexEditLogic::CheckLetterLC(const CGNString& text, unsigned& ch) {
    return CheckLetter(text, ch, 'a', 'f', 'x');
}

bool RHexEditLogic::CheckLetter(const CGNString& text, unsigned& ch, char hexFirst, char hexLast,
                                char x) {
    if (ch == static_cast<unsigned char>(x) && m_nStartSel == 1 && text[0] == '0') {
        ch = 'x';
        return true;
    }
    // The letter is already in the test text: when that still begins with "0x", it went in
    // after the prefix.
    return HasHexPrefix(text) && ch >= static_cast<unsigned char>(hexFirst) &&
           ch <= static_cast<unsigned char>(hexLast);
}

bool RHexEditLogic::VerifyHexNumber(const CGNString& text) {
    const std::string& chars = text.str();
    const bool hex = chars.size() >= 2 && chars[0] == '0' && (chars[1] == 'x' || chars[1] == 'X');
    const unsigned base = hex ? 16 : 10;
    long long value = 0;
    for (std::size_t i = hex ? 2 : 0; i < chars.size(); ++i) {
        const char c = chars[i];
        if (!(hex ? IsHexDigit(c) : IsDigit(c))) return false;
        const int digit = IsDigit(c) ? c - '0' : (c | 0x20) - 'a' + 10;
        value = value * base + digit;
        if (value > INT_MAX) return false;
    }
    return true;
}

void RHexEditLogic::SetRange(int minimum, int maximum) {
    m_nMinRange = minimum;
    m_nMaxRange = maximum;
}
