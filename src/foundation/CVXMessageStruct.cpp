#include "vxutil/foundation/CVXMessageStruct.h"

#include <cstring>

#include "foundation/OwnedText.h"

CVXMessageStruct::CVXMessageStruct() : CVXListItemStruct(sizeof(VXMessageStruct)) {}

CVXMessageStruct::CVXMessageStruct(const VXMessageStruct& record) : CVXMessageStruct() {
    SetMessage(&record);
}

CVXMessageStruct::CVXMessageStruct(const CVXMessageStruct& other)
    : CVXListItemStruct(other),
      m_nMessageType(other.m_nMessageType),
      m_nMessageNum(other.m_nMessageNum),
      m_pMessageText(vx::owned::Copy(other.m_pMessageText)),
      m_nFlag(other.m_nFlag) {}

CVXMessageStruct& CVXMessageStruct::operator=(const CVXMessageStruct& other) {
    if (this == &other) return *this;
    m_nMessageType = other.m_nMessageType;
    m_nMessageNum = other.m_nMessageNum;
    vx::owned::Replace(m_pMessageText, other.m_pMessageText);
    m_nFlag = other.m_nFlag;
    return *this;
}

CVXMessageStruct::~CVXMessageStruct() {
    delete[] m_pMessageText;
}

bool CVXMessageStruct::SetMessage(const VXMessageStruct* record) {
    if (record == nullptr) return false;
    m_nMessageType = record->messageType;
    m_nMessageNum = record->messageNum;
    m_nFlag = record->flag;
    return vx::owned::Replace(m_pMessageText, record->messageText);
}

void CVXMessageStruct::SetMessageText(const char* text) {
    vx::owned::Replace(m_pMessageText, text);
}

CVXListItemStruct* CVXMessageStruct::Duplicate(const CVXListItemStruct* source) const {
    return DuplicateAs<CVXMessageStruct>(source);
}

bool CVXMessageStruct::CopyTo(void* record) const {
    if (record == nullptr) return false;
    auto* target = static_cast<VXMessageStruct*>(record);
    std::memset(target, 0, sizeof *target);
    target->messageType = m_nMessageType;
    target->messageNum = m_nMessageNum;
    target->messageText = m_pMessageText;
    target->flag = m_nFlag;
    return true;
}
