// The column-edit lists driven by real clicks and keys: the editor each column type opens, an
// editor kept open by a refused text and behind a real message box, editEnded after the editor
// is gone, toggles, fixed columns and per-column menus. The rules are tested in tests/listctrl.
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>

#include "listctrl/qt/ColumnEditDelegate.h"
#include "listctrl/qt/EditLogicAdapter.h"
#include "listctrl/qt/FolderBrowseEdit.h"
#include "support/WidgetTestMain.h"
#include "vxutil/listctrl/qt/CKorvelListCtrl.h"

namespace {

enum Column { kName, kToggle, kCheck, kFolder, kPort, kRpc, kColumns };
constexpr unsigned kToggleCommand = 3205;

class TestList : public CKorvelListCtrl {
public:
    using CKorvelListCtrl::CKorvelListCtrl;
    QStringList ended;

    bool IsEditTextValid(int row, int column, QString& text) override {
        return text != u"Click to add"_s && CKorvelListCtrl::IsEditTextValid(row, column, text);
    }
    void EndLabelEdit(int, int, const QString& text) override { ended << text; }
    vx::ColumnImage GetImage(int row, int) override {  // only the first row's toggle is on
        return row == 0 ? LoadSystemCheckMarkBitmap() : 0;
    }
};

// A shown and active list, a window of its own: a row per server, every column edited directly.
struct Fixture {
    TestList list;

    Fixture() {
        const unsigned types[kColumns] = {vx::kCellText,        vx::kCellToggleBitmap,
                                          vx::kCellCheckBox,    vx::kCellFolderBrowse,
                                          vx::kCellHexadecimal, vx::kCellPrivateNumber};
        for (int column = 0; column < kColumns; ++column) {
            list.InsertColumn(column, QString::number(column), 90);
            list.EnableColumnType(column, types[column]);
            list.EnableDirectEdit(column, true);
        }
        list.EnableColumnToggle(kToggle, true, kToggleCommand);
        list.EnableColumnSize(kToggle, false);
        list.EnableColumnImageOverlay(kToggle, CColumnEditListCtrl::LoadSystemCheckBoxBitmap());
        list.SetColumnRange(kPort, 10, 65535);
        for (int row = 0; row < 3; ++row) {
            list.InsertItem(row, u"server%1"_s.arg(row));
            list.SetItemText(row, kFolder, u"/tmp"_s);
            list.SetItemText(row, kPort, u"80"_s);
        }
        list.resize(700, 300);
        QVERIFY(vx::test::ShowActive(list));
    }

    QModelIndex Index(int row, int column) const { return list.model()->index(row, column); }
    QPoint Cell(int row, int column) const { return list.visualRect(Index(row, column)).center(); }
    void Click(QPoint at) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at); }
    // The open editor of a cell after a click on it, or null when none opens.
    QLineEdit* ClickToEdit(int row, int column) {
        Click(Cell(row, column));
        QTest::qWaitFor([&] { return EditorOpen(row, column); }, 500);
        return qobject_cast<QLineEdit*>(list.indexWidget(Index(row, column)));
    }
    bool EditorOpen(int row, int column) const {
        QApplication::processEvents();
        return list.indexWidget(Index(row, column)) != nullptr;
    }
};

}  // namespace

class ListCtrlTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void clicksOpenTheEditorOfTheColumnTypeUntilATextIsAccepted() {
        Fixture f;
        QSignalSpy started(&f.list, &CColumnEditListCtrl::editStarted);
        // By column: 0 no editor, 1 a line edit, 2 a folder editor, 3 one with keystroke logic.
        const int opens[kColumns] = {1, 0, 0, 2, 3, 3};
        for (int column = 0; column < kColumns; ++column) {
            QLineEdit* edit = f.ClickToEdit(1, column);
            QCOMPARE(edit != nullptr, opens[column] > 0);
            if (edit == nullptr) continue;
            QCOMPARE(qobject_cast<vx::FolderBrowseEdit*>(edit) != nullptr, opens[column] == 2);
            QCOMPARE(vx::EditLogicAdapter::Of(edit) != nullptr, opens[column] == 3);
            QCOMPARE(edit->text(), f.list.GetItemText(1, column));
            QCOMPARE(f.list.GetOriginalLabel(), edit->text());
            QCOMPARE(started.takeLast(), (QVariantList{1, column}));
            QTest::keyClick(edit, Qt::Key_Escape);
            QTRY_VERIFY(!f.list.IsInLabelEditMode());
        }
        QVERIFY(started.isEmpty());

