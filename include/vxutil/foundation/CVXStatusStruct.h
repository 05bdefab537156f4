// One status of a call into the server API: type, number, message text and appended text.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItemStruct.h"
#include "vxutil/foundation/VXRecords.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXStatusStruct : public CVXListItemStruct {
public:
    CVXStatusStruct();
    explicit CVXStatusStruct(const VXStatusStruct& record);
    CVXStatusStruct(const CVXStatusStruct& other);
    CVXStatusStruct& operator=(const CVXStatusStruct& other);
    ~CVXStatusStruct() override;

    // Copies the record. False for a null record or when the message text cannot be copied;
    // false also when the record has an appended text but no message text (the result follows
    // the message text's copy, as it always has).
    bool SetStatus(const VXStatusStruct* record);
    // Sets type and number; a number other than 0 also takes its text from the library's
    // string table as the message text.
    void SetStatus(std::uint32_t type, std::int32_t number);
    // Each keeps a copy of `text`; null leaves none.
    void SetMessageText(const char* text);
    void SetAppendedText(const char* text);
    void SetNote(const CGNString& note) { m_strNote = note; }

    std::uint32_t GetMessageType() const { return m_nMessageType; }
    std::int32_t GetMessageNum() const { return m_nMessageNum; }
    const char* GetMessageText() const { return m_pMessageText; }
    const char* GetAppendedText() const { return m_pAppendedText; }
    const CGNString& GetNote() const { return m_strNote; }

    // Appends the status's display lines to `out`: "VXERR [302] text : appended", CR LF, the
    // note and CR LF when there is a note, and an empty line (CR LF).
    void AppendText(CGNString& out) const;

    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override;
    bool CopyTo(void* record) const override;

private:
    std::uint32_t m_nMessageType = 0;
    std::int32_t m_nMessageNum = 0;
    char* m_pMessageText = nullptr;   // owned
    char* m_pAppendedText = nullptr;  // owned
    CGNString m_strNote;              // kept with the status, not part of the record
};
