#include "vxutil/listctrl/ColumnSettings.h"

#include <utility>

#include "listctrl/ListTrace.h"

namespace vx {
namespace {

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
    ListTrace trace("CColumnEditListCtrl::EnableColumnType");
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
    ListTrace trace("CColumnEditListCtrl::GetColumnType");
    const unsigned own = EntryAt(m_types, column);
    return own != 0 ? own : m_nDefaultType;
}

bool ColumnSettings::EnableColumnImage(int column, ColumnImage image) {
    ListTrace trace("CColumnEditListCtrl::EnableColumnImage");
    if (!ColumnExists(column)) return false;
    StoreAt(m_images, column, image);
    return true;
}

ColumnImage ColumnSettings::GetColumnImage(int column) const {
    ListTrace trace("CColumnEditListCtrl::GetColumnImage");
    return EntryAt(m_images, column);
}

bool ColumnSettings::EnableColumnImageOverlay(int column, ColumnImage image) {
    ListTrace trace("CColumnEditListCtrl::EnableColumnImageOverlay");
    if (!ColumnExists(column)) return false;
    StoreAt(m_overlays, column, image);
    return true;
}

ColumnImage ColumnSettings::GetColumnImageOverlay(int column) const {
    ListTrace trace("CColumnEditListCtrl::GetColumnImageOverlay");
    return EntryAt(m_overlays, column);
}

bool ColumnSettings::EnableContextMenu(int column, int menuId) {
    ListTrace trace("CColumnMenuListCtrl::EnableContextMenu");
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
    ListTrace trace("CKorvelListCtrl::EnableColumnSize");
    if (column < 0) return false;
    StoreAt(m_notSizable, column, enable ? 0u : 1u);
    return true;
}

bool ColumnSettings::CanColumnSize(int column) const {
    ListTrace trace("CKorvelListCtrl::CanColumnSize");
    return ColumnExists(column) && EntryAt(m_notSizable, column) == 0;
}

bool ColumnSettings::EnableColumnToggle(int column, bool enable, unsigned commandId) {
    ListTrace trace("CKorvelListCtrl::EnableColumnToggle");
    if (column < 0) return false;
    StoreAt(m_toggle, column, enable ? 1u : 0u);
    StoreAt(m_toggleCommands, column, commandId);
    return true;
}

bool ColumnSettings::CanToggle(int column) const {
    ListTrace trace("CKorvelListCtrl::CanToggle");
    return EntryAt(m_toggle, column) != 0;
}

unsigned ColumnSettings::GetToggleCommand(int column) const {
    return EntryAt(m_toggleCommands, column);
}

bool ColumnSettings::EnableDirectEdit(int column, bool enable) {
    ListTrace trace("CKorvelListCtrl::EnableDirectEdit");
    if (column < 0) return false;
    StoreAt(m_directEdit, column, enable ? 1u : 0u);
    return true;
}

bool ColumnSettings::IsDirectEdit(int column) const {
    ListTrace trace("CKorvelListCtrl::IsDirectEdit");
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
