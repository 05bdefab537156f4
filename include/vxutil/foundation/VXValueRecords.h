// The server API's value record and the attachment record it may point to.
//
// Plain C-layout records exchanged with the server API library as they stand; the assertions
// at the end pin their byte sizes on the 32-bit Windows build.
#pragma once

#include <stdint.h>

#include "vxutil/foundation/VXRecords.h"

// Data type codes: the server's wire values, never renumbered.
enum : uint32_t {
    VX_DATA_TYPE_NULL = 0,
    VX_DATA_TYPE_KEYWORD = 1,
    VX_DATA_TYPE_INTEGER = 2,
    VX_DATA_TYPE_REAL = 3,
    VX_DATA_TYPE_CHAR = 4,
    VX_DATA_TYPE_DIARY = 5,
    VX_DATA_TYPE_ENUM = 6,
    VX_DATA_TYPE_TIME = 7,
    VX_DATA_TYPE_BITMASK = 8,
    VX_DATA_TYPE_BYTES = 9,
    VX_DATA_TYPE_DECIMAL = 10,
    VX_DATA_TYPE_ATTACH = 11,
    VX_DATA_TYPE_ULONG = 40,
    VX_DATA_TYPE_COORDS = 41,
};

struct VXAttachStruct {
    char* name;         // the file-name part of the full path
    uint32_t sizes[3];  // as the caller gave them, in that order
    char* fullPath;
};

struct VXValueStruct {
    uint32_t dataType;
    union alignas(8) {
        int32_t intVal;     // keyword, integer, time (seconds)
        uint32_t ulongVal;  // enumerated, bitmask, unsigned integer
        double realVal;
        char* charVal;  // character, diary, decimal
        VXByteList* byteList;
        VXAttachStruct* attach;
        VXCoordList* coordList;
    } u;
};

#if defined(_WIN32) && !defined(_WIN64)
static_assert(sizeof(VXAttachStruct) == 20, "VXAttachStruct is 20 bytes");
static_assert(sizeof(VXValueStruct) == 16, "VXValueStruct is 16 bytes");
#endif
