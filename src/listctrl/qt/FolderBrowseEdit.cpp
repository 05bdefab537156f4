#include "listctrl/qt/FolderBrowseEdit.h"

#include <QAction>
#include <QIcon>
#include <QStyle>

#include "gnrt/StringTable.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {

FolderBrowseEdit::FolderBrowseEdit(QWidget* parent) : QLineEdit(parent) {
    const QIcon icon = QIcon::fromTheme(QStringLiteral("document-open-folder"),
                                        style()->standardIcon(QStyle::SP_DirOpenIcon));
    m_browse = addAction(icon, QLineEdit::TrailingPosition);
    m_browse->setText(Tr(kStrBrowseFolder));
    m_browse->setToolTip(Tr(kStrBrowseFolder));
    connect(m_browse, &QAction::triggered, this, &FolderBrowseEdit::browseRequested);
}

}  // namespace vx
