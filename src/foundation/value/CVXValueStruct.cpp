#include "vxutil/foundation/CVXValueStruct.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "vxutil/gnrt/CGNAssert.h"

namespace {

// A malloc'd copy that the receiver of an exported record frees with std::free.
char* CopyText(const CGNString& text) {
    char* copy = static_cast<char*>(std::malloc(text.GetLength() + 1));
    if (copy != nullptr) std::memcpy(copy, text.c_str(), text.GetLength() + 1);
    return copy;
}

// The file-name part of a full path, after its last separator of either kind.
const char* FileNamePart(const char* path) {
    const char* name = path;
    for (const char* c = path; *c != '\0'; ++c) {
        if (*c == '\\' || *c == '/') name = c + 1;
    }
    return name;
}

template <class Record>
Record* NewRecord() {
    return static_cast<Record*>(std::calloc(1, sizeof(Record)));
}

}  // namespace

CVXValueStruct::CVXValueStruct() = default;

CVXValueStruct::CVXValueStruct(const VXValueStruct& record) {
    ImportFrom(record);
}

CVXValueStruct::CVXValueStruct(const CVXValueStruct& other) {
    *this = other;
}

CVXValueStruct& CVXValueStruct::operator=(const CVXValueStruct& other) {
    if (this == &other) return *this;
    Release();
    m_value = other.m_value;
    m_strText = other.m_strText;
    m_nPrecision = other.m_nPrecision;
    m_nTimeOption = other.m_nTimeOption;
    m_nLastError = other.m_nLastError;
    m_strLastErrorText = other.m_strLastErrorText;
    if (other.m_pBytes) m_pBytes = std::make_unique<CVXByteList>(*other.m_pBytes);
    if (other.m_pCoords) m_pCoords = std::make_unique<CVXCoordList>(*other.m_pCoords);
    std::memcpy(m_nAttachSizes, other.m_nAttachSizes, sizeof m_nAttachSizes);
    return *this;
}

CVXValueStruct::~CVXValueStruct() = default;

void CVXValueStruct::Release() {
    m_value = VXValueStruct{};
    m_strText.Empty();
    m_pBytes.reset();
    m_pCoords.reset();
    std::memset(m_nAttachSizes, 0, sizeof m_nAttachSizes);
}

void CVXValueStruct::SetNull() {
    Release();
}

void CVXValueStruct::SetKeyword(std::int32_t keyword) {
    Release();
    m_value.dataType = VX_DATA_TYPE_KEYWORD;
    m_value.u.intVal = keyword;
}

void CVXValueStruct::SetInteger(std::int32_t value) {
    Release();
    m_value.dataType = VX_DATA_TYPE_INTEGER;
    m_value.u.intVal = value;
}

void CVXValueStruct::SetTime(std::int32_t seconds) {
    Release();
    m_value.dataType = VX_DATA_TYPE_TIME;
    m_value.u.intVal = seconds;
}

void CVXValueStruct::SetReal(double value) {
    Release();
    m_value.dataType = VX_DATA_TYPE_REAL;
    m_value.u.realVal = value;
}

void CVXValueStruct::SetEnum(std::uint32_t value) {
    Release();
    m_value.dataType = VX_DATA_TYPE_ENUM;
    m_value.u.ulongVal = value;
}

void CVXValueStruct::SetBitmask(std::uint32_t value) {
    Release();
    m_value.dataType = VX_DATA_TYPE_BITMASK;
    m_value.u.ulongVal = value;
}

void CVXValueStruct::SetUnsigned(std::uint32_t value) {
    Release();
    m_value.dataType = VX_DATA_TYPE_ULONG;
    m_value.u.ulongVal = value;
}

void CVXValueStruct::SetText(std::uint32_t type, const char* text) {
    CGNString copy(text != nullptr ? text : "");  // `text` may be this value's own text
    Release();
    m_value.dataType = type;
    m_strText = std::move(copy);
}

void CVXValueStruct::SetChar(const char* text) {
    SetText(VX_DATA_TYPE_CHAR, text);
}

void CVXValueStruct::SetDiary(const char* text) {
    SetText(VX_DATA_TYPE_DIARY, text);
}

void CVXValueStruct::SetDecimal(const char* text) {
    SetText(VX_DATA_TYPE_DECIMAL, text);
}

void CVXValueStruct::SetAttachment(const char* fullPath, std::uint32_t size0, std::uint32_t size1,
                                   std::uint32_t size2) {
    SetText(VX_DATA_TYPE_ATTACH, fullPath);
    m_nAttachSizes[0] = size0;
    m_nAttachSizes[1] = size1;
    m_nAttachSizes[2] = size2;
}

