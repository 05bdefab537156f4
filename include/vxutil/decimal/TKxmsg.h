// A message of the decimal subsystem: its text and, when it came from the catalogue, the entry.
//
// Messages are not thrown: they are handed to the error handlers (TKErrorHandlers.h).
#pragma once

#include <string>

#include "vxutil/decimal/TKMessage.h"
#include "vxutil/export.h"

class VXUTIL_API TKxmsg {
public:
    explicit TKxmsg(std::string text) : m_strText(std::move(text)) {}
    // A text made from a catalogue entry (see TKMakeMessage).
    TKxmsg(const TKMessage& message, std::string text)
        : m_strText(std::move(text)), m_pMessage(&message) {}
    virtual ~TKxmsg() = default;
    TKxmsg(const TKxmsg&) = default;
    TKxmsg& operator=(const TKxmsg&) = default;

    const char* why() const { return m_strText.c_str(); }
    // The catalogue entry, or null for a free text.
    const TKMessage* GetEntry() const { return m_pMessage; }

private:
    std::string m_strText;
    const TKMessage* m_pMessage = nullptr;
};

// A catalogue entry's text (a printf format) with its arguments filled in.
VXUTIL_API std::string TKFormat(const char* text, ...);

// A catalogue entry's text in the user's language: the library's string of the entry's number
// when a localized catalogue has one with exactly the English text's printf conversions, else
// the English text.
VXUTIL_API std::string TKMessageFormat(const TKMessage& message);

// A message of type T (TKxmsg or a class derived from it) from a catalogue entry and its
// printf arguments, in the user's language.
template <class T = TKxmsg, class... Args>
T TKMakeMessage(const TKMessage& message, Args... args) {
    return T(message, TKFormat(TKMessageFormat(message).c_str(), args...));
}
