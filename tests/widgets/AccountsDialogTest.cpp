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
#include <memory>

#include "support/ScriptedPrompt.h"
#include "support/WidgetTestMain.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/listctrl/qt/CKorvelListCtrl.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

CGNString Local(const QString& text) {
    return vx::FromQString(text);
}

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

// A shown, active accounts dialog opened for "ann", answering questions from a script.
struct Dialog {
    vx::test::ScriptedPrompt prompt;
    CLoginPropDlg dialog{QStringLiteral("ann"), nullptr, nullptr};
    CKorvelListCtrl* users = dialog.findChild<CKorvelListCtrl*>(QStringLiteral("userList_3403"));
    CKorvelListCtrl* servers =
        dialog.findChild<CKorvelListCtrl*>(QStringLiteral("serverList_3404"));

    Dialog() {
        dialog.show();
        dialog.activateWindow();  // no window manager activates it under a bare X server
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }

    static QPoint Cell(CKorvelListCtrl* list, int row, int column) {
        return list->visualRect(list->model()->index(row, column)).center();
    }
    static void Click(CKorvelListCtrl* list, int row, int column,
                      Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, Cell(list, row, column));
    }
    static QLineEdit* Editor(CKorvelListCtrl* list, int row, int column) {
        const QModelIndex cell = list->model()->index(row, column);
        (void)QTest::qWaitFor([&] { return list->indexWidget(cell) != nullptr; }, 1000);
        return qobject_cast<QLineEdit*>(list->indexWidget(cell));
    }
    // Types over the text of the open editor of a cell and presses Return.
    static bool Type(CKorvelListCtrl* list, int row, int column, const QString& text) {
        QLineEdit* editor = Editor(list, row, column);
        if (editor == nullptr) return false;
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        return true;
    }
    // Opens the context menu of a cell and clicks its entry `text`.
    static void ChooseFromMenu(CKorvelListCtrl* list, int row, int column, const QString& text) {
        QTimer::singleShot(0, [text] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>())
                if (action->text() == text && action->isEnabled())
                    QTest::mouseClick(menu, Qt::LeftButton, {},
                                      menu->actionGeometry(action).center());
            if (QApplication::activePopupWidget() != nullptr)
                QApplication::activePopupWidget()->close();
        });
        const QPoint at = Cell(list, row, column);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, list->viewport()->mapToGlobal(at));
        QApplication::sendEvent(list->viewport(), &event);
    }
    void Press(QDialogButtonBox::StandardButton which) {
        QTest::mouseClick(
            dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(which),
            Qt::LeftButton);
    }
};

}  // namespace

class AccountsDialogTest : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_folders;

    QString Folder(const QString& name) const { return QDir::cleanPath(m_folders->filePath(name)); }
    void AddUser(const QString& name) {
        QDir().mkpath(Folder(name));
        CAppEnv::AddUser(Local(name), Local(Folder(name)));
    }

