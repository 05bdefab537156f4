// The login owner's default set-up of a dialog: the client tool's name in the caption, centred.
#include "vxutil/login/CLoginOwner.h"

#include <string>

#include <gtest/gtest.h>

#include "vxutil/login/WindowService.h"
#include "vxutil/platform/RApplication.h"

namespace {

// One window, whose caption the service keeps; notes what was done to it.
class FakeWindowService : public vx::WindowService {
public:
    FakeWindowService() { m_previous = SetCurrent(this); }
    ~FakeWindowService() override { SetCurrent(m_previous); }

    CGNString GetCaption(vx::WindowHandle) override { return caption; }
    void SetCaption(vx::WindowHandle, const CGNString& text) override {
        caption = text.str();
        done += "set ";
    }
    void CentreOnParent(vx::WindowHandle window) override {
        done += window == &caption ? "centre" : "centre another";
    }

    std::string caption;
    std::string done;

private:
    vx::WindowService* m_previous;
};

class Owner : public CLoginOwner {
public:
    int Login(CGNString&, CGNString&) override { return 0; }
};

TEST(LoginOwnerTest, SetUpPutsTheToolsNameIntoTheCaptionAndCentres) {
    struct Case {
        const char* name;  // null: no application object
        const char* caption;
        const char* expected;
        const char* done;
    };
    const Case cases[] = {
        {"Tool", "Login", "Login - Tool", "set centre"},
        {"Tool", "", "Tool", "set centre"},
        {"", "Login", "Login", "centre"},
        {nullptr, "Login", "Login", "centre"},
    };
    for (const Case& c : cases) {
        RApplication app(c.name != nullptr ? c.name : "", "vxlogindialogtest");
        RApplication* previous = RApplication::SetCurrent(c.name != nullptr ? &app : nullptr);
        FakeWindowService windows;
        windows.caption = c.caption;
        EXPECT_EQ(Owner().OnInitDialog(&windows.caption), 1);
        EXPECT_EQ(windows.caption, c.expected) << c.caption;
        EXPECT_EQ(windows.done, c.done) << c.caption;
        RApplication::SetCurrent(previous);
    }
}

}  // namespace
