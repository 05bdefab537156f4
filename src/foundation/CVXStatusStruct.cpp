#include "vxutil/foundation/CVXStatusStruct.h"

#include <cstring>

#include "foundation/OwnedText.h"
#include "vxutil/gnrt/OSLoadString.h"

namespace {

const char* StatusWord(std::uint32_t type) {
    switch (type) {
        case VX_MESSAGE_NOTE:
            return "VXNOTE";
        case VX_MESSAGE_WARNING:
            return "VXWARN";
        case VX_MESSAGE_ERROR:
            return "VXERR";
        case VX_MESSAGE_FATAL:
            return "VXFATAL";
        default:
            return "";
    }
}

}  // namespace

CVXStatusStruct::CVXStatusStruct() : CVXListItemStruct(sizeof(VXStatusStruct)) {}

CVXStatusStruct::CVXStatusStruct(const VXStatusStruct& record) : CVXStatusStruct() {
    SetStatus(&record);
}

CVXStatusStruct::CVXStatusStruct(const CVXStatusStruct& other)
    : CVXListItemStruct(other),
      m_nMessageType(other.m_nMessageType),
      m_nMessageNum(other.m_nMessageNum),
      m_pMessageText(vx::owned::Copy(other.m_pMessageText)),
      m_pAppendedText(vx::owned::Copy(other.m_pAppendedText)),
      m_strNote(other.m_strNote) {}

CVXStatusStruct& CVXStatusStruct::operator=(const CVXStatusStruct& other) {
    if (this == &other) return *this;
    m_nMessageType = other.m_nMessageType;
    m_nMessageNum = other.m_nMessageNum;
    vx::owned::Replace(m_pMessageText, other.m_pMessageText);
    vx::owned::Replace(m_pAppendedText, other.m_pAppendedText);
    m_strNote = other.m_strNote;
    return *this;
}

CVXStatusStruct::~CVXStatusStruct() {
    delete[] m_pMessageText;
    delete[] m_pAppendedText;
}

bool CVXStatusStruct::SetStatus(const VXStatusStruct* record) {
    if (record == nullptr) return false;
    m_nMessageNum = record->messageNum;
    m_nMessageType = record->messageType;
    if (!vx::owned::Replace(m_pMessageText, record->messageText)) return false;
    vx::owned::Replace(m_pAppendedText, nullptr);
    if (record->appendedText != nullptr) {
        // The check after the appended text's copy looks at the message text: a record with an
        // appended text but no message text is refused. Callers' error paths depend on that
        // result, so the order stays as it is.
        char* appended = vx::owned::Copy(record->appendedText);
        if (m_pMessageText == nullptr) {
            delete[] appended;
            return false;
        }
        m_pAppendedText = appended;
    }
    return true;
}

void CVXStatusStruct::SetStatus(std::uint32_t type, std::int32_t number) {
    m_nMessageType = type;
    m_nMessageNum = number;
    if (number == 0) return;
    CGNString text;
    OSLoadString(static_cast<unsigned>(number), text);
    SetMessageText(text.c_str());
}

void CVXStatusStruct::SetMessageText(const char* text) {
    vx::owned::Replace(m_pMessageText, text);
}

void CVXStatusStruct::SetAppendedText(const char* text) {
    vx::owned::Replace(m_pAppendedText, text);
}

void CVXStatusStruct::AppendText(CGNString& out) const {
    CGNString number;
    number.Format("%u", static_cast<unsigned>(m_nMessageNum));  // -2 shows as 4294967294
    out += StatusWord(m_nMessageType);
    out += " [";
    out += number;
    out += "] ";
    if (m_pMessageText != nullptr) {
        std::size_t length = std::strlen(m_pMessageText);
        if (length > 0 && m_pMessageText[length - 1] == '\n') --length;
        out += CGNString(m_pMessageText, length);
    }
    if (m_pAppendedText != nullptr && *m_pAppendedText != '\0') {
        out += " : ";
        out += m_pAppendedText;
    }
    out += "\r\n";
    if (!m_strNote.IsEmpty()) {
        out += m_strNote;
        out += "\r\n";
    }
    out += "\r\n";
}

CVXListItemStruct* CVXStatusStruct::Duplicate(const CVXListItemStruct* source) const {
    return DuplicateAs<CVXStatusStruct>(source);
}

bool CVXStatusStruct::CopyTo(void* record) const {
    if (record == nullptr) return false;
    auto* target = static_cast<VXStatusStruct*>(record);
    std::memset(target, 0, sizeof *target);
    target->messageType = m_nMessageType;
    target->messageNum = m_nMessageNum;
    target->messageText = m_pMessageText;
    target->appendedText = m_pAppendedText;
    return true;
}
