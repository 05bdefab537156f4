#include "vxutil/foundation/CVXCoordList.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <vector>

#include "foundation/DefinitionText.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace {

// Coordinates wrap around like the 32-bit arithmetic of the server's clients, without the
// undefined behaviour of signed overflow.
std::int32_t Wrap(std::int64_t value) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

std::int64_t Distance(std::int32_t a, std::int32_t b) {
    return std::abs(static_cast<std::int64_t>(a) - b);
}

// Diagonal points differ in both x and y; all others are aligned.
bool Aligned(const VXCoordStruct& a, const VXCoordStruct& b) {
    return a.x == b.x || a.y == b.y;
}

}  // namespace

CVXCoordList::CVXCoordList(const VXCoordList& record) {
    *this = record;
}

CVXCoordList::CVXCoordList(const CVXCoordList& other) {
    *this = other;
}

CVXCoordList& CVXCoordList::operator=(const VXCoordList& record) {
    GN_ASSERT(CopyPoints(record.coords, record.numItems));
    return *this;
}

CVXCoordList& CVXCoordList::operator=(const CVXCoordList& other) {
    if (this != &other) GN_ASSERT(CopyPoints(other.m_pPoints, other.m_nCount));
    return *this;
}

CVXCoordList::~CVXCoordList() {
    FreePoints();
    delete m_pText;
}

void CVXCoordList::FreePoints() {
    std::free(m_pPoints);
    m_pPoints = nullptr;
    m_nCount = 0;
}

bool CVXCoordList::CopyPoints(const VXCoordStruct* points, std::uint32_t count) {
    if (points != nullptr && points == m_pPoints) return true;
    FreePoints();
    m_nCount = count;
    // A count without points is kept as it is: older records carry such counts and the
    // interpretations then see a list of that size with no points to read.
    if (count == 0 || points == nullptr) return true;
    m_pPoints = static_cast<VXCoordStruct*>(std::calloc(count, sizeof(VXCoordStruct)));
    if (m_pPoints == nullptr) return false;
    std::copy(points, points + count, m_pPoints);
    return true;
}

bool CVXCoordList::SetPoints(const VXCoordStruct* points, std::uint32_t count) {
    const bool copied = CopyPoints(points, count);
    GN_ASSERT(copied);
    return copied;
}

const VXCoordStruct* CVXCoordList::GetPoint(std::uint32_t index) const {
    return (index < m_nCount && m_pPoints != nullptr) ? &m_pPoints[index] : nullptr;
}

bool CVXCoordList::GetFirstPoint(std::int32_t& x, std::int32_t& y) const {
    const VXCoordStruct* first = GetPoint(0);
    if (first == nullptr) return false;
    x = first->x;
    y = first->y;
    return true;
}

bool CVXCoordList::SetFirstPoint(std::int32_t x, std::int32_t y) {
    if (GetPoint(0) == nullptr) return false;
    m_pPoints[0] = {x, y};
    return true;
}

bool CVXCoordList::IsEqual(const CVXCoordList& other) const {
    if (m_nCount != other.m_nCount) return false;
    for (std::uint32_t i = 0; i < m_nCount; ++i) {
        const VXCoordStruct* mine = GetPoint(i);
        const VXCoordStruct* theirs = other.GetPoint(i);
        if (mine == nullptr || theirs == nullptr) {
            if (mine != theirs) return false;
            continue;
        }
        if (mine->x != theirs->x || mine->y != theirs->y) return false;
    }
    return true;
}

const CGNString* CVXCoordList::GetText() {
    if (m_pText == nullptr) m_pText = new (std::nothrow) CGNString;
    if (m_pText == nullptr) return nullptr;
    m_pText->Empty();
    vx::definition::WriteUnsigned(*m_pText, m_nCount);
    if (m_nCount == 0) *m_pText += '\\';  // an empty list is written "0\\"
    for (std::uint32_t i = 0; i < m_nCount; ++i) {
        const VXCoordStruct* point = GetPoint(i);
        vx::definition::WriteSigned(*m_pText, point != nullptr ? point->x : 0);
        vx::definition::WriteSigned(*m_pText, point != nullptr ? point->y : 0);
    }
    return m_pText;
}

bool CVXCoordList::ReadText(const char*& cursor) {
    const char* at = cursor;
    std::uint32_t count = 0;
    if (!vx::definition::ReadUnsigned(at, count)) return false;
    if (count == 0 && at != nullptr && *at == '\\') ++at;
    // The points grow as the text supplies them, so a count that the text does not back
    // allocates nothing large.
    std::vector<VXCoordStruct> points;
    for (std::uint32_t i = 0; i < count; ++i) {
        VXCoordStruct point{};
        if (!vx::definition::ReadSigned(at, point.x) || !vx::definition::ReadSigned(at, point.y)) {
            return false;
        }
        points.push_back(point);
    }
    if (!SetPoints(points.data(), count)) return false;
    cursor = at;
    return true;
}

