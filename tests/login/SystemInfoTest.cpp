#include "vxutil/login/SystemInfo.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "login/SystemFacts.h"

namespace {

// The text with the platform's line ends.
std::string Lines(std::string text) {
#ifndef _WIN32
    std::erase(text, '\r');
#endif
    return text;
}

TEST(SystemInfoTest, FactsAreLaidOutWithTheirLabels) {
    vx::SystemFacts facts;
    facts.system = "Windows NT 10.0 (Build 19045) Service Pack 1";
    facts.largestFreeBlock = 4000000000UL;
    facts.swapSize = 123456;
    facts.userHeap = 65536;
    facts.socketMajor = 1;
    facts.socketMinor = 1;
    facts.maxSockets = 32767;
    facts.maxDatagram = 65467;
    facts.socketDescription = "WinSock 2.0";
    facts.socketStatus = "Running";
    facts.language = "English (United States)";
    facts.resourceMajor = 4;
    facts.resourceMinor = 20;
    EXPECT_EQ(vx::FormatSystemInfo(facts).str(),
              Lines("Windows NT 10.0 (Build 19045) Service Pack 1"
                    "\r\nLargest Free Memory Block\t4000000000 bytes"
                    "\r\nSwap Space Size\t123456 bytes"
                    "\r\nUser Heap\t65536 bytes"
                    "\r\nWinsock Version\t1.1"
                    "\r\n     Max Sockets:\t32767"
                    "\r\n     Max Datagram:\t65467 bytes"
                    "\r\n     Description:\tWinSock 2.0"
                    "\r\n     Status:\tRunning\r\n"
                    "Resource DLL Version - English (United States), 4.20"));
}

TEST(SystemInfoTest, TextOfThisSystem) {
    const std::string text = ClientGetSystemInfo().str();
#ifdef _WIN32
    EXPECT_EQ(text.rfind("Windows NT ", 0), 0u) << text;
#else
    EXPECT_EQ(text.find('\r'), std::string::npos);
    EXPECT_NE(text.find("(Build "), std::string::npos) << text;
    EXPECT_NE(text.find("Status:\tRunning\n"), std::string::npos) << text;
    // No module loaded here: the built-in English texts, at the library's own version.
    EXPECT_NE(text.find("\nResource DLL Version - en, 0.1"), std::string::npos) << text;
#endif
    for (const char* label :
         {"Largest Free Memory Block\t", "Swap Space Size\t", "User Heap\t", "Winsock Version\t",
          "Max Sockets:\t", "Max Datagram:\t", "Description:\t"})
        EXPECT_NE(text.find(label), std::string::npos) << label;
}

}  // namespace
