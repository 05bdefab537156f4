// The sample tool's main window after a login: an MDI area whose child captions carry the
// library's gradient, the user's servers and a query view, each under a dialog bar, and the
// host's menus with the module's Tools menu merged in before Help.
#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "vxutil/decor/qt/RCaptionPainter.h"

class CAboutDlg;
class CLoginOwner;
class QListWidget;
class QMdiArea;
class QMdiSubWindow;
class QueryView;

class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(const QString& user, CLoginOwner* owner);
    ~MainWindow() override;

    QueryView& Query() { return *m_query; }
    QMdiArea& Area() { return *m_area; }

    void ShowAccounts();
    void ShowAbout();
    // The sample tool's about box, with its name, version and legal lines.
    static std::unique_ptr<CAboutDlg> MakeAboutBox(QWidget* parent);

private:
    QMdiSubWindow* AddChild(QWidget* content, const QString& title);
    void BuildMenus();
    void FillServers();
    void SetGradient(bool on);

    QString m_user;
    CLoginOwner* m_owner;
    QMdiArea* m_area;
    QListWidget* m_servers;
    QueryView* m_query;
    std::vector<std::unique_ptr<RCaptionPainter>> m_captions;
    // The module's menu, kept alive: the merged menu shares its actions.
    QMenuBar* m_moduleMenus;
};
