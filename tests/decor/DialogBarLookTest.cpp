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

TEST(DialogBarTextTest, ColorsAreReadAsScanfReadsThemAndRoundTrip) {
    const struct {
        const char* text;
        std::optional<ColorRef> color;
    } rows[] = {
        {"255,0,0", MakeColor(255, 0, 0)},
        {" 1,\t+2, 3 and more", 0x030201},  // blanks before numbers, anything after
        {"300,0,0", 300},  // a number beyond a channel spills over, as stored values always did
        {"1,2", std::nullopt},
        {"1 ,2,3", std::nullopt},  // the comma must follow a number directly
        {"1,2,4294967296", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& row : rows)
        EXPECT_EQ(vx::ParseColorText(row.text), row.color) << '"' << row.text << '"';
    EXPECT_EQ(vx::FormatColorText(MakeColor(255, 128, 0)), "255,128,0");
    for (const ColorRef color : {0x000000u, 0xFFFFFFu, 0x123456u})
        EXPECT_EQ(vx::ParseColorText(vx::FormatColorText(color)), color);
}

TEST(DialogBarTextTest, FontNumbersRoundTripExactlyOrAreNotTakenOver) {
    EXPECT_EQ(vx::FormatLogFontNumbers(kFont), kFontNumbers);
    LogFont read;
    read.SetFaceName(kFont.FaceName());
    ASSERT_TRUE(vx::ParseLogFontNumbers(kFontNumbers, read));
    EXPECT_EQ(read, kFont);
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
    for (const auto& [w, h] : {std::pair{4, 24}, {300, 8}, {0, 0}})
        EXPECT_EQ(vx::DialogBarTextRect(w, h), std::nullopt) << w << " x " << h;
}

class DialogBarLookTest : public vx::test::HomeTest {
protected:
    ~DialogBarLookTest() override { RApplication::SetCurrent(m_previous); }

    std::string Stored(const char* key) const {
        return app.GetProfileString("DialogBar", key, "<absent>").str();
    }
    void Store(const char* key, const char* value) {
        ASSERT_TRUE(app.WriteProfileString("DialogBar", key, value));
    }

    RApplication app{"DialogBarTest", "vxdecortest"};

private:
    RApplication* m_previous = RApplication::SetCurrent(&app);
};

TEST_F(DialogBarLookTest, ColorsFallBackOnTheSystemColorAndKeepItWhenNothingWasStored) {
    const ColorRef shadow = MakeColor(128, 128, 128);
    const struct {
        const char* stored;  // null: absent
        ColorRef read;
        const char* storedAfter;
    } rows[] = {
        {nullptr, shadow, "128,128,128"},  // written back in "%d,%d,%d" form
        {"", shadow, "128,128,128"},
        {"255,0,0", MakeColor(255, 0, 0), "255,0,0"},
        {"12,34", shadow, "12,34"},  // not taken over, and left for its writer to correct
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.stored != nullptr ? row.stored : "<absent>");
        app.WriteProfileString("DialogBar", nullptr, nullptr);
        if (row.stored != nullptr) Store("BackgroundColor", row.stored);
        EXPECT_EQ(vx::LoadDialogBarBackground(shadow), row.read);
        EXPECT_EQ(Stored("BackgroundColor"), row.storedAfter);
    }
    // The text colour works alike under its own key; once stored, the system colour is ignored.
    EXPECT_EQ(vx::LoadDialogBarTextColor(MakeColor(255, 255, 255)), MakeColor(255, 255, 255));
    EXPECT_EQ(vx::LoadDialogBarTextColor(MakeColor(1, 2, 3)), MakeColor(255, 255, 255));
    EXPECT_EQ(Stored("TextColor"), "255,255,255");

    // Without an application profile the system colour is all there is.
    RApplication::SetCurrent(nullptr);
    EXPECT_EQ(vx::LoadDialogBarBackground(MakeColor(1, 2, 3)), MakeColor(1, 2, 3));
    EXPECT_FALSE(vx::SaveDialogBarBackground(MakeColor(1, 2, 3)));
}

TEST_F(DialogBarLookTest, LookRoundTripsThroughTheProfile) {
    const vx::DialogBarSystemColors system{MakeColor(128, 128, 128), MakeColor(0, 0, 0)};
    // Without a stored font the default one is used, and not stored.
    EXPECT_EQ(
        vx::LoadDialogBarLook(system),
        (vx::DialogBarLook{system.buttonShadow, system.captionText, vx::DefaultDialogBarFont()}));
    EXPECT_EQ(Stored("TextLogfont") + Stored("FontName"), "<absent><absent>");

    const vx::DialogBarLook chosen{MakeColor(0, 64, 128), MakeColor(250, 240, 230), kFont};
    ASSERT_TRUE(vx::SaveDialogBarLook(chosen));
    EXPECT_EQ(Stored("TextLogfont"), kFontNumbers);
    EXPECT_EQ(Stored("FontName"), "Courier New");
    EXPECT_EQ(vx::LoadDialogBarLook(system), chosen);

    // Without a face name the numbers still count; numbers that do not all read give the whole
    // default font, face name included.
    app.WriteProfileString("DialogBar", "FontName", nullptr);
    LogFont faceless = kFont;
    faceless.SetFaceName("");
    EXPECT_EQ(vx::LoadDialogBarFont(), faceless);
    Store("FontName", "Courier New");
    Store("TextLogfont", "-11,0,0,0,700");
    EXPECT_EQ(vx::LoadDialogBarFont(), vx::DefaultDialogBarFont());
}

}  // namespace
