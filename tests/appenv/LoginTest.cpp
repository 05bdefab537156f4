// The remembered login in the "vx.ini" files, the 31-byte buffers and PromptForLogin's path.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "gnrt/MultiByte.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/OSUserName.h"

namespace {

class LoginTest : public vx::test::AppEnvTest {
protected:
    LoginTest() {
        SetReg("USER1", "ann");
        SetReg("VXPATH1", annFolder);
        SetReg("VXPATH0", defaultFolder);
    }

    // "<result> <user>/<password>" as the operations leave the buffers.
    std::string Last() { return Got(CAppEnv::GetLastUserAndPassword(user, password)); }
    std::string ReadFrom(const std::string& folder) {
        return Got(CAppEnv::GetUserAndPassword(folder.c_str(), user, password));
    }
    std::string Got(int result) const {
        return std::to_string(result) + " " + user + "/" + password;
    }

    const std::string annFolder = Folder("ann");
    const std::string defaultFolder = Folder("default");
    char user[vx::kNameBufferSize] = "untouched";
    char password[vx::kNameBufferSize] = "untouched";
};

TEST_F(LoginTest, LastUserComesFromTheUserFileOrElseFromTheSlot) {
    EXPECT_EQ(Last(), "0 untouched/untouched");
    SetRegNumber("LastUserLoggedIn", -1);
    EXPECT_EQ(Last(), "0 untouched/untouched");

    SetRegNumber("LastUserLoggedIn", 1);
    EXPECT_EQ(Last(), "1 ann/");  // no file at all: the slot names the user
    Remember(annFolder, "Password", "s3cret");
    EXPECT_EQ(Last(), "1 ann/s3cret");
    Remember(annFolder, "User", "ann.smith");
    EXPECT_EQ(Last(), "1 ann.smith/s3cret");
    // A slot that has neither a file name nor a registry name gives nothing.
    SetRegNumber("LastUserLoggedIn", 2);
    EXPECT_EQ(Last()[0], '0');

    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(nullptr, password), 0);
    EXPECT_EQ(CAppEnv::GetUserAndPassword(annFolder.c_str(), user, nullptr), 0);
    EXPECT_EQ(CAppEnv::GetLastOSUser(nullptr), 0);
    EXPECT_EQ(CAppEnv::SetLastUserAndPassword(nullptr, "pw"), 0);
}

TEST_F(LoginTest, RememberingWritesTheUserFileAndTheDefaultFolderFile) {
    // Without a default home folder nothing is written and there is no logon name.
    DeleteReg("VXPATH0");
    EXPECT_EQ(CAppEnv::SetLastUserAndPassword("ann", "pw"), 0);
    EXPECT_EQ(Remembered(annFolder, "User"), "<absent>");
    char osUser[vx::kNameBufferSize] = "untouched";
    EXPECT_EQ(CAppEnv::GetLastOSUser(osUser), 0);
    EXPECT_STREQ(osUser, "untouched");

    SetReg("VXPATH0", defaultFolder);
    ASSERT_FALSE(ClientGetOSUserName().IsEmpty());
    ASSERT_EQ(CAppEnv::SetLastUserAndPassword("ann", "pw"), 1);
    EXPECT_EQ(Remembered(annFolder, "User") + "/" + Remembered(annFolder, "Password"), "ann/pw");
    EXPECT_EQ(Remembered(defaultFolder, "OSUser"), ClientGetOSUserName().str());
    EXPECT_EQ(Remembered(defaultFolder, "User"), "<absent>");
    EXPECT_EQ(Reg("LastUserLoggedIn"), "<absent>");
    EXPECT_EQ(CAppEnv::GetLastOSUser(osUser), 1);
    EXPECT_EQ(ReadFrom(annFolder), "1 ann/pw");
    // Unknown users are remembered in the default home folder.
    ASSERT_EQ(CAppEnv::SetLastUserAndPassword("zed", "pw2"), 1);
    EXPECT_EQ(ReadFrom(defaultFolder), "1 zed/pw2");
    // Without the user name the password is not read.
    Remember(annFolder, "User", "");
    EXPECT_EQ(ReadFrom(annFolder), "0 /pw2");
}

// `text` cut to 30 bytes at a character boundary: `utf8Bytes` of it where it is UTF-8; on Windows
// the ANSI code page of the test run decides where characters end.
std::string Cut(const std::string& text, [[maybe_unused]] std::size_t utf8Bytes) {
#ifdef _WIN32
    return text.substr(0, vx::mb::CutLength(text.c_str(), text.size(), 30));
#else
    return text.substr(0, utf8Bytes);
#endif
}

TEST_F(LoginTest, LongValuesComeBackCutToThirtyBytesAtACharacterBoundary) {
    // The last character of `accented` (U+00E9, two bytes in UTF-8) would end at byte 31.
    const std::string ascii(31, 'a'), accented = std::string(29, 'a') + "\xc3\xa9";
    SetRegNumber("LastUserLoggedIn", 1);
    Remember(annFolder, "User", ascii);
    Remember(annFolder, "Password", accented);
    std::memset(user, 'x', sizeof user);
    std::memset(password, 'x', sizeof password);
    EXPECT_EQ(Last(), "1 " + Cut(ascii, 30) + "/" + Cut(accented, 29));
    // A name from the registry slot is cut the same way.
    Remember(annFolder, "User", "");
    SetReg("USER1", accented);
    std::memset(user, 'x', sizeof user);
    EXPECT_EQ(Last(), "1 " + Cut(accented, 29) + "/" + Cut(accented, 29));
}

TEST_F(LoginTest, PromptForLoginTurnsTheFolderIntoItsSettingsFile) {
    ASSERT_TRUE(
        vx::ProfileWriteString("Desktop", "PromptForLogin", "1", SettingsFile(annFolder).c_str()));
    const std::string expected = annFolder + vx::kPathSeparator + "vx.ini";
    for (const std::string& folder : {annFolder, annFolder + vx::kPathSeparator}) {
        CGNString argument = folder.c_str();
        EXPECT_EQ(CAppEnv::PromptForLogin(argument), 1) << folder;
        EXPECT_EQ(argument, expected.c_str());
    }

    CGNString other = defaultFolder.c_str();
    EXPECT_EQ(CAppEnv::PromptForLogin(other), 0);

    // The rule keeps a lone separator before the name for an empty folder.
    CGNString empty;
    CAppEnv::PromptForLogin(empty);
    EXPECT_EQ(empty, (std::string(1, vx::kPathSeparator) + "vx.ini").c_str());
}

}  // namespace
