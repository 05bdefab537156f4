// How the settings store treats what it finds on disk: modes, links, temporary names and
// encodings, one row per case, through the profile and registry functions that use it.
#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/file/TextEncoding.h"
#include "support/TempHome.h"
#include "vxutil/gnrt/OSConfigReg.h"
#include "vxutil/platform/ProfileFile.h"
#include "vxutil/platform/SettingsHome.h"
#include "vxutil/platform/StoreError.h"

namespace vx {
namespace {

namespace fs = std::filesystem;

struct Case {
    const char* name;
    std::function<void(const std::string& file)> setUp;
    std::function<bool(const std::string& file)> write;
    bool written;
    std::function<void(const std::string& file)> check;
    const char* error = "";  // part of the recorded cause of a refused write
};

bool WritePassword(const std::string& file) {
    return ProfileWriteString("User", "Password", "pw", file.c_str());
}

std::string Password(const std::string& file) {
    return ProfileGetString("User", "Password", "<absent>", file.c_str());
}

unsigned ModeOf(const std::string& file) {
    struct stat info {};
    ::stat(file.c_str(), &info);
    return info.st_mode & 07777;
}

std::string Utf16(const std::string& text, bool mark) {
    return (mark ? std::string("\xFF\xFE") : std::string()) + ClientToUtf16LeBytes(text);
}

const std::string kUtf16Login = "[User]\r\nUser=zo\xC3\xAB\r\n";

bool WriteRegistry(const std::string&) {
    return OSSetSystemConfigReg("zo\xC3\xAB", "T", "b", "SOFTWARE") > 0;
}

std::string ReadRegistry(const char* name) {
    CGNString value;
    OSGetSystemConfigReg(value, "<absent>", "T", name, "SOFTWARE");
    return value.str();
}

class StoreSafetyTest : public test::HomeTest {};

TEST_F(StoreSafetyTest, WhatTheStoreFindsOnDisk) {
    const std::vector<Case> cases = {
        {"a password file that others could read becomes the owner's alone",
         [](const std::string& f) {
             test::WriteBytes(f, "[User]\r\n");
             ::chmod(f.c_str(), 0644);
         },
         WritePassword, true, [](const std::string& f) { EXPECT_EQ(ModeOf(f), 0600u); }},
        {"a link is written through to its target and stays a link",
         [](const std::string& f) {
             test::WriteBytes(f + ".target", "[User]\r\nPassword=old\r\n");
             fs::create_symlink(fs::path(f + ".target").filename(), f);
         },
         WritePassword, true,
         [](const std::string& f) {
             EXPECT_TRUE(fs::is_symlink(f));
             EXPECT_EQ(test::ReadBytes(f + ".target"), "[User]\r\nPassword=pw\r\n");
         }},
        {"a dangling link is refused and left alone",
         [](const std::string& f) { fs::create_symlink(f + ".missing", f); }, WritePassword, false,
         [](const std::string& f) {
             EXPECT_TRUE(fs::is_symlink(f));
             EXPECT_FALSE(fs::exists(f + ".missing"));
         },
         "dangling symbolic link"},
        {"a loop of links is refused", [](const std::string& f) { fs::create_symlink(f, f); },
         WritePassword, false, [](const std::string&) {}, "too many levels"},
        {"a file of the old temporary name is no temporary file",
         [](const std::string& f) { test::WriteBytes(f + ".tmp", "unrelated"); }, WritePassword,
         true,
         [](const std::string& f) {
             EXPECT_EQ(test::ReadBytes(f + ".tmp"), "unrelated");
             EXPECT_EQ(Password(f), "pw");
         }},
        {"a folder of the old temporary name is in nobody's way",
         [](const std::string& f) { fs::create_directory(f + ".tmp"); }, WritePassword, true,
         [](const std::string& f) { EXPECT_EQ(Password(f), "pw"); }},
        {"a missing folder is not made", [](const std::string&) {},
         [](const std::string& f) { return WritePassword(f + ".d/vx.ini"); }, false,
         [](const std::string& f) { EXPECT_FALSE(fs::exists(f + ".d")); }, "folder does not exist"},
        {"a value with a line break is refused and the old one kept",
         [](const std::string& f) { test::WriteBytes(f, "[User]\r\nPassword=old\r\n"); },
         [](const std::string& f) {
             return ProfileWriteString("User", "Password", "new\npw", f.c_str());
         },
         false, [](const std::string& f) { EXPECT_EQ(Password(f), "old"); }, "line break"},
        {"UTF-16 with a byte-order mark is read and written back in UTF-16",
         [](const std::string& f) { test::WriteBytes(f, Utf16(kUtf16Login, true)); }, WritePassword,
         true,
         [](const std::string& f) {
             EXPECT_EQ(test::ReadBytes(f), Utf16(kUtf16Login + "Password=pw\r\n", true));
             EXPECT_EQ(ProfileGetString("User", "User", "", f.c_str()), "zo\xC3\xAB");
         }},
        {"UTF-16 without a byte-order mark stays without one",
         [](const std::string& f) { test::WriteBytes(f, Utf16(kUtf16Login, false)); },
         WritePassword, true,
         [](const std::string& f) {
             EXPECT_EQ(test::ReadBytes(f), Utf16(kUtf16Login + "Password=pw\r\n", false));
         }},
        {"UTF-16 that cannot be written back unchanged is refused",
         [](const std::string& f) {
             test::WriteBytes(f, Utf16(kUtf16Login, true) + std::string("\x00\xD8", 2));
         },
         WritePassword, false,
         [](const std::string& f) {
             EXPECT_EQ(test::ReadBytes(f), Utf16(kUtf16Login, true) + std::string("\x00\xD8", 2));
         },
         "encoding"},
        {"a file beyond the read limit is refused by name",
         [](const std::string& f) { test::WriteBytes(f, std::string(5 << 20, ';')); },
         WritePassword, false, [](const std::string&) {}, "larger than 4 MiB"},
        {"a new registry file with other than ASCII is UTF-16LE with a mark",
         [](const std::string&) {}, WriteRegistry, true,
         [](const std::string&) {
             EXPECT_TRUE(
                 test::ReadBytes(ResolveSettingsFile("registry.reg")).starts_with("\xFF\xFE"));
             EXPECT_EQ(ReadRegistry("b"), "zo\xC3\xAB");
         }},
        {"a UTF-16 registry file without a mark is read and keeps its encoding",
         [](const std::string&) {
             test::WriteBytes(ResolveSettingsFile("registry.reg"),
                              Utf16("Windows Registry Editor Version 5.00\r\n\r\n"
                                    "[HKEY_CURRENT_USER\\SOFTWARE\\T]\r\n\"a\"=\"1\"\r\n",
                                    false));
         },
         WriteRegistry, true,
         [](const std::string&) {
             EXPECT_EQ(ReadRegistry("a"), "1");
             EXPECT_TRUE(test::ReadBytes(ResolveSettingsFile("registry.reg"))
                             .starts_with(std::string_view("W\0", 2)));
         }},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[i];
        SCOPED_TRACE(c.name);
        const std::string file = home.file("case" + std::to_string(i) + ".ini");
        fs::remove(ResolveSettingsFile("registry.reg"));
        c.setUp(file);
        ClearStoreError();
        EXPECT_EQ(c.write(file), c.written);
        EXPECT_NE(LastStoreError().find(c.error), std::string::npos) << LastStoreError();
        c.check(file);
        // Whatever happened, no temporary file is left beside the file.
        for (const auto& entry : fs::directory_iterator(home.path()))
            EXPECT_EQ(entry.path().string().find(".tmp-"), std::string::npos) << entry.path();
    }
}

}  // namespace
}  // namespace vx
#endif
