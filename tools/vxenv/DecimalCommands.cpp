// vxenv decimal: show decimal text as the client displays it, and calculate with decimals.
#include <string>
#include <vector>

#include "Commands.h"
#include "Json.h"
#include "vxutil/decimal/DecimalDisplay.h"
#include "vxutil/decimal/TKDecimal.h"
#include "vxutil/decimal/TKErrorHandlers.h"

namespace vxenv {
namespace {

// The catalogue messages raised while the object lives, instead of the trace.
class MessageCollector {
public:
    MessageCollector() : m_previous(TKSetErrorHandler(Collect)) { Texts().clear(); }
    ~MessageCollector() { TKSetErrorHandler(m_previous); }
    MessageCollector(const MessageCollector&) = delete;
    MessageCollector& operator=(const MessageCollector&) = delete;

    static std::vector<std::string>& Texts() {
        static std::vector<std::string> texts;
        return texts;
    }

private:
    static void Collect(const TKxmsg& message) { Texts().emplace_back(message.why()); }
    TKErrorHandler m_previous;
};

const char* StatusName(TKStatus status) {
    switch (status) {
        case TKStatus::kExact:
            return "exact";
        case TKStatus::kInexact:
            return "inexact";
        case TKStatus::kOverflow:
            return "overflow";
        case TKStatus::kNotANumber:
            break;
    }
    return "not a number";
}

int Show(Context& context, Args& args) {
    int code = kOk;
    long long precision = -1;
    const std::string* places = args.Value("--precision");
    if (places != nullptr && !ParseNumber(*places, -1, TKDecimal::kMaxScale, precision))
        return context.UsageError("--precision needs a number from -1 to 28");
    if (!context.CheckCount(args, 1, 1, code)) return code;
    const std::string& text = args[0];
    MessageCollector quiet;
    std::string display;
    if (!FormatDecimalForDisplay(text, static_cast<int>(precision), false, display))
        return context.Fail("'" + text + "' is not a decimal number");
    context.Print(context.json() ? JsonObject().Add("display", display).Text() : display);
    return kOk;
}

using Operation = TKStatus (*)(const TKDecimal&, const TKDecimal&, TKDecimal&);

Operation OperationOf(const std::string& symbol) {
    if (symbol == "+") return TKDecimal::Add;
    if (symbol == "-") return TKDecimal::Subtract;
    if (symbol == "*" || symbol == "x") return TKDecimal::Multiply;
    if (symbol == "/") return TKDecimal::Divide;
    return nullptr;
}

int Calc(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 3, 3, code)) return code;
    Operation operation = OperationOf(args[1]);
    if (operation == nullptr) return context.UsageError("'" + args[1] + "' is not one of + - * /");
    MessageCollector messages;
    TKDecimal a, b, result;
    for (std::size_t i : {std::size_t{0}, std::size_t{2}}) {
        if (TKDecimal::FromText(args[i], i == 0 ? a : b) == TKStatus::kNotANumber)
            return context.Fail("'" + args[i] + "' is not a decimal number");
    }
    const TKStatus status = operation(a, b, result);
    const bool computed = status == TKStatus::kExact || status == TKStatus::kInexact;
    if (context.json()) {
        std::vector<std::string> texts;
        for (const std::string& text : MessageCollector::Texts())
            texts.push_back(JsonString(text));
        context.Print(JsonObject()
                          .AddRaw("result", computed ? JsonString(result.asString()) : "null")
                          .Add("status", StatusName(status))
                          .AddRaw("messages", JsonArray(texts))
                          .Text());
    } else {
        context.Print(result.asString());
        for (const std::string& text : MessageCollector::Texts())
            context.Fail(text);
    }
    return computed ? kOk : kFailed;
}

constexpr Command kCommands[] = {
    {"show",
     "TEXT [--precision P]",
     "decimal text as the client displays it (P places, rounded half away from zero)",
     Show,
     {}},
    {"calc",
     "A +|-|*|/ B",
     "add, subtract, multiply or divide two decimals; overflow and rounding are reported",
     Calc,
     {}},
};

}  // namespace

std::span<const Command> DecimalCommands() {
    return kCommands;
}

}  // namespace vxenv
