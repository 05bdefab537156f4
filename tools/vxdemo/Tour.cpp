#include "Tour.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QProcess>
#include <QTextStream>
#include <QTimer>
#include <vector>

#include "DemoLoginOwner.h"
#include "MainWindow.h"
#include "QueryView.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/appenv/ServerType.h"
#include "vxutil/login/qt/CAboutDlg.h"
#include "vxutil/login/qt/CLoginDlg.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

// Set for the second run of the tour, which shows the dialogs in German.
constexpr const char* kGermanPart = "VXDEMO_TOUR_GERMAN";

struct Picture {
    QString file;
    QString caption;
};

class Tour {
public:
    explicit Tour(const QString& folder) : m_folder(folder) {}

    // Shows `widget`, lets it settle, and writes its picture.
    void Shoot(QWidget& widget, const QString& file, const QString& caption) {
        widget.show();
        widget.activateWindow();
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
        if (widget.grab().save(QDir(m_folder).filePath(file)))
            m_pictures.push_back({file, caption});
        else
            ++m_failures;
        widget.hide();
    }

    const std::vector<Picture>& Pictures() const { return m_pictures; }
    int Failures() const { return m_failures; }

private:
    QString m_folder;
    std::vector<Picture> m_pictures;
    int m_failures = 0;
};

void AddUser(const char* name, const QString& folder, std::vector<tagSERVERTYPE> servers) {
    const CGNString home = vx::FromQString(folder);
    QDir().mkpath(folder);
    CAppEnv::AddUser(name, home);
    ServerTypeList list;
    for (tagSERVERTYPE& server : servers)
        list.push_back(&server);
    CAppEnv::SetServerList(home, list);
}

tagSERVERTYPE Server(const char* name, bool workflow, bool notifier, const char* port = "") {
    tagSERVERTYPE server;
    server.m_strName = name;
    server.m_bWorkflow = workflow ? 1 : 0;
    server.m_bNotifier = notifier ? 1 : 0;
    server.m_strWorkflowPort = port;
    return server;
}

// Users and servers for the pictures, as support staff would set them up.
void SeedSettings(const QString& home) {
    CAppEnv::SetDefaultHomePath(vx::FromQString(QDir(home).filePath(QStringLiteral("default"))));
    QDir().mkpath(QDir(home).filePath(QStringLiteral("default")));
    AddUser("ann", QDir(home).filePath(QStringLiteral("ann")),
            {Server("helpdesk.example.com", true, false, "2020"),
             Server("notify.example.com", false, true), Server("archive.example.com", true, true)});
    AddUser("bob", QDir(home).filePath(QStringLiteral("bob")),
            {Server("helpdesk.example.com", true, false)});
    CAppEnv::SetLastUserAndPassword("ann", "secret");
}

void ShootDialogs(Tour& tour, const QString& suffix, const QString& language) {
    DemoLoginOwner owner(0);
    QString user = QStringLiteral("ann");
    CLoginDlg login(user, &owner, nullptr, QString());
    tour.Shoot(login, QStringLiteral("login%1.png").arg(suffix),
               QStringLiteral("Login dialog%1").arg(language));

    CLoginPropDlg accounts(user, nullptr, &owner);
    auto* advanced = accounts.findChild<QCheckBox*>(QStringLiteral("advancedOptions_3424"));
    // The demo's owner shows the port columns at first; the tour shows the dialog without them
    // and then with them, and leaves the switch as it found it.
    const bool portsShown = advanced != nullptr && advanced->isChecked();
    if (portsShown) advanced->click();
    tour.Shoot(accounts, QStringLiteral("accounts%1.png").arg(suffix),
               QStringLiteral("Accounts: users and the servers of ann%1").arg(language));
    if (advanced != nullptr) {
        advanced->click();
        tour.Shoot(accounts, QStringLiteral("accounts-ports%1.png").arg(suffix),
                   QStringLiteral("Accounts with the advanced port columns%1").arg(language));
        if (!portsShown) advanced->click();
    }

    const std::unique_ptr<CAboutDlg> about = MainWindow::MakeAboutBox(nullptr);
    tour.Shoot(*about, QStringLiteral("about%1.png").arg(suffix),
               QStringLiteral("About box%1").arg(language));
}

void ShootMainWindow(Tour& tour) {
    DemoLoginOwner owner(0);
    MainWindow window(QStringLiteral("ann"), &owner);
    window.Query().SetFilter(QStringLiteral("4\\7\\1\\8\\2\\4\\9\\%Printer%"));
    tour.Shoot(window, QStringLiteral("main.png"),
               QStringLiteral("Main window: merged menus, gradient MDI captions, the query view "
                              "filtered by a qualifier"));
}

// The German pictures come from a second run: the library's language is fixed at its start.
bool RunGermanPart(const QString& folder) {
    QProcess german;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kGermanPart), QStringLiteral("1"));
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("de"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8"));
    environment.remove(QStringLiteral("LC_ALL"));
    environment.remove(QStringLiteral("LC_MESSAGES"));
    german.setProcessEnvironment(environment);
    german.setProcessChannelMode(QProcess::ForwardedChannels);
    german.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--offscreen-tour"), folder});
    return german.waitForFinished(120000) && german.exitStatus() == QProcess::NormalExit &&
           german.exitCode() == 0;
}

void WriteIndex(const QString& folder, const std::vector<Picture>& pictures) {
    QFile text(QDir(folder).filePath(QStringLiteral("index.txt")));
    QFile html(QDir(folder).filePath(QStringLiteral("index.html")));
    if (!text.open(QIODevice::WriteOnly | QIODevice::Text) ||
        !html.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    QTextStream textOut(&text), htmlOut(&html);
    htmlOut << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>vxdemo tour</title>"
               "</head><body>\n<h1>vxdemo tour</h1>\n";
    for (const Picture& picture : pictures) {
        textOut << picture.file << '\t' << picture.caption << '\n';
        htmlOut << "<h2>" << picture.caption.toHtmlEscaped() << "</h2>\n<img src=\"" << picture.file
                << "\" alt=\"" << picture.caption.toHtmlEscaped() << "\">\n";
    }
    htmlOut << "</body></html>\n";
}

}  // namespace

void PrepareTour(const QString& folder) {
    QDir().mkpath(folder);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString home = QDir(folder).absoluteFilePath(QStringLiteral("home"));
    if (!qEnvironmentVariableIsSet(kGermanPart)) QDir(home).removeRecursively();
    QDir().mkpath(home);
    qputenv("VX_CONFIG_HOME", QFile::encodeName(home));
}

int RunTour(const QString& folder) {
    // One look wherever the tour runs.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    Tour tour(folder);
    if (qEnvironmentVariableIsSet(kGermanPart)) {
        ShootDialogs(tour, QStringLiteral("-de"), QString());
        return tour.Failures() == 0 ? 0 : 1;
    }
    SeedSettings(QString::fromLocal8Bit(qgetenv("VX_CONFIG_HOME")));
    ShootDialogs(tour, QString(), QString());
    ShootMainWindow(tour);
    std::vector<Picture> pictures = tour.Pictures();
    const bool german = RunGermanPart(folder);
    for (const char* name : {"login", "accounts", "accounts-ports", "about"}) {
        const QString file = QStringLiteral("%1-de.png").arg(QString::fromLatin1(name));
        if (QFile::exists(QDir(folder).filePath(file)))
            pictures.push_back(
                {file, QStringLiteral("%1, in German").arg(QString::fromLatin1(name))});
    }
    WriteIndex(folder, pictures);
    return tour.Failures() == 0 && german ? 0 : 1;
}
