#include "login/qt/DialogGeometry.h"

#include <QByteArray>
#include <QWidget>

#include "vxutil/platform/RApplication.h"

namespace vx {
namespace {

constexpr char kSection[] = "Desktop";

}  // namespace

bool RestoreDialogGeometry(QWidget& dialog, const char* entry) {
    const RApplication* app = RApplication::Current();
    if (app == nullptr) return false;
    const CGNString stored = app->GetProfileString(kSection, entry);
    return !stored.IsEmpty() &&
           dialog.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored.str())));
}

void SaveDialogGeometry(const QWidget& dialog, const char* entry) {
    if (RApplication* app = RApplication::Current())
        app->WriteProfileString(kSection, entry, dialog.saveGeometry().toBase64().constData());
}

}  // namespace vx
