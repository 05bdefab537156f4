// The login dialog end to end over the real user store, with an owner that answers from a
// script, and the about box. The dialog's rules are the presenter's and tested there; these
// tests check that the widgets carry them out.
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <deque>
#include <functional>

#include "support/WidgetTestMain.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/SystemInfo.h"
#include "vxutil/login/qt/CAboutDlg.h"
#include "vxutil/login/qt/CLoginDlg.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/login/qt/ShowLoginDialog.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

class ScriptedOwner : public CLoginOwner {
public:
    std::deque<int> results;               // Login's answers; 1 once they run out
    std::function<void()> whileLoggingIn;  // looks at the dialog during a login
    QStringList logins;                    // "user/password" of each call

    int Login(CGNString& user, CGNString& password) override {
        logins << vx::ToQString(user) + u'/' + vx::ToQString(password);
        if (whileLoggingIn) whileLoggingIn();
        if (results.empty()) return 1;
        const int result = results.front();
        results.pop_front();
        return result;
    }
};

// The dialog's controls, by the names that carry their ids.
struct LoginControls {
    explicit LoginControls(QWidget& dialog)
        : user(dialog.findChild<QComboBox*>(QStringLiteral("userCombo_3400"))),
          password(dialog.findChild<QLineEdit*>(QStringLiteral("passwordEdit_3401"))),
          accounts(dialog.findChild<QPushButton*>(QStringLiteral("accountsButton_3402"))),
          ok(dialog.findChild<QPushButton*>(QStringLiteral("okButton"))),
          reveal(password->actions().value(0)) {}

    QComboBox* user;
    QLineEdit* password;
    QPushButton* accounts;
    QPushButton* ok;
    QAction* reveal;
};

