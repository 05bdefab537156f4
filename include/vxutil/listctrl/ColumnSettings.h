// The per-column settings of the column-edit list controls, apart from the view that shows
// them: cell types (which in-cell editor a column gets), column images, context menus, and the
// sizing, toggle and direct-edit switches. A list view owns one and tells it how many columns
// exist; the view's own hooks (CanColumnSize, CanToggle, IsDirectEdit) start from these
// answers. Each operation writes its trace entries under "RListCtrl", named after the list
// control class it belongs to.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "vxutil/export.h"

namespace vx {

// Cell types: the in-cell editor of a column.
inline constexpr unsigned kCellText = 1;
inline constexpr unsigned kCellCheckBox = 2;
inline constexpr unsigned kCellToggleBitmap = 3;
inline constexpr unsigned kCellFolderBrowse = 4;
inline constexpr unsigned kCellHexadecimal = 5;
inline constexpr unsigned kCellPrivateNumber = 6;

// A column's image or overlay image: an opaque id (0 for none) that the view maps to a
// picture, such as an HBITMAP on Windows or a key into the view's pixmaps.
using ColumnImage = std::intptr_t;

class VXUTIL_API ColumnSettings {
public:
    // The number of columns the view has at the moment of asking.
    using ColumnCounter = std::function<int()>;

    // Without a counter no column exists. A new object gives every column the text type, no
    // images and no menu, and makes every column sizable, not toggling, not directly edited.
    explicit ColumnSettings(ColumnCounter columnCount = {});

    // Columns are counted from 0.
    bool ColumnExists(int column) const;

    // CColumnEditListCtrl. Only the types 1 to 6 are accepted; column -1 sets the default
    // type of columns without a type of their own, any other column must exist. False when
    // nothing was stored.
    bool EnableColumnType(int column, unsigned type);
    unsigned GetColumnType(int column) const;
    // Images of existing columns; false when nothing was stored.
    bool EnableColumnImage(int column, ColumnImage image);
    ColumnImage GetColumnImage(int column) const;
    bool EnableColumnImageOverlay(int column, ColumnImage image);
    ColumnImage GetColumnImageOverlay(int column) const;

    // CColumnMenuListCtrl. Column -1 sets the default menu, any other column must exist.
    bool EnableContextMenu(int column, int menuId);
    // The column's own menu, else the default when it has none (or 0); -1 (no column) gets
    // the default.
    int GetContextMenu(int column) const;

    // CKorvelListCtrl. The switches are kept for any column from 0 on, existing or not yet
    // inserted, so that a list may set them up before it inserts its columns; false for a
    // negative column.
    bool EnableColumnSize(int column, bool enable);
    // A column that does not exist is not sizable.
    bool CanColumnSize(int column) const;
    // The command id is kept whether toggling is on or off.
    bool EnableColumnToggle(int column, bool enable, unsigned commandId);
    bool CanToggle(int column) const;
    unsigned GetToggleCommand(int column) const;
    bool EnableDirectEdit(int column, bool enable);
    bool IsDirectEdit(int column) const;

private:
    ColumnCounter m_columnCount;
    unsigned m_nDefaultType;
    std::vector<unsigned> m_types;
    std::vector<ColumnImage> m_images;
    std::vector<ColumnImage> m_overlays;
    int m_nDefaultMenu;
    std::vector<int> m_menus;
    std::vector<unsigned> m_notSizable;
    std::vector<unsigned> m_toggle;
    std::vector<unsigned> m_toggleCommands;
    std::vector<unsigned> m_directEdit;
};

// The column under client x-coordinate `x` of a list whose columns have `widths`, from the
// left: the first column whose right edge lies beyond x, found by a running total of widths
// (so a point left of the list is in column 0 and horizontal scrolling is not accounted for);
// -1 right of the last column.
VXUTIL_API int ColumnFromX(std::span<const int> widths, int x);

}  // namespace vx