void CVXValueStruct::SetBytes(const CVXByteList& bytes) {
    auto copy = std::make_unique<CVXByteList>(bytes);
    Release();
    m_value.dataType = VX_DATA_TYPE_BYTES;
    m_pBytes = std::move(copy);
}

void CVXValueStruct::SetCoords(const CVXCoordList& coords) {
    auto copy = std::make_unique<CVXCoordList>(coords);
    Release();
    m_value.dataType = VX_DATA_TYPE_COORDS;
    m_pCoords = std::move(copy);
}

void CVXValueStruct::ResetError() {
    m_nLastError = 0;
    m_strLastErrorText.Empty();
}

bool CVXValueStruct::ExportTo(VXValueStruct* record) const {
    if (!GN_ASSERT(record != nullptr)) return false;
    VXValueStruct exported = m_value;
    switch (m_value.dataType) {
        case VX_DATA_TYPE_NULL:
        case VX_DATA_TYPE_KEYWORD:
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_REAL:
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_TIME:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            break;
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
            exported.u.charVal = CopyText(m_strText);
            if (exported.u.charVal == nullptr) return false;
            break;
        case VX_DATA_TYPE_BYTES:
            exported.u.byteList = NewRecord<VXByteList>();
            if (exported.u.byteList == nullptr || !m_pBytes->ExportTo(exported.u.byteList)) {
                std::free(exported.u.byteList);
                return false;
            }
            break;
        case VX_DATA_TYPE_COORDS:
            exported.u.coordList = NewRecord<VXCoordList>();
            if (exported.u.coordList == nullptr || !m_pCoords->ExportTo(exported.u.coordList)) {
                std::free(exported.u.coordList);
                return false;
            }
            break;
        case VX_DATA_TYPE_ATTACH: {
            VXAttachStruct* attach = NewRecord<VXAttachStruct>();
            if (attach == nullptr) return false;
            attach->name = CopyText(FileNamePart(m_strText.c_str()));
            attach->fullPath = CopyText(m_strText);
            std::memcpy(attach->sizes, m_nAttachSizes, sizeof attach->sizes);
            exported.u.attach = attach;
            break;
        }
        default:
            GN_ASSERT(!"value of unknown type exported");
            return false;
    }
    *record = exported;
    return true;
}

void CVXValueStruct::FreeRecord(VXValueStruct& record) {
    switch (record.dataType) {
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
            std::free(record.u.charVal);
            break;
        case VX_DATA_TYPE_BYTES:
            if (record.u.byteList != nullptr) std::free(record.u.byteList->bytes);
            std::free(record.u.byteList);
            break;
        case VX_DATA_TYPE_COORDS:
            if (VXCoordList* list = record.u.coordList) {
                // The coordinate export leaves its pointer just past the block it allocated.
                if (list->coords != nullptr) std::free(list->coords - list->numItems);
                std::free(list);
            }
            break;
        case VX_DATA_TYPE_ATTACH:
            if (record.u.attach != nullptr) {
                std::free(record.u.attach->name);
                std::free(record.u.attach->fullPath);
            }
            std::free(record.u.attach);
            break;
        default:
            break;
    }
    record = VXValueStruct{};
}

bool CVXValueStruct::ImportFrom(const VXValueStruct& record) {
    switch (record.dataType) {
        case VX_DATA_TYPE_CHAR:
        case VX_DATA_TYPE_DIARY:
        case VX_DATA_TYPE_DECIMAL:
            SetText(record.dataType, record.u.charVal);
            return true;
        case VX_DATA_TYPE_BYTES:
            if (record.u.byteList == nullptr) return false;
            SetBytes(CVXByteList(*record.u.byteList));
            return true;
        case VX_DATA_TYPE_COORDS:
            if (record.u.coordList == nullptr) return false;
            SetCoords(CVXCoordList(*record.u.coordList));
            return true;
        case VX_DATA_TYPE_ATTACH:
            if (record.u.attach == nullptr) return false;
            SetAttachment(record.u.attach->fullPath, record.u.attach->sizes[0],
                          record.u.attach->sizes[1], record.u.attach->sizes[2]);
            return true;
        case VX_DATA_TYPE_NULL:
        case VX_DATA_TYPE_KEYWORD:
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_REAL:
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_TIME:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            Release();
            m_value = record;
            return true;
        default:
            GN_ASSERT(!"value of unknown type imported");
            Release();
            return false;
    }
}
