#include "vxutil/foundation/CVXStatusList.h"

#include "foundation/RecordLists.h"
#include "vxutil/foundation/VXMessageCatalog.h"
#include "vxutil/gnrt/CGNDateTime.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/MessageText.h"

namespace {

// The lowest and highest value that a range message names; false for other messages.
bool RangeOf(std::int32_t number, CGNString& min, CGNString& max) {
    switch (number) {
        case CVXStatusList::kDateOutOfRange:
            CGNDateTime::GetMinMaxDateRange(CGNDateTime::kDateIso, min, max);
            return true;
        case CVXStatusList::kTimeOutOfRange:
            CGNDateTime::GetMinMaxTimeRange(min, max);
            return true;
        case CVXStatusList::kDateTimeOutOfRange:
            CGNDateTime::GetMinMaxDateTimeRange(CGNDateTime::kDateIso, min, max);
            return true;
        default:
            return false;
    }
}

CGNString TextOf(std::int32_t number, const CGNString& callerText) {
    CGNString text;
    OSLoadString(static_cast<unsigned>(number), text);
    if (text.IsEmpty()) return vx::GetServerMessageText(number);
    CGNString min;
    CGNString max;
    if (RangeOf(number, min, max)) {
        return vx::FillConversions(text.view(),
                                   {{callerText.c_str()}, {min.c_str()}, {max.c_str()}});
    }
    return text;
}

}  // namespace

CVXStatusList::CVXStatusList(const VXStatusList& record) {
    *this = record;
}

CVXStatusList& CVXStatusList::operator=(const VXStatusList& record) {
    vx::records::Assign<CVXStatusStruct>(*this, record.statusList, record.numItems);
    return *this;
}

CVXStatusList::~CVXStatusList() = default;

bool CVXStatusList::GetStatusList(VXStatusList& record) {
    return vx::records::Export(*this, record.numItems, record.statusList);
}

bool CVXStatusList::AddStatus(std::int32_t number, std::uint32_t type, const CGNString& text) {
    CVXStatusStruct status;
    status.SetStatus(type, number);
    status.SetMessageText(TextOf(number, text).c_str());
    return AddItem(&status);
}

void CVXStatusList::GetText(CGNString& out) const {
    out.Empty();
    for (int i = 0; i < GetCount(); ++i) {
        if (const auto* status = static_cast<const CVXStatusStruct*>(GetItem(i))) {
            status->AppendText(out);
        }
    }
}

bool CVXStatusList::RemoveStatus(std::int32_t number) {
    CVXStatusList kept;
    bool matched = false;
    for (int i = 0; i < GetCount(); ++i) {
        const auto* status = static_cast<const CVXStatusStruct*>(GetItem(i));
        if (status == nullptr) continue;
        if (status->GetMessageNum() == number) {
            matched = true;
        } else {
            kept.AddItem(status);
        }
    }
    *this = kept;
    return matched;
}

void CVXStatusList::AddUserAndServer(const CGNString& user, const CGNString& server,
                                     std::int32_t number) {
    for (int i = 0; i < GetCount(); ++i) {
        auto* status = static_cast<CVXStatusStruct*>(GetItem(i));
        if (status == nullptr || status->GetMessageNum() != number) continue;
        const char* old = status->GetMessageText();
        const CGNString text =
            CGNString(old != nullptr ? old : "") + "\r\n\tuser: " + user + ", server: " + server;
        status->SetMessageText(text.c_str());
        const char* appended = status->GetAppendedText();
        if (appended != nullptr && *appended != '\0' && (user == appended || server == appended)) {
            status->SetAppendedText("");
        }
    }
}
