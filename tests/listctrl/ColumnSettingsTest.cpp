#include "vxutil/listctrl/ColumnSettings.h"

#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "vxutil/listctrl/ItemEnabledData.h"

namespace {

// A row's item data holds its disabled flag: 0 or negative is enabled, and enabling writes 0.
static_assert(vx::IsItemDataEnabled(0) && vx::IsItemDataEnabled(-7) && !vx::IsItemDataEnabled(1));
static_assert(vx::ItemDataForEnabled(true) == 0 && vx::ItemDataForEnabled(false) == 1);

class ColumnSettingsTest : public ::testing::Test {
protected:
    int columns = 3;
    vx::ColumnSettings settings{[this] { return columns; }};
};

TEST_F(ColumnSettingsTest, TypesImagesAndMenusNeedAnExistingColumnOrTheDefault) {
    EXPECT_EQ(settings.GetColumnType(0), vx::kCellText);
    for (unsigned type = 0; type <= 7; ++type)  // leaves column 0 at type 6
        EXPECT_EQ(settings.EnableColumnType(0, type), type >= 1 && type <= 6) << type;
    EXPECT_FALSE(settings.EnableColumnType(3, 2) || settings.EnableColumnType(-2, 2));
    EXPECT_TRUE(settings.EnableColumnType(-1, vx::kCellCheckBox) &&
                settings.EnableColumnImage(2, 0x51) && settings.EnableColumnImageOverlay(1, 0x52));
    EXPECT_TRUE(settings.EnableContextMenu(-1, 3021) && settings.EnableContextMenu(1, 3022) &&
                settings.EnableContextMenu(2, 3023) && settings.EnableContextMenu(2, 0));
    EXPECT_FALSE(settings.EnableColumnImage(3, 0x53) || settings.EnableContextMenu(3, 3024));
    // Columns -1 to 3: type, image, overlay and menu (0 gives a column the default back).
    std::vector<std::tuple<unsigned, vx::ColumnImage, vx::ColumnImage, int>> read;
    for (int column = -1; column <= 3; ++column)
        read.emplace_back(settings.GetColumnType(column), settings.GetColumnImage(column),
                          settings.GetColumnImageOverlay(column), settings.GetContextMenu(column));
    EXPECT_EQ(read, (decltype(read){{2, 0, 0, 3021},
                                    {6, 0, 0, 3021},
                                    {2, 0, 0x52, 3022},
                                    {2, 0x51, 0, 3021},
                                    {2, 0, 0, 3021}}));
    columns = 4;  // existence is asked of the view each time
    EXPECT_TRUE(settings.EnableColumnType(3, vx::kCellHexadecimal));
}

TEST_F(ColumnSettingsTest, KorvelSwitchesMayPrecedeTheirColumns) {
    EXPECT_TRUE(settings.EnableColumnSize(4, false) && settings.EnableDirectEdit(4, true) &&
                settings.EnableColumnToggle(4, false, 3211) &&
                settings.EnableColumnToggle(1, true, 3205));
    EXPECT_FALSE(settings.EnableColumnSize(-1, false) || settings.EnableDirectEdit(-1, true));
    EXPECT_FALSE(settings.CanColumnSize(3) || settings.CanColumnSize(4));  // not there yet
    columns = 6;
    EXPECT_TRUE(settings.CanColumnSize(5) && !settings.CanColumnSize(4));
    EXPECT_TRUE(settings.CanToggle(1) && !settings.CanToggle(4));
    EXPECT_TRUE(settings.IsDirectEdit(4) && !settings.IsDirectEdit(1));
    EXPECT_EQ(settings.GetToggleCommand(4), 3211u);  // kept while toggling is off
}

TEST(ColumnFromXTest, RunningWidthsFindTheColumnUnderX) {
    const std::vector<int> widths = {150, 50, 0, 50};
    // A column of no width is never hit; right of the last column there is none.
    for (auto [x, column] : {std::pair{-5, 0}, {149, 0}, {150, 1}, {200, 3}, {249, 3}, {250, -1}})
        EXPECT_EQ(vx::ColumnFromX(widths, x), column) << x;
    EXPECT_EQ(vx::ColumnFromX({}, 0), -1);
}

}  // namespace
