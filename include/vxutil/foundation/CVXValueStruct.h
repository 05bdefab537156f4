// One typed value of the workflow server's data model, and its four forms: the server API's
// record, the display text for users, the literal written into expressions and the encoded
// text stored in strings ("2\5" for the integer 5, "4\3\abc" for the character text abc).
//
// Setters replace whatever the value held. The validating setters take user input and, instead
// of failing, record why they refused it (an error number and the refused text).
#pragma once

#include <cstdint>
#include <memory>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXByteList.h"
#include "vxutil/foundation/CVXCoordList.h"
#include "vxutil/foundation/VXValueRecords.h"
#include "vxutil/gnrt/CGNString.h"

// Error numbers of the validating setters (their texts are in the client's message catalogue).
enum : std::uint32_t {
    VX_ERROR_INTEGER_RANGE = 1547,
    VX_ERROR_NOT_A_NUMBER = 25244,
    VX_ERROR_TIME_OTHER = 25245,
    VX_ERROR_NOT_A_REAL = 25246,
    VX_ERROR_NOT_A_DECIMAL = 25247,
    VX_ERROR_TIME_DATE = 25248,
    VX_ERROR_TIME_DATETIME = 25249,
    VX_ERROR_TIME_TIME = 25263,
};

class VXUTIL_API CVXValueStruct {
public:
    CVXValueStruct();
    explicit CVXValueStruct(const VXValueStruct& record);
    CVXValueStruct(const CVXValueStruct& other);
    CVXValueStruct& operator=(const CVXValueStruct& other);
    virtual ~CVXValueStruct();

    // The display text (see the .cpp for each type's rule); empty for null.
    virtual void ToText(CGNString& out) const;

    std::uint32_t GetDataType() const { return m_value.dataType; }
    // Keyword, integer and time (seconds) values.
    std::int32_t GetInteger() const { return m_value.u.intVal; }
    // Enumerated, bitmask and unsigned integer values.
    std::uint32_t GetUnsigned() const { return m_value.u.ulongVal; }
    double GetReal() const { return m_value.u.realVal; }
    // Character, diary and decimal text; an attachment's full path.
    const CGNString& GetText() const { return m_strText; }
    const CVXByteList* GetBytes() const { return m_pBytes.get(); }
    const CVXCoordList* GetCoords() const { return m_pCoords.get(); }
    std::uint32_t GetAttachSize(int index) const { return m_nAttachSizes[index]; }

    void SetNull();
    void SetKeyword(std::int32_t keyword);
    void SetInteger(std::int32_t value);
    void SetReal(double value);
    void SetChar(const char* text);
    void SetDiary(const char* text);
    void SetEnum(std::uint32_t value);
    void SetBitmask(std::uint32_t value);
    void SetUnsigned(std::uint32_t value);
    void SetTime(std::int32_t seconds);
    void SetDecimal(const char* text);
    void SetAttachment(const char* fullPath, std::uint32_t size0, std::uint32_t size1,
                       std::uint32_t size2);
    void SetBytes(const CVXByteList& bytes);
    void SetCoords(const CVXCoordList& coords);

    // Sets a value of `type` from text without validating it. Bytes and coordinates are not
    // accepted (assertion; false, value unchanged).
    bool SetFromText(std::uint32_t type, const char* text);

    // Validating setters for user input; empty text sets null. On refusal they return false
    // and record the error number and the text; some keep the text as a character value.
    bool SetIntegerFromUser(const char* text);
    // `type` is VX_DATA_TYPE_ENUM, VX_DATA_TYPE_BITMASK or VX_DATA_TYPE_ULONG.
    bool SetUnsignedFromUser(std::uint32_t type, const char* text);
    bool SetRealFromUser(const char* text);
    bool SetDecimalFromUser(const char* text);
    bool SetTimeFromUser(std::int64_t seconds);
    // `option` is a CGNDateTime::ParseOption; with `reportErrors` false a refusal records no
    // error.
    bool SetTimeFromUser(const char* text, int option, bool reportErrors);
    std::uint32_t GetLastError() const { return m_nLastError; }
    const CGNString& GetLastErrorText() const { return m_strLastErrorText; }
    void ResetError();

    // Places after the point for real and decimal display; -1: not set.
    std::int32_t GetPrecision() const { return m_nPrecision; }
    void SetPrecision(std::int32_t precision) { m_nPrecision = precision; }
    // Passed to CGNDateTime::FormatForDisplay for time values.
    std::int32_t GetTimeOption() const { return m_nTimeOption; }
    void SetTimeOption(std::int32_t option) { m_nTimeOption = option; }

    // Fills the caller's record. Texts, byte lists, coordinate lists and attachments are new
    // copies that the caller owns and releases with FreeRecord. False (assertion) for a null
    // record or a type without a record form.
    bool ExportTo(VXValueStruct* record) const;
    static void FreeRecord(VXValueStruct& record);
    // Copies the record and everything it points to; false (assertion, value null) for an
    // unknown type.
    bool ImportFrom(const VXValueStruct& record);

    // The text written into expressions; "TODO:" for types without a literal form.
    void GetLiteralText(CGNString& out) const;
    // The text of the value inside a qualifier's display text.
    void GetQualifierText(CGNString& out) const;
    // The encoded text; false (assertion) for bytes and coordinates.
    bool GetEncodedText(CGNString& out) const;
    // Reads an encoded text at `cursor` and moves it past what was read; false when a field is
    // missing or the type unknown.
    bool Decode(const char*& cursor);

    // The integer range check of user input: text longer than "2147483647" (or "-2147483647"
    // when negative), or as long and greater byte by byte, is out of range; so is text that
    // does not begin with a number.
    static bool IsIntegerTextInRange(const char* text);
    // The table name of a keyword number ("USER" for 1), or null for a number not in it.
    static const char* KeywordName(std::int32_t keyword);

private:
    void Release();
    void SetText(std::uint32_t type, const char* text);
    void Refuse(std::uint32_t error, const char* text, bool keepAsCharacter);

    VXValueStruct m_value{};
    CGNString m_strText;
    std::int32_t m_nPrecision = -1;
    std::int32_t m_nTimeOption = 0;
    std::uint32_t m_nLastError = 0;
    CGNString m_strLastErrorText;
    // Owned payloads of bytes, coordinate and attachment values.
    std::unique_ptr<CVXByteList> m_pBytes;
    std::unique_ptr<CVXCoordList> m_pCoords;
    std::uint32_t m_nAttachSizes[3] = {};
};
