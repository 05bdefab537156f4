#include "vxutil/gnrt/OSConfigReg.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/TempHome.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace {

const CGNString kRoot = "SOFTWARE";
const CGNString kUsers = "Korvel\\VXUser\\Users";

using RegistryPrimitives = vx::test::HomeTest;

// A read's result and what it gave back.
using TextRead = std::pair<int, std::string>;
using NumberRead = std::pair<int, long>;

int SetString(const char* name, const char* value) {
    return OSSetSystemConfigReg(CGNString(value), kUsers, name, kRoot);
}
int SetNumber(const char* name, int value) {
    return OSSetSystemConfigReg(value, kUsers, name, kRoot);
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

TEST_F(RegistryPrimitives, AbsentAndDeletedValuesGiveTheDefault) {
    EXPECT_EQ(GetString("USER1"), (TextRead{0, "default"}));
    EXPECT_EQ(GetString("USER1", ""), (TextRead{0, ""}));
    EXPECT_EQ(GetNumber("LastUserLoggedIn", -1), (NumberRead{0, -1}));
    EXPECT_EQ(OSDelSystemConfigReg(kUsers, "USER1", kRoot), 0);
    ASSERT_GT(SetString("USER1", "alice"), 0);
    ASSERT_GT(SetString("USER2", "bob"), 0);
    long number = 0;
    EXPECT_EQ(OSGetSystemConfigReg(number, 5, "Korvel\\VXUser", "USER1", kRoot), 0);
    EXPECT_GT(OSDelSystemConfigReg(kUsers, "USER1", kRoot), 0);
    EXPECT_EQ(OSDelSystemConfigReg(kUsers, "USER1", kRoot), 0);
    EXPECT_EQ(GetString("USER1"), (TextRead{0, "default"}));
    EXPECT_EQ(GetString("USER2"), (TextRead{1, "bob"}));
}

// A write sets the kind as well: the numbers replace a string, and a string replaces them.
TEST_F(RegistryPrimitives, ValuesReadBackAsWritten) {
    for (const char* text : {"alice", "", "C:\\Users\\al \"ice\"\\", "x=y;[z]", "@"}) {
        ASSERT_GT(SetString("VXPATH1", text), 0) << text;
        EXPECT_EQ(GetString("VXPATH1"), (TextRead{1, text}));
    }
    // Numbers are signed 32-bit and read as their decimal text.
    for (int number : {0, 1, -1, 42, INT_MAX, INT_MIN}) {
        ASSERT_GT(SetNumber("VXPATH1", number), 0) << number;
        EXPECT_EQ(GetNumber("VXPATH1"), (NumberRead{1, number}));
        EXPECT_EQ(GetString("VXPATH1"), (TextRead{1, std::to_string(number)}));
    }
    ASSERT_GT(SetString("VXPATH1", "bob"), 0);
    EXPECT_EQ(GetNumber("VXPATH1"), (NumberRead{0, 99}));
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

TEST_F(RegistryPrimitives, NamesWithLineBreaksAreRefused) {
    EXPECT_EQ(SetString("USER\n1", "alice"), 0);
    EXPECT_EQ(OSSetSystemConfigReg(CGNString("x"), "Korvel\r\nX", "USER1", kRoot), 0);
    EXPECT_EQ(GetString("USER\n1"), (TextRead{0, "default"}));
    EXPECT_EQ(OSDelSystemConfigReg(kUsers, "USER\n1", kRoot), 0);
}

TEST_F(RegistryPrimitives, ConcurrentWritersKeepEachOthersValues) {
    constexpr int kPerThread = 15;
    const auto name = [](int writer, int index) {
        return std::to_string(writer) + "_" + std::to_string(index);
    };
    std::vector<std::thread> writers;
    for (int t = 0; t < 2; ++t) {
        writers.emplace_back([t, &name] {
            for (int i = 0; i < kPerThread; ++i)
                SetNumber(name(t, i).c_str(), i);
        });
    }
    for (auto& writer : writers)
        writer.join();
    for (int t = 0; t < 2; ++t)
        for (int i = 0; i < kPerThread; ++i)
            EXPECT_EQ(GetNumber(name(t, i).c_str()), (NumberRead{1, i})) << name(t, i);
}

#ifndef _WIN32
// The POSIX store is a file that regedit can import; these check the file itself.
class RegistryFile : public vx::test::HomeTest {
protected:
    const std::string path = home.file("registry.reg");
};

const std::string kHead =
    "Windows Registry Editor Version 5.00\r\n\r\n"
    "[HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users]\r\n";

TEST_F(RegistryFile, IsWrittenAsRegeditWritesIt) {
    ASSERT_GT(SetString("USER1", "C:\\al\"ice\""), 0);
    ASSERT_GT(SetNumber("LastUserLoggedIn", -1), 0);
    ASSERT_GT(SetString("user1", "alice"), 0);
    EXPECT_EQ(vx::test::ReadBytes(path),
              kHead + "\"USER1\"=\"alice\"\r\n\"LastUserLoggedIn\"=dword:ffffffff\r\n\r\n");
    struct stat info {};
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600);
}

TEST_F(RegistryFile, ChangesOnDiskAreSeen) {
    vx::test::WriteBytes(path, kHead + "\"USER1\"=\"alice\"\n");
    EXPECT_EQ(GetString("USER1"), (TextRead{1, "alice"}));
    vx::test::WriteBytes(path, kHead + "\"USER1\"=\"bob\"\n");
    EXPECT_EQ(GetString("USER1"), (TextRead{1, "bob"}));
    std::remove(path.c_str());
    EXPECT_EQ(GetString("USER1"), (TextRead{0, "default"}));
}

// regedit exports in UTF-16 and may hold kinds that read as absent (hex(2) here); the file stays
// UTF-16, and a new value goes after the others.
TEST_F(RegistryFile, AnExportOfRegeditIsReadAndKept) {
    const auto utf16 = [](const std::string& text) {
        std::string bytes = "\xFF\xFE";
        for (char c : text)
            bytes += {c, '\0'};
        return bytes;
    };
    const std::string values = kHead + "\"USER1\"=\"alice\"\r\n\"Note\"=hex(2):41,00,00,00\r\n";
    vx::test::WriteBytes(path, utf16(values + "\r\n"));
    EXPECT_EQ(GetString("USER1"), (TextRead{1, "alice"}));
    EXPECT_EQ(GetString("Note"), (TextRead{0, "default"}));
    ASSERT_GT(SetString("USER2", "bob"), 0);
    EXPECT_EQ(vx::test::ReadBytes(path), utf16(values + "\"USER2\"=\"bob\"\r\n\r\n"));
}
#endif

}  // namespace
