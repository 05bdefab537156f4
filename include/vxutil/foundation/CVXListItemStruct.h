// The base of every foundation object that wraps one record of the server API.
#pragma once

#include <cstdint>
#include <new>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXListItemStruct {
public:
    virtual ~CVXListItemStruct();

    // Display text. Classes without a display form leave `out` as it was given.
    virtual void ToText(CGNString& out) const;
    // A new object of the same class, owned by the caller: a copy of `source`, or a default
    // object when `source` is null. Null when the allocation fails or `source` is of another
    // class.
    virtual CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const = 0;
    // Fills all GetRecordSize() bytes of the caller's record; false when `record` is null.
    // Text pointers of the record borrow this object's buffers: the record must not outlive it,
    // nor be freed by the caller.
    virtual bool CopyTo(void* record) const = 0;

    // Byte size of the wrapped record: the element size of the arrays built from a list.
    std::uint32_t GetRecordSize() const { return m_nRecordSize; }
    // The base equality compares record sizes only, never content.
    bool IsEqual(const CVXListItemStruct& other) const {
        return m_nRecordSize == other.m_nRecordSize;
    }

protected:
    explicit CVXListItemStruct(std::uint32_t recordSize) : m_nRecordSize(recordSize) {}
    CVXListItemStruct(const CVXListItemStruct&) = default;
    CVXListItemStruct& operator=(const CVXListItemStruct&) = default;

    // The usual Duplicate of a class `T` that can be copied and default-constructed. A copy
    // whose strings cannot be allocated is a failed duplicate too, never an exception.
    template <class T>
    static CVXListItemStruct* DuplicateAs(const CVXListItemStruct* source) {
        try {
            if (source == nullptr) return new T;
            const T* typed = dynamic_cast<const T*>(source);
            return typed != nullptr ? new T(*typed) : nullptr;
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }

private:
    std::uint32_t m_nRecordSize;
};
