#include "runtime/module/Module.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/module/ResourceName.h"
#include "support/TempHome.h"
#include "vxutil/decimal/TKxmsg.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/RMessagePump.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/RModule.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/WindowMessages.h"

namespace {

const char kEnglishQuestion[] = "%1\n\nThis folder does not exist - create?";

std::string Text(unsigned id) {
    CGNString text;
    OSLoadString(id, text);
    return text.str();
}

// Sets an environment variable for the test; an empty value removes it.
void SetEnvironment(const char* name, const std::string& value) {
#ifdef _WIN32
    _putenv_s(name, value.c_str());
#else
    if (value.empty())
        unsetenv(name);
    else
        setenv(name, value.c_str(), 1);
#endif
}

// The test suites link the library statically, so no load hook has run: each test loads the
// module itself, with localized resources looked for only where the test says.
class ModuleTest : public vx::test::HomeTest {
protected:
    ModuleTest() { SetEnvironment("VX_LOCALEDIR", home.path().string()); }
    ~ModuleTest() override {
        vx::UnloadModule();
        SetEnvironment("VX_LOCALEDIR", "");
    }

    int moduleAnchor = 0;  // stands in for the module's handle
};

TEST_F(ModuleTest, LoadCreatesTheModuleObjectsAndUnloadWithdrawsThem) {
    ASSERT_FALSE(vx::IsModuleLoaded());
    EXPECT_EQ(RGetResourceHandle(), nullptr);

    EXPECT_EQ(vx::LoadModule("libvxutil.so.0.1.0", &moduleAnchor, {"de"}), 1);
    RTrace* trace = RTrace::Module();
    ASSERT_NE(trace, nullptr);
    EXPECT_EQ(trace->GetSection(), "Debug");
    EXPECT_EQ(trace->GetTimestampEntry(), "Timestamp1");
    ASSERT_NE(RMessageStation::Module(), nullptr);
    EXPECT_EQ(RMessageStation::Module()->GetFrequency(), 250u);
    // Without a localized library the module's own handle serves, with the built-in texts.
    EXPECT_EQ(RGetResourceHandle(), &moduleAnchor);
    EXPECT_EQ(vx::ModuleLocaleResources(), nullptr);
    EXPECT_EQ(Text(3055), kEnglishQuestion);

    // A second load changes nothing.
    int otherAnchor = 0;
    EXPECT_EQ(vx::LoadModule("other.dll", &otherAnchor, {}), 1);
    EXPECT_EQ(RTrace::Module(), trace);
    EXPECT_EQ(RGetResourceHandle(), &moduleAnchor);

    vx::UnloadModule();
    EXPECT_FALSE(vx::IsModuleLoaded());
    EXPECT_EQ(RTrace::Module(), nullptr);
    EXPECT_EQ(RMessageStation::Module(), nullptr);
    EXPECT_EQ(RGetResourceHandle(), nullptr);
    vx::UnloadModule();  // unloading an unloaded module does nothing
}

TEST_F(ModuleTest, UnloadStopsThePumpsStillStarted) {
    vx::LoadModule("libvxutil.so.0.1.0", &moduleAnchor, {});
    RMessagePump pump(vx::kWmUser, -1, 1);
    EXPECT_EQ(pump.GetID(), 1u);
    vx::UnloadModule();
    EXPECT_EQ(pump.GetID(), 0u);
    EXPECT_EQ(pump.Start(), 0);  // no station without the module
}

// The German texts the build ships, found from the library's own folder as an installed
// library finds them.
TEST_F(ModuleTest, AttachedLanguageTranslatesTheStringTable) {
#ifndef _WIN32
    if (std::string(VXUTIL_TEST_LOCALEDIR).empty()) GTEST_SKIP() << "built without msgfmt";
    SetEnvironment("VX_LOCALEDIR", "");
#endif
    ASSERT_EQ(vx::LoadModule(VXUTIL_TEST_MODULE_PATH, &moduleAnchor, {"fr_FR", "fr", "de"}), 1);
    const vx::LocaleResources* resources = vx::ModuleLocaleResources();
    ASSERT_NE(resources, nullptr);
    EXPECT_EQ(resources->Language(), "de");
    EXPECT_NE(RGetResourceHandle(), &moduleAnchor);
    EXPECT_EQ(RGetResourceHandle(), resources->Handle());
    int major = -1, minor = -1;
    resources->Version(major, minor);
    EXPECT_EQ(major, 0);
    EXPECT_EQ(minor, 1);

    // Compared on its ASCII parts: Windows hands the texts out in the ANSI code page.
    EXPECT_EQ(Text(3055), "%1\n\nDieser Ordner existiert nicht - erstellen?");
    EXPECT_EQ(Text(3058), "");  // unknown everywhere

    // Questions offer German answers, and the decimal subsystem reports in German: every
    // translation of its messages keeps the English text's conversions, or it would not be used.
    const std::vector<vx::PromptButton> buttons = RUserPrompt::Buttons(vx::kMbYesNo);
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0].label, "Ja");
    EXPECT_EQ(buttons[1].label, "Nein");
    const std::string overflow = TKMakeMessage(tkdcml::kAddOver, "TKDecimal").why();
    EXPECT_EQ(overflow.rfind("[ADDOVER] TKDecimal: ", 0), 0u) << overflow;
    EXPECT_NE(overflow.find("berlauf bei der Addition"), std::string::npos) << overflow;
    for (const TKMessage* message : TKMessageCatalogue())
        if (std::string_view(message->domain) == tkdcml::kDomain)
            EXPECT_NE(TKMessageFormat(*message), message->text) << message->text;

    vx::UnloadModule();
    EXPECT_EQ(Text(3055), kEnglishQuestion);
    EXPECT_EQ(RUserPrompt::Buttons(vx::kMbYesNo)[0].label, "Yes");
}

