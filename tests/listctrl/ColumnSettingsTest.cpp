#include "vxutil/listctrl/ColumnSettings.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "vxutil/listctrl/ItemEnabledData.h"
#include "vxutil/runtime/RTrace.h"

namespace {

// Keeps the texts of the method-trace entries instead of writing them to a profile.
class RecordingTrace : public RTrace {
public:
    RecordingTrace() : RTrace(0, kTraceAllLevels, "Debug", "Trace", 1) {}
    ~RecordingTrace() override { RTrace::SetModule(m_previous); }

    int Trace(const char* text, unsigned long) override {
        entries.emplace_back(text);
        return 1;
    }

    std::vector<std::string> entries;

private:
    RTrace* m_previous = RTrace::SetModule(this);
};

class ColumnSettingsTest : public ::testing::Test {
protected:
    int columns = 3;
    vx::ColumnSettings settings{[this] { return columns; }};
};

TEST_F(ColumnSettingsTest, CellTypesAcceptOneToSixForExistingColumnsAndTheDefault) {
    EXPECT_EQ(settings.GetColumnType(0), vx::kCellText);
    EXPECT_TRUE(settings.EnableColumnType(1, vx::kCellHexadecimal));
    const struct {
        int column;
        unsigned type;
        bool stored;
    } calls[] = {
        {2, 7, false}, {2, 0, false}, {3, 2, false}, {-2, 2, false}, {-1, 2, true},
    };
    for (const auto& call : calls)
        EXPECT_EQ(settings.EnableColumnType(call.column, call.type), call.stored)
            << call.column << " " << call.type;
    // The default reaches every column without a type of its own, existing or not.
    for (int column = -1; column <= 3; ++column)
        EXPECT_EQ(settings.GetColumnType(column), column == 1 ? 5u : 2u) << column;

    // Existence is asked of the view each time.
    columns = 4;
    EXPECT_TRUE(settings.EnableColumnType(3, vx::kCellPrivateNumber));
    EXPECT_EQ(settings.GetColumnType(3), 6u);
    EXPECT_FALSE(vx::ColumnSettings().EnableColumnType(0, vx::kCellText));
}

TEST_F(ColumnSettingsTest, ImagesAndMenusBelongToExistingColumns) {
    EXPECT_TRUE(settings.EnableColumnImage(2, 0x51));
    EXPECT_TRUE(settings.EnableColumnImageOverlay(1, 0x52));
    EXPECT_FALSE(settings.EnableColumnImage(3, 0x53));
    EXPECT_FALSE(settings.EnableColumnImageOverlay(-1, 0x54));
    const vx::ColumnImage images[] = {0, 0, 0x51, 0}, overlays[] = {0, 0x52, 0, 0};
    for (int column = 0; column < 4; ++column) {
        EXPECT_EQ(settings.GetColumnImage(column), images[column]) << column;
        EXPECT_EQ(settings.GetColumnImageOverlay(column), overlays[column]) << column;
    }

    EXPECT_EQ(settings.GetContextMenu(0), 0);
    EXPECT_TRUE(settings.EnableContextMenu(-1, 3021));
    EXPECT_TRUE(settings.EnableContextMenu(1, 3022));
    EXPECT_TRUE(settings.EnableContextMenu(2, 3023));
    EXPECT_TRUE(settings.EnableContextMenu(2, 0));  // back to the default
    EXPECT_FALSE(settings.EnableContextMenu(3, 3024));
    const int menus[] = {3021, 3021, 3022, 3021, 3021};  // columns -1 to 3
    for (int column = -1; column <= 3; ++column)
        EXPECT_EQ(settings.GetContextMenu(column), menus[column + 1]) << column;
}

TEST_F(ColumnSettingsTest, KorvelSwitchesAndTheirQueries) {
    for (int column = -1; column <= 3; ++column) {
        EXPECT_EQ(settings.CanColumnSize(column), column >= 0 && column < 3) << column;
        EXPECT_FALSE(settings.CanToggle(column)) << column;
        EXPECT_FALSE(settings.IsDirectEdit(column)) << column;
    }
    // The switches may be set before their columns are inserted.
    EXPECT_TRUE(settings.EnableColumnSize(1, false));
    EXPECT_TRUE(settings.EnableColumnSize(4, false));
    EXPECT_TRUE(settings.EnableColumnToggle(1, true, 3205));
    EXPECT_TRUE(settings.EnableColumnToggle(4, false, 3211));
    EXPECT_TRUE(settings.EnableDirectEdit(4, true));
    EXPECT_FALSE(settings.EnableColumnSize(-1, false));
    EXPECT_FALSE(settings.EnableColumnToggle(-1, true, 1));
    EXPECT_FALSE(settings.EnableDirectEdit(-1, true));

    EXPECT_FALSE(settings.CanColumnSize(1));
    EXPECT_TRUE(settings.CanColumnSize(2));
    EXPECT_FALSE(settings.CanColumnSize(4));  // not sizable, and not there
    EXPECT_TRUE(settings.CanToggle(1));
    EXPECT_EQ(settings.GetToggleCommand(1), 3205u);
    EXPECT_FALSE(settings.CanToggle(4));
    EXPECT_EQ(settings.GetToggleCommand(4), 3211u);  // kept while toggling is off
    EXPECT_TRUE(settings.IsDirectEdit(4));
    columns = 6;
    EXPECT_FALSE(settings.CanColumnSize(4));
    EXPECT_TRUE(settings.CanColumnSize(5));
    EXPECT_TRUE(settings.EnableColumnSize(1, true));
    EXPECT_TRUE(settings.CanColumnSize(1));
}

TEST_F(ColumnSettingsTest, OperationsTraceUnderTheirListControlClass) {
    RecordingTrace trace;
    settings.EnableColumnType(0, vx::kCellCheckBox);
    settings.EnableContextMenu(-1, 1);
    settings.CanToggle(0);
    EXPECT_EQ(trace.entries, (std::vector<std::string>{
                                 "RListCtrl:CColumnEditListCtrl::EnableColumnType:Enter",
                                 "RListCtrl:CColumnEditListCtrl::EnableColumnType:Exit",
                                 "RListCtrl:CColumnMenuListCtrl::EnableContextMenu:Enter",
                                 "RListCtrl:CColumnMenuListCtrl::EnableContextMenu:Exit",
                                 "RListCtrl:CKorvelListCtrl::CanToggle:Enter",
                                 "RListCtrl:CKorvelListCtrl::CanToggle:Exit",
                             }));
}

TEST(ColumnFromXTest, RunningWidthsFindTheColumnUnderX) {
    const std::vector<int> widths = {150, 50, 0, 50};
    const struct {
        int x;
        int column;
    } cases[] = {
        {-5, 0},  {0, 0},    {149, 0},
        {150, 1}, {199, 1},  {200, 3},  // a column of no width is never hit
        {249, 3}, {250, -1}, {5000, -1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(vx::ColumnFromX(widths, c.x), c.column) << c.x;
    EXPECT_EQ(vx::ColumnFromX({}, 0), -1);
}

TEST(ItemEnabledDataTest, ZeroOrNegativeIsEnabledAndSetEnabledWritesZeroOrOne) {
    for (std::intptr_t data : {std::intptr_t{0}, std::intptr_t{-7}})
        EXPECT_TRUE(vx::IsItemDataEnabled(data)) << data;
    for (std::intptr_t data : {std::intptr_t{1}, std::intptr_t{0x1234}})
        EXPECT_FALSE(vx::IsItemDataEnabled(data)) << data;
    EXPECT_EQ(vx::ItemDataForEnabled(true), 0);
    EXPECT_EQ(vx::ItemDataForEnabled(false), 1);
}

}  // namespace
