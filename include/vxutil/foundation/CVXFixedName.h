// The common part of the name wrappers: a record that is one fixed-size text buffer.
#pragma once

#include <cstddef>
#include <cstring>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItemStruct.h"

namespace vx::names {

// Clears all `size` bytes of `buffer`, then stores at most size - 1 bytes of `text` without
// splitting a character. `text` is read up to its terminator or `available` bytes, whichever
// comes first, so a record's unterminated buffer is never read past its end. A null text leaves
// the buffer empty.
VXUTIL_API void Store(char* buffer, std::size_t size, const char* text, std::size_t available);

}  // namespace vx::names

// `Record` is a structure with one member, `char name[N]`: the name holds at most N - 1 bytes.
template <class Record>
class CVXFixedName : public CVXListItemStruct {
public:
    // Names longer than the buffer are cut, between characters and without a report.
    void SetName(const char* name) {
        vx::names::Store(m_szName, sizeof m_szName, name, sizeof m_szName);
    }
    const char* GetName() const { return m_szName; }

    bool CopyTo(void* record) const override {
        if (record == nullptr) return false;
        auto* target = static_cast<Record*>(record);
        vx::names::Store(target->name, sizeof target->name, m_szName, sizeof m_szName);
        return true;
    }

protected:
    CVXFixedName() : CVXListItemStruct(sizeof(Record)) { SetName(nullptr); }
    explicit CVXFixedName(const char* name) : CVXListItemStruct(sizeof(Record)) { SetName(name); }
    explicit CVXFixedName(const Record& record) : CVXListItemStruct(sizeof(Record)) {
        vx::names::Store(m_szName, sizeof m_szName, record.name, sizeof record.name);
    }
    CVXFixedName(const CVXFixedName& other) : CVXListItemStruct(other) { SetName(other.m_szName); }
    CVXFixedName& operator=(const CVXFixedName& other) {
        if (this != &other) SetName(other.m_szName);
        return *this;
    }

private:
    char m_szName[sizeof(Record::name)];
};