        // A text the list refuses keeps the editor; editEnded comes once the editor is gone.
        bool editorGone = false;
        QSignalSpy ended(&f.list, &CColumnEditListCtrl::editEnded);
        connect(&f.list, &CColumnEditListCtrl::editEnded, [&](int row, int column) {
            editorGone =
                f.list.indexWidget(f.Index(row, column)) == nullptr && !f.list.IsInLabelEditMode();
        });
        QLineEdit* edit = f.ClickToEdit(1, kName);
        QTest::keyClicks(edit, u"Click to add"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(f.EditorOpen(1, kName) && ended.isEmpty());
        edit->setText(u"alice"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended[0], (QVariantList{1, int(kName)}));
        QVERIFY(editorGone);
        QCOMPARE(f.list.ended, QStringList{u"alice"_s});
        QCOMPARE(f.list.GetLastItemEdited(), 1);

        // A disabled row opens no editor and its check box does not change.
        f.list.SetItemEnabled(2, false);
        QVERIFY(f.ClickToEdit(2, kName) == nullptr);
        for (const int row : {1, 2}) {
            const QRect cell = f.list.visualRect(f.Index(row, kCheck));
            f.Click(QPoint(cell.left() + 10, cell.center().y()));
        }
        QVERIFY(f.list.IsItemChecked(1, kCheck) && !f.list.IsItemChecked(2, kCheck));
    }

