// Values and value lists against the server API's records, copies, and the encode-decode
// round trip of random values.
#include <random>
#include <string>

#include "support/TempHome.h"
#include "vxutil/foundation/CVXValueList.h"
#include "vxutil/foundation/CVXValueStruct.h"

namespace {

using ValueRecordTest = vx::test::HomeTest;

std::string Encoded(const CVXValueStruct& value) {
    CGNString text;
    value.GetEncodedText(text);
    return text.str();
}

TEST_F(ValueRecordTest, ExportedRecordsOwnTheirCopies) {
    CVXValueStruct text;
    text.SetChar("abc");
    VXValueStruct record{};
    ASSERT_TRUE(text.ExportTo(&record));
    EXPECT_EQ(record.dataType, VX_DATA_TYPE_CHAR);
    EXPECT_STREQ(record.u.charVal, "abc");
    EXPECT_NE(record.u.charVal, text.GetText().c_str());
    text.SetNull();  // the record does not borrow the value's memory
    EXPECT_STREQ(record.u.charVal, "abc");
    CVXValueStruct back(record);
    EXPECT_EQ(Encoded(back), "4\\3\\abc");
    CVXValueStruct::FreeRecord(record);
    EXPECT_EQ(record.dataType, VX_DATA_TYPE_NULL);

    CVXValueStruct attachment;
    attachment.SetAttachment("C:\\docs\\plan.txt", 10, 20, 30);
    ASSERT_TRUE(attachment.ExportTo(&record));
    EXPECT_STREQ(record.u.attach->name, "plan.txt");
    EXPECT_STREQ(record.u.attach->fullPath, "C:\\docs\\plan.txt");
    EXPECT_EQ(record.u.attach->sizes[2], 30u);
    CVXValueStruct attachmentBack(record);
    EXPECT_EQ(attachmentBack.GetText(), "C:\\docs\\plan.txt");
    EXPECT_EQ(attachmentBack.GetAttachSize(1), 20u);
    CVXValueStruct::FreeRecord(record);
}

TEST_F(ValueRecordTest, ByteAndCoordinateValuesCopyTheirLists) {
    unsigned char bytes[] = {1, 2, 3};
    CVXValueStruct value;
    value.SetBytes(CVXByteList(VXByteList{7, 3, bytes}));
    VXValueStruct record{};
    ASSERT_TRUE(value.ExportTo(&record));
    ASSERT_NE(record.u.byteList, nullptr);
    EXPECT_EQ(record.u.byteList->numItems, 3u);
    EXPECT_NE(record.u.byteList->bytes, bytes);
    CVXValueStruct back(record);
    EXPECT_EQ(back.GetBytes()->GetType(), 7);
    CVXValueStruct::FreeRecord(record);

    CVXCoordList coords;
    coords.SetPosition(3, 4, -1, -1);
    value.SetCoords(coords);
    ASSERT_TRUE(value.ExportTo(&record));
    EXPECT_EQ(record.u.coordList->numItems, 1u);
    CVXValueStruct::FreeRecord(record);

    CVXValueStruct copy(value);
    EXPECT_NE(copy.GetCoords(), value.GetCoords());
    EXPECT_TRUE(copy.GetCoords()->IsEqual(*value.GetCoords()));
}

TEST_F(ValueRecordTest, ValueListsCopyEncodeAndExport) {
    CVXValueList list;
    CVXValueStruct value;
    value.SetInteger(5);
    ASSERT_TRUE(list.AddValue(value));
    value.SetChar("x\\y");
    ASSERT_TRUE(list.InsertValue(0, value));
    value.SetNull();
    ASSERT_TRUE(list.AddValue(value));
    EXPECT_FALSE(list.InsertValue(9, value));

    CGNString text;
    list.ToText(text);
    EXPECT_EQ(text, "x\\y,5,");
    ASSERT_TRUE(list.GetEncodedText(text));
    EXPECT_EQ(text, "3\\4\\3\\x\\y\\2\\5\\0\\");
    CVXValueList decoded;
    const char* cursor = text.c_str();
    ASSERT_TRUE(decoded.Decode(cursor));
    CGNString again;
    const std::string followed = text.str() + "\n1\\";  // a list's line feed, then more text
    cursor = followed.c_str();
    ASSERT_TRUE(CVXValueList().Decode(cursor));
    EXPECT_STREQ(cursor, "1\\");
    ASSERT_TRUE(decoded.GetEncodedText(again));
    EXPECT_EQ(again, text);

    CVXValueListList lists;
    ASSERT_TRUE(lists.AddList(list));
    ASSERT_TRUE(lists.AddList(decoded));
    VXValueListList record{};
    ASSERT_TRUE(lists.ExportTo(&record));
    ASSERT_EQ(record.numItems, 2u);
    EXPECT_EQ(record.valueListList[1].numItems, 3u);
    CVXValueListList back(record);
    CVXValueListList::FreeRecord(record);
    ASSERT_EQ(back.GetCount(), 2);
    EXPECT_EQ(Encoded(*back.GetList(0)->GetValue(0)), "4\\3\\x\\y");
    EXPECT_TRUE(lists.DeleteList(0));
    EXPECT_EQ(lists.GetCount(), 1);
}

// A random value of a type with an encoded text. Texts avoid line ends, which Windows turns
// into its own on decoding.
CVXValueStruct RandomValue(std::mt19937& random) {
    std::uniform_int_distribution<int> pick(0, 10);
    const auto number = static_cast<std::uint32_t>(random());
    std::string text;
    for (int i = static_cast<int>(random() % 12); i > 0; --i)
        text.push_back("ab\\\" 9.-\t"[random() % 9]);
    CVXValueStruct value;
    switch (pick(random)) {
        case 0:
            value.SetKeyword(static_cast<std::int32_t>(number % 40) - 1);
            break;
        case 1:
            value.SetInteger(static_cast<std::int32_t>(number));
            break;
        case 2:
            value.SetReal(static_cast<double>(static_cast<std::int32_t>(number)) / 1024.0);
            break;
        case 3:
            value.SetChar(text.c_str());
            break;
        case 4:
            value.SetDiary(text.c_str());
            break;
        case 5:
            value.SetEnum(number);
            break;
        case 6:
            value.SetTime(static_cast<std::int32_t>(number >> 1));
            break;
        case 7:
            value.SetBitmask(number);
            break;
        case 8:
            value.SetDecimal(std::to_string(static_cast<std::int32_t>(number)).c_str());
            break;
        case 9:
            value.SetUnsigned(number);
            break;
        default:
            break;
    }
    return value;
}

TEST_F(ValueRecordTest, RandomValuesEncodeDecodeAndEncodeToTheSameText) {
    std::mt19937 random(20261122);
    for (int i = 0; i < 2000; ++i) {
        const CVXValueStruct value = RandomValue(random);
        const std::string first = Encoded(value);
        CVXValueStruct decoded;
        const char* cursor = first.c_str();
        ASSERT_TRUE(decoded.Decode(cursor)) << first;
        EXPECT_EQ(*cursor, '\0') << first;
        EXPECT_EQ(Encoded(decoded), first);
    }
}

}  // namespace
