// The message catalogue and the paths its messages take.
#include <cstring>
#include <map>
#include <string>

#include "DecimalTestSupport.h"
#include "gnrt/LocalizedStrings.h"
#include "support/TempHome.h"
#include "vxutil/decimal/TKExternalErr.h"
#include "vxutil/decimal/TKMessage.h"

namespace {

using MessageCatalogueTest = vx::test::HomeTest;

TEST_F(MessageCatalogueTest, NumbersRiseByOneFromEachDomainsBase) {
    const std::map<std::string, std::uint32_t> bases = {
        {"tkdcml", 0x3800}, {"tkcore7.0", 0x1000}, {"tktools7.0", 0x2000}};
    std::map<std::string, std::uint32_t> next = bases;
    for (const TKMessage* message : TKMessageCatalogue()) {
        ASSERT_TRUE(next.count(message->domain)) << message->domain;
        EXPECT_EQ(message->number, next[message->domain]++) << message->text;
        EXPECT_EQ(message->text[0], '[') << message->text;
        EXPECT_EQ(TKFindMessage(message->domain, message->number), message);
    }
    EXPECT_EQ(next["tkdcml"], 0x380Fu);
    EXPECT_EQ(next["tkcore7.0"], 0x100Bu);
    EXPECT_EQ(next["tktools7.0"], 0x2017u);
    EXPECT_EQ(TKFindMessage("tkdcml", 0x380F), nullptr);
    EXPECT_EQ(TKFindMessage(nullptr, 0x3800), nullptr);
}

TEST_F(MessageCatalogueTest, SharedTextsAndKeysAreKept) {
    EXPECT_EQ(TKFindMessage("tktools7.0", 0x200F)->text, TKFindMessage("tkcore7.0", 0x1009)->text);
    EXPECT_STREQ(tktools::kStream.text, "[STREAM] Bad input stream");
    EXPECT_STREQ(tkcore::kLock.text, "[LOCK] Unable to lock memory");
    EXPECT_STREQ(tktools::kLock.text, "[LOCK] Locked object deleted");
    EXPECT_STREQ(TKFindMessage("tkdcml", 0x380E)->text,
                 "[FORMATSDIFF]: positive and negative TKDecimalFormat attributes differ");
}

TEST_F(MessageCatalogueTest, FormatsArguments) {
    EXPECT_EQ(TKFormat(tkcore::kOvFlow.text, 3, "abcdef", 3u),
              "[OVFLOW] Overflow error -> \"abc\" <- (3 max characters)");
    TKExternalErr error = TKMakeMessage<TKExternalErr>(tkcore::kOpErr, "a.txt");
    EXPECT_STREQ(error.why(), "[OPERR] Could not open file a.txt");
    EXPECT_EQ(error.GetEntry(), &tkcore::kOpErr);
    EXPECT_EQ(TKxmsg("free text").GetEntry(), nullptr);
}

// A translation is a printf format: one whose conversions are not exactly the English text's
// (a corrupt or hostile catalogue) must never reach printf.
TEST_F(MessageCatalogueTest, TranslationsServeOnlyWithTheEnglishConversions) {
    static std::string translation;
    const vx::LocalizedStringLookup previous =
        vx::SetLocalizedStringLookup([](unsigned id, std::string& text) {
            text = translation;
            return id == tkcore::kOvFlow.number && !text.empty();
        });
    struct Case {
        const char* translation;
        bool used;
    } cases[] = {
        {"[OVFLOW] Zu lang -> \"%.*s\" <- (%u Zeichen, 100%%)", true},
        {"", false},
        {"[OVFLOW] %s", false},                        // a conversion missing
        {"[OVFLOW] %.*s %u %s", false},                // one more
        {"[OVFLOW] %u -> \"%.*s\"", false},            // reordered
        {"[OVFLOW] -> \"%.*s\" <- (%n max)", false},   // another conversion in its place
        {"[OVFLOW] -> \"%.*s\" <- (%lu max)", false},  // another length
    };
    for (const Case& c : cases) {
        translation = c.translation;
        EXPECT_EQ(TKMessageFormat(tkcore::kOvFlow), c.used ? c.translation : tkcore::kOvFlow.text)
            << c.translation;
    }
    translation = cases[0].translation;
    EXPECT_EQ(TKMakeMessage(tkcore::kOvFlow, 3, "abcdef", 3u).why(),
              std::string("[OVFLOW] Zu lang -> \"abc\" <- (3 Zeichen, 100%)"));
    EXPECT_EQ(TKMakeMessage(tkcore::kNoMem).why(), std::string(tkcore::kNoMem.text));
    vx::SetLocalizedStringLookup(previous);
}

std::string g_fatal;
void RecordFatal(const TKxmsg& message) {
    g_fatal = message.why();
}

TEST_F(MessageCatalogueTest, HandlersAreReplaceableAndReturnThePreviousOne) {
    TKErrorHandler original = TKSetFatalHandler(RecordFatal);
    EXPECT_EQ(TKSetFatalHandler(RecordFatal), RecordFatal);
    TKReportFatal(TKMakeMessage(tkcore::kNoMem));
    EXPECT_EQ(g_fatal, "[NOMEM] No memory");
    EXPECT_EQ(TKSetFatalHandler(nullptr), RecordFatal);
    EXPECT_EQ(TKSetFatalHandler(original), original);

    {
        vx::test::CapturedMessages captured;
        TKReportError(TKxmsg("one"));
        EXPECT_EQ(captured.texts(), std::vector<std::string>{"one"});
    }
    TKReportError(TKxmsg("goes to the trace"));  // the default handler must not fail
}

#ifndef _WIN32  // on Windows the default shows a message box
TEST_F(MessageCatalogueTest, DefaultFatalHandlerEndsTheProcessWithStatusOne) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(TKReportFatal(TKMakeMessage(tkcore::kNoMem)), testing::ExitedWithCode(1),
                "Fatal Error.*\\[NOMEM\\] No memory");
}
#endif

}  // namespace