    // Refused keys beep; a refused number shows a real message box, which takes the focus from
    // the editor, and the editor must keep its text until an accepted one ends the edit.
    void editorsFilterKeysAndSurviveModalDialogs() {
        Fixture f;
        int beeps = 0;
        vx::EditLogicAdapter::SetBeeper([&] { ++beeps; });
        QSignalSpy ended(&f.list, &CColumnEditListCtrl::editEnded);
        QLineEdit* edit = f.ClickToEdit(0, kPort);
        QVERIFY(edit != nullptr);
        const QPointer<QLineEdit> alive(edit);
        QTest::keyClicks(edit, u"0XG."_s);  // replaces the selected "80"
        // Qt::Key_Period has VK_DELETE's value; AltGr+E gives no key the logic knows.
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_E, u"€"_s, Qt::AltModifier);
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClicks(edit, u"1F"_s);
        vx::EditLogicAdapter::SetBeeper({});
        QCOMPARE(edit->text(), u"0x1F"_s);
        QCOMPARE(beeps, 4);

        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_5);
        QString shown;
        vx::test::OnNextModal([&](QWidget& box) {
            auto* message = qobject_cast<QMessageBox*>(&box);
            shown = message != nullptr && box.parentWidget() == &f.list ? message->text() : u"?"_s;
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY2(shown.contains(u"Invalid number, 5."_s), qPrintable(shown));
        QVERIFY(alive && f.EditorOpen(0, kPort));
        QCOMPARE(edit->text(), u"5"_s);
        QCOMPARE(f.list.GetItemText(0, kPort), u"80"_s);
        QTest::keyClick(edit, Qt::Key_0);
        QTest::keyClick(edit, Qt::Key_Tab);  // Tab ends the edit without opening the next cell
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(f.list.GetItemText(0, kPort), u"50"_s);

        // The folder dialog takes the focus from the folder editor, which must survive it too.
        auto* folder = qobject_cast<vx::FolderBrowseEdit*>(f.ClickToEdit(0, kFolder));
        QVERIFY(folder != nullptr);
        const QString home = qEnvironmentVariable("VX_CONFIG_HOME");
        vx::test::OnNextModal([&](QWidget& dialog) {
            if (auto* files = qobject_cast<QFileDialog*>(&dialog)) files->setDirectory(home);
            static_cast<QDialog&>(dialog).accept();  // QFileDialog::accept, as OK does
        });
        folder->BrowseAction()->trigger();
        QVERIFY(f.EditorOpen(0, kFolder));
        QCOMPARE(QDir(folder->text()), QDir(home));
        QCOMPARE(f.list.GetItemText(0, kFolder), u"/tmp"_s);

        // A folder that does not exist is offered for creation; No (the default) keeps the editor.
        folder->setText(home + u"/missing"_s);
        vx::test::OnNextModal([&](QWidget& box) {
            auto* message = qobject_cast<QMessageBox*>(&box);
            shown = message != nullptr ? message->text() : u"?"_s;
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QTest::keyClick(folder, Qt::Key_Return);
        QVERIFY2(shown.contains(u"This folder does not exist"_s), qPrintable(shown));
        QVERIFY(f.EditorOpen(0, kFolder) && !QDir(home + u"/missing"_s).exists());
        QCOMPARE(f.list.GetItemText(0, kFolder), u"/tmp"_s);
    }

    void toggleColumnPostsItsCommandAndKeepsItsWidth() {
        Fixture f;
        const auto toggleImage = [&](int row) {
            const QRect cell = f.list.visualRect(f.Index(row, kToggle));
            const QRect image = vx::ColumnEditDelegate::ToggleImageRect(cell, f.list.style());
            return f.list.viewport()->grab(image).toImage();
        };
        QVERIFY(toggleImage(0) != toggleImage(1));  // a checked box, an empty one
        QCOMPARE(toggleImage(1), toggleImage(2));
        QSignalSpy posted(&f.list, &CKorvelListCtrl::commandPosted);
        QSignalSpy imageClicked(&f.list, &CColumnEditListCtrl::toggleBitmapClicked);
        const QPoint belowRows(f.Cell(0, kToggle).x(), f.list.viewport()->height() - 5);
        QVERIFY(!f.list.indexAt(belowRows).isValid());
        f.Click(belowRows);
        QVERIFY(posted.isEmpty());  // posted, not sent
        QTRY_COMPARE(posted.size(), 1);
        QCOMPARE(posted[0][0].toUInt(), kToggleCommand);
        QVERIFY(imageClicked.isEmpty() && !f.list.IsInLabelEditMode());
        f.Click(f.Cell(2, kToggle));
        QCOMPARE(imageClicked.size(), 1);
        QCOMPARE(imageClicked[0], (QVariantList{2, int(kToggle)}));
        QVERIFY(f.list.IsItemSelected(2) && f.list.IsItemFocused(2));

        QHeaderView* header = f.list.header();
        QCOMPARE(header->sectionResizeMode(kToggle), QHeaderView::Fixed);
        QCOMPARE(header->sectionResizeMode(kName), QHeaderView::Interactive);
        f.list.EnableColumnSize(kColumns, false);  // before the column exists
        f.list.InsertColumn(kColumns, u"extra"_s, 50);
        QCOMPARE(header->sectionResizeMode(kColumns), QHeaderView::Fixed);
        f.list.EnableColumnSize(kToggle, true);
        QCOMPARE(header->sectionResizeMode(kToggle), QHeaderView::Interactive);
    }

    void contextMenuPerColumn() {
        Fixture f;
        QList<int> asked;
        QMenu menu;
        menu.addAction(u"Edit"_s);
        f.list.SetMenuProvider([&](int id) {
            asked << id;
            QTimer::singleShot(0, &menu, &QMenu::close);
            return &menu;
        });
        f.list.EnableContextMenu(kName, 3021);
        const auto openMenuAt = [&](QPoint at) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, at,
                                    f.list.viewport()->mapToGlobal(at));
            QApplication::sendEvent(f.list.viewport(), &event);
            return event.isAccepted();
        };
        const QPoint beyondLast(f.list.GetColumnWidth(kName) * kColumns + 20, 5);
        QCOMPARE(f.list.GetColumnFromPoint(f.list.viewport()->mapToGlobal(beyondLast)), -1);

        QVERIFY(!openMenuAt(f.Cell(0, kPort)));  // no menu: the parent's handling runs
        QVERIFY(openMenuAt(f.Cell(0, kName)));
        f.list.EnableContextMenu(-1, 3024);
        QVERIFY(openMenuAt(f.Cell(0, kPort)));
        QVERIFY(openMenuAt(beyondLast));
        QCOMPARE(asked, (QList<int>{3021, 3024, 3024}));
    }
};

VX_WIDGET_TEST_MAIN(ListCtrlTest)
#include "ListCtrlTest.moc"
