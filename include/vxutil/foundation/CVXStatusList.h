// The statuses of a call into the server API, and the text shown to the user for them.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXCoreList.h"
#include "vxutil/foundation/CVXStatusStruct.h"
#include "vxutil/foundation/VXRecords.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXStatusList : public CVXCoreList {
public:
    // Numbers of the library's range messages: their texts take the refused text and the
    // lowest and highest value of the server's date, time or date-and-time range.
    enum RangeMessage : std::int32_t {
        kDateOutOfRange = 25248,
        kTimeOutOfRange = 25249,
        kDateTimeOutOfRange = 25263,
    };

    CVXStatusList() = default;
    explicit CVXStatusList(const VXStatusList& record);
    CVXStatusList(const CVXStatusList&) = default;
    CVXStatusList& operator=(const CVXStatusList&) = default;
    CVXStatusList& operator=(const VXStatusList& record);
    ~CVXStatusList() override;

    // Fills `record` with the count and the list's array (owned by the list, valid while the
    // list is unchanged). False only when the array cannot be built.
    bool GetStatusList(VXStatusList& record);

    // Appends a status of the library's own. Its text comes from the library's string table,
    // else from the server's message catalogue; the range messages insert `text` and the range.
    bool AddStatus(std::int32_t number, std::uint32_t type, const CGNString& text);
    // Replaces `out` by the display lines of every status, in order.
    void GetText(CGNString& out) const;
    // Removes every status of `number`; true when there was one.
    bool RemoveStatus(std::int32_t number);
    // Adds a line naming the user and the server to the message of every status of `number`,
    // and drops an appended text that repeats one of them.
    void AddUserAndServer(const CGNString& user, const CGNString& server, std::int32_t number);
};
