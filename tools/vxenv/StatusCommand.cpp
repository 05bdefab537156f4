// vxenv status: where each settings store lives, whether it exists, and the trace's state.
#include <filesystem>
#include <string>

#include "Commands.h"
#include "Json.h"
#include "StoreLocation.h"
#include "vxutil/platform/LegacyProfile.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/platform/SettingsHome.h"
#include "vxutil/runtime/RTrace.h"

namespace vxenv {
namespace {

struct Store {
    const char* name;
    std::string location;
};

}  // namespace

int RunStatus(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    RApplication& app = *RApplication::Current();
    const RTrace& trace = *RTrace::Module();
    const char* section = trace.GetSection().c_str();

    const Store stores[] = {
        {"system configuration", SystemConfigLocation()},
        {"legacy profile", vx::LegacyProfilePath()},
        {"application profile", app.GetProfileLocation()},
    };
    bool tracing = trace.IsTracing() != 0;
    const unsigned long level = trace.GetStoredLevel();
    CGNString stamp = app.GetProfileString(section, trace.GetTimestampEntry().c_str(), "");

    if (context.json()) {
        std::vector<std::string> storeObjects;
        for (const Store& store : stores)
            storeObjects.push_back(JsonObject()
                                       .Add("store", store.name)
                                       .Add("location", store.location)
                                       .Add("exists", StoreExists(store.location))
                                       .Text());
        context.Print(JsonObject()
                          .Add("settings_home", vx::SettingsHome())
                          .Add("application", app.GetProfileName())
                          .AddRaw("stores", JsonArray(storeObjects))
                          .AddRaw("trace", JsonObject()
                                               .Add("on", tracing)
                                               .Add("level", static_cast<long long>(level))
                                               .Add("timestamp", stamp.view())
                                               .Text())
                          .Text());
        return kOk;
    }
    context.Print("settings home: " + vx::SettingsHome());
    context.Print("application: " + app.GetProfileName());
    for (const Store& store : stores)
        context.Print(std::string(store.name) + ": " + store.location +
                      (StoreExists(store.location) ? "" : " (not created yet)"));
    char levelText[16];
    std::snprintf(levelText, sizeof levelText, "0x%08lx", level);
    context.Print(std::string("trace: ") + (tracing ? "on" : "off") + ", level " + levelText +
                  (stamp.IsEmpty() ? "" : ", run started " + stamp.str()));
    return kOk;
}

}  // namespace vxenv
