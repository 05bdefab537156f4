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
class MoWriter {
public:
    explicit MoWriter(bool littleEndian) : m_littleEndian(littleEndian) {}

    std::string Write(const Messages& messages, std::uint32_t revision = 0) {
        const auto count = static_cast<std::uint32_t>(messages.size());
        const std::uint32_t originals = 28;
        const std::uint32_t translations = originals + 8 * count;
        std::uint32_t data = translations + 8 * count;
        std::string tables, strings;
        for (int pass = 0; pass < 2; ++pass) {
            for (const auto& [original, translation] : messages) {
                const std::string& text = pass == 0 ? original : translation;
                Word(tables, static_cast<std::uint32_t>(text.size()));
                Word(tables, data + static_cast<std::uint32_t>(strings.size()));
                strings += text;
                strings += '\0';
            }
        }
        std::string bytes;
        for (std::uint32_t word : {0x950412deu, revision, count, originals, translations, 0u, 0u})
            Word(bytes, word);
        return bytes + tables + strings;
    }

private:
    void Word(std::string& out, std::uint32_t value) const {
        for (int i = 0; i < 4; ++i) {
            const int shift = m_littleEndian ? 8 * i : 8 * (3 - i);
            out += static_cast<char>((value >> shift) & 0xff);
        }
    }

    bool m_littleEndian;
};

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
        ASSERT_TRUE(catalogue.Parse(MoWriter(little).Write(kMessages))) << little;
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
    const std::string good = MoWriter(true).Write(kMessages);
    std::string badMagic = good;
    badMagic[0] = 'X';
    std::string stringPastEnd = good;
    stringPastEnd[28 + 8 + 7] = '\x7f';  // offset of the second original
    std::string lengthPastEnd = good;
    lengthPastEnd[28 + 8 + 3] = '\x7f';  // length of the second original
    std::string hugeCount = good;
    hugeCount[11] = '\x7f';
    const std::string cases[] = {
        "",
        good.substr(0, 3),
        good.substr(0, 20),
        good.substr(0, good.size() - 5),
        badMagic,
        stringPastEnd,
        lengthPastEnd,
        hugeCount,
        MoWriter(true).Write(kMessages, 2u << 16),  // a major revision this reader does not know
    };
    for (const std::string& bytes : cases) {
        vx::MoCatalogue catalogue;
        EXPECT_FALSE(catalogue.Parse(bytes)) << bytes.size();
        EXPECT_EQ(catalogue.Size(), 0u);
        EXPECT_EQ(catalogue.HeaderField("Language"), "");
    }
}

TEST(MoCatalogueTest, VersionNeedsMajorAndMinor) {
    for (const char* project : {"vxutil", "vxutil 3", ""}) {
        vx::MoCatalogue catalogue;
        ASSERT_TRUE(catalogue.Parse(
            MoWriter(true).Write({{"", std::string("Project-Id-Version: ") + project + "\n"}})));
        int major = -1, minor = -1;
        EXPECT_FALSE(catalogue.Version(major, minor)) << project;
    }
}

}  // namespace
