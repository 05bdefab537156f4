// The records of the workflow server's client interface that the foundation classes wrap.
//
// These are plain C-layout structures, exchanged with the server API library as they stand:
// field order and types must not change. The server API library of the 32-bit Windows client
// defines their byte sizes, which the assertions at the end of this file pin on that build. On
// every other build the sizes are simply sizeof of the records: code never hard-codes them.
//
// Text pointers in records handed out by the foundation classes borrow the objects' memory.
#pragma once

#include <stdint.h>

enum { VX_NAME_BUFFER_SIZE = 31, VX_SERVER_NAME_BUFFER_SIZE = 65 };

// Message types of a status or message record.
enum { VX_MESSAGE_NOTE = 0, VX_MESSAGE_WARNING = 1, VX_MESSAGE_ERROR = 2, VX_MESSAGE_FATAL = 3 };

// One status of a call into the server API.
struct VXStatusStruct {
    uint32_t messageType;
    int32_t messageNum;
    char* messageText;   // may be null
    char* appendedText;  // a detail added by the server, such as an object name; may be null
};

struct VXStatusList {
    uint32_t numItems;
    VXStatusStruct* statusList;
};

// A message that an active link shows.
struct VXMessageStruct {
    uint32_t messageType;
    int32_t messageNum;
    char* messageText;
    uint8_t flag;  // one byte in a 32-bit slot
};

// Object name: at most 30 bytes of text and the terminating zero.
struct VXNameType {
    char name[VX_NAME_BUFFER_SIZE];
};

// Server name: at most 64 bytes of text and the terminating zero.
struct VXServerNameType {
    char name[VX_SERVER_NAME_BUFFER_SIZE];
};

struct VXInternalId {
    uint32_t id;
};

struct VXPermissionStruct {
    uint32_t groupId;
    uint32_t permissions;
};

struct VXNameList {
    uint32_t numItems;
    VXNameType* nameList;
};

struct VXInternalIdList {
    uint32_t numItems;
    VXInternalId* internalIdList;
};

struct VXPermissionList {
    uint32_t numItems;
    VXPermissionStruct* permissionList;
};

struct VXCoordStruct {
    int32_t x;
    int32_t y;
};

struct VXCoordList {
    uint32_t numItems;
    VXCoordStruct* coords;
};

// A block of raw bytes with a type tag.
struct VXByteList {
    int32_t type;
    uint32_t numItems;  // length in bytes
    unsigned char* bytes;
};

#if defined(_WIN32) && !defined(_WIN64)
static_assert(sizeof(VXStatusStruct) == 16, "VXStatusStruct is 16 bytes");
static_assert(sizeof(VXStatusList) == 8, "VXStatusList is 8 bytes");
static_assert(sizeof(VXMessageStruct) == 16, "VXMessageStruct is 16 bytes");
static_assert(sizeof(VXNameType) == 31, "VXNameType is 31 bytes");
static_assert(sizeof(VXServerNameType) == 65, "VXServerNameType is 65 bytes");
static_assert(sizeof(VXInternalId) == 4, "VXInternalId is 4 bytes");
static_assert(sizeof(VXPermissionStruct) == 8, "VXPermissionStruct is 8 bytes");
static_assert(sizeof(VXNameList) == 8, "VXNameList is 8 bytes");
static_assert(sizeof(VXInternalIdList) == 8, "VXInternalIdList is 8 bytes");
static_assert(sizeof(VXPermissionList) == 8, "VXPermissionList is 8 bytes");
static_assert(sizeof(VXCoordStruct) == 8, "VXCoordStruct is 8 bytes");
static_assert(sizeof(VXCoordList) == 8, "VXCoordList is 8 bytes");
static_assert(sizeof(VXByteList) == 12, "VXByteList is 12 bytes");
#endif
