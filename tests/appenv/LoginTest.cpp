// The remembered login in the "vx.ini" files, the 31-byte buffers and PromptForLogin's path.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/gnrt/MultiByte.h"
#include "vxutil/login/OSUserName.h"
#include "vxutil/platform/ProfileFile.h"

namespace {

using vx::test::AppEnvTest;

class LoginTest : public AppEnvTest {
protected:
    LoginTest() {
        SetReg("USER1", "ann");
        SetReg("VXPATH1", annFolder);
        SetReg("VXPATH0", defaultFolder);
    }

    const std::string annFolder = Folder("ann");
    const std::string defaultFolder = Folder("default");
    char user[vx::kNameBufferSize] = "untouched";
    char password[vx::kNameBufferSize] = "untouched";
};

TEST_F(LoginTest, NobodyRememberedOrNoBufferGivesZero) {
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 0);
    SetRegNumber("LastUserLoggedIn", -1);
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 0);
    EXPECT_STREQ(user, "untouched");
    EXPECT_STREQ(password, "untouched");

    SetRegNumber("LastUserLoggedIn", 1);
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(nullptr, password), 0);
    EXPECT_EQ(CAppEnv::GetUserAndPassword(annFolder.c_str(), user, nullptr), 0);
    EXPECT_EQ(CAppEnv::GetLastOSUser(nullptr), 0);
    EXPECT_EQ(CAppEnv::SetLastUserAndPassword(nullptr, "pw"), 0);
}

TEST_F(LoginTest, LastUserComesFromTheUserFileOrElseFromTheSlot) {
    SetRegNumber("LastUserLoggedIn", 1);
    // No file at all: the slot names the user, the password is empty.
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
    EXPECT_STREQ(user, "ann");
    EXPECT_STREQ(password, "");

    Remember(annFolder, "Password", "s3cret");
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
    EXPECT_STREQ(user, "ann");
    EXPECT_STREQ(password, "s3cret");

    Remember(annFolder, "User", "ann.smith");
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
    EXPECT_STREQ(user, "ann.smith");

    // A slot that has neither a file name nor a registry name gives nothing.
    SetRegNumber("LastUserLoggedIn", 2);
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 0);
}

TEST_F(LoginTest, RememberingWritesBothFilesAndLeavesTheLastUserAlone) {
    ASSERT_EQ(CAppEnv::SetLastUserAndPassword("ann", "pw"), 1);
    EXPECT_EQ(Remembered(annFolder, "User"), "ann");
    EXPECT_EQ(Remembered(annFolder, "Password"), "pw");
    EXPECT_EQ(Remembered(defaultFolder, "OSUser"), ClientGetOSUserName().str());
    EXPECT_EQ(Remembered(defaultFolder, "User"), "<absent>");
    EXPECT_EQ(Reg("LastUserLoggedIn"), "<absent>");

    char osUser[vx::kNameBufferSize] = {};
    EXPECT_EQ(CAppEnv::GetLastOSUser(osUser), ClientGetOSUserName().IsEmpty() ? 0 : 1);

    EXPECT_EQ(CAppEnv::GetUserAndPassword(annFolder.c_str(), user, password), 1);
    EXPECT_STREQ(user, "ann");
    EXPECT_STREQ(password, "pw");
}

TEST_F(LoginTest, UnknownUsersUseTheDefaultFolderWhichMustBeSet) {
    ASSERT_EQ(CAppEnv::SetLastUserAndPassword("zed", "pw"), 1);
    EXPECT_EQ(Remembered(defaultFolder, "User"), "zed");
    EXPECT_EQ(Remembered(defaultFolder, "Password"), "pw");

    DeleteReg("VXPATH0");
    EXPECT_EQ(CAppEnv::SetLastUserAndPassword("ann", "pw"), 0);
    EXPECT_EQ(Remembered(annFolder, "User"), "<absent>");
    char osUser[vx::kNameBufferSize] = "untouched";
    EXPECT_EQ(CAppEnv::GetLastOSUser(osUser), 0);
    EXPECT_STREQ(osUser, "untouched");

    // Without the user name the password is not read.
    Remember(annFolder, "Password", "pw");
    EXPECT_EQ(CAppEnv::GetUserAndPassword(annFolder.c_str(), user, password), 0);
    EXPECT_STREQ(password, "untouched");
}

TEST_F(LoginTest, LongValuesComeBackCutToThirtyBytesAtACharacterBoundary) {
    const std::string e = "\xc3\xa9";  // U+00E9, two bytes in UTF-8
    struct Case {
        std::string text;
        std::size_t utf8Bytes;  // bytes that come back where text is UTF-8
    };
    const Case cases[] = {
        {std::string(29, 'a'), 29},     {std::string(30, 'a'), 30},
        {std::string(31, 'a'), 30},     {std::string(40, 'a'), 30},
        {std::string(27, 'a') + e, 29}, {std::string(28, 'a') + e, 30},
        {std::string(29, 'a') + e, 29},  // the character would end at byte 31
        {std::string(39, 'a') + e, 30},
    };
    SetRegNumber("LastUserLoggedIn", 1);
    for (const Case& c : cases) {
#ifdef _WIN32
        // The ANSI code page of the test run decides where characters end.
        const std::string expected =
            c.text.substr(0, vx::mb::CutLength(c.text.c_str(), c.text.size(), 30));
#else
        const std::string expected = c.text.substr(0, c.utf8Bytes);
#endif
        Remember(annFolder, "User", c.text);
        Remember(annFolder, "Password", c.text);
        std::memset(user, 'x', sizeof user);
        std::memset(password, 'x', sizeof password);
        ASSERT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
        EXPECT_EQ(user, expected) << c.text;
        EXPECT_EQ(password, expected) << c.text;
        ASSERT_EQ(CAppEnv::GetUserAndPassword(annFolder.c_str(), user, password), 1);
        EXPECT_EQ(user, expected) << c.text;
        EXPECT_EQ(password, expected) << c.text;

        // A name from the registry slot is cut the same way.
        Remember(annFolder, "User", "");
        SetReg("USER1", c.text);
        ASSERT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
        EXPECT_EQ(user, expected) << c.text;
    }
}

TEST_F(LoginTest, PromptForLoginTurnsTheFolderIntoItsSettingsFile) {
    ASSERT_TRUE(vx::ProfileWriteString("Desktop", "PromptForLogin", "1",
                                       MakeFilePath(annFolder.c_str(), "vx.ini").c_str()));
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

TEST(OSUserNameTest, IsTheLogonNameOfThisProcess) {
    const CGNString name = ClientGetOSUserName();
    EXPECT_FALSE(name.IsEmpty());
    EXPECT_LE(name.GetLength(), 255u);
}

}  // namespace
