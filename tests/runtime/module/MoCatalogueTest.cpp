#include "runtime/module/MoCatalogue.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Messages = std::vector<std::pair<std::string, std::string>>;

// A catalogue as msgfmt lays it out: header, table of originals, table of translations, then
// the zero-terminated strings.
std::string Catalogue(const Messages& messages, bool littleEndian = true,
                      std::uint32_t revision = 0) {
    const auto word = [littleEndian](std::string& out, std::uint32_t value) {
        for (int i = 0; i < 4; ++i)
            out += static_cast<char>((value >> (littleEndian ? 8 * i : 8 * (3 - i))) & 0xff);
    };
    const auto count = static_cast<std::uint32_t>(messages.size());
    const std::uint32_t data = 28 + 16 * count;
    std::string tables, strings;
    for (int pass = 0; pass < 2; ++pass) {
        for (const auto& [original, translation] : messages) {
            const std::string& text = pass == 0 ? original : translation;
            word(tables, static_cast<std::uint32_t>(text.size()));
            word(tables, data + static_cast<std::uint32_t>(strings.size()));
            strings += text;
            strings += '\0';
        }
    }
    std::string bytes;
    for (std::uint32_t value : {0x950412deu, revision, count, 28u, 28 + 8 * count, 0u, 0u})
        word(bytes, value);
    return bytes + tables + strings;
}

const Messages kMessages = {
    {"", "Project-Id-Version: vxutil 2.17 beta\nLanguage: de\n"},
    {std::string("3055\x04") + "English", "Deutsch"},
    {std::string("12\x04") + std::string("Form\0Forms", 10), std::string("Form\0Formen", 11)},
    {"no context", "ohne Kontext"},
    {std::string("abc\x04") + "Named", "benannt"},
    {std::string("77\x04") + "Untranslated", ""},
};

TEST(MoCatalogueTest, ReadsTranslationsByStringNumberInBothByteOrders) {
    for (bool little : {true, false}) {
        vx::MoCatalogue catalogue;
        ASSERT_TRUE(catalogue.Parse(Catalogue(kMessages, little))) << little;
        ASSERT_NE(catalogue.Find(3055), nullptr);
        EXPECT_EQ(*catalogue.Find(3055), "Deutsch");
        ASSERT_NE(catalogue.Find(12), nullptr);
        EXPECT_EQ(*catalogue.Find(12), "Form");  // the first of the plural forms
        // Messages without a number, and empty translations, translate nothing.
        EXPECT_EQ(catalogue.Find(77), nullptr);
        EXPECT_EQ(catalogue.Size(), 2u);
        EXPECT_EQ(catalogue.HeaderField("Language"), "de");
        EXPECT_EQ(catalogue.HeaderField("Lang"), "");
        int major = 0, minor = 0;
        EXPECT_TRUE(catalogue.Version(major, minor));
        EXPECT_EQ(major, 2);
        EXPECT_EQ(minor, 17);
    }
}

TEST(MoCatalogueTest, RefusesWhatIsNotAWellFormedCatalogue) {
    const std::string good = Catalogue(kMessages);
    std::string badMagic = good;
    badMagic[0] = 'X';
    std::string stringPastEnd = good;
    stringPastEnd[28 + 8 + 7] = '\x7f';  // offset of the second original
    std::string lengthPastEnd = good;
    lengthPastEnd[28 + 8 + 3] = '\x7f';  // length of the second original
    std::string hugeCount = good;
    hugeCount[11] = '\x7f';
    const std::string cases[] = {
        "",        good.substr(0, good.size() - 5),      badMagic, stringPastEnd, lengthPastEnd,
        hugeCount, Catalogue(kMessages, true, 2u << 16),  // a major revision this reader does not
                                                          // know
    };
    for (const std::string& bytes : cases) {
        vx::MoCatalogue catalogue;
        EXPECT_FALSE(catalogue.Parse(bytes)) << bytes.size();
        EXPECT_EQ(catalogue.Size(), 0u);
        EXPECT_EQ(catalogue.HeaderField("Language"), "");
    }
}

TEST(MoCatalogueTest, VersionNeedsMajorAndMinor) {
    for (const char* project : {"vxutil", "vxutil 3"}) {
        vx::MoCatalogue catalogue;
        ASSERT_TRUE(
            catalogue.Parse(Catalogue({{"", std::string("Project-Id-Version: ") + project}})));
        int major = -1, minor = -1;
        EXPECT_FALSE(catalogue.Version(major, minor)) << project;
    }
}

}  // namespace
