#include "vxutil/decor/MenuMerge.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

// An in-memory menu written as "File(Open, -, Exit), Help": a name with parentheses is a pop-up,
// "-" a separator. It refuses the operation named `refused`, and so do its pop-ups.
class FakeMenu : public vx::MergeMenu {
public:
    explicit FakeMenu(std::string_view layout, std::string refused = "")
        : m_refused(std::move(refused)) {
        Parse(layout);
    }

    int GetItemCount() const override { return static_cast<int>(m_items.size()); }
    std::string GetItemText(int index) const override { return m_items.at(index).text; }
    bool IsSeparator(int index) const override { return GetItemText(index) == "-"; }
    MergeMenu* GetSubMenu(int index) const override { return m_items.at(index).popup; }
    bool InsertItem(int before, const MergeMenu& source, int index) override {
        return Insert("InsertItem", before, {source.GetItemText(index), nullptr});
    }
    bool InsertSeparator(int before) override { return Insert("InsertSeparator", before, {"-"}); }
    MergeMenu* CreatePopup() override { return m_refused == "CreatePopup" ? nullptr : NewPopup(); }
    bool InsertPopup(int before, MergeMenu& popup, const MergeMenu& source, int index) override {
        return Insert("InsertPopup", before,
                      {source.GetItemText(index), static_cast<FakeMenu*>(&popup)});
    }

    std::string Layout() const {
        std::string text;
        for (const Item& item : m_items)
            text += (text.empty() ? "" : ", ") + item.text +
                    (item.popup != nullptr ? "(" + item.popup->Layout() + ")" : "");
        return text;
    }

private:
    struct Item {
        std::string text;
        FakeMenu* popup = nullptr;
    };

    bool Insert(const char* operation, int before, const Item& item) {
        if (m_refused == operation) return false;
        EXPECT_TRUE(before == kAppend || (before >= 0 && before <= GetItemCount())) << before;
        m_items.insert(before == kAppend ? m_items.end() : m_items.begin() + before, item);
        return true;
    }
    FakeMenu* NewPopup() {
        return m_popups.emplace_back(std::make_unique<FakeMenu>("", m_refused)).get();
    }
    // Reads items up to the end or an unmatched ")", which it leaves in `layout`.
    void Parse(std::string_view& layout) {
        while (!layout.empty() && layout.front() != ')') {
            const std::size_t end = std::min(layout.find_first_of("(),"), layout.size());
            Item& item = m_items.emplace_back(Item{std::string(layout.substr(0, end))});
            item.text.erase(0, item.text.find_first_not_of(' '));
            layout.remove_prefix(end);
            if (!layout.empty() && layout.front() == '(') {
                layout.remove_prefix(1);
                (item.popup = NewPopup())->Parse(layout);
                layout.remove_prefix(1);
            }
            if (!layout.empty() && layout.front() == ',') layout.remove_prefix(1);
        }
    }

    std::vector<Item> m_items;
    std::vector<std::unique_ptr<FakeMenu>> m_popups;
    std::string m_refused;
};

// Each row merges a source into a destination that refuses the operation named, if any, and
// gives the merged layout and what was reported.
TEST(MenuMergeTest, MergesBeforeTheAnchorsOfAMenuBarAndIntoPopupsOfTheSameName) {
    const struct {
        const char *destination, *source;
        bool topLevel;
        const char *merged, *refused = "", *report = "";
    } rows[] = {
        {"File(Open), He&lp(About)", "Tools(Options)", true,
         "File(Open), Tools(Options), He&lp(About)"},
        // Items keep their order and all go before the first anchor, "&" or not ...
        {"File, ?, &Window, Help", "Edit, -, Print", true,
         "File, Edit, -, Print, ?, &Window, Help"},
        {"&Window", "File", true, "File, &Window"},
        // ... or at the end without one; only the English names are anchors.
        {"File(Open), &Hilfe", "Tools(Options)", true, "File(Open), &Hilfe, Tools(Options)"},
        // A pop-up has no anchors, at the top as below it.
        {"File, Help", "Tools", false, "File, Help, Tools"},
        {"&File(&Open, Help, Recent(One)), Help", "F&ile(&Recent(Two), Save), Tools", true,
         "&File(&Open, Help, Recent(One, Two), Save), Tools, Help"},
        // Only a pop-up matches a pop-up, and a new pop-up gets the whole content.
        {"File(Open), Print", "Print(Setup(Paper, -, Tray)), file(New)", true,
         "File(Open), Print, Print(Setup(Paper, -, Tray)), file(New)"},
        {"File(Open)", "", true, "File(Open)"},
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
