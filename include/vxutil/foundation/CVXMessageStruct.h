// A message that an active link shows: type, number, text and a one-byte flag.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItemStruct.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXMessageStruct : public CVXListItemStruct {
public:
    CVXMessageStruct();
    explicit CVXMessageStruct(const VXMessageStruct& record);
    CVXMessageStruct(const CVXMessageStruct& other);
    CVXMessageStruct& operator=(const CVXMessageStruct& other);
    ~CVXMessageStruct() override;

    // Copies the record; false for a null record or when the text cannot be copied.
    bool SetMessage(const VXMessageStruct* record);
    void SetMessageType(std::uint32_t type) { m_nMessageType = type; }
    void SetMessageNum(std::int32_t number) { m_nMessageNum = number; }
    // Keeps a copy of `text`; null leaves none.
    void SetMessageText(const char* text);
    void SetFlag(std::uint8_t flag) { m_nFlag = flag; }

    std::uint32_t GetMessageType() const { return m_nMessageType; }
    std::int32_t GetMessageNum() const { return m_nMessageNum; }
    const char* GetMessageText() const { return m_pMessageText; }
    std::uint8_t GetFlag() const { return m_nFlag; }

    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override;
    bool CopyTo(void* record) const override;

private:
    std::uint32_t m_nMessageType = 0;
    std::int32_t m_nMessageNum = 0;
    char* m_pMessageText = nullptr;  // owned
    std::uint8_t m_nFlag = 0;
};
