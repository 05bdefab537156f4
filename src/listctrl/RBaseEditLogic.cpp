#include "vxutil/listctrl/RBaseEditLogic.h"

#include <algorithm>
#include <iterator>

#include "vxutil/listctrl/VirtualKeys.h"

namespace vx {

EditWindow::~EditWindow() = default;

}  // namespace vx

namespace {

struct CharClass {
    char ch;
    std::uint32_t bit;
};

// The single characters of the allow mask; digits and letters are ranges, checked apart.
constexpr CharClass kCharClasses[] = {
    {' ', vx::kAllowSpace},
    {'-', vx::kAllowMinus},
    {',', vx::kAllowComma},
    {'.', vx::kAllowPeriod},
    {'+', vx::kAllowPlus},
    {'[', vx::kAllowOpenBracket},
    {']', vx::kAllowCloseBracket},
    {'(', vx::kAllowOpenParenthesis},
    {')', vx::kAllowCloseParenthesis},
    {'/', vx::kAllowSlash},
    {'\\', vx::kAllowBackslash},
    {':', vx::kAllowColon},
};

// Key-downs of letters and digits come back as character messages, which are checked then.
// The code's low byte is taken as a signed character, as ever, so codes from 0x80 on count
// as non-printing.
bool IsPrintingKey(unsigned virtualKey) {
    const auto c = static_cast<signed char>(virtualKey & 0xFF);
    return (c >= '0' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

RBaseEditLogic::RBaseEditLogic(vx::EditWindow* editWindow) : m_pEditWnd(editWindow) {}

RBaseEditLogic::~RBaseEditLogic() = default;

std::uint32_t RBaseEditLogic::GetAllowMask() const {
    return m_nAllowMask;
}

void RBaseEditLogic::SetAllowMask(std::uint32_t mask) {
    m_nAllowMask = mask;
}

bool RBaseEditLogic::IsValidChar(unsigned ch) const {
    if (ch == vx::kVkBack) return true;
    if (ch >= '0' && ch <= '9') return (m_nAllowMask & vx::kAllowDigits) != 0;
    if (ch >= 'A' && ch <= 'Z') return (m_nAllowMask & vx::kAllowUpperCase) != 0;
    if (ch >= 'a' && ch <= 'z') return (m_nAllowMask & vx::kAllowLowerCase) != 0;
    const auto entry =
        std::find_if(std::begin(kCharClasses), std::end(kCharClasses),
                     [ch](const CharClass& c) { return static_cast<unsigned char>(c.ch) == ch; });
    return entry != std::end(kCharClasses) && (m_nAllowMask & entry->bit) != 0;
}

bool RBaseEditLogic::CheckSyntax(const CGNString& text, unsigned& ch) {
    CGNString test = text;
    return BuildTestString(test, ch) && CheckInput(test, ch) && CheckLength(test) &&
           CheckFormat(test);
}

bool RBaseEditLogic::CheckNonPrintChar(const CGNString& text, unsigned virtualKey) {
    return virtualKey != vx::kVkDelete || CheckSyntax(text, virtualKey);
}

void RBaseEditLogic::Click(vx::ClientPoint) {}

bool RBaseEditLogic::BuildTestString(CGNString& text, unsigned ch) {
    // The window's offsets are trusted only as far as the text reaches.
    const int length = static_cast<int>(text.GetLength());
    m_nStartSel = std::clamp(m_nStartSel, 0, length);
    m_nEndSel = std::clamp(m_nEndSel, m_nStartSel, length);
    if (m_nStartSel == m_nEndSel) {
        if (ch == vx::kVkDelete && m_nEndSel < length) ++m_nEndSel;
        if (ch == vx::kVkBack && m_nStartSel > 0) --m_nStartSel;
    }
    if (m_nStartSel != m_nEndSel) {
        text = text.Left(static_cast<std::size_t>(m_nStartSel)) +
               text.Mid(static_cast<std::size_t>(m_nEndSel));
        m_nEndSel = m_nStartSel;
    }
    if (ch != vx::kVkDelete && ch != vx::kVkBack) {
        const auto at = static_cast<std::size_t>(m_nStartSel);
        text = text.Left(at) + CGNString(std::string(1, static_cast<char>(ch))) + text.Mid(at);
    }
    text.MakeLower();
    return true;
}

bool RBaseEditLogic::CheckInput(const CGNString&, unsigned&) {
    return true;
}

bool RBaseEditLogic::CheckLength(const CGNString&) {
    return true;
}

bool RBaseEditLogic::CheckFormat(const CGNString&) {
    return true;
}

vx::EditFilterResult RBaseEditLogic::PreTranslateMessage(const vx::EditMessage& message) {
    if (m_pEditWnd == nullptr) return {};
    bool accepted = true;
    unsigned ch = message.code;
    switch (message.message) {
        case vx::kWmKeyDown:
            if (IsPrintingKey(message.code)) return {};
            UpdatePosition();
            accepted = CheckNonPrintChar(WindowText(), message.code);
            break;
        case vx::kWmChar:
            UpdatePosition();
            accepted = IsValidChar(ch) && CheckSyntax(WindowText(), ch);
            break;
        case vx::kWmLButtonDown:
            Click(message.point);
            return {};
        default:
            return {};
    }
    if (!accepted) {
        m_pEditWnd->Beep();
        return {true, -1};
    }
    return {false, ch != message.code ? static_cast<int>(ch) : -1};
}

void RBaseEditLogic::UpdatePosition() {
    m_nStartSel = 0;
    m_nEndSel = 0;
    if (m_pEditWnd != nullptr && m_pEditWnd->Exists()) m_pEditWnd->GetSel(m_nStartSel, m_nEndSel);
}

CGNString RBaseEditLogic::WindowText() const {
    return m_pEditWnd != nullptr && m_pEditWnd->Exists() ? m_pEditWnd->GetText() : CGNString();
}
