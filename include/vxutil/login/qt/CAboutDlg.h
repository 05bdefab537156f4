// The about box: the product's name, version, build and legal lines, its bitmap and icon, and
// the system information (operating system, memory, sockets, resources), which the user can
// select and copy into a support request.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>
#include <memory>

#include "vxutil/decor/qt/CWDialog.h"
#include "vxutil/widgets_export.h"

class VXUTIL_WIDGETS_API CAboutDlg : public CWDialog {
    Q_OBJECT
public:
    // The client tool's product and version. A null `bitmap` shows none; a null `icon` shows the
    // application's window icon, if it has one. `legal` may hold several lines.
    CAboutDlg(const QString& productName, quint16 majorVersion, quint16 minorVersion, quint32 build,
              const QPixmap& bitmap, const QIcon& icon, const QString& legal,
              QWidget* parent = nullptr);
    ~CAboutDlg() override;

private:
    struct Parts;
    std::unique_ptr<Parts> m_pParts;
};
