#include "SampleEntries.h"

#include <string>

#include "vxutil/decimal/DecimalDisplay.h"
#include "vxutil/foundation/VXValueRecords.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

enum FieldId : std::uint32_t {
    kRequestId = 1,
    kCreated = 3,
    kPriority = 4,
    kStatus = 7,
    kSummary = 8,
    kCost = 10,
};

struct Row {
    const char* id;
    const char* summary;
    std::uint32_t status;
    std::int32_t priority;
    const char* cost;
    std::int32_t created;
};

constexpr Row kRows[] = {
    {"000000000000101", "Printer on floor 3 jams", 1, 2, "120.50", 1767225600},
    {"000000000000102", "New laptop for accounting", 0, 1, "1899.00", 1767312000},
    {"000000000000103", "VPN drops every hour", 2, 3, "0.00", 1767398400},
    {"000000000000104", "Printer toner empty", 3, 1, "64.99", 1767484800},
    {"000000000000105", "Password reset for J. Doe", 3, 2, "0.00", 1767571200},
    {"000000000000106", "Server room too warm", 1, 3, "2450.75", 1767657600},
};

}  // namespace

const std::vector<SampleField>& SampleFields() {
    static const std::vector<SampleField> fields = {
        {kRequestId, QStringLiteral("Request ID")},
        {kSummary, QStringLiteral("Summary")},
        {kStatus, QStringLiteral("Status")},
        {kPriority, QStringLiteral("Priority")},
        {kCost, QStringLiteral("Cost")},
        {kCreated, QStringLiteral("Created")},
    };
    return fields;
}

std::vector<std::unique_ptr<CVXFieldValueList>> MakeSampleEntries() {
    std::vector<std::unique_ptr<CVXFieldValueList>> entries;
    for (const Row& row : kRows) {
        auto entry = std::make_unique<CVXFieldValueList>();
        CVXValueStruct value;
        value.SetChar(row.id);
        entry->AddFieldValue(kRequestId, value);
        value.SetChar(row.summary);
        entry->AddFieldValue(kSummary, value);
        value.SetEnum(row.status);
        entry->AddFieldValue(kStatus, value);
        value.SetInteger(row.priority);
        entry->AddFieldValue(kPriority, value);
        value.SetDecimal(row.cost);
        entry->AddFieldValue(kCost, value);
        value.SetTime(row.created);
        entry->AddFieldValue(kCreated, value);
        entries.push_back(std::move(entry));
    }
    return entries;
}

QString DisplayText(const CVXValueStruct& value) {
    if (value.GetDataType() == VX_DATA_TYPE_DECIMAL) {
        std::string regional;
        if (FormatDecimalForDisplay(value.GetText().view(), 2, true, regional))
            return vx::ToQString(regional.c_str());
    }
    CGNString text;
    value.ToText(text);
    return vx::ToQString(text);
}
