// vxenv prefs: the preferences of the application profile (--app chooses the client tool).
#include <algorithm>
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/appenv/SettingsLayout.h"

namespace vxenv {
namespace {

// How a preference's value is shown: a number, a flag (0 or 1; true or false in JSON) or text.
enum class Kind { kNumber, kFlag, kText };

struct Preference {
    std::string_view key;
    Kind kind;
    std::string def;
    std::string (*get)();
    void (*set)(long long value) = nullptr;  // read-only when null
    long long least = 0;
    long long most = 0;
};

constexpr long long kIntMin = -2147483648LL;
constexpr long long kIntMax = 2147483647LL;
constexpr long long kUnsignedMax = 4294967295LL;

template <class T>
std::string Text(T value) {
    return std::to_string(value);
}

unsigned Threshold(bool level) {
    unsigned levelThreshold = 0, itemsThreshold = 0;
    CAppEnv::GetMenuThresholds(levelThreshold, itemsThreshold);
    return level ? levelThreshold : itemsThreshold;
}

void SetThreshold(bool level, long long value) {
    unsigned levelThreshold = Threshold(true), itemsThreshold = Threshold(false);
    (level ? levelThreshold : itemsThreshold) = static_cast<unsigned>(value);
    CAppEnv::SetMenuThresholds(levelThreshold, itemsThreshold);
}

CAppEnv::flag AsFlag(long long value) {
    return static_cast<CAppEnv::flag>(value != 0);
}

namespace defaults = vx::preference_default;

const Preference kPreferences[] = {
    {"menu-style", Kind::kNumber, Text(defaults::kMenuStyle),
     [] { return Text(CAppEnv::GetMenuDisplayMethod()); },
     [](long long v) { CAppEnv::SetMenuDisplayMethod(static_cast<unsigned>(v)); }, 0, kUnsignedMax},
    {"items-threshold", Kind::kNumber, Text(defaults::kItemsThreshold),
     [] { return Text(Threshold(false)); }, [](long long v) { SetThreshold(false, v); }, 0,
     kUnsignedMax},
    {"level-threshold", Kind::kNumber, Text(defaults::kLevelThreshold),
     [] { return Text(Threshold(true)); }, [](long long v) { SetThreshold(true, v); }, 0,
     kUnsignedMax},
    {"open-list-at-start", Kind::kFlag, Text(defaults::kOpenListAtStart),
     [] { return Text(int{CAppEnv::ExpandMenuItemsAtStartup()}); },
     [](long long v) { CAppEnv::ExpandMenuItemsAtStartup(AsFlag(v)); }, 0, 1},
    {"step-size", Kind::kNumber, Text(defaults::kStepSize),
     [] { return Text(CAppEnv::GetArrowKeyStepSize()); },
     [](long long v) { CAppEnv::SetArrowKeyStepSize(static_cast<int>(v)); }, kIntMin, kIntMax},
    {"max-in-query", Kind::kNumber, Text(defaults::kMaxInQuery),
     [] { return Text(CAppEnv::GetMaxInQuery()); },
     [](long long v) { CAppEnv::SetMaxInQuery(static_cast<int>(v)); }, kIntMin, kIntMax},
    {"limit-items-return", Kind::kFlag, Text(defaults::kLimitItemsReturn),
     [] { return Text(int{CAppEnv::GetIsLimitedQuery()}); },
     [](long long v) { CAppEnv::SetIsLimitedQuery(AsFlag(v)); }, 0, 1},
    {"close-after-submit", Kind::kNumber, Text(defaults::kCloseAfterSubmit),
     [] { return Text(CAppEnv::GetCloseAfterSubmitAction()); }},
    {"rpc-timeout-normal", Kind::kNumber, Text(defaults::kRpcTimeout),
     [] { return Text(CAppEnv::GetRPCTimeoutNormal()); }},
    {"rpc-timeout-long", Kind::kNumber, Text(defaults::kRpcTimeout),
     [] { return Text(CAppEnv::GetRPCTimeoutLong()); }},
    {"rpc-timeout-extra-long", Kind::kNumber, Text(defaults::kRpcTimeout),
     [] { return Text(CAppEnv::GetRPCTimeoutXLong()); }},
    {"show-lang-dll-not-found", Kind::kFlag, Text(defaults::kShowLangDllNotFound),
     [] { return Text(int{CAppEnv::GetShouldShowLangDLLNotFound()}); },
     [](long long v) { CAppEnv::SetShouldShowLangDLLNotFound(AsFlag(v)); }, 0, 1},
    // The raw search path; "paths macro" shows the folders it gives.
    {"macro-path", Kind::kText, "", [] { return vx::GetMacroPathSetting().str(); }},
};

const Preference* Find(Context& context, const std::string& key, int& exitCode) {
    const auto* found =
        std::find_if(std::begin(kPreferences), std::end(kPreferences),
                     [&](const Preference& preference) { return preference.key == key; });
    if (found != std::end(kPreferences)) return found;
    exitCode = context.UsageError("unknown preference '" + key + "' (see 'vxenv prefs list')");
    return nullptr;
}

// The value as JSON: numbers as numbers, flags as booleans.
std::string JsonValue(const Preference& preference, const std::string& value) {
    switch (preference.kind) {
        case Kind::kNumber:
            return value;
        case Kind::kFlag:
            return value == "0" ? "false" : "true";
        case Kind::kText:
            break;
    }
    return JsonString(value);
}

std::string JsonOf(const Preference& preference, const std::string& value) {
    return JsonObject()
        .Add("key", preference.key)
        .AddRaw("value", JsonValue(preference, value))
        .Add("default", value == preference.def)
        .Add("read_only", preference.set == nullptr)
        .Text();
}

int List(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    std::vector<std::string> objects;
    for (const Preference& preference : kPreferences) {
        const std::string value = preference.get();
        if (context.json()) {
            objects.push_back(JsonOf(preference, value));
        } else {
            context.PrintFields(
                {preference.key, value, value == preference.def ? "(default)" : ""});
        }
    }
    if (context.json()) context.Print(JsonArray(objects));
    return kOk;
}

int Get(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    const Preference* preference = Find(context, args[0], code);
    if (preference == nullptr) return code;
    const std::string value = preference->get();
    context.Print(context.json() ? JsonOf(*preference, value) : value);
    return kOk;
}

int Set(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 2, 2, code)) return code;
    const Preference* preference = Find(context, args[0], code);
    if (preference == nullptr) return code;
    if (preference->set == nullptr)
        return context.Fail("'" + args[0] + "' is read-only: the client tools only read it");
    long long value = 0;
    if (!ParseNumber(args[1], preference->least, preference->most, value))
        return context.UsageError("'" + args[1] + "' is not a number from " +
                                  std::to_string(preference->least) + " to " +
                                  std::to_string(preference->most));
    preference->set(value);
    return kOk;
}

constexpr Command kCommands[] = {
    {"list", "", "every preference with its value; (default) marks unchanged ones", List, {}},
    {"get", "KEY", "one preference's value", Get, {}},
    {"set",
     "KEY VALUE",
     "change a preference (the rpc timeouts, close-after-submit and macro-path "
     "are read-only)",
     Set,
     {}},
};

}  // namespace

std::span<const Command> PrefsCommands() {
    return kCommands;
}

}  // namespace vxenv
