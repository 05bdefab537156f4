#include "support/WidgetTestMain.h"

#include <QApplication>
#include <QStyleFactory>

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

}  // namespace vx::test
