// Keystroke validation for a single-line edit field, kept apart from the edit window: the owner
// of the window hands every message to PreTranslateMessage first, and the logic refuses (with
// a warning beep) each keystroke that would make the text invalid. This base filters typed
// characters by an allow mask and runs a fixed chain of checks on the text the keystroke would
// produce; derived logics fill in the checks.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/listctrl/EditMessage.h"
#include "vxutil/listctrl/EditWindow.h"

namespace vx {

// Bits of the allow mask: the character classes that may be typed. A character of no class is
// always refused; backspace is always allowed.
inline constexpr std::uint32_t kAllowDigits = 0x1;
inline constexpr std::uint32_t kAllowUpperCase = 0x2;
inline constexpr std::uint32_t kAllowLowerCase = 0x4;
inline constexpr std::uint32_t kAllowSpace = 0x8;
inline constexpr std::uint32_t kAllowMinus = 0x10;
inline constexpr std::uint32_t kAllowComma = 0x20;
inline constexpr std::uint32_t kAllowPeriod = 0x40;
inline constexpr std::uint32_t kAllowPlus = 0x80;
inline constexpr std::uint32_t kAllowOpenBracket = 0x100;
inline constexpr std::uint32_t kAllowCloseBracket = 0x200;
inline constexpr std::uint32_t kAllowOpenParenthesis = 0x400;
inline constexpr std::uint32_t kAllowCloseParenthesis = 0x800;
inline constexpr std::uint32_t kAllowSlash = 0x1000;
inline constexpr std::uint32_t kAllowBackslash = 0x2000;
inline constexpr std::uint32_t kAllowColon = 0x4000;
inline constexpr std::uint32_t kAllowAll = 0x7FFF;

}  // namespace vx

class VXUTIL_API RBaseEditLogic {
public:
    // A new logic allows every character class (kAllowAll): until the owner narrows the mask
    // it refuses only characters that no class names.
    explicit RBaseEditLogic(vx::EditWindow* editWindow = nullptr);
    virtual ~RBaseEditLogic();

    virtual std::uint32_t GetAllowMask() const;
    virtual void SetAllowMask(std::uint32_t mask);
    // Whether the allow mask lets `ch` be typed.
    virtual bool IsValidChar(unsigned ch) const;
    // Builds the text the keystroke `ch` would make of `text`, then runs CheckInput,
    // CheckLength and CheckFormat on it, stopping at the first refusal. A check may accept a
    // character in another form and rewrite `ch` to it.
    virtual bool CheckSyntax(const CGNString& text, unsigned& ch);
    // The check of a non-printing key on `text`, the window's current text: the Delete key is
    // run through CheckSyntax, every other key is accepted.
    virtual bool CheckNonPrintChar(const CGNString& text, unsigned virtualKey);
    // A left-button press at `point`; nothing here.
    virtual void Click(vx::ClientPoint point);
    // Turns `text` into the text the keystroke would produce, lower-cased, using the selection
    // fields. The code of Delete (46) removes the character after the caret and inserts
    // nothing; a typed "." has the same code and is therefore tested as that deletion.
    virtual bool BuildTestString(CGNString& text, unsigned ch);
    // The checks of the keystroke's resulting text; here they accept everything.
    virtual bool CheckInput(const CGNString& text, unsigned& ch);
    virtual bool CheckLength(const CGNString& text);
    virtual bool CheckFormat(const CGNString& text);
    // Key-downs of non-printing keys (codes outside "0"-"Z" and "a"-"z") and character
    // messages are checked; a refusal beeps and swallows the message. A left-button press goes
    // to Click. Everything passes when no edit window is attached.
    virtual vx::EditFilterResult PreTranslateMessage(const vx::EditMessage& message);

    // Reads the edit window's selection into the selection fields; both become 0 when the
    // window does not exist.
    void UpdatePosition();

    vx::EditWindow* GetEditWindow() const { return m_pEditWnd; }
    void SetEditWindow(vx::EditWindow* editWindow) { m_pEditWnd = editWindow; }

protected:
    // The window's text, empty when there is no window or it is gone.
    CGNString WindowText() const;

    std::uint32_t m_nAllowMask = vx::kAllowAll;
    vx::EditWindow* m_pEditWnd;  // not owned
    int m_nStartSel = 0;
    int m_nEndSel = 0;
};
