// The accounts dialog driven by real clicks and keys over the real stores: the wiring from the
// lists, menus, check box and buttons to the rules, and what ends up stored. The rules
// themselves are tested without Qt in tests/login/accounts.
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "support/ScriptedPrompt.h"
#include "support/WidgetTestMain.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/listctrl/qt/CKorvelListCtrl.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/runtime/qt/QtText.h"

using vx::FromQString;

namespace {

QStringList StoredUsers() {
    CGNStringList names, folders;
    CAppEnv::GetListOfUsers(names, folders);
    QStringList users;
    for (int i = 0; i < names.GetCount(); ++i)
        users << vx::ToQString(names.GetAt(i));
    return users;
}

QString Setting(const char* entry) {
    return vx::ToQString(RApplication::Current()->GetProfileString("Desktop", entry, "-"));
}

void Click(CKorvelListCtrl* list, int row, int column, Qt::KeyboardModifiers modifiers = {}) {
    const QPoint at = list->visualRect(list->model()->index(row, column)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, at);
}

// Types over the text of the open editor of a cell and presses Return.
bool Type(CKorvelListCtrl* list, int row, int column, const QString& text) {
    const QModelIndex cell = list->model()->index(row, column);
    (void)QTest::qWaitFor([&] { return list->indexWidget(cell) != nullptr; }, 1000);
    auto* editor = qobject_cast<QLineEdit*>(list->indexWidget(cell));
    if (editor == nullptr) return false;
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    return true;
}

// A shown, active accounts dialog opened for "ann", answering questions from a script.
struct Dialog {
    vx::test::ScriptedPrompt prompt;
    CLoginPropDlg dialog{u"ann"_s, nullptr, nullptr};
    CKorvelListCtrl* users = dialog.findChild<CKorvelListCtrl*>(u"userList_3403"_s);
    CKorvelListCtrl* servers = dialog.findChild<CKorvelListCtrl*>(u"serverList_3404"_s);

    Dialog() { QVERIFY(vx::test::ShowActive(dialog)); }
    void Press(QDialogButtonBox::StandardButton which) {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
    }
};

}  // namespace

class AccountsDialogTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_folders;

    QString Folder(const QString& name) const { return QDir::cleanPath(m_folders.filePath(name)); }
    void AddUser(const QString& name) {
        QDir().mkpath(Folder(name));
        QVERIFY(CAppEnv::AddUser(FromQString(name), FromQString(Folder(name))));
    }

