#include "vxutil/listctrl/ColumnSettings.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "vxutil/runtime/RTrace.h"

namespace {

// Keeps the texts of the method-trace entries instead of writing them to a profile.
struct RecordingTrace : RTrace {
    RecordingTrace() : RTrace(0, kTraceAllLevels, "Debug", "Trace", 1) {}
    ~RecordingTrace() override { RTrace::SetModule(previous); }
    int Trace(const char* text, unsigned long) override {
        entries.emplace_back(text);
        return 1;
    }
    std::vector<std::string> entries;
    RTrace* previous = RTrace::SetModule(this);
};

class ColumnSettingsTest : public ::testing::Test {
protected:
    int columns = 3;
    vx::ColumnSettings settings{[this] { return columns; }};
};

TEST_F(ColumnSettingsTest, TypesImagesAndMenusNeedAnExistingColumnOrTheDefault) {
    EXPECT_EQ(settings.GetColumnType(0), vx::kCellText);
    EXPECT_TRUE(settings.EnableColumnType(1, vx::kCellHexadecimal));
    for (auto [column, type] : {std::pair{2, 7u}, {2, 0u}, {3, 2u}, {-2, 2u}})
        EXPECT_FALSE(settings.EnableColumnType(column, type)) << column << " " << type;
    EXPECT_TRUE(settings.EnableColumnType(-1, vx::kCellCheckBox));
    EXPECT_TRUE(settings.EnableColumnImage(2, 0x51));
    EXPECT_TRUE(settings.EnableColumnImageOverlay(1, 0x52));
    EXPECT_FALSE(settings.EnableColumnImage(3, 0x53));
    EXPECT_TRUE(settings.EnableContextMenu(-1, 3021));
    EXPECT_TRUE(settings.EnableContextMenu(1, 3022));
    EXPECT_TRUE(settings.EnableContextMenu(2, 3023));
    EXPECT_TRUE(settings.EnableContextMenu(2, 0));  // back to the default
    EXPECT_FALSE(settings.EnableContextMenu(3, 3024));
    const struct {
        unsigned type;
        vx::ColumnImage image, overlay;
        int menu;
    } expected[] = {{2, 0, 0, 3021},
                    {2, 0, 0, 3021},
                    {5, 0, 0x52, 3022},
                    {2, 0x51, 0, 3021},
                    {2, 0, 0, 3021}};  // columns -1 to 3
    for (int column = -1; column <= 3; ++column) {
        const auto& e = expected[column + 1];
        EXPECT_EQ(settings.GetColumnType(column), e.type) << column;
        EXPECT_EQ(settings.GetColumnImage(column), e.image) << column;
        EXPECT_EQ(settings.GetColumnImageOverlay(column), e.overlay) << column;
        EXPECT_EQ(settings.GetContextMenu(column), e.menu) << column;
    }
    columns = 4;  // existence is asked of the view each time
    EXPECT_TRUE(settings.EnableColumnType(3, vx::kCellPrivateNumber));
    EXPECT_EQ(settings.GetColumnType(3), vx::kCellPrivateNumber);
}

TEST_F(ColumnSettingsTest, KorvelSwitchesMayPrecedeTheirColumns) {
    EXPECT_TRUE(settings.CanColumnSize(2));
    EXPECT_FALSE(settings.CanColumnSize(3));  // not there
    EXPECT_FALSE(settings.CanColumnSize(-1));
    EXPECT_TRUE(settings.EnableColumnSize(1, false));
    EXPECT_TRUE(settings.EnableColumnSize(4, false));
    EXPECT_TRUE(settings.EnableColumnToggle(1, true, 3205));
    EXPECT_TRUE(settings.EnableColumnToggle(4, false, 3211));
    EXPECT_TRUE(settings.EnableDirectEdit(4, true));
    EXPECT_FALSE(settings.EnableDirectEdit(-1, true));
    columns = 6;
    EXPECT_FALSE(settings.CanColumnSize(1));
    EXPECT_FALSE(settings.CanColumnSize(4));
    EXPECT_TRUE(settings.CanColumnSize(5));
    EXPECT_TRUE(settings.CanToggle(1));
    EXPECT_FALSE(settings.CanToggle(4));
    EXPECT_EQ(settings.GetToggleCommand(4), 3211u);  // kept while toggling is off
    EXPECT_TRUE(settings.IsDirectEdit(4));
    EXPECT_FALSE(settings.IsDirectEdit(1));
}

TEST_F(ColumnSettingsTest, OperationsTraceUnderTheirListControlClass) {
    RecordingTrace trace;
    settings.EnableColumnType(0, vx::kCellCheckBox);
    settings.EnableContextMenu(-1, 1);
    settings.CanToggle(0);
    EXPECT_EQ(trace.entries,
              (std::vector<std::string>{"RListCtrl:CColumnEditListCtrl::EnableColumnType:Enter",
                                        "RListCtrl:CColumnEditListCtrl::EnableColumnType:Exit",
                                        "RListCtrl:CColumnMenuListCtrl::EnableContextMenu:Enter",
                                        "RListCtrl:CColumnMenuListCtrl::EnableContextMenu:Exit",
                                        "RListCtrl:CKorvelListCtrl::CanToggle:Enter",
                                        "RListCtrl:CKorvelListCtrl::CanToggle:Exit"}));
}

TEST(ColumnFromXTest, RunningWidthsFindTheColumnUnderX) {
    const std::vector<int> widths = {150, 50, 0, 50};
    // A column of no width is never hit; right of the last column there is none.
    for (auto [x, column] : {std::pair{-5, 0}, {149, 0}, {150, 1}, {200, 3}, {249, 3}, {250, -1}})
        EXPECT_EQ(vx::ColumnFromX(widths, x), column) << x;
    EXPECT_EQ(vx::ColumnFromX({}, 0), -1);
}

}  // namespace
