#include <gtest/gtest.h>

#include "files/FolderFixture.h"
#include "vxutil/runtime/RUtils.h"

namespace {

using vx::test::FolderTest;
using vx::test::ScriptedPrompt;

TEST_F(FolderTest, ExistenceIsAllThatIsChecked) {
    File("folder/file.txt");
    EXPECT_EQ(RIsValidDirectory(At("folder")), 1);
    EXPECT_EQ(RIsValidDirectory(At("folder/file.txt")), 1);  // a file counts
    EXPECT_EQ(RIsValidDirectory(At("folder/missing")), 0);
    EXPECT_EQ(RIsValidDirectory(""), 0);
}

TEST_F(FolderTest, PathListStopsAtTheFirstMissingPath) {
    File("a/x");
    File("b/x");
    const std::string a = At("a").str(), b = At("b").str();
    const std::string missing = At("missing").str(), later = At("later").str();
    struct Case {
        std::string paths;
        char separator;
        int result;
        std::string firstInvalid;
    } cases[] = {
        {"", ';', 1, ""},
        {"   ", ';', 1, ""},
        {a + ";" + b, ';', 1, ""},
        {" " + a + " ;; \t ;" + b + "  ", ';', 1, ""},  // blank entries are skipped
        {a + "|" + missing + "|" + later, '|', 0, missing},
        {missing + ";" + later, ';', 0, missing},
        {a + ";" + b, '|', 0, a + ";" + b},  // not split at another separator
    };
    for (const Case& c : cases) {
        CGNString firstInvalid("stale");
        EXPECT_EQ(RValidatePaths(c.paths, firstInvalid, c.separator), c.result) << c.paths;
        EXPECT_EQ(firstInvalid.str(), c.firstInvalid) << c.paths;
    }
}

TEST_F(FolderTest, MissingFolderIsCreatedOnlyWhenTheUserSaysYes) {
    const CGNString wanted = At("new/deeper");
    {
        ScriptedPrompt prompt({vx::kIdNo});
        EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 0);
        EXPECT_FALSE(Exists("new"));
        ASSERT_EQ(prompt.shown.size(), 1u);
        EXPECT_EQ(prompt.shown[0].text, wanted.str() + "\n\nThis folder does not exist - create?");
        EXPECT_EQ(prompt.shown[0].style, 0x134u);
    }
    ScriptedPrompt prompt({vx::kIdYes});
    EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 1);
    EXPECT_TRUE(Exists("new/deeper"));
    // Once it exists, no question is asked.
    EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 1);
    EXPECT_EQ(prompt.shown.size(), 1u);
}

TEST_F(FolderTest, FolderThatCannotBeCreatedIsReported) {
    File("plain");
    const CGNString wanted = At("plain/sub");  // below a file
    ScriptedPrompt prompt({vx::kIdYes});
    EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 0);
    ASSERT_EQ(prompt.shown.size(), 2u);
    EXPECT_EQ(prompt.shown[1].text,
              wanted.str() +
                  "\n\nError creating folder.  Please verify folder location and security "
                  "permissions and try again.");
    EXPECT_EQ(prompt.shown[1].style, 0x10u);
}

TEST_F(FolderTest, DefaultPromptDeclinesAndTellsWhatItWasAsked) {
    RDefaultUserPrompt answering;
    RUserPrompt* previous = RUserPrompt::SetCurrent(&answering);
    testing::internal::CaptureStderr();
    EXPECT_EQ(RValidatePathWithCreate(At("declined"), nullptr), 0);
    const std::string logged = testing::internal::GetCapturedStderr();
    RUserPrompt::SetCurrent(previous);
    EXPECT_FALSE(Exists("declined"));
    EXPECT_NE(logged.find("This folder does not exist - create?"), std::string::npos);
    EXPECT_NE(logged.find("[answered: No]"), std::string::npos);
}

TEST_F(FolderTest, CreateMakesEveryMissingLevel) {
    File("file");
    struct Case {
        std::string path;  // below the test's folder; empty for the empty path
        int result;
        const char* mustExist;
    } cases[] = {
        {"one/two/three", 1, "one/two/three"},
        {"one/two/three", 1, "one/two/three"},  // existing already
        {"trailing/sep/", 1, "trailing/sep"},
        {"double//sep", 1, "double/sep"},
        {"file/sub", 0, nullptr},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(RCreateDirectory(At(c.path)), c.result) << c.path;
        if (c.mustExist != nullptr) {
            EXPECT_TRUE(Exists(c.mustExist)) << c.path;
        }
    }
    EXPECT_EQ(RCreateDirectory(""), 0);
}

}  // namespace