private Q_SLOTS:
    void initTestCase() {
        QDir().mkpath(Folder(u"default"_s));
        CAppEnv::SetDefaultHomePath(FromQString(Folder(u"default"_s)));
    }

    // A user typed into the add row and one renamed through the menu are stored at once;
    // deleting stops at the first No; Cancel undoes nothing and says so.
    void usersAreAddedRenamedAndDeletedInTheirCells() {
        AddUser(u"ann"_s);
        AddUser(u"bob"_s);
        Dialog d;
        Click(d.users, 0, 0);  // a single click on the add row starts its editor
        QVERIFY(Type(d.users, 0, 0, u"dan"_s));
        QTRY_COMPARE(StoredUsers(), QStringList({u"ann"_s, u"bob"_s, u"dan"_s}));
        QVERIFY(d.dialog.isVisible());  // Return stays in the cell
        QCOMPARE(d.users->GetItemText(2, 0), u"dan"_s);

        Click(d.users, 2, 0);
        QTimer::singleShot(0, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>())
                if (action->text() == u"Edit User"_s)
                    QTest::mouseClick(menu, Qt::LeftButton, {},
                                      menu->actionGeometry(action).center());
            if (QApplication::activePopupWidget() != nullptr)
                QApplication::activePopupWidget()->close();
        });
        const QPoint at = d.users->visualRect(d.users->model()->index(2, 0)).center();
        QContextMenuEvent menu(QContextMenuEvent::Mouse, at, d.users->viewport()->mapToGlobal(at));
        QApplication::sendEvent(d.users->viewport(), &menu);
        QVERIFY(Type(d.users, 2, 0, u"carl"_s));
        QTRY_COMPARE(StoredUsers(), QStringList({u"ann"_s, u"bob"_s, u"carl"_s}));
        QCOMPARE(d.dialog.GetCurrentUser(), u"carl"_s);

        Click(d.users, 2, 0);
        Click(d.users, 4, 0, Qt::ShiftModifier);
        QCOMPARE(d.users->GetSelectedRows(), (QList<int>{2, 3, 4}));
        d.prompt.answers = {vx::kIdYes, vx::kIdNo};
        QTest::keyClick(d.users, Qt::Key_Delete);
        QCOMPARE(d.prompt.asked.size(), std::size_t{2});
        QCOMPARE(d.prompt.asked[1].text, "Permanently remove user 'ann'?");
        QCOMPARE(StoredUsers(), QStringList({u"ann"_s, u"carl"_s}));
        QCOMPARE(d.users->GetItemCount(), 4);

        d.Press(QDialogButtonBox::Cancel);
        QCOMPARE(d.dialog.result(), int(QDialog::Rejected));
        QVERIFY(d.dialog.IsDirty());
        QVERIFY(Setting("AccountsGeometry") != u"-"_s);
    }

    // Opening writes no setting. A switch clicked is stored; a private RPC number is refused
    // with its editor open; the advanced options and the widths are stored when switched and
    // at OK.
    void serverSwitchesNumbersAndOptionsAreStored() {
        for (const QString& user : StoredUsers())
            CAppEnv::DeleteUser(FromQString(user));
        RApplication::Current()->WriteProfileString("Desktop", nullptr, nullptr);
        AddUser(u"ann"_s);
        QFile file(Folder(u"ann/VX"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("alpha VX\n") > 0);
        file.close();
        const auto stored = [folder = FromQString(Folder(u"ann"_s))] {
            CAppEnv::flag disabled = 0, workflow = 0, notifier = 0;
            CGNString port, rpc, notifierPort;
            CAppEnv::GetServerAttributes(folder, "alpha", disabled, workflow, notifier, port, rpc,
                                         notifierPort);
            return u"%1 %2 %3"_s.arg(workflow).arg(notifier).arg(vx::ToQString(rpc));
        };
        Dialog d;
        for (const char* entry : {"AdvancedServerOptions", "AccountsColumn", "AccountsGeometry"})
            QCOMPARE(Setting(entry), u"-"_s);
        QCOMPARE(d.servers->GetItemText(1, 0), u"alpha"_s);
        Click(d.servers, 1, 2);  // the notifier switch of alpha
        QTRY_COMPARE(stored(), u"1 1 "_s);

        Click(d.servers, 1, 4);
        QVERIFY(Type(d.servers, 1, 4, u"390679"_s));
        QTRY_COMPARE(d.prompt.asked.size(), std::size_t{1});
        QVERIFY(QString::fromStdString(d.prompt.asked[0].text).contains(u"390680-390694"));
        QVERIFY(d.servers->IsInLabelEditMode());
        QVERIFY(Type(d.servers, 1, 4, u"390680"_s));
        QTRY_COMPARE(stored(), u"1 1 390680"_s);

        auto* advanced = d.dialog.findChild<QCheckBox*>(u"advancedOptions_3424"_s);
        QCOMPARE(d.servers->GetColumnCount(), 6);
        // Typing in a port cell keeps to the port's range, not the list's default.
        QCOMPARE(d.servers->GetColumnRange(3), std::make_pair(0, 65535));
        QCOMPARE(d.servers->GetColumnRange(4), std::make_pair(0, 390694));
        d.servers->SetColumnWidth(3, 90);
        QTest::mouseClick(advanced, Qt::LeftButton);
        QCOMPARE(d.servers->GetColumnCount(), 3);
        QCOMPARE(Setting("AdvancedServerOptions"), u"0"_s);
        QCOMPARE(Setting("AccountsColumn"), u"150;50;50;90;75;80"_s);
        QTest::mouseClick(advanced, Qt::LeftButton);
        QCOMPARE(d.servers->GetColumnWidth(3), 90);
        QCOMPARE(Setting("AdvancedServerOptions"), u"1"_s);
        d.servers->SetColumnWidth(0, 120);
        d.Press(QDialogButtonBox::Ok);
        QCOMPARE(d.dialog.result(), int(QDialog::Accepted));
        QCOMPARE(Setting("AccountsColumn"), u"120;50;50;90;75;80"_s);
    }
};

VX_WIDGET_TEST_MAIN(AccountsDialogTest)
#include "AccountsDialogTest.moc"
