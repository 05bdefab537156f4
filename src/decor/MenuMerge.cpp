#include "vxutil/decor/MenuMerge.h"

#include "decor/DebugOutput.h"
#include "vxutil/decor/MenuMergeRules.h"

namespace vx {
namespace {

// Where merged items go: before the first anchor of a menu bar, else at the end.
int InsertionPoint(const MergeMenu& destination, bool topLevel) {
    if (!topLevel) return MergeMenu::kAppend;
    const int count = destination.GetItemCount();
    for (int i = 0; i < count; ++i)
        if (IsMergeAnchor(destination.GetItemText(i))) return i;
    return MergeMenu::kAppend;
}

// The destination's pop-up named like `text`, or null.
MergeMenu* MatchingPopup(const MergeMenu& destination, const std::string& text) {
    const int count = destination.GetItemCount();
    for (int i = 0; i < count; ++i) {
        MergeMenu* popup = destination.GetSubMenu(i);
        if (popup != nullptr && IsSameMenuText(destination.GetItemText(i), text)) return popup;
    }
    return nullptr;
}

}  // namespace

MergeMenu::~MergeMenu() = default;

int MergeMenus(MergeMenu& destination, const MergeMenu& source, bool topLevel) {
    const int count = source.GetItemCount();
    int before = InsertionPoint(destination, topLevel);
    int result = 1;
    // Reports a refused insertion; an item that arrived before the anchor moves the anchor on.
    const auto arrived = [&](bool done) {
        if (!done) {
            decor::WriteDebugOutput(before == MergeMenu::kAppend
                                        ? "MergeMenu: AppendMenu failed!\n"
                                        : "MergeMenu: InsertMenu failed!\n");
            result = 0;
        } else if (before != MergeMenu::kAppend) {
            ++before;
        }
        return done;
    };
    for (int i = 0; i < count; ++i) {
        if (source.IsSeparator(i)) {
            arrived(destination.InsertSeparator(before));
            continue;
        }
        const MergeMenu* sourcePopup = source.GetSubMenu(i);
        if (sourcePopup == nullptr) {
            arrived(destination.InsertItem(before, source, i));
            continue;
        }
        MergeMenu* popup = MatchingPopup(destination, source.GetItemText(i));
        if (popup == nullptr) {
            popup = destination.CreatePopup();
            if (popup == nullptr) {
                decor::WriteDebugOutput("MergeMenu: CreatePopupMenu failed!\n");
                result = 0;
                continue;
            }
            if (!arrived(destination.InsertPopup(before, *popup, source, i))) continue;
        }
        if (MergeMenus(*popup, *sourcePopup, false) == 0) result = 0;
    }
    return result;
}

}  // namespace vx
