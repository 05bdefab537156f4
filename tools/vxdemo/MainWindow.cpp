#include "MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include "QueryView.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/decor/qt/RDialogBar.h"
#include "vxutil/decor/qt/RMergeMenu.h"
#include "vxutil/foundation/CVXServerNameList.h"
#include "vxutil/login/qt/CAboutDlg.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/runtime/qt/QtText.h"

MainWindow::MainWindow(const QString& user, CLoginOwner* owner)
    : m_user(user),
      m_owner(owner),
      m_area(new QMdiArea(this)),
      m_servers(new QListWidget),
      m_query(new QueryView),
      m_moduleMenus(new QMenuBar(this)) {
    setWindowTitle(QStringLiteral("vxdemo - %1").arg(user));
    setCentralWidget(m_area);
    m_moduleMenus->hide();

    auto* servers = new QWidget;
    auto* layout = new QVBoxLayout(servers);
    layout->setContentsMargins(4, 4, 4, 4);
    auto* bar = new RDialogBar(servers);
    bar->SetDisplayText("Servers");
    layout->addWidget(bar);
    layout->addWidget(m_servers, 1);
    FillServers();

    AddChild(servers, QStringLiteral("Servers of %1").arg(user))->setGeometry(10, 10, 260, 300);
    AddChild(m_query, QStringLiteral("Requests"))->setGeometry(280, 10, 620, 300);
    SetGradient(true);
    BuildMenus();
    statusBar()->showMessage(QStringLiteral("Logged in as %1").arg(user));
    resize(930, 400);
}

MainWindow::~MainWindow() = default;

QMdiSubWindow* MainWindow::AddChild(QWidget* content, const QString& title) {
    QMdiSubWindow* child = m_area->addSubWindow(content);
    child->setWindowTitle(title);
    auto painter = std::make_unique<RCaptionPainter>();
    painter->Install(child);
    m_captions.push_back(std::move(painter));
    return child;
}

void MainWindow::BuildMenus() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("E&xit"), QKeySequence::Quit, qApp, &QApplication::quit);
    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->addAction(QStringLiteral("&About vxdemo..."), this, &MainWindow::ShowAbout);

    // What a module brings along: its own Tools menu, merged in before Help.
    QMenu* tools = m_moduleMenus->addMenu(QStringLiteral("&Tools"));
    tools->addAction(QStringLiteral("&Accounts..."), this, &MainWindow::ShowAccounts);
    QAction* gradient = tools->addAction(QStringLiteral("Caption &Gradient"));
    gradient->setCheckable(true);
    gradient->setChecked(true);
    connect(gradient, &QAction::toggled, this, &MainWindow::SetGradient);
    tools->addSeparator();
    tools->addAction(QStringLiteral("&Tile Windows"), m_area, &QMdiArea::tileSubWindows);
    RMergeMenu(menuBar(), m_moduleMenus);
}

void MainWindow::FillServers() {
    m_servers->clear();
    CGNString homeFolder;
    CVXServerNameList list;
    if (!CAppEnv::FindHomeDirectory(vx::FromQString(m_user), homeFolder) ||
        !CAppEnv::GetServerList(homeFolder, list, 1, 1))
        return;
    for (int i = 0; i < list.GetCount(); ++i)
        m_servers->addItem(vx::ToQString(list.GetServer(i)->GetName()));
}

void MainWindow::SetGradient(bool on) {
    for (const auto& painter : m_captions)
        painter->SetGradient(on ? 1 : 0);
}

void MainWindow::ShowAccounts() {
    CLoginPropDlg accounts(m_user, this, m_owner);
    accounts.exec();
    FillServers();
}

std::unique_ptr<CAboutDlg> MainWindow::MakeAboutBox(QWidget* parent) {
    return std::make_unique<CAboutDlg>(
        QStringLiteral("vxdemo"), 0, 1, 1, QPixmap(), QIcon(),
        QStringLiteral("The sample client tool of the VX client library.\n"
                       "Free to copy and change, as a start for your own client tools."),
        parent);
}

void MainWindow::ShowAbout() {
    MakeAboutBox(this)->exec();
}
