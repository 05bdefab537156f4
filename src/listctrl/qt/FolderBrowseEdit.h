// The editor of folder cells: a line edit with a trailing browse button. The button only asks
// for a folder (browseRequested); the owner opens the folder dialog, since it has to keep the
// cell edit alive while the dialog is open.
#pragma once

#include <QLineEdit>

class QAction;

namespace vx {

class FolderBrowseEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit FolderBrowseEdit(QWidget* parent = nullptr);

    QAction* BrowseAction() const { return m_browse; }

Q_SIGNALS:
    void browseRequested();

private:
    QAction* m_browse;
};

}  // namespace vx
