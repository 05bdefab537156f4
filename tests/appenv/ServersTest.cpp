// The server file of a home folder: listing, writing from names and from records, attributes.
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/foundation/CVXServerNameList.h"

namespace {

class ServersTest : public vx::test::AppEnvTest {
protected:
    ServersTest() { std::filesystem::create_directories(folder); }

    std::string File() const { return MakeFilePath(folder.c_str(), "VX").str(); }

    // The names listed after a name that was in the list before, joined by blanks.
    std::string List(bool all, bool workflow, int expected = 1) const {
        CVXServerNameList list;
        list.AddServer(CVXServerNameType("kept"));
        EXPECT_EQ(CAppEnv::GetServerList(folder.c_str(), list, all, workflow), expected);
        std::string names;
        for (int i = 1; i < list.GetCount(); ++i)
            names += (i > 1 ? " " : "") + std::string(list.GetServer(i)->GetName());
        return names;
    }

    // "<result>: <disabled><workflow><notifier> port/rpc/notifier port" from both overloads,
    // which must agree on what they share.
    std::string Attributes(const char* server) const {
        CAppEnv::flag flags[3] = {9, 9, 9}, shortFlags[3] = {9, 9, 9};
        CGNString port = "x", rpc = "x", notifierPort = "x", shortPort = "x", shortRpc = "x";
        const int result = CAppEnv::GetServerAttributes(folder.c_str(), server, flags[0], flags[1],
                                                        flags[2], port, rpc, notifierPort);
        EXPECT_EQ(CAppEnv::GetServerAttributes(folder.c_str(), server, shortFlags[0], shortFlags[1],
                                               shortFlags[2], shortPort, shortRpc),
                  result);
        EXPECT_EQ(shortPort.str() + "/" + shortRpc.str(), port.str() + "/" + rpc.str());
        return std::to_string(result) + ": " + std::to_string(flags[0]) + std::to_string(flags[1]) +
               std::to_string(flags[2]) + " " + port.str() + "/" + rpc.str() + "/" +
               notifierPort.str();
    }

    const std::string folder = Folder("ann");
};

TEST_F(ServersTest, ListingFiltersByKindAndDisabledMark) {
    vx::test::WriteBytes(
        File(),
        "alpha VX;NT;2000;390600;2001\n#beta VX;;;;\ngamma ;NT;;;\ndelta\nold VX\r\n"
        "tab\tname VX\n\nalpha VX\n" +
            std::string(70, 's') + " VX\nfar ;;;;12345678901234567890NT\nnotype  NT\n");
    const std::string longName(64, 's');
    EXPECT_EQ(List(true, true), "alpha beta gamma delta old alpha " + longName + " far notype");
    EXPECT_EQ(List(true, false), List(true, true));
    EXPECT_EQ(List(false, true), "alpha old alpha " + longName);
    // The type word is cut to 24 bytes, so the tag at the end of "far" is not seen.
    EXPECT_EQ(List(false, false), "alpha gamma notype");

    std::filesystem::remove(File());
    EXPECT_EQ(List(true, true, 0), "");
    CVXServerNameList list;
    EXPECT_EQ(CAppEnv::GetServerList("", list, 1, 1), 0);
}

TEST_F(ServersTest, RecordsAreWrittenAsFullLinesAndReadBack) {
    tagSERVERTYPE alpha{"alpha", 0, 1, 1, "2000", "390600", "2001"};
    tagSERVERTYPE beta{"beta", 1, 1, 0, "", "", ""};
    tagSERVERTYPE gamma{"gamma", 0, 0, 1, "", "390680", ""};
    ASSERT_EQ(CAppEnv::SetServerList(folder.c_str(), {&alpha, nullptr, &beta, &gamma}), 1);
#ifdef _WIN32
    const std::string eol = "\r\n";
#else
    const std::string eol = "\n";
#endif
    EXPECT_EQ(vx::test::ReadBytes(File()), "alpha VX;NT;2000;390600;2001" + eol + "#beta VX;;;;" +
                                               eol + "gamma ;NT;;390680;" + eol);
    EXPECT_EQ(Attributes("alpha"), "1: 011 2000/390600/2001");
    EXPECT_EQ(Attributes("beta"), "1: 110 //");
    EXPECT_EQ(Attributes("gamma"), "1: 001 /390680/");
    EXPECT_EQ(CAppEnv::SetServerList("", ServerTypeList{}), 0);

    // A plain name list replaces the whole file, disabled and notifier entries included.
    CVXServerNameList list;
    list.AddServer(CVXServerNameType("one"));
    list.AddServer(CVXServerNameType("two"));
    ASSERT_EQ(CAppEnv::SetVXServerList(folder.c_str(), list), 1);
    EXPECT_EQ(List(true, true), "one two");
    EXPECT_EQ(List(false, false), "");
    EXPECT_EQ(CAppEnv::SetVXServerList("", list), 0);
}

TEST_F(ServersTest, AttributesMatchTheWholeFirstWordOfATrimmedLine) {
    vx::test::WriteBytes(
        File(),
        "alphabet VX;NT;1;2;3\n  #   alpha   NT  \nlegacy VX NT\nshort VX;NT;10;20\n"
        "two VX;NT;10\n");
    EXPECT_EQ(Attributes("alpha"), "1: 101 //");
    // Lines with tags only, as older clients wrote them, leave the ports empty.
    EXPECT_EQ(Attributes("legacy"), "1: 011 //");
    EXPECT_EQ(Attributes("short"), "1: 011 10/20/");
    EXPECT_EQ(Attributes("two"), "1: 011 //");
    for (const char* absent : {"alp", "", "ALPHA"})
        EXPECT_EQ(Attributes(absent), "0: 000 //");
    std::filesystem::remove(File());
    EXPECT_EQ(Attributes("alpha"), "0: 000 //");
}

}  // namespace
