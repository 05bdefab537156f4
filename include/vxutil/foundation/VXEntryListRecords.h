// The server API's records of search results: entry ids, the entry list with its one-line
// descriptions, the field list that builds those lines, and field/value pairs.
#pragma once

#include <stdint.h>

#include "vxutil/foundation/VXValueRecords.h"

enum { VX_ENTRY_ID_BUFFER_SIZE = 16, VX_SEPARATOR_BUFFER_SIZE = 11 };

// One part of an entry id: up to 15 characters and the terminator.
struct VXEntryIdType {
    char id[VX_ENTRY_ID_BUFFER_SIZE];
};

// An entry id of one or more parts.
struct VXEntryIdList {
    uint32_t numItems;
    VXEntryIdType* entryIdList;
};

// How one column of the description line is built.
struct VXEntryListFieldStruct {
    uint32_t fieldId;
    uint32_t columnWidth;                      // in characters
    char separator[VX_SEPARATOR_BUFFER_SIZE];  // written after the column
};

struct VXEntryListFieldList {
    uint32_t numItems;
    VXEntryListFieldStruct* fieldsList;
};

struct VXEntryListStruct {
    VXEntryIdList entryId;
    char* shortDesc;  // the description line
};

struct VXEntryListList {
    uint32_t numItems;
    VXEntryListStruct* entryList;
};

struct VXFieldValueStruct {
    uint32_t fieldId;
    VXValueStruct value;
};

struct VXFieldValueList {
    uint32_t numItems;
    VXFieldValueStruct* fieldValueList;
};

struct VXEntryListFieldValueStruct {
    VXEntryIdList entryId;
    VXFieldValueList* entryValues;
};

struct VXEntryListFieldValueList {
    uint32_t numItems;
    VXEntryListFieldValueStruct* entryList;
};

#if defined(_WIN32) && !defined(_WIN64)
static_assert(sizeof(VXEntryIdType) == 16, "VXEntryIdType is 16 bytes");
static_assert(sizeof(VXEntryListFieldStruct) == 20, "VXEntryListFieldStruct is 20 bytes");
static_assert(sizeof(VXFieldValueStruct) == 24, "VXFieldValueStruct is 24 bytes");
#endif
