// The server file of a home folder: listing, writing from names and from records, attributes.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/foundation/CVXServerNameList.h"
#include "vxutil/gnrt/FilePath.h"

namespace {

class ServersTest : public vx::test::AppEnvTest {
protected:
    ServersTest() { std::filesystem::create_directories(folder); }

    std::string File() const { return MakeFilePath(folder.c_str(), "VX").str(); }
    void WriteFile(const std::string& text) const { vx::test::WriteBytes(File(), text); }

    std::vector<std::string> List(bool all, bool workflow, int expected = 1) const {
        CVXServerNameList list;
        list.AddServer(CVXServerNameType("kept"));
        EXPECT_EQ(CAppEnv::GetServerList(folder.c_str(), list, all, workflow), expected);
        std::vector<std::string> names;
        for (int i = 1; i < list.GetCount(); ++i)
            names.push_back(list.GetServer(i)->GetName());
        return names;
    }

    const std::string folder = Folder("ann");
};

using Names = std::vector<std::string>;

TEST_F(ServersTest, ListingFiltersByKindAndDisabledMark) {
    WriteFile(
        "alpha VX;NT;2000;390600;2001\n"
        "#beta VX;;;;\n"
        "gamma ;NT;;;\n"
        "delta\n"
        "old VX\r\n"
        "tab\tname VX\n"
        "\n"
        "alpha VX\n");
    EXPECT_EQ(List(true, true), (Names{"alpha", "beta", "gamma", "delta", "old", "alpha"}));
    EXPECT_EQ(List(true, false), List(true, true));
    EXPECT_EQ(List(false, true), (Names{"alpha", "old", "alpha"}));
    EXPECT_EQ(List(false, false), (Names{"alpha", "gamma"}));
}

TEST_F(ServersTest, ListingCutsLongNamesAndLooksAtTheTypeWordOnly) {
    const std::string longName(70, 's');
    // The type word is cut to 24 bytes, so a tag after that is not seen.
    WriteFile(longName + " VX\nfar ;;;;12345678901234567890NT\nnotype  NT\n");
    EXPECT_EQ(List(true, true), (Names{longName.substr(0, 64), "far", "notype"}));
    EXPECT_EQ(List(false, false), (Names{"notype"}));
}

TEST_F(ServersTest, AMissingFileGivesZeroAndLeavesTheList) {
    EXPECT_EQ(List(true, true, 0), Names{});
    CVXServerNameList list;
    EXPECT_EQ(CAppEnv::GetServerList("", list, 1, 1), 0);
}

TEST_F(ServersTest, RecordsAreWrittenAsFullLinesAndReadBack) {
    tagSERVERTYPE alpha{"alpha", 0, 1, 1, "2000", "390600", "2001"};
    tagSERVERTYPE beta{"beta", 1, 1, 0, "", "", ""};
    tagSERVERTYPE gamma{"gamma", 0, 0, 1, "", "390680", ""};
    const ServerTypeList servers{&alpha, nullptr, &beta, &gamma};
    ASSERT_EQ(CAppEnv::SetServerList(folder.c_str(), servers), 1);
#ifdef _WIN32
    const char* eol = "\r\n";
#else
    const char* eol = "\n";
#endif
    EXPECT_EQ(vx::test::ReadBytes(File()), std::string("alpha VX;NT;2000;390600;2001") + eol +
                                               "#beta VX;;;;" + eol + "gamma ;NT;;390680;" + eol);

    struct Expected {
        const char* name;
        int disabled, workflow, notifier;
        const char *port, *rpc, *notifierPort;
    };
    for (const Expected& e :
         {Expected{"alpha", 0, 1, 1, "2000", "390600", "2001"},
          Expected{"beta", 1, 1, 0, "", "", ""}, Expected{"gamma", 0, 0, 1, "", "390680", ""}}) {
        CAppEnv::flag disabled = 9, workflow = 9, notifier = 9;
        CGNString port = "x", rpc = "x", notifierPort = "x";
        EXPECT_EQ(CAppEnv::GetServerAttributes(folder.c_str(), e.name, disabled, workflow, notifier,
                                               port, rpc, notifierPort),
                  1);
        EXPECT_EQ(disabled, e.disabled) << e.name;
        EXPECT_EQ(workflow, e.workflow) << e.name;
        EXPECT_EQ(notifier, e.notifier) << e.name;
        EXPECT_EQ(port, e.port) << e.name;
        EXPECT_EQ(rpc, e.rpc) << e.name;
        EXPECT_EQ(notifierPort, e.notifierPort) << e.name;

        CGNString shortPort = "x", shortRpc = "x";
        EXPECT_EQ(CAppEnv::GetServerAttributes(folder.c_str(), e.name, disabled, workflow, notifier,
                                               shortPort, shortRpc),
                  1);
        EXPECT_EQ(shortPort, e.port) << e.name;
        EXPECT_EQ(shortRpc, e.rpc) << e.name;
    }
}

TEST_F(ServersTest, AttributesMatchTheWholeFirstWordOfATrimmedLine) {
    WriteFile(
        "alphabet VX;NT;1;2;3\n"
        "  #   alpha   NT  \n"
        "legacy VX NT\n"
        "short VX;NT;10;20\n");
    CAppEnv::flag disabled = 0, workflow = 0, notifier = 0;
    CGNString port, rpc, notifierPort;
    const auto read = [&](const char* name) {
        return CAppEnv::GetServerAttributes(folder.c_str(), name, disabled, workflow, notifier,
                                            port, rpc, notifierPort);
    };
    ASSERT_EQ(read("alpha"), 1);
    EXPECT_EQ(disabled, 1);
    EXPECT_EQ(workflow, 0);
    EXPECT_EQ(notifier, 1);
    EXPECT_EQ(port, "");

    // Lines with tags only, as older clients wrote them, leave the ports empty.
    ASSERT_EQ(read("legacy"), 1);
    EXPECT_EQ(workflow, 1);
    EXPECT_EQ(notifier, 1);
    EXPECT_EQ(port, "");

    ASSERT_EQ(read("short"), 1);
    EXPECT_EQ(port, "10");
    EXPECT_EQ(rpc, "20");
    EXPECT_EQ(notifierPort, "");

    // Not found, an empty name, or no file: everything cleared and 0.
    for (const char* name : {"alp", "", "ALPHA"}) {
        disabled = workflow = notifier = 7;
        port = rpc = notifierPort = "x";
        EXPECT_EQ(read(name), 0) << name;
        EXPECT_EQ(disabled + workflow + notifier, 0) << name;
        EXPECT_EQ(port.str() + rpc.str() + notifierPort.str(), "") << name;
    }
    std::filesystem::remove(File());
    EXPECT_EQ(read("alpha"), 0);
}

TEST_F(ServersTest, NameListReplacesTheWholeFile) {
    WriteFile("#off VX;;;;\nnotify ;NT;;;\n");
    CVXServerNameList list;
    list.AddServer(CVXServerNameType("one"));
    list.AddServer(CVXServerNameType("two"));
    ASSERT_EQ(CAppEnv::SetVXServerList(folder.c_str(), list), 1);
    EXPECT_EQ(List(true, true), (Names{"one", "two"}));
    EXPECT_EQ(List(false, false), Names{});

    CVXServerNameList empty;
    EXPECT_EQ(CAppEnv::SetVXServerList("", empty), 0);
    EXPECT_EQ(CAppEnv::SetServerList("", ServerTypeList{}), 0);
}

}  // namespace
