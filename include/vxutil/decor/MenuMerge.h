// Merging one menu into another, over a small interface that a toolkit's menus implement (Win32
// menus, Qt's QMenuBar and QMenu), so that the merge itself is the same everywhere.
#pragma once

#include <string>

#include "vxutil/export.h"

namespace vx {

// One menu as the merge sees it. Items are numbered from 0. Each insertion takes the position of
// the item it goes before, or kAppend for the end; it returns false when the toolkit refused.
class VXUTIL_API MergeMenu {
public:
    static constexpr int kAppend = -1;

    virtual ~MergeMenu();

    virtual int GetItemCount() const = 0;
    virtual std::string GetItemText(int index) const = 0;
    virtual bool IsSeparator(int index) const = 0;
    // The pop-up menu of the item, or null when the item opens none. It lives as long as this
    // menu.
    virtual MergeMenu* GetSubMenu(int index) const = 0;

    // A copy of the source menu's plain item `sourceIndex`, with its command, text and state.
    virtual bool InsertItem(int before, const MergeMenu& source, int sourceIndex) = 0;
    virtual bool InsertSeparator(int before) = 0;
    // A new, empty pop-up menu that belongs to this menu (whether or not it gets inserted), or
    // null when none can be made.
    virtual MergeMenu* CreatePopup() = 0;
    // Puts `popup`, made by CreatePopup of this menu, in as an item with the text and state of
    // the source menu's item `sourceIndex`.
    virtual bool InsertPopup(int before, MergeMenu& popup, const MergeMenu& source,
                             int sourceIndex) = 0;
};

// Merges `source` into `destination`, item by item, in order:
// - with `topLevel` true (a menu bar), the items go before the first "Window", "?" or "Help"
//   item (IsMergeAnchor), or at the end when there is none; with `topLevel` false (a pop-up),
//   they go at the end;
// - a source pop-up whose text names a pop-up of the destination (IsSameMenuText; the first one
//   found) is merged into it, with `topLevel` false, and so on at every depth; any other pop-up
//   becomes a new pop-up, filled the same way;
// - separators and plain items are copied.
// A refused operation writes "MergeMenu: AppendMenu failed!\n", "MergeMenu: InsertMenu
// failed!\n" or "MergeMenu: CreatePopupMenu failed!\n" to the debugger output (standard error
// outside Windows) and makes the result 0; the merge goes on with the next item, so that as much
// as possible of the source arrives. 1 when everything was merged, an empty source included.
VXUTIL_API int MergeMenus(MergeMenu& destination, const MergeMenu& source, bool topLevel);

}  // namespace vx
