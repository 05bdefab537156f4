// Entry lists: entry ids, the field list's encoded text, column texts and field values.
#include <string>

#include "support/TempHome.h"
#include "vxutil/foundation/CVXEntryListFieldValueList.h"
#include "vxutil/foundation/CVXEntryListList.h"
#include "vxutil/foundation/CVXQualifierStruct.h"

namespace {

using EntryListTest = vx::test::HomeTest;

VXEntryListFieldStruct Column(std::uint32_t id, std::uint32_t width, const char* separator) {
    VXEntryListFieldStruct record{};
    record.fieldId = id;
    record.columnWidth = width;
    std::snprintf(record.separator, sizeof record.separator, "%s", separator);
    return record;
}

// The list of the two columns that the examples use: widths 10 and 20, separators " " and \t.
CVXEntryListFieldList TwoColumns(const char* secondSeparator = "\\t") {
    CVXEntryListFieldList fields;
    fields.AddField(Column(1, 10, " "));
    fields.AddField(Column(8, 20, secondSeparator));
    return fields;
}

TEST_F(EntryListTest, FieldListEncodesWithItsPrefix) {
    CGNString text;
    TwoColumns().GetEncodedText(text);
    EXPECT_EQ(text, "   get-list-flds  : 2\\1\\10\\1\\ \\8\\20\\2\\\\t");
    CVXEntryListFieldList decoded;
    ASSERT_TRUE(decoded.Decode(text.c_str()));
    CGNString again;
    decoded.GetEncodedText(again);
    EXPECT_EQ(again, text);

    // Field ids from 2^31 up are written as the 32-bit client writes them, negative, and read
    // back to the same id; a larger number saturates.
    CVXEntryListFieldList high;
    high.AddField(Column(3000000000u, 1, ""));
    high.GetEncodedText(text);
    EXPECT_EQ(text, "   get-list-flds  : 1\\-1294967296\\1\\0\\");
    ASSERT_TRUE(decoded.Decode(text.c_str()));
    EXPECT_EQ(decoded.GetField(0)->GetFieldId(), 3000000000u);
    ASSERT_TRUE(decoded.Decode("   get-list-flds  : 1\\3000000000\\1\\0\\"));
    EXPECT_EQ(decoded.GetField(0)->GetFieldId(), 2147483647u);

    CVXEntryListFieldList empty;
    empty.GetEncodedText(text);
    EXPECT_EQ(text, "   get-list-flds  : 0\\");
    for (const char* broken : {"get-list-flds  : 0\\", "   get-list-flds  : 2\\1\\10\\1\\ ",
                               "   get-list-flds  : 1\\1\\10\\5\\ab", ""}) {
        EXPECT_FALSE(decoded.Decode(broken)) << broken;
        EXPECT_EQ(decoded.GetCount(), 0);
    }
}

TEST_F(EntryListTest, ColumnTextsSkipWidthsAndSeparators) {
    VXEntryListStruct record{};
    std::string line = std::string(10, 'a') + " " + std::string(20, 'b') + "\t" + "ccc";
    record.shortDesc = line.data();
    const CVXEntryListStruct entry(record);
    CVXEntryListFieldList fields = TwoColumns();
    fields.AddField(Column(9, 3, ""));
    EXPECT_EQ(entry.GetColumnText(fields, 0), std::string(10, 'a'));
    EXPECT_EQ(entry.GetColumnText(fields, 1), std::string(20, 'b'));
    EXPECT_EQ(entry.GetColumnText(fields, 2), "ccc");  // at 11 + 20 + 1 = 32
    EXPECT_EQ(entry.GetColumnText(fields, 3), "");
    EXPECT_EQ(entry.GetColumnText(fields, -1), "");

    CVXEntryListFieldList wider = TwoColumns("ab|");  // three characters in place of \t
    wider.AddField(Column(9, 3, ""));
    line = std::string(10, 'a') + " " + std::string(20, 'b') + "ab|" + "ddd";
    record.shortDesc = line.data();
    EXPECT_EQ(CVXEntryListStruct(record).GetColumnText(wider, 2), "ddd");  // at 34
}

#ifndef _WIN32  // characters of the client's character set
TEST_F(EntryListTest, CharacterColumnsOfMultiByteLines) {
    CVXEntryListFieldList fields;
    fields.AddField(Column(1, 2, "\xC3\xA9"));
    fields.AddField(Column(2, 2, ""));
    std::string line = "\xC3\xA4\xC3\xB6\xC3\xA9xy";
    VXEntryListStruct record{};
    record.shortDesc = line.data();
    const CVXEntryListStruct entry(record);
    EXPECT_EQ(entry.GetColumnTextChars(fields, 0), "\xC3\xA4\xC3\xB6");
    EXPECT_EQ(entry.GetColumnTextChars(fields, 1), "xy");
    EXPECT_EQ(entry.GetColumnText(fields, 1), "\xC3\xA9");  // the byte variant counts bytes
}
#endif

TEST_F(EntryListTest, EntryIdsJoinTheirParts) {
    VXEntryIdType parts[2] = {{"A"}, {"B"}};
    const CVXEntryIdList id(VXEntryIdList{2, parts});
    EXPECT_EQ(id.GetText(), "A|B");
    CVXEntryIdList single;
    single.AddPart("0000000000000123456");  // cut to 15 characters
    EXPECT_EQ(single.GetText(), "000000000000012");
    VXEntryIdList record{};
    ASSERT_TRUE(id.ExportTo(record));
    EXPECT_EQ(record.numItems, 2u);
    EXPECT_STREQ(record.entryIdList[1].id, "B");
    std::free(record.entryIdList);

    VXEntryListStruct entry{VXEntryIdList{2, parts}, nullptr};
    CVXEntryListList entries;
    ASSERT_TRUE(entries.AddEntry(entry));
    EXPECT_FALSE(entries.InsertEntry(5, entry));
    EXPECT_EQ(entries.GetCount(), 1);
    EXPECT_EQ(entries.GetEntry(0)->GetEntryId().GetText(), "A|B");
    EXPECT_EQ(entries.GetEntry(0)->GetDescription(), "");
}

TEST_F(EntryListTest, FieldValuesAnswerQualifiers) {
    CVXValueStruct status, summary;
    status.SetEnum(2);
    summary.SetChar("Printer jam");
    CVXFieldValueList fields;
    fields.AddFieldValue(7, status);
    fields.AddFieldValue(8, summary);
    VXFieldValueList record{};
    ASSERT_TRUE(fields.ExportTo(record));
    VXEntryIdType id = {"42"};
    VXEntryListFieldValueStruct entryRecord{VXEntryIdList{1, &id}, &record};
    CVXEntryListFieldValueList entries(VXEntryListFieldValueList{1, &entryRecord});
    CVXFieldValueList::FreeRecord(record);
    ASSERT_EQ(entries.GetCount(), 1);
    const CVXFieldValueList& held = entries.GetEntry(0)->fields;

    CVXValueStruct two, pattern;
    two.SetInteger(2);
    pattern.SetChar("Printer%");
    const CVXQualifierStruct both = CVXQualifierStruct::And(
        CVXQualifierStruct::Relation(CVXRelOpStruct(VX_REL_OP_EQUAL, CVXQualifierOperand::Field(7),
                                                    CVXQualifierOperand::Value(two))),
        CVXQualifierStruct::Relation(CVXRelOpStruct(VX_REL_OP_LIKE, CVXQualifierOperand::Field(8),
                                                    CVXQualifierOperand::Value(pattern))));
    bool result = false;
    ASSERT_TRUE(both.Evaluate(&held, result));
    EXPECT_TRUE(result);
    EXPECT_EQ(held.FindFieldValue(9), nullptr);
}

}  // namespace
