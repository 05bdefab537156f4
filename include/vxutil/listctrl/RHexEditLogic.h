// Keystroke validation of a decimal or "0x" hexadecimal number within a range, for the number
// cells of the list controls. Letters reach the checks lower-cased, so "0X1F" is read as
// "0x1f"; an "X" typed after a leading "0" is rewritten to "x".
#pragma once

#include "vxutil/listctrl/RBaseEditLogic.h"

class VXUTIL_API RHexEditLogic : public RBaseEditLogic {
public:
    // A new logic allows digits and letters and accepts 0 to 0x7FFFFFFF, every number a user
    // can type without a sign; owners narrow the range to what the cell holds.
    explicit RHexEditLogic(vx::EditWindow* editWindow = nullptr);

    // Digits go to CheckNumber, letters to CheckLetterUC and CheckLetterLC.
    bool CheckInput(const CGNString& text, unsigned& ch) override;
    // The value of the text must not exceed the maximum.
    bool CheckLength(const CGNString& text) override;
    // Digits only, or an "x" as the second character after a "0".
    bool CheckFormat(const CGNString& text) override;
    // Enter runs CheckRange on the window's text.
    bool CheckNonPrintChar(const CGNString& text, unsigned virtualKey) override;
    // A click inside the window checks its text's length, format and VerifyHexNumber. When all
    // pass it posts an Enter key-down so that the range check runs and tells the user; a text
    // that fails one beeps instead, since the range message would describe a misread number.
    void Click(vx::ClientPoint point) override;

    // Whether the value of `text` lies in the range. Outside it, the user is told the range in
    // decimal and hexadecimal over the window's prompt parent, and the result is false: the
    // owner keeps the editor open.
    virtual bool CheckRange(const CGNString& text);
    // A digit is accepted only after the "x" of a text that has one.
    virtual bool CheckNumber(const CGNString& text);
    // An "X" typed right after a leading "0" is accepted as "x" (and `ch` becomes 'x'); after
    // the "0x" prefix "A" to "F" are accepted; any other upper-case letter is refused.
    virtual bool CheckLetterUC(const CGNString& text, unsigned& ch);
    // The same rule for lower-case letters.
    virtual bool CheckLetterLC(const CGNString& text, unsigned& ch);

    // True when every character of `text` belongs to the number RHexToInt reads from it
    // (decimal digits, or "0x" or "0X" and hexadecimal digits; an empty text reads as 0) and
    // the number fits in 31 bits, so that RHexToInt gives its value exactly.
    static bool VerifyHexNumber(const CGNString& text);

    int GetMinRange() const { return m_nMinRange; }
    int GetMaxRange() const { return m_nMaxRange; }
    void SetRange(int minimum, int maximum);

private:
    bool CheckLetter(const CGNString& text, unsigned& ch, char hexFirst, char hexLast, char x);

    int m_nMinRange;
    int m_nMaxRange;
};
