#include "vxutil/login/AccountSid.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "login/SidText.h"

#ifdef _WIN32
#include <windows.h>

#include <sddl.h>
#else
#include <unistd.h>
#endif

namespace {

// An identifier in the Windows layout, written byte by byte.
std::vector<unsigned char> Sid(std::array<unsigned char, 6> authority,
                               const std::vector<std::uint32_t>& subs, unsigned char revision = 1) {
    std::vector<unsigned char> bytes(8 + 4 * subs.size());
    bytes[0] = revision;
    bytes[1] = static_cast<unsigned char>(subs.size());
    std::memcpy(&bytes[2], authority.data(), authority.size());
    if (!subs.empty()) std::memcpy(&bytes[8], subs.data(), 4 * subs.size());
    return bytes;
}

std::string Text(const std::vector<unsigned char>& sid) {
    char buffer[256];
    unsigned long size = sizeof buffer;
    if (!vx::FormatTextSid(sid.data(), buffer, &size)) return "<failed>";
    EXPECT_EQ(size, std::strlen(buffer));
    return buffer;
}

// Whether the insufficient-buffer error was reported where the platform reports errors.
bool InsufficientBufferReported() {
#ifdef _WIN32
    return ::GetLastError() == ERROR_INSUFFICIENT_BUFFER;
#else
    return errno == ERANGE;
#endif
}

TEST(SidTextTest, RendersKnownIdentifiers) {
    struct Case {
        std::vector<unsigned char> sid;
        const char* text;
    } cases[] = {
        {Sid({0, 0, 0, 0, 0, 5}, {21, 1004336348, 1177238915, 682003330, 512}),
         "S-1-5-21-1004336348-1177238915-682003330-512"},
        {Sid({0, 0, 0, 0, 0, 5}, {}), "S-1-5"},  // no sub-authorities: the authority alone
        {Sid({0, 0, 0xff, 0xff, 0xff, 0xfe}, {4294967295u}), "S-1-4294967294-4294967295"},
        // An authority that needs either high byte is written as six hexadecimal bytes.
        {Sid({0x01, 0x02, 0, 0, 0, 0x0a}, {7}), "S-1-0x01020000000a-7"},
        {Sid({0, 0xab, 0, 0, 0, 0}, {}), "S-1-0x00ab00000000"},
        {Sid({0, 0, 0, 0, 0, 5}, std::vector<std::uint32_t>(15, 9)),
         "S-1-5-9-9-9-9-9-9-9-9-9-9-9-9-9-9-9"},
        {Sid({0, 0, 0, 0, 0, 5}, {1}, 2), "<failed>"},  // not a valid revision
        {Sid({0, 0, 0, 0, 0, 5}, std::vector<std::uint32_t>(16, 9)), "<failed>"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Text(c.sid), c.text);
}

TEST(SidTextTest, NeedsTwentyEightBytesAndTwelvePerSubAuthority) {
    for (std::size_t count : {0u, 15u}) {
        const auto sid = Sid({0, 0, 0, 0, 0, 5}, std::vector<std::uint32_t>(count, 4000000000u));
        const unsigned long needed = 28 + 12 * static_cast<unsigned long>(count);
        std::vector<char> buffer(needed, 'x');
        unsigned long size = needed - 1;
        EXPECT_EQ(vx::FormatTextSid(sid.data(), buffer.data(), &size), 0);
        EXPECT_EQ(size, needed);
        EXPECT_TRUE(InsufficientBufferReported());
        EXPECT_EQ(buffer[0], 'x');  // nothing written

        size = needed;
        EXPECT_EQ(vx::FormatTextSid(sid.data(), buffer.data(), &size), 1);
        EXPECT_EQ(size, std::strlen(buffer.data()));
    }
}

TEST(AccountSidTest, TextOfTheCurrentUserAndNullArguments) {
    char buffer[256];
    unsigned long size = sizeof buffer;
    ASSERT_EQ(ClientGetTextSid(buffer, &size), 1);
    EXPECT_EQ(size, std::strlen(buffer));
#ifdef _WIN32
    // The system's own rendering of the token's identifier.
    void* sid = nullptr;
    ASSERT_EQ(ClientGetBinarySid(&sid), 1);
    char* expected = nullptr;
    ASSERT_TRUE(::ConvertSidToStringSidA(sid, &expected));
    EXPECT_STREQ(buffer, expected);
    ::LocalFree(expected);
#else
    EXPECT_EQ(std::string(buffer), "S-1-22-1-" + std::to_string(::getuid()));
#endif
    EXPECT_EQ(ClientGetBinarySid(nullptr), 0);
    EXPECT_EQ(ClientGetTextSid(nullptr, &size), 0);
    EXPECT_EQ(ClientGetTextSid(buffer, nullptr), 0);
}

}  // namespace
