// Entry point of the widget test programs: a QApplication on the offscreen platform unless the
// run names another (the X server stage sets QT_QPA_PLATFORM=xcb), Qt's widgets instead of the
// desktop's native dialogs, a settings home of its own, the module loaded and the Qt services
// installed, as a client tool that loads the widgets library has them.
#pragma once

#include <QApplication>
#include <QTest>
#include <functional>

#include "support/TempHome.h"
#include "vxutil/platform/RApplication.h"

using namespace Qt::StringLiterals;  // u"..."_s in the tests

namespace vx::test {

// Loads the module and installs the Qt services once the application exists.
void StartWidgetTestModule();
// Shows `window` and activates it, which no window manager does under a bare X server.
bool ShowActive(QWidget& window);
// Runs `action` once on the next modal widget shown, from inside its event loop.
void OnNextModal(std::function<void(QWidget&)> action);

template <typename TestObject>
int RunWidgetTest(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    TempHome home;
    RApplication client("Widget Tests", "vxwidgettests");
    RApplication::SetCurrent(&client);
    QApplication app(argc, argv);
    StartWidgetTestModule();
    TestObject test;
    const int failures = QTest::qExec(&test, argc, argv);
    RApplication::SetCurrent(nullptr);
    return failures;
}

}  // namespace vx::test

#define VX_WIDGET_TEST_MAIN(TestObject)                         \
    int main(int argc, char** argv) {                           \
        return vx::test::RunWidgetTest<TestObject>(argc, argv); \
    }
