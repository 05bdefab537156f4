#include "vxutil/login/qt/ShowLoginDialog.h"

#include <QApplication>

#include "vxutil/login/ILoginView.h"
#include "vxutil/login/qt/CLoginDlg.h"

int ShowLoginDialog(QString& user, CLoginOwner* owner, QWidget* parent, QString password) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return vx::kLoginDialogNotCreated;
    CLoginDlg dialog(user, owner, parent, password);
    return dialog.exec();
}
