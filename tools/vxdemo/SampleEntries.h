// The entries the sample query view shows: what a client tool holds after a query, kept in the
// foundation classes (one field/value list per entry).
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "vxutil/foundation/CVXFieldValueList.h"

struct SampleField {
    std::uint32_t id;
    QString label;
};

// The columns, in order: request id, summary, status, priority, cost (a decimal), created.
const std::vector<SampleField>& SampleFields();
std::vector<std::unique_ptr<CVXFieldValueList>> MakeSampleEntries();
// The value as the user sees it; decimals in the user's regional number format.
QString DisplayText(const CVXValueStruct& value);
