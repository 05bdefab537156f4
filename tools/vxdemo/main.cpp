// vxdemo, the sample client tool: what a client tool does with the library, start to finish.
// It sets up its application object, asks who logs in with the library's login dialog over its
// own login owner, and opens its main window for that user.
#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "DemoLoginOwner.h"
#include "MainWindow.h"
#include "Tour.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/qt/ShowLoginDialog.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

constexpr const char* kHelp =
    "Usage: vxdemo [options]\n"
    "\n"
    "The sample client tool of the VX client library. It starts with the login dialog: pick or\n"
    "type a user and a password and press OK. A login succeeds when the user has at least one\n"
    "enabled server (add users, home folders and servers with Accounts...) and the password is\n"
    "not empty; the login is then remembered for the next start. The main window shows the\n"
    "user's servers and a query view: type a qualifier in its encoded text into the filter (for\n"
    "example 4\\1\\1\\4\\2\\2\\3, priority = 3) to see its display text and the matching entries.\n"
    "The Tools menu (merged in before Help) opens the accounts dialog and switches the caption\n"
    "gradient; Help shows the about box.\n"
    "\n"
    "Options:\n"
    "  --offscreen-tour DIR  open every dialog and state in turn without a display (login,\n"
    "                        accounts with users and servers, the port columns, the about box,\n"
    "                        the main window, and the dialogs in German), write one PNG of each\n"
    "                        into DIR with an index (index.html, index.txt), and exit. The tour\n"
    "                        keeps its settings in DIR/home and leaves yours alone.\n"
    "  --help                show this text and exit\n"
    "\n"
    "Settings live where every client tool of this machine keeps them: $VX_CONFIG_HOME, else\n"
    "$XDG_CONFIG_HOME/korvel, else ~/.config/korvel (vxdemo's own preferences in vxdemo.ini).\n"
    "The library speaks the user's language (LANGUAGE, LC_ALL, LC_MESSAGES, LANG) where it has\n"
    "a catalogue for it.\n";

int RunClientTool(QApplication& app) {
    char lastUser[32] = {};
    char lastPassword[32] = {};
    CAppEnv::GetLastUserAndPassword(lastUser, lastPassword);
    QString user = vx::ToQString(lastUser);
    DemoLoginOwner owner;
    if (ShowLoginDialog(user, &owner, nullptr, vx::ToQString(lastPassword)) != 1) return 0;
    MainWindow window(vx::ToQString(owner.LoggedInUser()), &owner);
    window.show();
    return app.exec();
}

}  // namespace

int main(int argc, char** argv) {
    QString tourFolder;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        if (argument == QStringLiteral("--help") || argument == QStringLiteral("-h")) {
            std::fputs(kHelp, stdout);
            return 0;
        }
        if (argument == QStringLiteral("--offscreen-tour") && i + 1 < argc) {
            tourFolder = QString::fromLocal8Bit(argv[++i]);
        } else {
            std::fprintf(stderr, "vxdemo: unknown argument '%s'; see vxdemo --help\n", argv[i]);
            return 2;
        }
    }
    if (!tourFolder.isEmpty()) PrepareTour(tourFolder);

    QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("vxdemo"));
    RApplication client("vxdemo", "vxdemo");
    RApplication::SetCurrent(&client);
    const int result = tourFolder.isEmpty() ? RunClientTool(app) : RunTour(tourFolder);
    RApplication::SetCurrent(nullptr);
    return result;
}
