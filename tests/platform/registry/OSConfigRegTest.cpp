#include "vxutil/gnrt/OSConfigReg.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <thread>
#include <vector>

#include "support/TempHome.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace {

const CGNString kRoot = "SOFTWARE";
const CGNString kUsers = "Korvel\\VXUser\\Users";

using RegistryPrimitives = vx::test::HomeTest;

int SetString(const char* name, const char* value) {
    return OSSetSystemConfigReg(CGNString(value), kUsers, name, kRoot);
}
// A value name of its own for writer `writer`'s `index`-th value.
std::string WriterValueName(int writer, int index) {
    return std::to_string(writer).append("_").append(std::to_string(index));
}

int SetNumber(const char* name, int value) {
    return OSSetSystemConfigReg(value, kUsers, name, kRoot);
}

// A read's result and what it gave back.
struct TextRead {
    int result;
    std::string text;
    friend bool operator==(const TextRead&, const TextRead&) = default;
};
struct NumberRead {
    int result;
    long number;
    friend bool operator==(const NumberRead&, const NumberRead&) = default;
};
std::ostream& operator<<(std::ostream& out, const TextRead& r) {
    return out << r.result << " \"" << r.text << '"';
}
std::ostream& operator<<(std::ostream& out, const NumberRead& r) {
    return out << r.result << ' ' << r.number;
}

TextRead GetString(const char* name, const char* def = "default") {
    CGNString out = "garbage";
    const int result = OSGetSystemConfigReg(out, CGNString(def), kUsers, name, kRoot);
    return {result, out.str()};
}
NumberRead GetNumber(const char* name, long def = 99) {
    long out = 12345;
    const int result = OSGetSystemConfigReg(out, def, kUsers, name, kRoot);
    return {result, out};
}

TEST_F(RegistryPrimitives, AbsentValuesGiveTheDefault) {
    EXPECT_EQ(GetString("USER1"), (TextRead{0, "default"}));
    EXPECT_EQ(GetString("USER1", ""), (TextRead{0, ""}));
    EXPECT_EQ(GetNumber("LastUserLoggedIn", -1), (NumberRead{0, -1}));
    EXPECT_EQ(OSDelSystemConfigReg(kUsers, "USER1", kRoot), 0);
    ASSERT_GT(SetString("USER1", "alice"), 0);
    EXPECT_EQ(GetString("USER2"), (TextRead{0, "default"}));
    long number = 0;
    EXPECT_EQ(OSGetSystemConfigReg(number, 5, "Korvel\\VXUser", "USER1", kRoot), 0);
}

TEST_F(RegistryPrimitives, StringsRoundTrip) {
    for (const char* text : {"alice", "", "C:\\Users\\al \"ice\"\\", "x=y;[z]", "@"}) {
        ASSERT_GT(SetString("VXPATH1", text), 0) << text;
        EXPECT_EQ(GetString("VXPATH1"), (TextRead{1, text}));
    }
}

TEST_F(RegistryPrimitives, NumbersAreSignedThirtyTwoBit) {
    for (int number : {0, 1, -1, 42, INT_MAX, INT_MIN}) {
        ASSERT_GT(SetNumber("LastUserLoggedIn", number), 0) << number;
        EXPECT_EQ(GetNumber("LastUserLoggedIn"), (NumberRead{1, number}));
        EXPECT_EQ(GetString("LastUserLoggedIn"), (TextRead{1, std::to_string(number)}));
    }
}

TEST_F(RegistryPrimitives, NumberReadOfAString) {
    struct Case {
        const char* text;
        NumberRead expected;
    } cases[] = {
        {"42", {1, 42}},         {" -7 ", {1, -7}},
        {"+3", {1, 3}},          {"2147483647", {1, INT_MAX}},
        {"2147483648", {0, 99}}, {"", {0, 99}},
        {"12abc", {0, 99}},      {"abc", {0, 99}},
        {"0x10", {0, 99}},
    };
    for (const auto& c : cases) {
        ASSERT_GT(SetString("ShowLangDLLNotFound", c.text), 0);
        EXPECT_EQ(GetNumber("ShowLangDLLNotFound"), c.expected) << '"' << c.text << '"';
    }
}

TEST_F(RegistryPrimitives, NamesIgnoreCase) {
    ASSERT_GT(SetString("User1", "alice"), 0);
    ASSERT_GT(SetString("USER1", "bob"), 0);
    EXPECT_EQ(GetString("user1"), (TextRead{1, "bob"}));
    CGNString text;
    EXPECT_EQ(OSGetSystemConfigReg(text, "", "KORVEL\\vxuser\\USERS\\", "user1", "software"), 1);
    EXPECT_EQ(text.str(), "bob");
    EXPECT_GT(OSDelSystemConfigReg(kUsers, "uSeR1", kRoot), 0);
    EXPECT_EQ(GetString("User1"), (TextRead{0, "default"}));
}

