#include "vxutil/listctrl/ColumnSettings.h"

#include <utility>

#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"

namespace vx {
namespace {

constexpr const char* kTraceSource = "RListCtrl";

// The per-column arrays grow on demand; a column beyond an array has no entry (0).
template <typename T>
void StoreAt(std::vector<T>& entries, int column, T value) {
    const auto index = static_cast<std::size_t>(column);
    if (index >= entries.size()) entries.resize(index + 1);
    entries[index] = value;
}

template <typename T>
T EntryAt(const std::vector<T>& entries, int column) {
    const auto index = static_cast<std::size_t>(column);
    return column >= 0 && index < entries.size() ? entries[index] : T{};
}

}  // namespace

ColumnSettings::ColumnSettings(ColumnCounter columnCount)
    : m_columnCount(std::move(columnCount)), m_nDefaultType(kCellText), m_nDefaultMenu(0) {}

bool ColumnSettings::ColumnExists(int column) const {
    return column >= 0 && m_columnCount && column < m_columnCount();
}

bool ColumnSettings::EnableColumnType(int column, unsigned type) {
    RMethodTrace trace(kTraceSource, "CColumnEditListCtrl::EnableColumnType", kTraceAllLevels);
    if (type < kCellText || type > kCellPrivateNumber) return false;
    if (column == -1) {
        m_nDefaultType = type;
        return true;
    }
    if (!ColumnExists(column)) return false;
    StoreAt(m_types, column, type);
    return true;
}

unsigned ColumnSettings::GetColumnType(int column) const {
    RMethodTrace trace(kTraceSource, "CColumnEditListCtrl::GetColumnType", kTraceAllLevels);
    const unsigned own = EntryAt(m_types, column);
    return own != 0 ? own : m_nDefaultType;
}

bool ColumnSettings::EnableColumnImage(int column, ColumnImage image) {
    RMethodTrace trace(kTraceSource, "CColumnEditListCtrl::EnableColumnImage", kTraceAllLevels);
    if (!ColumnExists(column)) return false;
    StoreAt(m_images, column, image);
    return true;
}

ColumnImage ColumnSettings::GetColumnImage(int column) const {
    RMethodTrace trace(kTraceSource, "CColumnEditListCtrl::GetColumnImage", kTraceAllLevels);
    return EntryAt(m_images, column);
}

bool ColumnSettings::EnableColumnImageOverlay(int column, ColumnImage image) {
    RMethodTrace trace(kTraceSource, "CColumnEditListCtrl::EnableColumnImageOverlay",
                       kTraceAllLevels);
    if (!ColumnExists(column)) return false;
    StoreAt(m_overlays, column, image);
    return true;
}

ColumnImage ColumnSettings::GetColumnImageOverlay(int column) const {
    RMethodTrace trace(kTraceSource, "CColumnEditListCtrl::GetColumnImageOverlay", kTraceAllLevels);
    return EntryAt(m_overlays, column);
}

bool ColumnSettings::EnableContextMenu(int column, int menuId) {
    RMethodTrace trace(kTraceSource, "CColumnMenuListCtrl::EnableContextMenu", kTraceAllLevels);
    if (column == -1) {
        m_nDefaultMenu = menuId;
        return true;
    }
    if (!ColumnExists(column)) return false;
    StoreAt(m_menus, column, menuId);
    return true;
}

int ColumnSettings::GetContextMenu(int column) const {
    const int own = EntryAt(m_menus, column);
    return own != 0 ? own : m_nDefaultMenu;
}

bool ColumnSettings::EnableColumnSize(int column, bool enable) {
    RMethodTrace trace(kTraceSource, "CKorvelListCtrl::EnableColumnSize", kTraceAllLevels);
    if (column < 0) return false;
    StoreAt(m_notSizable, column, enable ? 0u : 1u);
    return true;
}

bool ColumnSettings::CanColumnSize(int column) const {
    RMethodTrace trace(kTraceSource, "CKorvelListCtrl::CanColumnSize", kTraceAllLevels);
    return ColumnExists(column) && EntryAt(m_notSizable, column) == 0;
}

bool ColumnSettings::EnableColumnToggle(int column, bool enable, unsigned commandId) {
    RMethodTrace trace(kTraceSource, "CKorvelListCtrl::EnableColumnToggle", kTraceAllLevels);
    if (column < 0) return false;
    StoreAt(m_toggle, column, enable ? 1u : 0u);
    StoreAt(m_toggleCommands, column, commandId);
    return true;
}

bool ColumnSettings::CanToggle(int column) const {
    RMethodTrace trace(kTraceSource, "CKorvelListCtrl::CanToggle", kTraceAllLevels);
    return EntryAt(m_toggle, column) != 0;
}

unsigned ColumnSettings::GetToggleCommand(int column) const {
    return EntryAt(m_toggleCommands, column);
}

bool ColumnSettings::EnableDirectEdit(int column, bool enable) {
    RMethodTrace trace(kTraceSource, "CKorvelListCtrl::EnableDirectEdit", kTraceAllLevels);
    if (column < 0) return false;
    StoreAt(m_directEdit, column, enable ? 1u : 0u);
    return true;
}

bool ColumnSettings::IsDirectEdit(int column) const {
    RMethodTrace trace(kTraceSource, "CKorvelListCtrl::IsDirectEdit", kTraceAllLevels);
    return EntryAt(m_directEdit, column) != 0;
}

int ColumnFromX(std::span<const int> widths, int x) {
    long long right = 0;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        right += widths[column];
        if (right > x) return static_cast<int>(column);
    }
    return -1;
}

}  // namespace vx
