#include "support/WidgetTestMain.h"

#include <QStyleFactory>
#include <QTimer>

#include "runtime/module/Module.h"
#include "vxutil/runtime/qt/QtServices.h"

namespace vx::test {

void StartWidgetTestModule() {
    // One style and font everywhere, so that geometry does not depend on the desktop.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    LoadModule(VXUTIL_TEST_MODULE_PATH, nullptr, {});
    InstallQtServices();
}

bool ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

void OnNextModal(std::function<void(QWidget&)> action) {
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, [poll, action] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            poll->stop();
            poll->deleteLater();
            action(*modal);
        }
    });
    QTimer::singleShot(5000, poll, &QObject::deleteLater);  // none came
    poll->start(10);
}

}  // namespace vx::test
