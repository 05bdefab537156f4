#include "vxutil/runtime/RUtils.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/TempHome.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace {

namespace fs = std::filesystem;

// Gives the same answer to every question and records what was asked, in which style.
class ScriptedPrompt : public RUserPrompt {
public:
    explicit ScriptedPrompt(int answer) : m_answer(answer) {}
    ~ScriptedPrompt() override { RUserPrompt::SetCurrent(m_previous); }

    int Show(vx::WindowHandle, const char* text, const char*, unsigned style) override {
        shown.emplace_back(text, style);
        return m_answer;
    }

    std::vector<std::pair<std::string, unsigned>> shown;

private:
    int m_answer;
    RUserPrompt* m_previous = RUserPrompt::SetCurrent(this);
};

class FolderTest : public vx::test::HomeTest {
protected:
    fs::path Path(const std::string& relative) const { return home.path() / relative; }
    // `relative` (with '/' between names) inside the test's folder, with native separators.
    CGNString At(const std::string& relative) const {
        return CGNString(Path(relative).make_preferred().string());
    }
    void File(const std::string& relative, const std::string& content = "text") const {
        fs::create_directories(Path(relative).parent_path());
        vx::test::WriteBytes(Path(relative).string(), content);
    }
    std::string Content(const std::string& relative) const {
        return vx::test::ReadBytes(Path(relative).string());
    }
    bool Exists(const std::string& relative) const {
        std::error_code ignored;
        return fs::exists(fs::symlink_status(Path(relative), ignored));
    }
};

// Existence is all that is checked: a file counts as well as a folder.
TEST_F(FolderTest, PathListStopsAtTheFirstMissingPath) {
    File("a/x");
    File("b/x");
    EXPECT_EQ(RIsValidDirectory(""), 0);
    const std::string a = At("a").str(), b = At("b/x").str();
    const std::string missing = At("missing").str(), later = At("later").str();
    struct Case {
        std::string paths;
        char separator;
        int result;
        std::string firstInvalid;
    } cases[] = {
        {"", ';', 1, ""},
        {" " + a + " ;; \t ;" + b + "  ", ';', 1, ""},  // blank entries are skipped
        {a + "|" + missing + "|" + later, '|', 0, missing},
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
        ScriptedPrompt prompt(vx::kIdNo);
        EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 0);
        EXPECT_FALSE(Exists("new"));
        // Yes/No with the exclamation icon and No as the default, as client tools always asked.
        EXPECT_EQ(prompt.shown,
                  (std::vector<std::pair<std::string, unsigned>>{
                      {wanted.str() + "\n\nThis folder does not exist - create?", 0x134u}}));
    }
    ScriptedPrompt prompt(vx::kIdYes);
    EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 1);
    EXPECT_TRUE(Exists("new/deeper"));
    // Once it exists, no question is asked.
    EXPECT_EQ(RValidatePathWithCreate(wanted, nullptr), 1);
    EXPECT_EQ(prompt.shown.size(), 1u);

    // A folder that cannot be made (below a file) is reported.
    File("plain");
    EXPECT_EQ(RValidatePathWithCreate(At("plain/sub"), nullptr), 0);
    ASSERT_EQ(prompt.shown.size(), 3u);
    EXPECT_EQ(prompt.shown[2].first,
              At("plain/sub").str() +
                  "\n\nError creating folder.  Please verify folder location and security "
                  "permissions and try again.");
    EXPECT_EQ(prompt.shown[2].second, 0x10u);
}

TEST_F(FolderTest, CreateMakesEveryMissingLevel) {
    for (const char* path : {"one/two/three", "trailing/sep/", "double//sep"})
        EXPECT_EQ(RCreateDirectory(At(path)), 1) << path;
    EXPECT_TRUE(Exists("one/two/three"));
    EXPECT_TRUE(Exists("trailing/sep"));
    EXPECT_TRUE(Exists("double/sep"));
    File("file");
    EXPECT_EQ(RCreateDirectory(At("file/sub")), 0);
    EXPECT_EQ(RCreateDirectory(""), 0);
}

