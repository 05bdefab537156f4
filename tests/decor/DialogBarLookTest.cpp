#include "vxutil/decor/DialogBarLook.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/TempHome.h"
#include "vxutil/decor/DialogBarLayout.h"
#include "vxutil/platform/RApplication.h"

namespace {

using vx::ColorRef;
using vx::LogFont;
using vx::MakeColor;

// Every field different, each kind of field at an end of its range somewhere.
const LogFont kFont{-2147483647 - 1, 2147483647, 900, -900, 700, 1, 0, 255, 204, 3, 2, 5, 34,
                    "Courier New"};
constexpr const char* kFontNumbers = "-2147483648,2147483647,900,-900,700,1,0,255,204,3,2,5,34";

// The round trips of the stored texts are in the profile test below.
TEST(DialogBarTextTest, TextsAreReadAsScanfReadsThemAndFontNumbersWhollyOrNotAtAll) {
    EXPECT_EQ(vx::FormatColorText(MakeColor(255, 128, 0)), "255,128,0");
    // Blanks before the numbers and anything after them are fine, and a number beyond a channel
    // spills over, as stored values always did; fewer than three numbers, a blank before a comma
    // or a number beyond 32 bits are not.
    EXPECT_EQ(vx::ParseColorText(" 1,\t+2, 3 and more"), 0x030201u);
    EXPECT_EQ(vx::ParseColorText("300,0,0"), 300u);
    for (const char* refused : {"1,2", "1 ,2,3", "1,2,4294967296"})
        EXPECT_EQ(vx::ParseColorText(refused), std::nullopt) << refused;
    LogFont read = kFont;
    for (const char* refused :
         {"-11,0,0,0,700,0,0,0,1,0,0,0", "-11,0,0,0,700,0,0,0,1,0,0,0,256",
          "-11,0,0,0,700,-1,0,0,1,0,0,0,32", "-11,0,0,0,2147483648,0,0,0,1,0,0,0,32"}) {
        EXPECT_FALSE(vx::ParseLogFontNumbers(refused, read)) << refused;
        EXPECT_EQ(read, kFont) << refused;
    }
    // The face name keeps 31 bytes and never half a character.
    read.SetFaceName(std::string(40, 'x'));
    EXPECT_EQ(read.FaceName(), std::string(31, 'x'));
#ifndef _WIN32
    read.SetFaceName(std::string(30, 'y') + "\xC3\xA9");  // é would end at byte 32
    EXPECT_EQ(read.FaceName(), std::string(30, 'y'));
#endif
}

TEST(DialogBarTextTest, TextControlMovesOnlyInBarsOfAtLeastFiveByNine) {
    EXPECT_EQ(vx::DialogBarTextRect(5, 9), (vx::BarRect{2, 4, 1, 1}));
    EXPECT_EQ(vx::DialogBarTextRect(300, 24), (vx::BarRect{2, 4, 296, 16}));
    for (const auto& [w, h] : {std::pair{4, 24}, {300, 8}})
        EXPECT_EQ(vx::DialogBarTextRect(w, h), std::nullopt) << w << " x " << h;
}

class DialogBarLookTest : public vx::test::HomeTest {
protected:
    ~DialogBarLookTest() override { RApplication::SetCurrent(previous); }
    std::string Stored(const char* key) const {
        return app.GetProfileString("DialogBar", key, "<absent>").str();
    }

    RApplication app{"DialogBarTest", "vxdecortest"};
    RApplication* previous = RApplication::SetCurrent(&app);
};

TEST_F(DialogBarLookTest, LookRoundTripsThroughTheProfileOverTheSystemDefaults) {
    const vx::DialogBarSystemColors system{MakeColor(128, 128, 128), MakeColor(1, 2, 3)};
    // Nothing stored: the system colours, which are written back, and the default font, which
    // is not.
    EXPECT_EQ(
        vx::LoadDialogBarLook(system),
        (vx::DialogBarLook{system.buttonShadow, system.captionText, vx::DefaultDialogBarFont()}));
    EXPECT_EQ(Stored("BackgroundColor") + " " + Stored("TextColor") + " " + Stored("TextLogfont") +
                  Stored("FontName"),
              "128,128,128 1,2,3 <absent><absent>");

    const vx::DialogBarLook chosen{MakeColor(0, 64, 128), MakeColor(250, 240, 230), kFont};
    ASSERT_TRUE(vx::SaveDialogBarLook(chosen));
    EXPECT_EQ(Stored("TextLogfont") + " " + Stored("FontName"),
              std::string(kFontNumbers) + " Courier New");
    EXPECT_EQ(vx::LoadDialogBarLook(system), chosen);

    // An empty colour is written back as well; one that does not read is not taken over, and is
    // left for its writer to correct.
    for (const auto& [stored, after] : {std::pair{"", "128,128,128"}, {"12,34", "12,34"}}) {
        app.WriteProfileString("DialogBar", "BackgroundColor", stored);
        EXPECT_EQ(vx::LoadDialogBarBackground(system.buttonShadow), system.buttonShadow);
        EXPECT_EQ(Stored("BackgroundColor"), after);
    }
    // Without a face name the numbers still count; numbers that do not all read give the whole
    // default font.
    app.WriteProfileString("DialogBar", "FontName", nullptr);
    LogFont faceless = kFont;
    faceless.SetFaceName("");
    EXPECT_EQ(vx::LoadDialogBarFont(), faceless);
    app.WriteProfileString("DialogBar", "TextLogfont", "-11,0,0,0,700");
    EXPECT_EQ(vx::LoadDialogBarFont(), vx::DefaultDialogBarFont());

    // Without an application profile the system colour is all there is.
    RApplication::SetCurrent(nullptr);
    EXPECT_EQ(vx::LoadDialogBarBackground(MakeColor(1, 2, 3)), MakeColor(1, 2, 3));
    EXPECT_FALSE(vx::SaveDialogBarBackground(MakeColor(1, 2, 3)));
}

}  // namespace
