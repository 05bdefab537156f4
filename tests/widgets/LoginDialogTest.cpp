// The login dialog end to end over the real user store, with an owner that answers from a
// script. The dialog's rules are the presenter's and tested there; these tests check that the
// widgets carry them out.
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <deque>

#include "support/WidgetTestMain.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/qt/CLoginDlg.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/login/qt/ShowLoginDialog.h"
#include "vxutil/runtime/qt/QtText.h"

using vx::test::OnNextModal;
using vx::test::ShowActive;

namespace {

class ScriptedOwner : public CLoginOwner {
public:
    std::deque<int> results;               // Login's answers; 1 once they run out
    std::function<void()> whileLoggingIn;  // looks at the dialog during a login
    QStringList logins;                    // "user/password" of each call

    int Login(CGNString& user, CGNString& password) override {
        logins << vx::ToQString(user) + u'/' + vx::ToQString(password);
        if (whileLoggingIn) whileLoggingIn();
        const int result = results.empty() ? 1 : results.front();
        if (!results.empty()) results.pop_front();
        return result;
    }
};

// The dialog's controls, by the names that carry their ids.
struct LoginControls {
    explicit LoginControls(QWidget& dialog)
        : user(dialog.findChild<QComboBox*>(u"userCombo_3400"_s)),
          password(dialog.findChild<QLineEdit*>(u"passwordEdit_3401"_s)),
          accounts(dialog.findChild<QPushButton*>(u"accountsButton_3402"_s)),
          ok(dialog.findChild<QPushButton*>(u"okButton"_s)),
          reveal(password->actions().value(0)) {}

    QComboBox* user;
    QLineEdit* password;
    QPushButton* accounts;
    QPushButton* ok;
    QAction* reveal;
};

}  // namespace

class LoginDialogTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        const std::string home = qEnvironmentVariable("VX_CONFIG_HOME").toStdString();
        for (const char* user : {"carol", "Alice", "bob"})
            QVERIFY(CAppEnv::AddUser(user, home + "/" + user));
    }

    // Only a user chosen from the list clears the password, not one typed (Qt selects the
    // entry typed on its own). The password can be revealed only once the user typed it anew.
    void userChoiceClearsThePasswordTypingDoesNot() {
        QWidget parent;
        parent.setGeometry(60, 50, 600, 420);
        parent.show();
        ScriptedOwner owner;
        CLoginDlg dialog(u"BOB"_s, &owner, &parent, u"secret"_s);
        const LoginControls controls(dialog);
        QCOMPARE(controls.user->currentIndex(), 1);
        QCOMPARE(dialog.windowTitle(), u"Login - Widget Tests"_s);
        QVERIFY(ShowActive(dialog));
        // Centred before its frame was known: off by at most the frame's width.
        const QPoint offCentre = dialog.frameGeometry().center() - parent.frameGeometry().center();
        QVERIFY(offCentre.manhattanLength() <= 12);

        QLineEdit* userEdit = controls.user->lineEdit();
        userEdit->selectAll();
        QTest::keyClicks(userEdit, u"carol"_s);
        QTest::keyClick(userEdit, Qt::Key_Tab);
        QCOMPARE(controls.password->text(), u"secret"_s);
        QVERIFY(controls.password->hasFocus());
        controls.password->end(false);
        QTest::keyClicks(controls.password, u"2"_s);
        QVERIFY(!controls.reveal->isVisible());  // still the caller's, with a bit added
        controls.password->selectAll();
        QTest::keyClicks(controls.password, u"mine"_s);
        QVERIFY(controls.reveal->isVisible());
        controls.reveal->trigger();
        QCOMPARE(controls.password->echoMode(), QLineEdit::Normal);

        bool overLogin = false;  // the accounts dialog closed with Cancel changes nothing
        OnNextModal([&](QWidget& accounts) {
            overLogin = qobject_cast<CLoginPropDlg*>(&accounts) && accounts.parent() == &dialog;
            static_cast<QDialog&>(accounts).reject();
        });
        QTest::mouseClick(controls.accounts, Qt::LeftButton);
        QVERIFY(overLogin);
        QCOMPARE(controls.user->currentText() + controls.password->text(), u"carolmine"_s);

        QTest::keyClick(controls.user, Qt::Key_Up);  // a choice from the list
        QCOMPARE(controls.user->currentText() + controls.password->text(), u"bob"_s);
        QVERIFY(!controls.reveal->isVisible());
        QCOMPARE(controls.password->echoMode(), QLineEdit::Password);
        userEdit->selectAll();
        QTest::keyClick(userEdit, Qt::Key_Backspace);
        QVERIFY(!controls.ok->isEnabled());
        QTest::keyClicks(userEdit, u"x"_s);
        QVERIFY(controls.ok->isEnabled());
    }

    // OK shows the disabled dialog and the busy cursor and refuses closing while the owner
    // works, and closes once Login returns 1; Cancel and closing end with 2.
    void okWaitsForTheOwnerCancelEndsWithTwo() {
        ScriptedOwner owner;
        owner.results = {2, 1};
        CLoginDlg dialog(u"bob"_s, &owner, nullptr, u"pw"_s);
        const LoginControls controls(dialog);
        bool sawBusy = false;
        owner.whileLoggingIn = [&] {
            sawBusy = !dialog.isEnabled() && QApplication::overrideCursor() != nullptr &&
                      QApplication::overrideCursor()->shape() == Qt::WaitCursor;
            dialog.close();
            dialog.reject();
            sawBusy = sawBusy && dialog.isVisible();
        };
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.open();
        QTest::mouseClick(controls.ok, Qt::LeftButton);
        QVERIFY(sawBusy && finished.isEmpty());
        QVERIFY(dialog.isEnabled() && QApplication::overrideCursor() == nullptr);
        QTest::mouseClick(controls.ok, Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 1);
        QCOMPARE(owner.logins, (QStringList{u"bob/pw"_s, u"bob/pw"_s}));

        QString user = u"bob"_s;
        OnNextModal([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
        QCOMPARE(ShowLoginDialog(user, &owner, nullptr, QString()), 2);
        CLoginDlg closed(user, &owner, nullptr, QString());
        OnNextModal([](QWidget& shown) { shown.close(); });
        QCOMPARE(closed.exec(), 2);
        QCOMPARE(owner.logins.size(), 2);
    }

    // Typing beyond 30 stored bytes is refused, a withheld accounts button stays hidden while
    // the user types, and the size the dialog closed at is the one it opens at next.
    void fieldsHoldThirtyBytesAndTheSizeIsKept() {
        RApplication& app = *RApplication::Current();
        app.WriteProfileString("Desktop", "LoginGeometry", nullptr);
        QSize closedAt;
        {
            CLoginDlg dialog(QString(), nullptr, nullptr, QString());
            const LoginControls controls(dialog);
            dialog.EnableInfoButton(0);
            dialog.EnableContextHelp(0);
            QVERIFY(ShowActive(dialog));
            const QString thirtyBytes(15, QChar(0xE9));  // "é" takes two bytes
            for (QLineEdit* edit : {controls.user->lineEdit(), controls.password}) {
                edit->setFocus();
                for (const QChar c : thirtyBytes + QChar(0xE9) + u'a')  // keyClicks is ASCII only
                    QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), {});
                QCOMPARE(edit->text(), thirtyBytes);
            }
            QVERIFY(controls.accounts->isHidden() && !controls.accounts->isEnabled());
            QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
            QVERIFY(app.GetProfileString("Desktop", "LoginGeometry").IsEmpty());
            dialog.resize(dialog.size() + QSize(80, 30));
            closedAt = dialog.size();
            dialog.reject();
        }
        QCOMPARE(CLoginDlg(QString(), nullptr, nullptr, QString()).size(), closedAt);
    }
};

VX_WIDGET_TEST_MAIN(LoginDialogTest)
#include "LoginDialogTest.moc"
