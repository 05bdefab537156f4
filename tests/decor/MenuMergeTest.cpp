#include "vxutil/decor/MenuMerge.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

// An in-memory menu written as "File(Open, -, Exit), Help": a name with parentheses is a pop-up,
// "-" a separator. It and its pop-ups refuse the operation named `refused`.
struct FakeMenu : vx::MergeMenu {
    explicit FakeMenu(std::string_view layout, std::string refusing = "")
        : refused(std::move(refusing)) {
        Parse(layout);
    }
    int GetItemCount() const override { return static_cast<int>(items.size()); }
    std::string GetItemText(int i) const override { return items.at(i).first; }
    bool IsSeparator(int i) const override { return GetItemText(i) == "-"; }
    MergeMenu* GetSubMenu(int i) const override { return items.at(i).second; }
    bool InsertItem(int at, const MergeMenu& from, int i) override {
        return Insert("InsertItem", at, {from.GetItemText(i), nullptr});
    }
    bool InsertSeparator(int at) override { return Insert("InsertSeparator", at, {"-", nullptr}); }
    MergeMenu* CreatePopup() override { return refused == "CreatePopup" ? nullptr : NewPopup(); }
    bool InsertPopup(int at, MergeMenu& popup, const MergeMenu& from, int i) override {
        return Insert("InsertPopup", at, {from.GetItemText(i), static_cast<FakeMenu*>(&popup)});
    }

    bool Insert(std::string_view operation, int at, std::pair<std::string, FakeMenu*> item) {
        EXPECT_TRUE(at == kAppend || (at >= 0 && at <= GetItemCount())) << at;
        if (refused == operation) return false;
        items.insert(at == kAppend ? items.end() : items.begin() + at, std::move(item));
        return true;
    }
    FakeMenu* NewPopup() { return popups.emplace_back(new FakeMenu("", refused)).get(); }
    // Reads items up to the end or a ")", which it consumes.
    void Parse(std::string_view& rest) {
        for (std::string* text = nullptr; !rest.empty();) {
            const char c = rest.front();
            rest.remove_prefix(1);
            if (c == ')') return;
            if (c == '(') {
                (items.back().second = NewPopup())->Parse(rest);
            } else if (c == ',') {
                text = nullptr;
            } else if (c != ' ' || text != nullptr) {
                (text != nullptr ? *text : *(text = &items.emplace_back().first)) += c;
            }
        }
    }
    std::string Layout() const {
        std::string layout;
        for (const auto& [text, popup] : items)
            layout += (layout.empty() ? "" : ", ") + text +
                      (popup != nullptr ? "(" + popup->Layout() + ")" : "");
        return layout;
    }

    std::vector<std::pair<std::string, FakeMenu*>> items;  // a text and its pop-up, if any
    std::vector<std::unique_ptr<FakeMenu>> popups;
    std::string refused;
};

// Each row merges a source into a destination that refuses the operation named, if any, and
// gives the merged layout and what was reported.
TEST(MenuMergeTest, MergesBeforeTheAnchorsOfAMenuBarAndIntoPopupsOfTheSameName) {
    const struct {
        const char *destination, *source;
        bool topLevel;
        const char *merged, *refused = "", *report = "";
    } rows[] = {
        {"File, He&lp", "Tools", true, "File, Tools, He&lp"},
        // Items keep their order and all go before the first anchor, "&" or not ...
        {"?, &Window, Help", "Edit, -, Print", true, "Edit, -, Print, ?, &Window, Help"},
        // ... or at the end without one; only the English names are anchors.
        {"File, &Hilfe", "Tools", true, "File, &Hilfe, Tools"},
        // A pop-up has no anchors, at the top as below it.
        {"File, Help", "Tools", false, "File, Help, Tools"},
        {"&File(&Open, Help, Recent(One)), Help", "F&ile(&Recent(Two), Save), Tools", true,
         "&File(&Open, Help, Recent(One, Two), Save), Tools, Help"},
        // Only a pop-up matches a pop-up, and a new pop-up gets the whole content.
        {"File(Open), Print, Print(Old)", "Print(Setup(Paper, -, Tray)), file(New)", true,
         "File(Open), Print, Print(Old, Setup(Paper, -, Tray)), file(New)"},
        // A refused operation is reported, and the rest still merges.
        {"File(Open), Help", "File(Save), Tools, -", true, "File(Open), -, Help", "InsertItem",
         "MergeMenu: AppendMenu failed!\nMergeMenu: InsertMenu failed!\n"},
        {"File, Help", "Tools(Options), Edit", true, "File, Edit, Help", "CreatePopup",
         "MergeMenu: CreatePopupMenu failed!\n"},
        {"File(Open)", "File(Recent(One)), -", true, "File(Open), -", "InsertPopup",
         "MergeMenu: AppendMenu failed!\n"},
    };
    for (const auto& row : rows) {
        FakeMenu destination(row.destination, row.refused);
        testing::internal::CaptureStderr();
        const int result = vx::MergeMenus(destination, FakeMenu(row.source), row.topLevel);
        [[maybe_unused]] const std::string report = testing::internal::GetCapturedStderr();
        EXPECT_EQ(result, *row.report == '\0' ? 1 : 0) << row.source;
        EXPECT_EQ(destination.Layout(), row.merged);
#ifndef _WIN32  // there the reports go to the debugger
        EXPECT_EQ(report, row.report);
#endif
    }
}

}  // namespace
