#include <string>
#include <vector>

#include "gnrt/StringTable.h"
#include "support/TempHome.h"
#include "vxutil/gnrt/CGNAssert.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/gnrt/OSLoadString.h"

namespace {

using RuntimeServicesTest = vx::test::HomeTest;

std::vector<std::string> g_reports;

void Capture(const char* file, int line, const char* expression) {
    g_reports.push_back(std::string(file) + ":" + std::to_string(line) + ":" + expression);
}

TEST_F(RuntimeServicesTest, AssertionsAreReportedCountedAndNotFatal) {
    g_reports.clear();
    CGNAssert::ResetReportCount();
    const CGNAssert::Handler previous = CGNAssert::SetHandler(Capture);
    const int value = 2;
    EXPECT_TRUE(GN_ASSERT(value == 2));
    const int line = __LINE__ + 1;
    EXPECT_FALSE(GN_ASSERT(value == 3));
    EXPECT_EQ(CGNAssert::SetHandler(previous), Capture);

    EXPECT_EQ(CGNAssert::GetReportCount(), 1u);
    ASSERT_EQ(g_reports.size(), 1u);
    EXPECT_EQ(g_reports[0], std::string(__FILE__) + ":" + std::to_string(line) + ":value == 3");
    EXPECT_NE(CGNAssert::SetHandler(nullptr), nullptr);  // the default handler is always there
}

TEST_F(RuntimeServicesTest, MakeFilePathAddsOneSeparator) {
    const std::string s(1, vx::kPathSeparator);
    struct Case {
        std::string folder;
        std::string expected;
    } const cases[] = {
        {"", "f.ini"},
        {"home", "home" + s + "f.ini"},
        {"home/", "home/f.ini"},
#ifdef _WIN32
        {"C:\\home\\", "C:\\home\\f.ini"},
#endif
    };
    for (const Case& c : cases) {
        EXPECT_EQ(MakeFilePath(c.folder, "f.ini"), c.expected.c_str());
    }
}

TEST_F(RuntimeServicesTest, LoadsBuiltInStringsAndEmptiesForUnknownIds) {
    CGNString text("stale");
    const int length = OSLoadString(vx::kStrFolderMissingCreate, text);
    EXPECT_EQ(text, "%1\n\nThis folder does not exist - create?");
    EXPECT_EQ(length, static_cast<int>(text.GetLength()));
    EXPECT_NE(vx::BuiltInString(vx::kStrFolderCopyFailed), nullptr);

    for (unsigned unknown : {0u, 3054u, 3058u, 0xFFFFFFFFu}) {
        EXPECT_EQ(OSLoadString(unknown, text), 0);
        EXPECT_TRUE(text.IsEmpty());
    }
}

}  // namespace
