// Lists of values: CVXValueList holds owned CVXValueStruct objects, CVXValueListList owned
// CVXValueList objects. Each element operation applies the value's own operation.
#pragma once

#include <stdint.h>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNList.h"

struct VXValueList {
    uint32_t numItems;
    VXValueStruct* valueList;
};

struct VXValueListList {
    uint32_t numItems;
    VXValueList* valueListList;
};

class VXUTIL_API CVXValueList : public CGNList {
public:
    CVXValueList();
    CVXValueList(const CVXValueList& other);
    explicit CVXValueList(const VXValueList& record);
    CVXValueList& operator=(const CVXValueList&) = delete;
    ~CVXValueList() override;

    // Destroys every value, then releases the slots.
    void Free() override;

    bool AddValue(const CVXValueStruct& value);
    // Inserts a copy before `index` (the count appends).
    bool InsertValue(int index, const CVXValueStruct& value);
    bool DeleteValue(int index);
    // The value at `index`, or null.
    CVXValueStruct* GetValue(int index) const;

    // The display texts of the values joined by ",".
    void ToText(CGNString& out) const;
    // The count and a backslash, then each value's encoded text and a backslash; false when a
    // value has no encoded text.
    bool GetEncodedText(CGNString& out) const;
    // Appends the values of an encoded list read at `cursor`.
    bool Decode(const char*& cursor);

    // Fills `record` with the count and new copies of the values (see
    // CVXValueStruct::ExportTo); the caller releases it with FreeRecord.
    bool ExportTo(VXValueList* record) const;
    static void FreeRecord(VXValueList& record);
};

class VXUTIL_API CVXValueListList : public CGNList {
public:
    CVXValueListList();
    CVXValueListList(const CVXValueListList& other);
    explicit CVXValueListList(const VXValueListList& record);
    CVXValueListList& operator=(const CVXValueListList&) = delete;
    ~CVXValueListList() override;

    void Free() override;

    bool AddList(const CVXValueList& list);
    bool InsertList(int index, const CVXValueList& list);
    bool DeleteList(int index);
    CVXValueList* GetList(int index) const;

    bool ExportTo(VXValueListList* record) const;
    static void FreeRecord(VXValueListList& record);
};
