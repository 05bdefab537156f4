// A temporary tree for the folder utilities' tests, and a prompt that answers from a script.
#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TempHome.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx::test {

// Records every question and gives the scripted answers in turn (the default answer once the
// script has run out).
class ScriptedPrompt : public RUserPrompt {
public:
    struct Shown {
        std::string text;
        unsigned style;
    };

    explicit ScriptedPrompt(std::deque<int> answers = {}) : m_answers(std::move(answers)) {
        m_previous = RUserPrompt::SetCurrent(this);
    }
    ~ScriptedPrompt() override { RUserPrompt::SetCurrent(m_previous); }

    int Show(WindowHandle, const char* text, const char*, unsigned style) override {
        shown.push_back({text, style});
        if (m_answers.empty()) return DefaultAnswer(style);
        const int answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }

    std::vector<Shown> shown;

private:
    std::deque<int> m_answers;
    RUserPrompt* m_previous;
};

class FolderTest : public HomeTest {
protected:
    // `relative` (with '/' between names) inside the test's folder, with native separators.
    CGNString At(const std::string& relative) const {
        return CGNString((home.path() / std::filesystem::path(relative)).make_preferred().string());
    }
    std::filesystem::path Path(const std::string& relative) const { return home.path() / relative; }
    void File(const std::string& relative, const std::string& content = "text") const {
        std::filesystem::create_directories(Path(relative).parent_path());
        WriteBytes(Path(relative).string(), content);
    }
    bool Exists(const std::string& relative) const {
        std::error_code ignored;
        return std::filesystem::exists(std::filesystem::symlink_status(Path(relative), ignored));
    }
};

}  // namespace vx::test
