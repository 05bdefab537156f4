#include "platform/registry/RegistryDocument.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace vx::registry {
namespace {

// The bytes the document writes; a failure shows as a failed expectation and no bytes.
std::string Bytes(const RegistryDocument& document) {
    std::string bytes;
    std::string why;
    EXPECT_TRUE(document.ToBytes(bytes, why)) << why;
    return bytes;
}

constexpr const char* kUsers = "HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users";

// A file as regedit exports it, with a value kind this library does not read.
const std::string kExport =
    "Windows Registry Editor Version 5.00\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users]\r\n"
    "\"USER1\"=\"alice\"\r\n"
    "\"VXPATH1\"=\"C:\\\\VX\\\\\\\"alice\\\"\"\r\n"
    "\"LastUserLoggedIn\"=dword:ffffffff\r\n"
    "\"Search\"=hex(2):25,00,50,00,41,00,54,00,48,00,25,00,00,00,41,00,42,00,43,00,44,\\\r\n"
    "  00,00,00\r\n"
    "@=\"default\"\r\n"
    "\r\n"
    "; kept by hand\r\n"
    "[HKEY_CURRENT_USER\\SOFTWARE\\Other]\r\n"
    "\"USER1\"=\"mallory\"\r\n"
    "\r\n";

std::optional<RegistryValue> Lookup(const RegistryDocument& document, std::string_view key,
                                    std::string_view name) {
    const RegistryValue* value = document.Find(key, name);
    return value ? std::optional(*value) : std::nullopt;
}

// Replaces the first occurrence of `from` in `text`.
std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos) text.replace(at, from.size(), to);
    return text;
}

