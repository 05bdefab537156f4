// A message-box service for the tests: installed for its lifetime, it answers OK and keeps
// every message with its parent and style.
#pragma once

#include <string>
#include <vector>

#include "vxutil/runtime/RUserPrompt.h"

namespace vx::test {

struct RecordingPrompt : RUserPrompt {
    struct Shown {
        WindowHandle parent;
        std::string text;
        unsigned style;
    };
    ~RecordingPrompt() override { RUserPrompt::SetCurrent(previous); }
    int Show(WindowHandle parent, const char* text, const char*, unsigned style) override {
        shown.push_back({parent, text, style});
        return kIdOk;
    }
    std::vector<Shown> shown;
    RUserPrompt* previous = RUserPrompt::SetCurrent(this);
};

}  // namespace vx::test
