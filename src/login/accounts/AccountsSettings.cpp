#include "login/accounts/AccountsSettings.h"

#include <cstdlib>

#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/platform/RApplication.h"

namespace vx::accounts {
namespace {

constexpr const char* kSection = "Desktop";
constexpr const char* kWidthsKey = "AccountsColumn";
constexpr const char* kAdvancedKey = "AdvancedServerOptions";

ServerColumnWidths ParseWidths(const CGNString& text, ServerColumnWidths widths) {
    CGNStringList pieces;
    pieces.Parse(text, ';');
    for (int i = 0; i < pieces.GetCount() && i < static_cast<int>(widths.size()); ++i)
        widths[static_cast<std::size_t>(i)] = std::atoi(pieces.GetAt(i).c_str());
    return widths;
}

}  // namespace

CGNString ReadServerColumnWidthsText() {
    const RApplication* app = RApplication::Current();
    return app != nullptr ? app->GetProfileString(kSection, kWidthsKey, kDefaultServerColumnWidths)
                          : CGNString(kDefaultServerColumnWidths);
}

ServerColumnWidths ReadServerColumnWidths() {
    return ParseWidths(ReadServerColumnWidthsText(),
                       ParseWidths(kDefaultServerColumnWidths, ServerColumnWidths{}));
}

void WriteServerColumnWidths(const CGNString& widths) {
    if (RApplication* app = RApplication::Current())
        app->WriteProfileString(kSection, kWidthsKey, widths.c_str());
}

bool ReadAdvancedServerOptions(bool def) {
    const RApplication* app = RApplication::Current();
    return app != nullptr ? app->GetProfileInt(kSection, kAdvancedKey, def ? 1 : 0) != 0 : def;
}

void WriteAdvancedServerOptions(bool on) {
    if (RApplication* app = RApplication::Current())
        app->WriteProfileInt(kSection, kAdvancedKey, on ? 1 : 0);
}

}  // namespace vx::accounts
