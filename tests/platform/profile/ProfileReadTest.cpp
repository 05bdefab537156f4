// Reading profile files. These tests run against our engine on POSIX and against the system's
// own functions on Windows, so that the Windows run checks that both behave alike.
#include <chrono>
#include <cstring>
#include <filesystem>
#include <string>

#include "ProfileFixture.h"

namespace vx {
namespace {

using test::ProfileTest;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

const char* const kLines[] = {
    "[section1]",      "name1=val1",  "name2=\"val2\"",
    "name3",           "name4=a",     "  Spaced Key  =  spaced value  ",
    "single='quoted'", "half=\"open", "[ section2 ]",
    "name1=other",     "[section3]",
};

std::string Join(const char* ending) {
    std::string text;
    for (const char* line : kLines)
        text += std::string(line) + ending;
    return text;
}

class ProfileLookupTest : public ProfileTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(ProfileLookupTest, FollowsTheWindowsRules) {
    Put(Join(GetParam()));
    struct Case {
        const char* section;
        const char* key;
        const char* def;
        const char* expected;
    } cases[] = {
        {"section1", "name1", "default", "val1"},
        {"SECTION1", "NaMe1", "default", "val1"},
        {"  section1 ", " name1  ", "default", "val1"},
        {"section2", "name1", "default", "other"},
        {"section1", "name2", "default", "val2"},
        {"section1", "single", "default", "quoted"},
        {"section1", "half", "default", "\"open"},
        {"section1", "spaced key", "default", "spaced value"},
        {"section1", "name4", "default", "a"},
        {"section1", "notakey", "default", "default"},
        {"notasection", "name1", "default", "default"},
        {"section3", "name1", "default", "default"},
        {"section1", "", "default", "default"},
        {"", "name1", "default", "default"},
        {"section1", "notakey", "default  ", "default"},
        {"section1", "notakey", "one two  ", "one two"},
        {"section1", "notakey", "", ""},
        {"section1", "notakey", nullptr, ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Get(c.section, c.key, c.def), c.expected) << c.section << "/" << c.key;
}

INSTANTIATE_TEST_SUITE_P(LineEndings, ProfileLookupTest, ::testing::Values("\r\n", "\n", "\r"));

TEST_F(ProfileTest, BufferReceivesAtMostSizeMinusOneBytes) {
    Put(Join("\r\n"));
    struct Case {
        unsigned long size;
        unsigned long result;
        const char* expected;
    } cases[] = {{100, 4, "val1"}, {5, 4, "val1"}, {4, 3, "val"}, {1, 0, ""}};
    for (const Case& c : cases) {
        char buffer[100];
        std::memset(buffer, 'x', sizeof buffer);
        EXPECT_EQ(ProfileGetString("section1", "name1", "default", buffer, c.size, path.c_str()),
                  c.result);
        EXPECT_STREQ(buffer, c.expected);
    }
    char untouched[] = "kept";
    EXPECT_EQ(ProfileGetString("section1", "name1", "default", untouched, 0, path.c_str()), 0u);
    EXPECT_STREQ(untouched, "kept");
}

TEST_F(ProfileTest, EnumeratesSectionsAndKeys) {
    Put("[section1]\r\nname1=val1\r\nname2=\r\nname3\r\n; note=1\r\nname4=a\r\n"
        "[ section2 ]\r\n[section3]\r\n");
    EXPECT_EQ(Get(nullptr, "ignored"), std::string("section1\0section2\0section3\0", 27));
    EXPECT_EQ(Get("SECTION1", nullptr), std::string("name1\0name2\0name4\0", 18));
    EXPECT_EQ(Get("section2", nullptr), "default") << "no keys: the default";
    EXPECT_EQ(Get("missing", nullptr), "default");
#ifndef _WIN32  // Wine lists a nameless key as an empty name, which ends the list early
    Put("[s]\r\nname1=1\r\n=nameless\r\nname2=2\r\n");
    EXPECT_EQ(Get("s", nullptr), std::string("name1\0name2\0", 12));
#endif
}

// A list that does not fit is cut to size - 2 bytes and closed by two zeros; one that fills the
// buffer exactly counts as not fitting.
TEST_F(ProfileTest, EnumerationIntoSmallBuffersIsCutAndDoublyClosed) {
    Put("[section1]\r\n[section2]\r\n[section3]\r\n");
    const std::string all("section1\0section2\0section3\0", 27);
    struct Case {
        unsigned long size;
        unsigned long result;
        bool cut;
    } cases[] = {{29, 27, false}, {28, 26, true}, {27, 25, true}, {16, 14, true}};
    for (const Case& c : cases) {
        char buffer[40];
        std::memset(buffer, 'x', sizeof buffer);
        const unsigned long got =
            ProfileGetString(nullptr, nullptr, "", buffer, c.size, path.c_str());
        ASSERT_EQ(got, c.result) << "size " << c.size;
        EXPECT_EQ(std::string(buffer, 9), all.substr(0, 9));
        EXPECT_EQ(buffer[got], '\0');
        if (!c.cut) {
            EXPECT_EQ(buffer[got - 1], '\0');
            continue;
        }
#ifndef _WIN32  // Wine does not close a cut list with two zeros; Windows and our engine do
        EXPECT_EQ(std::string(buffer, got + 2), all.substr(0, got) + '\0' + '\0');
#endif
    }
}

TEST_F(ProfileTest, MissingFileReadsAsEmpty) {
    EXPECT_EQ(Get("section1", "name1"), "default");
    char buffer[10];
    std::memset(buffer, 'x', sizeof buffer);
    EXPECT_EQ(ProfileGetString(nullptr, nullptr, "", buffer, sizeof buffer, path.c_str()), 0u);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(ProfileGetString("s", "k", "default", nullptr), "default");
    EXPECT_EQ(ProfileGetString("s", "k", "default", ""), "default");
}

TEST_F(ProfileTest, IntegersReadAsWindowsReadsThem) {
    struct Case {
        const char* value;
        int def;
        unsigned int expected;
    } cases[] = {
        {"-1", 1, 4294967295u}, {"1", -1, 1},
        {"+1", -1, 1},          {"4294967296", 1, 0},
        {"4294967297", 1, 1},   {"-4294967297", 1, 4294967295u},
        {"42A94967297", 1, 42}, {"B4294967297", 1, 0},
        {"  7  ", 1, 7},        {"\"12\"", 1, 12},
        {"0x10", 1, 16},        {"-0x1f", 1, 4294967265u},
        {"0b101", 1, 5},        {"0o17", 1, 15},
        {"0X10", 1, 0},         {"", 5, 5},
        {"\"\"", 5, 5},
    };
    for (const Case& c : cases) {
        ASSERT_TRUE(Set("Test", "ProfileInt", c.value));
        EXPECT_EQ(ProfileGetInt("Test", "ProfileInt", c.def, path.c_str()), c.expected)
            << "value '" << c.value << "'";
    }
    EXPECT_EQ(ProfileGetInt("Test", "absent", -1, path.c_str()), 4294967295u);
    EXPECT_EQ(ProfileGetInt("absent", "ProfileInt", 70, path.c_str()), 70u);
}

// Files that are not profiles at all still read without harm, as far as they make sense.
TEST_F(ProfileTest, DamagedFilesReadAsFarAsTheyMakeSense) {
    const std::string hugeLine(1 << 20, 'z');
    const std::string binary("\x00\x01\xff\xfe[\x80]\x00=\x00\r\n", 12);
    Put(binary + hugeLine + "\n[good]\nkey=\xC3\x28 invalid utf-8\n[" + hugeLine);
    EXPECT_EQ(Get("good", "key"), "\xC3\x28 invalid utf-8");
    EXPECT_EQ(Get("good", "missing"), "default");
    EXPECT_EQ(ProfileGetString("good", nullptr, "", path.c_str()), std::string("key\0", 4));
}

// Reads must see every change that others make on disk, however it is made, although parsed
// files are cached.
TEST_F(ProfileTest, ReadsSeeChangesMadeByOthers) {
    const auto past = fs::file_time_type::clock::now() - 1h;
    Put("[A]\r\nx=1\r\n");
    fs::last_write_time(path, past);
    EXPECT_EQ(Get("A", "x"), "1");
    EXPECT_EQ(Get("A", "x"), "1");

    // Rewritten in place, same size, another time.
    Put("[A]\r\nx=2\r\n");
    fs::last_write_time(path, past + 1s);
    EXPECT_EQ(Get("A", "x"), "2");

#ifndef _WIN32  // Wine's own cache goes by the time only
    // Same size and time, but another file renamed over it.
    test::WriteBytes(path + ".new", "[A]\r\nx=3\r\n");
    fs::last_write_time(path + ".new", past + 1s);
    fs::rename(path + ".new", path);
    EXPECT_EQ(Get("A", "x"), "3");
#endif

    fs::remove(path);
    EXPECT_EQ(Get("A", "x"), "default");
}

#ifndef _WIN32
// A file rewritten twice within one tick of the file system's clock keeps size, time and inode:
// only a fresh read tells, and a file that young is always read afresh.
TEST_F(ProfileTest, YoungFilesAreReadAfresh) {
    const auto now = fs::file_time_type::clock::now();
    Put("[A]\r\nx=4\r\n");
    fs::last_write_time(path, now);
    EXPECT_EQ(Get("A", "x"), "4");
    Put("[A]\r\nx=5\r\n");
    fs::last_write_time(path, now);
    EXPECT_EQ(Get("A", "x"), "5");
}

// A huge file is read as far as a profile can reach and never rewritten.
TEST_F(ProfileTest, HugeFilesAreReadInPartAndLeftAlone) {
    const std::string huge = "[A]\nx=1\n" + std::string(5 << 20, 'z') + "\n[B]\ny=2\n";
    Put(huge);
    EXPECT_EQ(Get("A", "x"), "1");
    EXPECT_EQ(Get("B", "y"), "default");
    EXPECT_FALSE(Set("A", "x", "2"));
    EXPECT_EQ(Bytes(), huge);
}
#endif

}  // namespace
}  // namespace vx