bool CVXCoordList::GetLine(std::int32_t& x, std::int32_t& y, std::int32_t& length,
                           int& vertical) const {
    if (m_nCount != 2 || m_pPoints == nullptr || !Aligned(m_pPoints[0], m_pPoints[1])) {
        return false;
    }
    const VXCoordStruct& p0 = m_pPoints[0];
    const VXCoordStruct& p1 = m_pPoints[1];
    const std::int64_t dx = Distance(p0.x, p1.x);
    const std::int64_t dy = Distance(p0.y, p1.y);
    if (dx < dy) {
        vertical = 1;
        length = Wrap(dy);
        const VXCoordStruct& start = p0.y > p1.y ? p1 : p0;
        x = start.x;
        y = start.y;
    } else {
        vertical = 0;
        length = Wrap(dx);
        const VXCoordStruct& start = p0.x > p1.x ? p1 : p0;
        x = start.x;
        y = start.y;
    }
    return true;
}

bool CVXCoordList::GetBox(std::int32_t& left, std::int32_t& top, std::int32_t& width,
                          std::int32_t& height) const {
    if (m_nCount != 4 || m_pPoints == nullptr) return false;
    for (std::uint32_t i = 0; i < 4; ++i) {
        if (!Aligned(m_pPoints[i], m_pPoints[(i + 1) % 4])) return false;
    }
    std::int32_t right = m_pPoints[0].x;
    std::int32_t bottom = m_pPoints[0].y;
    left = right;
    top = bottom;
    for (std::uint32_t i = 1; i < 4; ++i) {
        left = std::min(left, m_pPoints[i].x);
        right = std::max(right, m_pPoints[i].x);
        top = std::min(top, m_pPoints[i].y);
        bottom = std::max(bottom, m_pPoints[i].y);
    }
    width = Wrap(static_cast<std::int64_t>(right) - left);
    height = Wrap(static_cast<std::int64_t>(bottom) - top);
    return width > 0 && height != 0;
}

bool CVXCoordList::GetPosition(std::int32_t& x, std::int32_t& y, std::int32_t& width,
                               std::int32_t& height) const {
    if ((m_nCount != 1 && m_nCount != 2) || m_pPoints == nullptr) return false;
    x = m_pPoints[0].x;
    y = m_pPoints[0].y;
    if (m_nCount == 1) {
        width = -1;
        height = -1;
    } else {
        width = Wrap(Distance(m_pPoints[1].x, m_pPoints[0].x));
        height = Wrap(Distance(m_pPoints[1].y, m_pPoints[0].y));
    }
    return true;
}

bool CVXCoordList::SetLine(std::int32_t x, std::int32_t y, std::int32_t length, int vertical) {
    const VXCoordStruct end = vertical != 0 ? VXCoordStruct{x, Wrap(std::int64_t{y} + length)}
                                            : VXCoordStruct{Wrap(std::int64_t{x} + length), y};
    const VXCoordStruct points[] = {{x, y}, end};
    return SetPoints(points, 2);
}

bool CVXCoordList::SetBox(std::int32_t left, std::int32_t top, std::int32_t width,
                          std::int32_t height) {
    const std::int32_t right = Wrap(std::int64_t{left} + width);
    const std::int32_t bottom = Wrap(std::int64_t{top} + height);
    const VXCoordStruct points[] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    return SetPoints(points, 4);
}

bool CVXCoordList::SetPosition(std::int32_t x, std::int32_t y, std::int32_t width,
                               std::int32_t height) {
    const VXCoordStruct points[] = {
        {x, y}, {Wrap(std::int64_t{x} + width), Wrap(std::int64_t{y} + height)}};
    return SetPoints(points, (width < 0 || height < 0) ? 1 : 2);
}

bool CVXCoordList::MoveTo(std::int32_t x, std::int32_t y) {
    if ((m_nCount != 1 && m_nCount != 2) || m_pPoints == nullptr) return false;
    if (m_nCount == 2) {
        m_pPoints[1] = {Wrap(x + Distance(m_pPoints[1].x, m_pPoints[0].x)),
                        Wrap(y + Distance(m_pPoints[1].y, m_pPoints[0].y))};
    }
    m_pPoints[0] = {x, y};
    return true;
}

bool CVXCoordList::Offset(std::int32_t dx, std::int32_t dy) {
    for (std::uint32_t i = 0; i < m_nCount && m_pPoints != nullptr; ++i) {
        m_pPoints[i] = {Wrap(std::int64_t{m_pPoints[i].x} + dx),
                        Wrap(std::int64_t{m_pPoints[i].y} + dy)};
    }
    return true;
}

bool CVXCoordList::ExportTo(VXCoordList* record) const {
    if (record == nullptr) return false;
    record->numItems = m_nCount;
    record->coords = nullptr;
    if (m_nCount == 0) return true;
    auto* block = static_cast<VXCoordStruct*>(std::calloc(m_nCount, sizeof(VXCoordStruct)));
    if (block == nullptr) return false;
    // The record's pointer is the write cursor and ends past the block; only the first slot
    // holds a point of the list. Client tools that export coordinates step back by the count
    // and read the first point only, so both quirks stay. The other slots are left zero.
    record->coords = block;
    for (std::uint32_t i = 0; i < m_nCount; ++i) {
        if (i == 0 && m_pPoints != nullptr) *record->coords = m_pPoints[0];
        ++record->coords;
    }
    return true;
}