TEST(ResourceNameTest, ResGoesBeforeTheFirstDigitOrAtTheEnd) {
    struct Case {
        const char* module;
        const char* expected;
    } cases[] = {
        {"abc40.dll", "abcRes40.dll"},
        {"/usr/lib/x86_64-linux-gnu/libvxutil.so.0.1.0", "libvxutil.so.Res0.1.0"},
        {"lib/libvxutil.so", "libvxutil.soRes"},
        {"9lives.dll", "Res9lives.dll"},
        {"dir2/abc.dll", "abc.dllRes"},  // digits of folders do not count
        {"trailing/", "Res"},
        {"libvxutil.so.0", "libvxutil.so.Res0"},  // the soname: the same for every patch release
#ifdef _WIN32
        // Both separators end the folder on Windows.
        {"C:\\Program Files\\VX2\\vxutil.dll", "vxutil.dllRes"},
        {"C:/VX\\bin/kx32.dll", "kxRes32.dll"},
#endif
    };
    for (const Case& c : cases)
        EXPECT_EQ(vx::LocalizedResourceName(c.module), c.expected) << c.module;
}

#ifndef _WIN32
TEST(PreferredLanguagesTest, FollowTheEnvironmentAsGettextDoes) {
    struct Case {
        const char* language;
        const char* all;
        const char* messages;
        const char* lang;
        std::vector<std::string> expected;
    } cases[] = {
        {"", "", "", "C.UTF-8", {}},
        {"de:fr", "", "", "C", {}},  // LANGUAGE does not count for the "C" locale
        {"", "", "", "de_DE.UTF-8", {"de_DE", "de"}},
        {"fr_CA:de:fr", "", "", "en_US.UTF-8", {"fr_CA", "fr", "de"}},
        {"", "pt_BR.UTF-8@latin", "it_IT", "en_US", {"pt_BR", "pt"}},
        {"", "", "it_IT", "en_US", {"it_IT", "it"}},
        {"::de_AT:", "", "", "en_US", {"de_AT", "de"}},
    };
    for (const Case& c : cases) {
        SetEnvironment("LANGUAGE", c.language);
        SetEnvironment("LC_ALL", c.all);
        SetEnvironment("LC_MESSAGES", c.messages);
        SetEnvironment("LANG", c.lang);
        EXPECT_EQ(vx::PreferredLanguages(), c.expected) << c.language << "|" << c.lang;
    }
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        SetEnvironment(name, "");
}
#endif

}  // namespace
