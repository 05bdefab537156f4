// The points that place a form element: one for a position, two for a line or a sized
// position, four for a box.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/VXRecords.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXCoordList {
public:
    CVXCoordList() = default;
    explicit CVXCoordList(const VXCoordList& record);
    CVXCoordList(const CVXCoordList& other);
    // On a failed copy an assertion is reported and the list keeps the count with no points.
    CVXCoordList& operator=(const VXCoordList& record);
    CVXCoordList& operator=(const CVXCoordList& other);
    ~CVXCoordList();

    std::uint32_t GetCount() const { return m_nCount; }
    // The point at `index`, or null.
    const VXCoordStruct* GetPoint(std::uint32_t index) const;
    bool GetFirstPoint(std::int32_t& x, std::int32_t& y) const;
    bool SetFirstPoint(std::int32_t x, std::int32_t y);
    // Same count and the same points, index by index.
    bool IsEqual(const CVXCoordList& other) const;

    // The definition text: the count and a backslash (two after a count of 0), then x and y of
    // each point, each followed by a backslash. The text stays valid until the next call.
    const CGNString* GetText();
    // Reads what GetText writes, moving `cursor` past it. On failure the list is unchanged.
    bool ReadText(const char*& cursor);

    // Interpretations. A line is two points sharing x or y; a box is four points each aligned
    // with the next (its width must be positive and its height not 0); a position is one point
    // (width and height -1) or two (the size between them).
    bool GetLine(std::int32_t& x, std::int32_t& y, std::int32_t& length, int& vertical) const;
    bool GetBox(std::int32_t& left, std::int32_t& top, std::int32_t& width,
                std::int32_t& height) const;
    bool GetPosition(std::int32_t& x, std::int32_t& y, std::int32_t& width,
                     std::int32_t& height) const;
    // Replace the points by the shape; false (after an assertion) when they cannot be allocated.
    bool SetLine(std::int32_t x, std::int32_t y, std::int32_t length, int vertical);
    bool SetBox(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);
    // A negative width or height stores one point: no size.
    bool SetPosition(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height);

    // For one or two points: moves the first point to (x, y), keeping the size of two points
    // with the second point right of and below the first. False for other counts.
    bool MoveTo(std::int32_t x, std::int32_t y);
    bool Offset(std::int32_t dx, std::int32_t dy);

    // Gives `record` the count and a new block of points that the caller frees with
    // std::free. The record's pointer is left just past the block's end and only the first
    // point is filled: see the definition for why this stays so.
    bool ExportTo(VXCoordList* record) const;

private:
    bool CopyPoints(const VXCoordStruct* points, std::uint32_t count);
    bool SetPoints(const VXCoordStruct* points, std::uint32_t count);
    void FreePoints();

    std::uint32_t m_nCount = 0;
    VXCoordStruct* m_pPoints = nullptr;  // owned; null when the count is 0 or nothing was copied
    CGNString* m_pText = nullptr;        // owned; the last definition text
};