private Q_SLOTS:
    // Every test starts from no users, a default home folder and no dialog settings.
    void init() {
        for (const QString& user : StoredUsers())
            CAppEnv::DeleteUser(Local(user));
        m_folders = std::make_unique<QTemporaryDir>();
        QDir().mkpath(Folder(QStringLiteral("default")));
        CAppEnv::SetDefaultHomePath(Local(Folder(QStringLiteral("default"))));
        RApplication::Current()->WriteProfileString("Desktop", nullptr, nullptr);
    }

    void addsAndRenamesUsersInTheirCells() {
        AddUser(QStringLiteral("ann"));
        Dialog d;
        const QString addRow = d.users->GetItemText(0, 0);
        QCOMPARE(d.users->GetSelectedRows(), QList<int>{2});
        QCOMPARE(d.users->accessibleName(), QStringLiteral("Users"));

        // A single click on the add row starts its editor; Return stays in the cell.
        d.Click(d.users, 0, 0);
        QVERIFY(d.Type(d.users, 0, 0, QStringLiteral("bob")));
        QTRY_COMPARE(StoredUsers(), (QStringList{QStringLiteral("ann"), QStringLiteral("bob")}));
        QCOMPARE(d.users->GetItemText(0, 0), addRow);
        QCOMPARE(d.users->GetItemText(2, 0), QStringLiteral("bob"));
        QVERIFY(d.dialog.isVisible());

        // The add row's own text is refused and stays in the editor.
        d.Click(d.users, 0, 0);
        QVERIFY(d.Type(d.users, 0, 0, addRow.toUpper()));
        QTRY_VERIFY(d.users->IsInLabelEditMode());
        QTest::keyClick(d.Editor(d.users, 0, 0), Qt::Key_Escape);
        QTRY_VERIFY(!d.users->IsInLabelEditMode());

        d.Click(d.users, 2, 0);
        d.ChooseFromMenu(d.users, 2, 0, QStringLiteral("Edit User"));
        QVERIFY(d.Type(d.users, 2, 0, QStringLiteral("carl")));
        QTRY_COMPARE(StoredUsers(), (QStringList{QStringLiteral("ann"), QStringLiteral("carl")}));
        QCOMPARE(d.dialog.GetCurrentUser(), QStringLiteral("carl"));

        // Cancel undoes nothing that was stored, and says so.
        d.Press(QDialogButtonBox::Cancel);
        QCOMPARE(d.dialog.result(), int(QDialog::Rejected));
        QVERIFY(d.dialog.IsDirty());
        QVERIFY(Setting("AccountsGeometry") != QStringLiteral("-"));
    }

    void deletesSelectedUsersUntilTheFirstNo() {
        for (const char* user : {"ann", "bob", "carl"})
            AddUser(QString::fromLatin1(user));
        Dialog d;
        d.Click(d.users, 2, 0);
        d.Click(d.users, 4, 0, Qt::ShiftModifier);
        QCOMPARE(d.users->GetSelectedRows(), (QList<int>{2, 3, 4}));
        d.prompt.answers = {vx::kIdYes, vx::kIdNo};
        QTest::keyClick(d.users, Qt::Key_Delete);
        QCOMPARE(d.prompt.asked.size(), std::size_t{2});
        QCOMPARE(d.prompt.asked[0].text, "Permanently remove user 'carl'?");
        QCOMPARE(d.prompt.asked[1].text, "Permanently remove user 'bob'?");
        QCOMPARE(StoredUsers(), (QStringList{QStringLiteral("ann"), QStringLiteral("bob")}));
        QCOMPARE(d.users->GetItemCount(), 4);
    }

    void storesServerSwitchesAndRefusesPrivateRpcNumbers() {
        AddUser(QStringLiteral("ann"));
        QFile file(Folder(QStringLiteral("ann/VX")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("alpha VX\n") > 0);
        file.close();
        const CGNString folder = Local(Folder(QStringLiteral("ann")));
        const auto stored = [&] {
            CAppEnv::flag disabled = 0, workflow = 0, notifier = 0;
            CGNString port, rpc, notifierPort;
            CAppEnv::GetServerAttributes(folder, "alpha", disabled, workflow, notifier, port, rpc,
                                         notifierPort);
            return QStringLiteral("%1 %2 %3").arg(workflow).arg(notifier).arg(vx::ToQString(rpc));
        };
        Dialog d;
        QCOMPARE(d.servers->GetItemText(1, 0), QStringLiteral("alpha"));

        d.Click(d.servers, 1, 2);  // the notifier switch of alpha
        QTRY_COMPARE(stored(), QStringLiteral("1 1 "));

        d.Click(d.servers, 1, 4);
        QVERIFY(d.Type(d.servers, 1, 4, QStringLiteral("390679")));
        QTRY_COMPARE(d.prompt.asked.size(), std::size_t{1});
        QVERIFY(QString::fromStdString(d.prompt.asked[0].text).contains(u"390680-390694"));
        QVERIFY(d.servers->IsInLabelEditMode());
        QVERIFY(d.Type(d.servers, 1, 4, QStringLiteral("390680")));
        QTRY_COMPARE(stored(), QStringLiteral("1 1 390680"));
    }

    void advancedOptionsAreStoredWhenSwitchedOnly() {
        Dialog d;
        auto* advanced = d.dialog.findChild<QCheckBox*>(QStringLiteral("advancedOptions_3424"));
        QVERIFY(advanced->isChecked());
        QCOMPARE(d.servers->GetColumnCount(), 6);
        for (const char* entry : {"AdvancedServerOptions", "AccountsColumn", "AccountsGeometry"})
            QCOMPARE(Setting(entry), QStringLiteral("-"));  // opening writes nothing
        d.servers->SetColumnWidth(3, 90);

        QTest::mouseClick(advanced, Qt::LeftButton);
        QCOMPARE(d.servers->GetColumnCount(), 3);
        QCOMPARE(Setting("AdvancedServerOptions"), QStringLiteral("0"));
        QCOMPARE(Setting("AccountsColumn"), QStringLiteral("150;50;50;90;75;80"));

        QTest::mouseClick(advanced, Qt::LeftButton);
        QCOMPARE(d.servers->GetColumnCount(), 6);
        QCOMPARE(d.servers->GetColumnWidth(3), 90);
        QCOMPARE(Setting("AdvancedServerOptions"), QStringLiteral("1"));

        d.servers->SetColumnWidth(0, 120);
        d.Press(QDialogButtonBox::Ok);
        QCOMPARE(d.dialog.result(), int(QDialog::Accepted));
        QCOMPARE(Setting("AccountsColumn"), QStringLiteral("120;50;50;90;75;80"));
    }
};

VX_WIDGET_TEST_MAIN(AccountsDialogTest)
#include "AccountsDialogTest.moc"
