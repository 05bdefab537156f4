#include "vxutil/foundation/CVXByteList.h"

#include <cstdlib>
#include <string>
#include <vector>

#include "support/TempHome.h"

namespace {

using ByteListTest = vx::test::HomeTest;
using Bytes = std::vector<unsigned char>;

CVXByteList ByteList(std::int32_t type, Bytes bytes) {
    return CVXByteList(VXByteList{type, static_cast<std::uint32_t>(bytes.size()), bytes.data()});
}

Bytes Content(const CVXByteList& list) {
    return list.GetBytes() != nullptr ? Bytes(list.GetBytes(), list.GetBytes() + list.GetLength())
                                      : Bytes();
}

TEST_F(ByteListTest, EncodingIsLowerCaseHexAfterTypeAndLength) {
    struct Case {
        std::int32_t type;
        Bytes bytes;
        const char* text;
    } cases[] = {
        {3, {0x00, 0xFF, 0x1A}, "3\\3\\00ff1a"},
        {0, {}, "0\\0\\"},
        {-1, {0xAB}, "-1\\1\\ab"},
    };
    for (const Case& c : cases) {
        CVXByteList list = ByteList(c.type, c.bytes);
        ASSERT_NE(list.GetText(), nullptr);
        EXPECT_EQ(*list.GetText(), c.text);

        CVXByteList read;
        ASSERT_TRUE(read.ReadText(c.text)) << c.text;
        EXPECT_EQ(read.GetType(), c.type);
        EXPECT_EQ(Content(read), c.bytes);
    }
}

TEST_F(ByteListTest, DecoderAcceptsEitherCaseAndRefusesMissingDigits) {
    struct Case {
        const char* text;
        bool read;
        Bytes bytes;
    } cases[] = {
        {"3\\3\\00FF1a", true, {0x00, 0xFF, 0x1A}},
        {"1\\1\\abcd", true, {0xAB}},  // digits beyond the length are not read
        {"0\\0", true, {}},
        {"3\\3\\00ff1", false, {}},  // odd number of digits
        {"3\\3\\00ff", false, {}},   // fewer digits than the length promises
        {"3\\3\\00fg1a", false, {}},
        {"3\\3", false, {}},
        {"3", false, {}},
        {"", false, {}},
        {"1\\4294967295\\00", false, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        CVXByteList list = ByteList(5, {0x42});
        EXPECT_EQ(list.ReadText(c.text), c.read);
        if (c.read) {
            EXPECT_EQ(Content(list), c.bytes);
        } else {
            EXPECT_EQ(list.GetType(), 5);  // a refused text leaves the list as it was
            EXPECT_EQ(Content(list), Bytes{0x42});
        }
    }
}

TEST_F(ByteListTest, EveryByteValueRoundTrips) {
    Bytes all(256);
    for (int i = 0; i < 256; ++i)
        all[static_cast<std::size_t>(i)] = static_cast<unsigned char>(i);
    CVXByteList list = ByteList(9, all);
    const std::string text = list.GetText()->str();
    CVXByteList read;
    ASSERT_TRUE(read.ReadText(text.c_str()));
    EXPECT_EQ(Content(read), all);
}

TEST_F(ByteListTest, CopiesOwnTheirBlocks) {
    CVXByteList list = ByteList(2, {1, 2, 3});
    CVXByteList& self = list;
    list = self;
    EXPECT_EQ(Content(list), (Bytes{1, 2, 3}));

    CVXByteList copy(list);
    EXPECT_NE(copy.GetBytes(), list.GetBytes());
    EXPECT_EQ(Content(copy), (Bytes{1, 2, 3}));

    EXPECT_TRUE(copy.Assign(VXByteList{4, 10, nullptr}));  // no block: empty
    EXPECT_EQ(copy.GetType(), 4);
    EXPECT_EQ(copy.GetLength(), 0u);
    EXPECT_EQ(copy.GetBytes(), nullptr);

    VXByteList record{};
    ASSERT_TRUE(list.ExportTo(&record));
    EXPECT_EQ(record.type, 2);
    ASSERT_EQ(record.numItems, 3u);
    EXPECT_NE(record.bytes, list.GetBytes());
    EXPECT_EQ(record.bytes[2], 3);
    std::free(record.bytes);
    EXPECT_FALSE(list.ExportTo(nullptr));
}

}  // namespace