TEST(RegistryDocument, ReadsValuesOfAnExport) {
    const auto document = RegistryDocument::FromBytes(kExport);
    struct Case {
        const char* key;
        const char* name;
        std::optional<RegistryValue> expected;
    } cases[] = {
        {kUsers, "USER1", StringValue("alice")},
        {kUsers, "user1", StringValue("alice")},
        {"hkey_current_user\\software\\KORVEL\\vxuser\\users", "User1", StringValue("alice")},
        {"HKEY_CURRENT_USER\\\\SOFTWARE\\Korvel\\VXUser\\Users\\", "USER1", StringValue("alice")},
        {kUsers, "VXPATH1", StringValue("C:\\VX\\\"alice\"")},
        {kUsers, "LastUserLoggedIn", DwordValue(0xFFFFFFFF)},
        {kUsers, "Search", RegistryValue{ValueKind::Other, {}, 0}},
        {kUsers, "", StringValue("default")},
        {"HKEY_CURRENT_USER\\SOFTWARE\\Other", "USER1", StringValue("mallory")},
        {kUsers, "USER2", std::nullopt},
        {"HKEY_CURRENT_USER\\SOFTWARE\\Korvel", "USER1", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Lookup(document, c.key, c.name), c.expected) << c.key << " / " << c.name;
    EXPECT_EQ(Bytes(document), kExport) << "written back unchanged";
}

TEST(RegistryDocument, EditsTouchOnlyTheirLine) {
    auto document = RegistryDocument::FromBytes(kExport);
    EXPECT_TRUE(document.Set(kUsers, "user1", StringValue("bob")));
    EXPECT_EQ(Bytes(document), Replaced(kExport, "\"USER1\"=\"alice\"", "\"USER1\"=\"bob\""));

    EXPECT_TRUE(document.Set(kUsers, "LASTUSERLOGGEDIN", DwordValue(2)));
    EXPECT_TRUE(document.Set(kUsers, "Search", StringValue("%PATH%")));
    EXPECT_TRUE(document.Remove(kUsers, "VXPATH1"));
    std::string expected = Replaced(kExport, "\"USER1\"=\"alice\"", "\"USER1\"=\"bob\"");
    expected = Replaced(expected, "dword:ffffffff", "dword:00000002");
    expected = Replaced(expected,
                        "\"Search\"=hex(2):25,00,50,00,41,00,54,00,48,00,25,00,00,00,41,00,42,"
                        "00,43,00,44,\\\r\n  00,00,00",
                        "\"Search\"=\"%PATH%\"");
    expected = Replaced(expected, "\"VXPATH1\"=\"C:\\\\VX\\\\\\\"alice\\\"\"\r\n", "");
    EXPECT_EQ(Bytes(document), expected);
}

TEST(RegistryDocument, AddsValuesWhereRegeditWouldHaveThem) {
    auto document = RegistryDocument::FromBytes(kExport);
    EXPECT_TRUE(document.Set(kUsers, "USER2", StringValue("carol")));
    EXPECT_TRUE(document.Set("HKEY_CURRENT_USER\\SOFTWARE\\New", "Flag", DwordValue(1)));
    std::string expected =
        Replaced(kExport, "@=\"default\"\r\n", "@=\"default\"\r\n\"USER2\"=\"carol\"\r\n");
    expected += "[HKEY_CURRENT_USER\\SOFTWARE\\New]\r\n\"Flag\"=dword:00000001\r\n\r\n";
    EXPECT_EQ(Bytes(document), expected);
}

TEST(RegistryDocument, QuotedTextRoundTrips) {
    const std::string texts[] = {
        "",          "plain",        "C:\\path\\", "say \"hi\"",          "\\\"",
        "tab\there", "two\r\nlines", "lone\nfeed", std::string("a\0b", 3)};
    for (const auto& text : texts) {
        auto document = RegistryDocument::FromBytes("");
        document.Set(kUsers, "name \"q\" \\", StringValue(text));
        const auto reread = RegistryDocument::FromBytes(Bytes(document));
        EXPECT_EQ(Lookup(reread, kUsers, "NAME \"Q\" \\"), StringValue(text)) << text;
        EXPECT_EQ(reread.lines().size(), document.lines().size()) << text;
    }
}

TEST(RegistryDocument, ReadsStringsInHexForm) {
    const auto document = RegistryDocument::FromBytes(
        "REGEDIT4\n\n[HKEY_CURRENT_USER\\A]\n"
        "\"Note\"=hex(1):6c,00,31,00,0d,00,0a,00,\\\n"
        "  6c,00,32,00,00,00\n"
        "\"Bad\"=hex(1):6c,00,3\n"
        "\"Odd\"=hex(1):zz\n");
    EXPECT_EQ(Lookup(document, "HKEY_CURRENT_USER\\A", "Note"), StringValue("l1\r\nl2"));
    EXPECT_EQ(Lookup(document, "HKEY_CURRENT_USER\\A", "Bad")->kind, ValueKind::Other);
    EXPECT_EQ(Lookup(document, "HKEY_CURRENT_USER\\A", "Odd")->kind, ValueKind::Other);
}

TEST(RegistryDocument, AppliesDeletionLinesInOrder) {
    const auto document = RegistryDocument::FromBytes(
        "Windows Registry Editor Version 5.00\n\n"
        "[HKEY_CURRENT_USER\\A]\n\"Kept\"=\"1\"\n\"Gone\"=\"1\"\n\"Gone\"=-\n"
        "[HKEY_CURRENT_USER\\A\\B]\n\"Below\"=\"1\"\n"
        "[HKEY_CURRENT_USER\\AB]\n\"Sibling\"=\"1\"\n"
        "[HKEY_CURRENT_USER\\C]\n\"Old\"=\"1\"\n"
        "[-HKEY_CURRENT_USER\\C]\n\"Ignored\"=\"1\"\n"
        "[HKEY_CURRENT_USER\\C]\n\"New\"=\"1\"\n"
        "[-hkey_current_user\\a]\n"
        "[HKEY_CURRENT_USER\\A]\n\"Again\"=\"1\"\n");
    struct Case {
        const char* key;
        const char* name;
        bool present;
    } cases[] = {
        {"HKEY_CURRENT_USER\\A", "Kept", false},     {"HKEY_CURRENT_USER\\A", "Gone", false},
        {"HKEY_CURRENT_USER\\A\\B", "Below", false}, {"HKEY_CURRENT_USER\\AB", "Sibling", true},
        {"HKEY_CURRENT_USER\\C", "Old", false},      {"HKEY_CURRENT_USER\\C", "Ignored", false},
        {"HKEY_CURRENT_USER\\C", "New", true},       {"HKEY_CURRENT_USER\\A", "Again", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(document.Find(c.key, c.name) != nullptr, c.present) << c.key << " / " << c.name;
}

TEST(RegistryDocument, EditsAfterDeletionLinesTakeEffect) {
    const std::string text =
        "Windows Registry Editor Version 5.00\r\n\r\n"
        "[HKEY_CURRENT_USER\\A]\r\n\"V\"=\"1\"\r\n\"V\"=\"2\"\r\n"
        "[-HKEY_CURRENT_USER\\A]\r\n"
        "[HKEY_CURRENT_USER\\A]\r\n\"W\"=\"1\"\r\n\"W\"=-\r\n";
    auto document = RegistryDocument::FromBytes(text);
    EXPECT_FALSE(document.Remove("HKEY_CURRENT_USER\\A", "V"));
    EXPECT_TRUE(document.Set("HKEY_CURRENT_USER\\A", "V", StringValue("3")));
    EXPECT_TRUE(document.Set("HKEY_CURRENT_USER\\A", "W", StringValue("4")));
    auto reread = RegistryDocument::FromBytes(Bytes(document));
    EXPECT_EQ(Lookup(reread, "HKEY_CURRENT_USER\\A", "V"), StringValue("3"));
    EXPECT_EQ(Lookup(reread, "HKEY_CURRENT_USER\\A", "W"), StringValue("4"));

    // Duplicates of a value all go, or an older one would come back.
    reread = RegistryDocument::FromBytes(
        "[HKEY_CURRENT_USER\\A]\r\n\"V\"=\"1\"\r\n[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"2\"\r\n");
    EXPECT_TRUE(reread.Remove("HKEY_CURRENT_USER\\A", "V"));
    EXPECT_EQ(RegistryDocument::FromBytes(Bytes(reread)).Find("HKEY_CURRENT_USER\\A", "V"),
              nullptr);
}

TEST(RegistryDocument, ReadsOtherEncodingsAndKeepsThem) {
    const std::string ascii =
        "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"N\"=\"v\"\r\n";
    std::string utf16 = "\xFF\xFE";
    for (char c : ascii)
        utf16 += std::string{c, '\0'};

    struct Case {
        std::string bytes;
        std::string prefix;
    } cases[] = {{ascii, "Wi"}, {"\xEF\xBB\xBF" + ascii, "\xEF\xBB\xBFWi"}, {utf16, "\xFF\xFEW"}};
    for (const auto& c : cases) {
        auto document = RegistryDocument::FromBytes(c.bytes);
        EXPECT_EQ(Lookup(document, "HKEY_CURRENT_USER\\A", "N"), StringValue("v"));
        document.Set("HKEY_CURRENT_USER\\A", "N", StringValue("w"));
        const std::string written = Bytes(document);
        EXPECT_EQ(written.substr(0, c.prefix.size()), c.prefix);
        EXPECT_EQ(Lookup(RegistryDocument::FromBytes(written), "HKEY_CURRENT_USER\\A", "N"),
                  StringValue("w"));
    }
}

#ifndef _WIN32
TEST(RegistryDocument, ConvertsUtf16ToUtf8) {
    // "é" and U+1F600 (a surrogate pair); an unpaired surrogate becomes U+FFFD.
    const std::string utf16 = std::string("\xFF\xFE[\0H\0]\0\n\0\"\0N\0\"\0=\0\"\0", 20) +
                              std::string("\xE9\0\x3D\xD8\x00\xDE\x00\xD8\"\0", 10);
    const auto document = RegistryDocument::FromBytes(utf16);
    EXPECT_EQ(Lookup(document, "H", "N"), StringValue("\xC3\xA9\xF0\x9F\x98\x80\xEF\xBF\xBD"));
}
#endif

TEST(RegistryDocument, MalformedLinesAreKeptButNotRead) {
    const std::string text =
        "[HKEY_CURRENT_USER\\A]\r\n\"Cut\"=\"no end\r\n\"N\"=dword:123456789\r\n"
        "\"M\"=dword:x\r\n\"T\"=\"v\" trailing\r\n[HKEY_CURRENT_USER\\B\r\n\"Ok\"=\"yes\"\r\n";
    auto document = RegistryDocument::FromBytes(text);
    for (const char* name : {"Cut", "N", "M", "T"})
        EXPECT_EQ(document.Find("HKEY_CURRENT_USER\\A", name)->kind, ValueKind::Other) << name;
    // The values below a broken key line belong to no key, rather than to the one before.
    EXPECT_EQ(document.Find("HKEY_CURRENT_USER\\A", "Ok"), nullptr);
    EXPECT_EQ(document.Find("HKEY_CURRENT_USER\\B", "Ok"), nullptr);
    EXPECT_EQ(Bytes(document), text);
}

TEST(RegistryDocument, BinaryOrTruncatedInputDoesNotBreakEdits) {
    const std::string inputs[] = {
        std::string("[HKEY_CURRENT_USER\\A]\n\0\x01\xFF\xFE\"Z\"\n\"X\"=hex:01,\\", 40),
        "\"Ok\"=\"outside a key\"\n[]\n[-]\n\\\n[",
        "[HKEY_CURRENT_USER\\A]\n\"X\"=hex:01,\\\n\"Y\"=\"z\"",
    };
    for (const auto& bytes : inputs) {
        auto document = RegistryDocument::FromBytes(bytes);
        EXPECT_EQ(document.Find("HKEY_CURRENT_USER\\A", "New"), nullptr);
        EXPECT_TRUE(document.Set("HKEY_CURRENT_USER\\A", "New", DwordValue(7)));
        const auto reread = RegistryDocument::FromBytes(Bytes(document));
        EXPECT_EQ(Lookup(reread, "HKEY_CURRENT_USER\\A", "New"), DwordValue(7));
        EXPECT_EQ(reread.lines().size(), document.lines().size());
    }
    // UTF-16 that would come back different (an odd last byte, an unpaired surrogate) is
    // read, but not written back.
    for (const std::string bytes :
         {std::string("\xFF\xFE\x41"), std::string("\xFF\xFE\x00\xD8", 4)}) {
        auto document = RegistryDocument::FromBytes(bytes);
        EXPECT_TRUE(document.Set("HKEY_CURRENT_USER\\A", "New", DwordValue(7)));
        std::string written;
        std::string why;
        EXPECT_FALSE(document.ToBytes(written, why));
        EXPECT_NE(why.find("encoding"), std::string::npos);
    }
}

}  // namespace
}  // namespace vx::registry