class CopyTest : public FolderTest {
protected:
    CopyTest() {
        File("src/a.txt", "alpha");
        File("src/.hidden", "h");
        File("src/.hiddendir/x", "x");
        File("src/sub/b.txt", "beta");
        File("src/sub/deeper/c.txt", "gamma");
    }
};

TEST_F(CopyTest, FoldersAreCopiedOnlyWithRecursionAndNoNameBeginningWithADot) {
    EXPECT_EQ(RCopyDirectory(At("src"), At("flat"), 0), 1);
    EXPECT_EQ(Content("flat/a.txt"), "alpha");
    EXPECT_FALSE(Exists("flat/sub"));
    EXPECT_FALSE(Exists("flat/.hidden"));

    EXPECT_EQ(RCopyDirectory(At("src"), At("new/dst"), 1), 1);
    EXPECT_EQ(Content("new/dst/sub/deeper/c.txt"), "gamma");
    EXPECT_FALSE(Exists("new/dst/.hidden"));
    EXPECT_FALSE(Exists("new/dst/.hiddendir"));
    EXPECT_EQ(fs::last_write_time(Path("new/dst/a.txt")), fs::last_write_time(Path("src/a.txt")));
}

TEST_F(CopyTest, ExistingTargetFilesAreKeptAndTheRestIsCopied) {
    File("dst/a.txt", "keep me");
    File("dst/sub/b.txt", "keep me too");
    EXPECT_EQ(RCopyDirectory(At("src"), At("dst"), 1), 0);
    EXPECT_EQ(Content("dst/a.txt"), "keep me");
    EXPECT_EQ(Content("dst/sub/b.txt"), "keep me too");
    EXPECT_EQ(Content("dst/sub/deeper/c.txt"), "gamma");

    EXPECT_EQ(RCopyDirectory(At("missing"), At("none"), 1), 0);
    EXPECT_FALSE(Exists("none"));
}

#ifndef _WIN32
TEST_F(CopyTest, LinksAreCopiedAsLinks) {
    // A link to a folder above would otherwise make the copy go round for ever.
    fs::create_symlink("..", Path("src/sub/up"));
    fs::create_symlink("a.txt", Path("src/link"));
    EXPECT_EQ(RCopyDirectory(At("src"), At("dst"), 1), 1);
    EXPECT_EQ(fs::read_symlink(Path("dst/sub/up")), "..");
    EXPECT_EQ(fs::read_symlink(Path("dst/link")), "a.txt");
}
#endif

TEST_F(FolderTest, DiskCaseSpellsExistingComponentsAsStored) {
    File("MixedCase/Inner/file");
    // The path as given when it does not exist.
    const CGNString missing = At("MixedCase/nothing here");
    EXPECT_EQ(RGetDiskCaseOfDirectory(missing), missing);
    EXPECT_EQ(RGetDiskCaseOfDirectory(At("MixedCase/Inner")), At("MixedCase/Inner"));
    EXPECT_EQ(RGetDiskCaseOfDirectory(At("MixedCase/Inner/../Inner")),
              At("MixedCase/Inner/../Inner"));
#ifdef _WIN32
    // Windows finds entries whatever the letter case, and takes '/' for a separator.
    const std::string base = RGetDiskCaseOfDirectory(CGNString(home.path().string())).str();
    EXPECT_EQ(RGetDiskCaseOfDirectory(base + "/mixedcase/INNER").str(),
              base + "\\MixedCase\\Inner");
#endif
}

TEST(HexToIntTest, ReadsHexadecimalAfter0xElseDecimal) {
    struct Case {
        const char* text;
        int value;
    } cases[] = {
        {" 0x00ff ", 255},  {"0XFF", 255}, {"0xAbC", 0xabc},
        {"0x1g2", 1},        // the first non-digit ends the number
        {"0xffffffff", -1},  // no overflow check: the value wraps at 32 bits
        {"0x100000001", 1}, {"12abc", 12}, {"-12", -12},
        {"010", 10},  // a leading zero alone does not make it octal or hexadecimal
        {"   ", 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(RHexToInt(c.text), c.value) << '"' << c.text << '"';
}

}  // namespace
