// A message-box service for tests: answers from a script, records what was asked.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "vxutil/runtime/RUserPrompt.h"

namespace vx::test {

class ScriptedPrompt : public RUserPrompt {
public:
    ScriptedPrompt() : m_previous(RUserPrompt::SetCurrent(this)) {}
    ~ScriptedPrompt() override { RUserPrompt::SetCurrent(m_previous); }

    // Answers to give, in order; when they run out, each question gets its default button.
    std::deque<int> answers;
    struct Question {
        std::string text;
        unsigned style;
        WindowHandle parent;
    };
    std::vector<Question> asked;

    int Show(WindowHandle parent, const char* text, const char*, unsigned style) override {
        asked.push_back({text != nullptr ? text : "", style, parent});
        if (answers.empty()) return RUserPrompt::DefaultAnswer(style);
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }

private:
    RUserPrompt* m_previous;
};

}  // namespace vx::test