TEST_F(RegistryPrimitives, AValueTakesTheKindLastWritten) {
    ASSERT_GT(SetString("LastUserLoggedIn", "alice"), 0);
    ASSERT_GT(SetNumber("LastUserLoggedIn", 3), 0);
    EXPECT_EQ(GetNumber("LastUserLoggedIn"), (NumberRead{1, 3}));
    ASSERT_GT(SetString("LastUserLoggedIn", "bob"), 0);
    EXPECT_EQ(GetNumber("LastUserLoggedIn"), (NumberRead{0, 99}));
}

TEST_F(RegistryPrimitives, DeleteRemovesOneValue) {
    ASSERT_GT(SetString("USER1", "alice"), 0);
    ASSERT_GT(SetString("USER2", "bob"), 0);
    EXPECT_GT(OSDelSystemConfigReg(kUsers, "USER1", kRoot), 0);
    EXPECT_EQ(OSDelSystemConfigReg(kUsers, "USER1", kRoot), 0);
    EXPECT_EQ(GetString("USER1"), (TextRead{0, "default"}));
    EXPECT_EQ(GetString("USER2"), (TextRead{1, "bob"}));
}

TEST_F(RegistryPrimitives, NamesWithLineBreaksAreRefused) {
    EXPECT_EQ(SetString("USER\n1", "alice"), 0);
    EXPECT_EQ(OSSetSystemConfigReg(CGNString("x"), "Korvel\r\nX", "USER1", kRoot), 0);
    EXPECT_EQ(GetString("USER\n1"), (TextRead{0, "default"}));
    EXPECT_EQ(OSDelSystemConfigReg(kUsers, "USER\n1", kRoot), 0);
}

TEST_F(RegistryPrimitives, ConcurrentWritersKeepEachOthersValues) {
    constexpr int kPerThread = 15;
    std::vector<std::thread> writers;
    for (int t = 0; t < 2; ++t) {
        writers.emplace_back([t] {
            for (int i = 0; i < kPerThread; ++i) {
                SetNumber(WriterValueName(t, i).c_str(), i);
            }
        });
    }
    for (auto& writer : writers)
        writer.join();
    for (int t = 0; t < 2; ++t) {
        for (int i = 0; i < kPerThread; ++i) {
            const std::string name = WriterValueName(t, i);
            EXPECT_EQ(GetNumber(name.c_str()), (NumberRead{1, i})) << name;
        }
    }
}

#ifndef _WIN32
// The POSIX store is a file that regedit can import; these check the file itself.
class RegistryFile : public vx::test::HomeTest {
protected:
    std::string path() const { return home.file("registry.reg"); }
};

TEST_F(RegistryFile, IsWrittenAsRegeditWritesIt) {
    ASSERT_GT(SetString("USER1", "C:\\al\"ice\""), 0);
    ASSERT_GT(SetNumber("LastUserLoggedIn", -1), 0);
    ASSERT_GT(SetString("user1", "alice"), 0);
    EXPECT_EQ(vx::test::ReadBytes(path()),
              "Windows Registry Editor Version 5.00\r\n\r\n"
              "[HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users]\r\n"
              "\"USER1\"=\"alice\"\r\n"
              "\"LastUserLoggedIn\"=dword:ffffffff\r\n\r\n");
    struct stat info {};
    ASSERT_EQ(stat(path().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600);
}

TEST_F(RegistryFile, ChangesOnDiskAreSeen) {
    const std::string head =
        "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\"
        "Users]\n";
    vx::test::WriteBytes(path(), head + "\"USER1\"=\"alice\"\n");
    EXPECT_EQ(GetString("USER1"), (TextRead{1, "alice"}));
    vx::test::WriteBytes(path(), head + "\"USER1\"=\"bob\"\n");
    EXPECT_EQ(GetString("USER1"), (TextRead{1, "bob"}));
    std::remove(path().c_str());
    EXPECT_EQ(GetString("USER1"), (TextRead{0, "default"}));
}

TEST_F(RegistryFile, AnExportOfRegeditIsReadAndKept) {
    const std::string text =
        "Windows Registry Editor Version 5.00\r\n\r\n"
        "[HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users]\r\n"
        "\"USER1\"=\"alice\"\r\n"
        "\"Note\"=hex(2):41,00,00,00\r\n\r\n";
    std::string utf16 = "\xFF\xFE";
    for (char c : text)
        utf16 += std::string{c, '\0'};
    vx::test::WriteBytes(path(), utf16);

    EXPECT_EQ(GetString("USER1"), (TextRead{1, "alice"}));
    EXPECT_EQ(GetString("Note"), (TextRead{0, "default"}));
    ASSERT_GT(SetString("USER2", "bob"), 0);

    const std::string written = vx::test::ReadBytes(path());
    std::string expected = "\xFF\xFE";
    const std::string added = "\"USER2\"=\"bob\"\r\n";
    std::string newText = text;
    newText.insert(newText.find("\r\n\r\n", 60) + 2, added);
    for (char c : newText)
        expected += std::string{c, '\0'};
    EXPECT_EQ(written, expected);
}
#endif

}  // namespace
