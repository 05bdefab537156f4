// Reads must see every change that others make on disk, however it is made, although parsed
// files are cached.
#include <chrono>
#include <filesystem>
#include <string>

#include "ProfileFixture.h"

namespace vx {
namespace {

using test::ProfileTest;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

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
#endif

}  // namespace
}  // namespace vx
