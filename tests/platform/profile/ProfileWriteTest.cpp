// Writing profile files, on POSIX through our engine and on Windows through the system.
#include <filesystem>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "ProfileFixture.h"

namespace vx {
namespace {

using test::ProfileTest;

TEST_F(ProfileTest, WritesDeletesKeysAndSectionsAsWindowsDoes) {
    ASSERT_TRUE(Set("App1", "key1", "string1"));
    ASSERT_TRUE(Set("App1", "key2", "string2"));
    ASSERT_TRUE(Set("App2", "key4", "string4"));
    ASSERT_TRUE(Set("App1", "key3", "string3"));  // into its section, not at the end
    ASSERT_TRUE(Set("App3", "key5", "string5"));
    EXPECT_EQ(Bytes(),
              "[App1]\r\nkey1=string1\r\nkey2=string2\r\nkey3=string3\r\n"
              "[App2]\r\nkey4=string4\r\n[App3]\r\nkey5=string5\r\n");
#ifndef _WIN32
    struct stat info {};
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u) << "profiles may hold passwords";
#endif

    const char* const withoutKey2 =
        "[App1]\r\nkey1=string1\r\nkey3=string3\r\n[App2]\r\nkey4=string4\r\n"
        "[App3]\r\nkey5=string5\r\n";
    struct Step {
        const char* section;
        const char* key;
        const char* value;
        const char* expected;
    } steps[] = {
        {"app1", "KEY2", nullptr, withoutKey2},
        {"App1", "key2", nullptr, withoutKey2},  // deleting again changes nothing
        {"App1", nullptr, "ignored", "[App2]\r\nkey4=string4\r\n[App3]\r\nkey5=string5\r\n"},
        {"App2", nullptr, nullptr, "[App3]\r\nkey5=string5\r\n"},
        {"App3", "key5", nullptr, "[App3]\r\n"},
        {"App3", "key6", "", "[App3]\r\nkey6=\r\n"},
        {"APP3", "KEY6", "x", "[App3]\r\nkey6=x\r\n"},  // the file's spelling stays
    };
    for (const Step& step : steps) {
        EXPECT_TRUE(Set(step.section, step.key, step.value));
        EXPECT_EQ(Bytes(), step.expected);
    }
    EXPECT_EQ(Get("app3", "Key6"), "x");
}

TEST_F(ProfileTest, FailsWhereNothingCanBeWritten) {
    test::WriteBytes(home.file("plain"), "a file, not a folder");
    const std::string inside = home.file("plain") + "/test.ini";
    EXPECT_FALSE(ProfileWriteString("App", "key", "value", inside.c_str()));
    EXPECT_EQ(ProfileGetString("App", "key", "default", inside.c_str()), "default");
    EXPECT_FALSE(ProfileWriteString("App", "key", "value", ""));
    EXPECT_FALSE(ProfileWriteString("App", "key", "value", nullptr));
    EXPECT_FALSE(Set(nullptr, "key", "value"));
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ProfileTest, BareFileNamesLiveInTheSettingsHome) {
    ASSERT_TRUE(ProfileWriteString("App", "key", "value", "bare.ini"));
    EXPECT_EQ(test::ReadBytes(home.file("bare.ini")), "[App]\r\nkey=value\r\n");
    EXPECT_EQ(ProfileGetString("App", "key", "", "bare.ini"), "value");
}

// The bytes before the first section survive a rewrite, NUL bytes included.
TEST_F(ProfileTest, BytesBeforeTheFirstSectionAreKept) {
    const std::string preamble("Data \0 before \0 first \0 section", 31);
    Put(preamble);
    ASSERT_TRUE(Set("section1", "key1", "string1"));
#ifndef _WIN32  // Wine cuts the text at the first NUL
    EXPECT_EQ(Bytes(), preamble + "\r\n[section1]\r\nkey1=string1\r\n");
#endif
    EXPECT_EQ(Get("section1", "key1"), "string1");
}

// Our engine changes only the lines a write concerns; the system's functions on Windows
// rewrite the whole file, so there only the values are compared.
TEST_F(ProfileTest, RewriteKeepsCommentsUnknownLinesAndLineEndings) {
    Put("; about this file\nfree text\n[A]\n; note\nx = 1\nbare line\n\n[B]\ny=2\n");
    ASSERT_TRUE(Set("A", "z", "3"));
    ASSERT_TRUE(Set("B", "y", "4"));
    ASSERT_TRUE(Set("C", "w", "5"));
#ifndef _WIN32
    EXPECT_EQ(Bytes(),
              "; about this file\nfree text\n[A]\n; note\nx = 1\nz=3\nbare line\n\n[B]\ny=4\n"
              "[C]\nw=5\n");
#endif
    EXPECT_EQ(Get("A", "x"), "1");
    EXPECT_EQ(Get("A", "z"), "3");
    EXPECT_EQ(Get("B", "y"), "4");
    EXPECT_EQ(Get("C", "w"), "5");
}

TEST_F(ProfileTest, LastLineWithoutEndingGetsOneBeforeAnAddition) {
    Put("[A]\r\nx=1");
    ASSERT_TRUE(Set("A", "y", "2"));
    EXPECT_EQ(Bytes(), "[A]\r\nx=1\r\ny=2\r\n");
}

TEST_F(ProfileTest, ByteOrderMarkIsKeptOnRewrite) {
    Put("\xEF\xBB\xBF[A]\r\nx=1\r\n");
    ASSERT_TRUE(Set("A", "x", "2"));
    EXPECT_EQ(Bytes(), "\xEF\xBB\xBF[A]\r\nx=2\r\n");
}

#ifndef _WIN32
// Values that would break the file into other lines are refused rather than written: they
// could not be read back and would plant keys or sections of their own.
TEST_F(ProfileTest, RefusesWhatCannotBeReadBack) {
    Put("[A]\r\nx=1\r\n");
    struct Case {
        const char* section;
        const char* key;
        const char* value;
    } cases[] = {
        {"A", "x", "1\r\n[B]"}, {"A", "x\ny", "1"}, {"A\r", "x", "1"},
        {"A", "x=y", "1"},      {"A", "[B]", "1"},  {"A", "; x", "1"},
    };
    for (const Case& c : cases)
        EXPECT_FALSE(Set(c.section, c.key, c.value)) << c.key;
    EXPECT_EQ(Bytes(), "[A]\r\nx=1\r\n");
}
#endif

}  // namespace
}  // namespace vx