void ShowActive(QWidget& dialog) {
    dialog.show();
    dialog.activateWindow();  // no window manager activates it under a bare X server
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

// Types `text` key by key, as QTest::keyClicks does for ASCII only.
void Type(QWidget* widget, const QString& text) {
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

// Runs `action` on the modal dialog shown next.
void OnNextModal(std::function<void(QWidget&)> action) {
    QTimer::singleShot(0, [action] {
        QWidget* modal = QApplication::activeModalWidget();
        QVERIFY(modal != nullptr);
        action(*modal);
    });
}

}  // namespace

class LoginDialogTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        const std::string home = qEnvironmentVariable("VX_CONFIG_HOME").toStdString();
        for (const char* user : {"carol", "Alice", "bob"})
            QVERIFY(CAppEnv::AddUser(user, home + "/" + user));
    }

    void opensOnTheProposedUser_data() {
        QTest::addColumn<QString>("proposed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("okEnabled");
        QTest::newRow("known, in another case") << "BOB"
                                                << "bob" << 1 << true;
        QTest::newRow("unknown stays as typed") << "dave"
                                                << "dave" << -1 << true;
        QTest::newRow("none") << ""
                              << "" << -1 << false;
    }
    void opensOnTheProposedUser() {
        QFETCH(QString, proposed);
        QWidget parent;
        parent.setGeometry(60, 50, 600, 420);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        ScriptedOwner owner;
        CLoginDlg dialog(proposed, &owner, &parent, QStringLiteral("remembered"));
        const LoginControls controls(dialog);

        QStringList users;
        for (int i = 0; i < controls.user->count(); ++i)
            users << controls.user->itemText(i);
        QCOMPARE(users, (QStringList{QStringLiteral("Alice"), QStringLiteral("bob"),
                                     QStringLiteral("carol")}));
        QTEST(controls.user->currentText(), "shown");
        QTEST(controls.user->currentIndex(), "index");
        QTEST(controls.ok->isEnabled(), "okEnabled");
        QCOMPARE(controls.password->text(), QStringLiteral("remembered"));
        QVERIFY(!controls.reveal->isVisible());  // never for the caller's password
        // The owner's default set-up, through the Qt window service.
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Login - Widget Tests"));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        // Centred before its frame was known: off by at most the frame's width.
        QVERIFY(
            (dialog.frameGeometry().center() - parent.frameGeometry().center()).manhattanLength() <=
            12);
    }

    void choosingAUserClearsThePasswordTypingDoesNot() {
        ScriptedOwner owner;
        CLoginDlg dialog(QStringLiteral("bob"), &owner, nullptr, QStringLiteral("secret"));
        const LoginControls controls(dialog);
        ShowActive(dialog);
        QLineEdit* userEdit = controls.user->lineEdit();
        userEdit->setFocus();
        userEdit->selectAll();
        QTest::keyClicks(userEdit, QStringLiteral("carol"));
        QTest::keyClick(userEdit, Qt::Key_Tab);  // Qt selects the entry typed; still typing
        QCOMPARE(controls.password->text(), QStringLiteral("secret"));
        QVERIFY(controls.password->hasFocus());

        QTest::keyClick(controls.user, Qt::Key_Up);  // a choice from the list
        QCOMPARE(controls.user->currentText(), QStringLiteral("bob"));
        QCOMPARE(controls.password->text(), QString());

        userEdit->selectAll();
        QTest::keyClick(userEdit, Qt::Key_Backspace);
        QVERIFY(!controls.ok->isEnabled());
        QTest::keyClicks(userEdit, QStringLiteral("x"));
        QVERIFY(controls.ok->isEnabled());
    }

    void revealOffersOnlyWhatTheUserTyped() {
        CLoginDlg dialog(QStringLiteral("bob"), nullptr, nullptr, QStringLiteral("secret"));
        const LoginControls controls(dialog);
        ShowActive(dialog);
        controls.password->setFocus();
        controls.password->end(false);
        QTest::keyClicks(controls.password, QStringLiteral("2"));
        QVERIFY(!controls.reveal->isVisible());  // still the caller's, with a bit added
        controls.password->selectAll();
        QTest::keyClicks(controls.password, QStringLiteral("mine"));
        QVERIFY(controls.reveal->isVisible());
        controls.reveal->trigger();
        QCOMPARE(controls.password->echoMode(), QLineEdit::Normal);
        QTest::keyClick(controls.user, Qt::Key_Down);  // another user: the password goes
        QVERIFY(!controls.reveal->isVisible());
        QCOMPARE(controls.password->echoMode(), QLineEdit::Password);
    }

    void okStaysOpenUntilTheOwnerSucceeds() {
        ScriptedOwner owner;
        owner.results = {2, 1};
        CLoginDlg dialog(QStringLiteral("bob"), &owner, nullptr, QStringLiteral("pw"));
        const LoginControls controls(dialog);
        bool sawBusy = false;
        owner.whileLoggingIn = [&] {
            sawBusy = !dialog.isEnabled() && QApplication::overrideCursor() != nullptr &&
                      QApplication::overrideCursor()->shape() == Qt::WaitCursor;
            dialog.close();  // refused while the owner works
            dialog.reject();
            sawBusy = sawBusy && dialog.isVisible();
        };
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.open();
        QTest::mouseClick(controls.ok, Qt::LeftButton);
        QVERIFY(sawBusy);
        QCOMPARE(finished.count(), 0);
        QVERIFY(dialog.isEnabled() && controls.ok->isEnabled());
        QVERIFY(QApplication::overrideCursor() == nullptr);

        QTest::mouseClick(controls.ok, Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 1);
        QCOMPARE(owner.logins, (QStringList{QStringLiteral("bob/pw"), QStringLiteral("bob/pw")}));
    }

    void cancelAndCloseEndWithTwo() {
        ScriptedOwner owner;
        QString user = QStringLiteral("bob");
        OnNextModal([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(ShowLoginDialog(user, &owner, nullptr, QString()), 2);
        CLoginDlg dialog(user, &owner, nullptr, QString());
        OnNextModal([](QWidget& shown) { shown.close(); });
        QCOMPARE(dialog.exec(), 2);
        QVERIFY(owner.logins.isEmpty());
    }

    void fieldsRefuseMoreThanThirtyBytes() {
        CLoginDlg dialog(QString(), nullptr, nullptr, QString());
        const LoginControls controls(dialog);
        ShowActive(dialog);
        const QString thirtyBytes(15, QChar(0xE9));  // "é" takes two bytes
        for (QLineEdit* edit : {controls.user->lineEdit(), controls.password}) {
            edit->setFocus();
            Type(edit, thirtyBytes + QChar(0xE9) + u'a');
            QCOMPARE(edit->text(), thirtyBytes);
        }
    }

    void withheldAccountsButtonStaysHidden() {
        CLoginDlg dialog(QStringLiteral("bob"), nullptr, nullptr, QString());
        const LoginControls controls(dialog);
        dialog.EnableInfoButton(0);
        dialog.EnableContextHelp(0);
        ShowActive(dialog);
        QTest::keyClicks(controls.user->lineEdit(), QStringLiteral("x"));
        QVERIFY(controls.accounts->isHidden() && !controls.accounts->isEnabled());
        QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    }

    void accountsClosedWithCancelKeepsThePassword() {
        ScriptedOwner owner;
        CLoginDlg dialog(QStringLiteral("bob"), &owner, nullptr, QStringLiteral("secret"));
        const LoginControls controls(dialog);
        ShowActive(dialog);
        bool overLogin = false;
        OnNextModal([&](QWidget& accounts) {
            overLogin = qobject_cast<CLoginPropDlg*>(&accounts) != nullptr &&
                        accounts.parentWidget() == &dialog;
            static_cast<QDialog&>(accounts).reject();
        });
        QTest::mouseClick(controls.accounts, Qt::LeftButton);
        QVERIFY(overLogin);
        QCOMPARE(controls.user->currentText(), QStringLiteral("bob"));
        QCOMPARE(controls.password->text(), QStringLiteral("secret"));
    }

    void sizeIsRememberedWhenTheDialogCloses() {
        RApplication& app = *RApplication::Current();
        app.WriteProfileString("Desktop", "LoginGeometry", nullptr);
        QSize closedAt;
        {
            CLoginDlg dialog(QString(), nullptr, nullptr, QString());
            ShowActive(dialog);
            QVERIFY(app.GetProfileString("Desktop", "LoginGeometry").IsEmpty());
            dialog.resize(dialog.size() + QSize(80, 30));
            closedAt = dialog.size();
            dialog.reject();
        }
        QVERIFY(!app.GetProfileString("Desktop", "LoginGeometry").IsEmpty());
        CLoginDlg reopened(QString(), nullptr, nullptr, QString());
        QCOMPARE(reopened.size(), closedAt);
    }

    void aboutBoxShowsTheSystemInformationToCopy() {
        QPixmap bitmap(40, 30);
        bitmap.fill(Qt::darkBlue);
        CAboutDlg about(QStringLiteral("Demo"), 2, 5, 1234, bitmap, QIcon(),
                        QStringLiteral("(c) Korvel"));
        QCOMPARE(about.windowTitle(), QStringLiteral("About Demo"));
        auto* version = about.findChild<QLabel*>(QStringLiteral("versionLabel"));
        QCOMPARE(version->text(), QStringLiteral("Version 2.5 (Build 1234)"));
        QVERIFY(!about.findChild<QLabel*>(QStringLiteral("bitmapLabel"))->isHidden());

        auto* info = about.findChild<QPlainTextEdit*>(QStringLiteral("systemInfo"));
        const QStringList expected = vx::ToQString(ClientGetSystemInfo()).split(u'\n');
        const QStringList shown = info->toPlainText().split(u'\n');
        QCOMPARE(shown.size(), expected.size());
        QCOMPARE(shown.first(), expected.first());  // memory figures move between reads
        QVERIFY(info->isReadOnly());
        QVERIFY(info->textInteractionFlags().testFlags(Qt::TextSelectableByMouse |
                                                       Qt::TextSelectableByKeyboard));
        info->selectAll();
        info->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), info->toPlainText());
    }
};

VX_WIDGET_TEST_MAIN(LoginDialogTest)
#include "LoginDialogTest.moc"
