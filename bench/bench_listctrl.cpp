// Keystroke validation cost per key of a hexadecimal number cell: the message filter on one
// character typed at the end of "0x1F40" (accepted), one it refuses, and a Delete key-down in
// the middle. The window keeps its text, so every iteration checks the same keystroke. The
// checks read the number through RHexToInt, whose method trace reads the trace switch of the
// application's profile: the keys are measured without a trace, and with the module-wide trace
// of a client tool whose tracing is off.
#include <benchmark/benchmark.h>

#include "vxutil/listctrl/RHexEditLogic.h"
#include "vxutil/listctrl/VirtualKeys.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/RTrace.h"

namespace {

class StillEditWindow : public vx::EditWindow {
public:
    bool Exists() const override { return true; }
    CGNString GetText() const override { return m_text; }
    void GetSel(int& start, int& end) const override { start = end = m_caret; }
    bool ClientContains(vx::ClientPoint) const override { return true; }
    void PostKeyDown(unsigned) override {}
    void Beep() override {}
    vx::WindowHandle PromptParent() const override { return nullptr; }

    void SetCaret(int caret) { m_caret = caret; }

private:
    CGNString m_text{"0x1F40"};
    int m_caret = 6;
};

void Keystroke(benchmark::State& state, vx::EditMessage message, int caret, bool traced) {
    RApplication app("Bench", "vxbenchlistctrl");
    RTrace trace{1, kTraceAllLevels, "Debug", "Trace", 1};
    RApplication* previousApp = RApplication::SetCurrent(traced ? &app : nullptr);
    RTrace* previousTrace = RTrace::SetModule(traced ? &trace : nullptr);
    StillEditWindow window;
    window.SetCaret(caret);
    RHexEditLogic logic(&window);
    logic.SetRange(0, 0xFFFFF);
    for (auto _ : state)
        benchmark::DoNotOptimize(logic.PreTranslateMessage(message));
    state.SetItemsProcessed(state.iterations());
    RTrace::SetModule(previousTrace);
    RApplication::SetCurrent(previousApp);
}

const vx::EditMessage kDigit = vx::EditMessage::Char('0');
const vx::EditMessage kBadLetter = vx::EditMessage::Char('g');
const vx::EditMessage kDelete = vx::EditMessage::KeyDown(vx::kVkDelete);

BENCHMARK_CAPTURE(Keystroke, AcceptedDigit, kDigit, 6, false);
BENCHMARK_CAPTURE(Keystroke, RefusedLetter, kBadLetter, 6, false);
BENCHMARK_CAPTURE(Keystroke, DeleteInside, kDelete, 3, false);
BENCHMARK_CAPTURE(Keystroke, AcceptedDigitTraceOff, kDigit, 6, true);
BENCHMARK_CAPTURE(Keystroke, DeleteInsideTraceOff, kDelete, 3, true);

}  // namespace
