#include "vxutil/login/SystemInfo.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "login/SystemFacts.h"

namespace {

TEST(SystemInfoTest, FactsAreLaidOutWithTheirLabels) {
    const vx::SystemFacts facts{.system = "Windows NT 10.0 (Build 19045) Service Pack 1",
                                .largestFreeBlock = 4000000000UL,
                                .swapSize = 123456,
                                .userHeap = 65536,
                                .socketMajor = 1,
                                .socketMinor = 1,
                                .maxSockets = 32767,
                                .maxDatagram = 65467,
                                .socketDescription = "WinSock 2.0",
                                .socketStatus = "Running",
                                .language = "English (United States)",
                                .resourceMajor = 4,
                                .resourceMinor = 20};
    std::string expected =
        "Windows NT 10.0 (Build 19045) Service Pack 1"
        "\r\nLargest Free Memory Block\t4000000000 bytes"
        "\r\nSwap Space Size\t123456 bytes"
        "\r\nUser Heap\t65536 bytes"
        "\r\nWinsock Version\t1.1"
        "\r\n     Max Sockets:\t32767"
        "\r\n     Max Datagram:\t65467 bytes"
        "\r\n     Description:\tWinSock 2.0"
        "\r\n     Status:\tRunning\r\n"
        "Resource DLL Version - English (United States), 4.20";
#ifndef _WIN32
    std::erase(expected, '\r');  // the platform's line ends
#endif
    EXPECT_EQ(vx::FormatSystemInfo(facts).str(), expected);
}

TEST(SystemInfoTest, TextOfThisSystem) {
    const std::string text = ClientGetSystemInfo().str();
#ifdef _WIN32
    EXPECT_EQ(text.rfind("Windows NT ", 0), 0u) << text;
#else
    EXPECT_NE(text.find("(Build "), std::string::npos) << text;
    EXPECT_NE(text.find("Status:\tRunning\n"), std::string::npos) << text;
    // No module loaded here: the built-in English texts, at the library's own version.
    EXPECT_NE(text.find("\nResource DLL Version - en, 0.1"), std::string::npos) << text;
#endif
}

}  // namespace
