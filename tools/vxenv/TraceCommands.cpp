// vxenv trace: switch the library's trace in the application profile and read its current run.
#include <string>

#include "Commands.h"
#include "Json.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/RTrace.h"

namespace vxenv {
namespace {

RApplication& App() {
    return *RApplication::Current();
}
RTrace& ModuleTrace() {
    return *RTrace::Module();
}

int WriteSwitch(Context& context, Args& args, int value) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    if (!ModuleTrace().WriteSwitch(value))
        return context.Fail("could not write " + App().GetProfileLocation());
    return kOk;
}

int On(Context& context, Args& args) {
    return WriteSwitch(context, args, 1);
}
int Off(Context& context, Args& args) {
    return WriteSwitch(context, args, 0);
}

int Level(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    long long mask = 0;
    if (!ParseNumber(args[0], 0, 0xffffffffLL, mask))
        return context.UsageError("'" + args[0] + "' is not a level mask");
    if (!ModuleTrace().WriteStoredLevel(static_cast<unsigned long>(mask)))
        return context.Fail("could not write " + App().GetProfileLocation());
    return kOk;
}

int Show(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    const RTrace& trace = ModuleTrace();
    const char* section = trace.GetSection().c_str();
    CGNString stamp = App().GetProfileString(section, trace.GetTimestampEntry().c_str(), "");
    std::vector<std::string> entries;
    for (int number = trace.GetStartNumber();; ++number) {
        CGNString entry = App().GetProfileString(section, std::to_string(number).c_str(), "");
        if (entry.IsEmpty()) break;
        entries.push_back(entry.str());
    }
    if (context.json()) {
        std::vector<std::string> texts;
        for (const auto& entry : entries)
            texts.push_back(JsonString(entry));
        context.Print(
            JsonObject().Add("timestamp", stamp.view()).AddRaw("entries", JsonArray(texts)).Text());
        return kOk;
    }
    context.Print(trace.GetTimestampEntry() + "=" + stamp.str());
    int number = trace.GetStartNumber();
    for (const auto& entry : entries)
        context.Print(std::to_string(number++) + "=" + entry);
    return kOk;
}

int Clear(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    ModuleTrace().Clear();
    return kOk;
}

constexpr Command kCommands[] = {
    {"on", "", "switch tracing on", On, {}},
    {"off", "", "switch tracing off", Off, {}},
    {"level", "MASK", "set the mask of entry kinds written from the next run on", Level, {}},
    {"show", "", "print the current run's time stamp and entries", Show, {}},
    {"clear", "", "remove the current run's entries", Clear, {}},
};

}  // namespace

std::span<const Command> TraceCommands() {
    return kCommands;
}

}  // namespace vxenv
