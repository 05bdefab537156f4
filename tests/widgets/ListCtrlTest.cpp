// The column-edit lists driven by real clicks and keystrokes: which editor a cell gets, the
// keystroke logic inside number editors, texts that keep an editor open, toggles, fixed columns
// and per-column menus.
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>

#include "listctrl/qt/ColumnEditDelegate.h"
#include "listctrl/qt/EditLogicAdapter.h"
#include "listctrl/qt/FolderBrowseEdit.h"
#include "support/ScriptedPrompt.h"
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
        return text != QStringLiteral("Click to add") &&
               CKorvelListCtrl::IsEditTextValid(row, column, text);
    }
    void EndLabelEdit(int, int, const QString& text) override { ended << text; }
    // Only the first row's toggle is on.
    vx::ColumnImage GetImage(int row, int) override {
        return row == 0 ? LoadSystemCheckMarkBitmap() : 0;
    }
};

// A shown and active window with one list: a row per server, every column edited directly.
struct Fixture {
    QWidget window;
    TestList* list = new TestList(&window);

    Fixture() {
        (new QHBoxLayout(&window))->addWidget(list);
        const unsigned types[kColumns] = {vx::kCellText,        vx::kCellToggleBitmap,
                                          vx::kCellCheckBox,    vx::kCellFolderBrowse,
                                          vx::kCellHexadecimal, vx::kCellPrivateNumber};
        for (int column = 0; column < kColumns; ++column) {
            list->InsertColumn(column, QString::number(column), 90);
            list->EnableColumnType(column, types[column]);
            list->EnableDirectEdit(column, true);
        }
        list->EnableColumnToggle(kToggle, true, kToggleCommand);
        list->EnableColumnSize(kToggle, false);
        list->EnableColumnImageOverlay(kToggle, CColumnEditListCtrl::LoadSystemCheckBoxBitmap());
        list->SetColumnRange(kPort, 10, 65535);
        for (int row = 0; row < 3; ++row) {
            list->InsertItem(row, QStringLiteral("server%1").arg(row));
            list->SetItemText(row, kFolder, QStringLiteral("/tmp"));
            list->SetItemText(row, kPort, QStringLiteral("80"));
            list->SetItemText(row, kRpc, QStringLiteral("0"));
        }
        window.resize(700, 300);
        window.show();
        window.activateWindow();  // no window manager activates it under a bare X server
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QModelIndex Index(int row, int column) const { return list->model()->index(row, column); }
    QPoint CellCenter(int row, int column) const {
        return list->visualRect(Index(row, column)).center();
    }
    void Click(QPoint at) { QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at); }
    // The open editor of a cell after a click on it, or null when none opens.
    QWidget* ClickToEdit(int row, int column) {
        Click(CellCenter(row, column));
        QTest::qWaitFor([&] { return list->indexWidget(Index(row, column)) != nullptr; }, 500);
        return list->indexWidget(Index(row, column));
    }
    bool EditorOpen(int row, int column) const {
        QApplication::processEvents();
        return list->indexWidget(Index(row, column)) != nullptr;
    }
};

// Counts the warning beeps of refused keystrokes while it lives.
struct BeepCounter {
    int beeps = 0;
    BeepCounter() {
        vx::EditLogicAdapter::SetBeeper([this] { ++beeps; });
    }
    ~BeepCounter() { vx::EditLogicAdapter::SetBeeper({}); }
};

}  // namespace

class ListCtrlTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void translatesKeysToWin32Messages_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::addColumn<uint>("virtualKey");
        QTest::addColumn<int>("character");
        // Qt::Key_Period has VK_DELETE's value; the logic must see a period key and a ".".
        QTest::newRow("period") << int(Qt::Key_Period) << 0 << "." << 0xBEu << int('.');
        QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << "\x7f" << 0x2Eu << -1;
        QTest::newRow("ctrl+v") << int(Qt::Key_V) << int(Qt::ControlModifier) << "v" << 0x56u << 22;
        QTest::newRow("return") << int(Qt::Key_Return) << 0 << "\r" << 0x0Du << -1;
        QTest::newRow("tab") << int(Qt::Key_Tab) << 0 << "\t" << 0x09u << -1;
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << 0 << "\b" << 0x08u << 8;
        QTest::newRow("X") << int(Qt::Key_X) << int(Qt::ShiftModifier) << "X" << 0x58u << int('X');
        QTest::newRow("keypad 5") << int(Qt::Key_5) << int(Qt::KeypadModifier) << "5" << 0x65u
                                  << int('5');
        QTest::newRow("euro") << int(Qt::Key_E) << int(Qt::AltModifier) << "€" << 0x45u << 0x20AC;
    }
    void translatesKeysToWin32Messages() {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, text);
        const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
        const auto keystroke = vx::EditLogicAdapter::Translate(event);
        QTEST(keystroke.virtualKey, "virtualKey");
        QTEST(keystroke.character, "character");
    }

    void columnTypeChoosesEditor() {
        Fixture f;
        QSignalSpy started(f.list, &CColumnEditListCtrl::editStarted);
        struct Case {
            Column column;
            bool opens, folder, logic;
        };
        for (const Case c : {Case{kName, true, false, false}, Case{kToggle, false, false, false},
                             Case{kCheck, false, false, false}, Case{kFolder, true, true, false},
                             Case{kPort, true, false, true}, Case{kRpc, true, false, true}}) {
            QWidget* editor = f.ClickToEdit(1, c.column);
            QCOMPARE(editor != nullptr, c.opens);
            if (editor == nullptr) continue;
            auto* edit = qobject_cast<QLineEdit*>(editor);
            QVERIFY(edit != nullptr);
            QCOMPARE(qobject_cast<vx::FolderBrowseEdit*>(edit) != nullptr, c.folder);
            QCOMPARE(vx::EditLogicAdapter::Of(edit) != nullptr, c.logic);
            QCOMPARE(edit->text(), f.list->GetItemText(1, c.column));  // the original label
            QCOMPARE(f.list->GetOriginalLabel(), edit->text());
            QCOMPARE(started.takeLast(), (QVariantList{1, int(c.column)}));
            QVERIFY(f.list->IsInLabelEditMode());
            QTest::keyClick(edit, Qt::Key_Escape);
            QTRY_VERIFY(!f.list->IsInLabelEditMode());
        }
        QVERIFY(started.isEmpty());
    }

    void disabledRowsAndRefusedCellsDoNotChange() {
        Fixture f;
        f.list->SetItemData(2, 42);
        f.list->SetItemEnabled(2, false);
        QCOMPARE(f.list->GetItemData(2), std::intptr_t{1});
        QVERIFY(!f.list->IsItemEnabled(2) && f.list->IsItemEnabled(1));
        QVERIFY(f.ClickToEdit(2, kName) == nullptr);

        const QRect cell = f.list->visualRect(f.Index(1, kCheck));
        const QPoint box(cell.left() + 10, cell.center().y());
        f.Click(box);
        QVERIFY(f.list->IsItemChecked(1, kCheck));
        const QRect greyed = f.list->visualRect(f.Index(2, kCheck));
        f.Click(QPoint(greyed.left() + 10, greyed.center().y()));
        QVERIFY(!f.list->IsItemChecked(2, kCheck));
    }

    void hexEditorFiltersKeystrokes() {
        Fixture f;
        vx::test::ScriptedPrompt prompt;
        BeepCounter counter;
        auto* edit = qobject_cast<QLineEdit*>(f.ClickToEdit(0, kPort));
        QVERIFY(edit != nullptr);
        QTest::keyClicks(edit, QStringLiteral("0X"));  // replaces the selected "80"
        QCOMPARE(edit->text(), QStringLiteral("0x"));
        QTest::keyClicks(edit, QStringLiteral("G."));
        QCOMPARE(edit->text(), QStringLiteral("0x"));
        QCOMPARE(counter.beeps, 2);
        QTest::keyClicks(edit, QStringLiteral("1F"));
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);  // paste is a refused control key
        QCOMPARE(counter.beeps, 3);
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(f.list->GetItemText(0, kPort), QStringLiteral("0x1F"));
        QVERIFY(prompt.asked.empty());
    }

    void refusedTextsKeepTheEditorOpen_data() {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("refused");
        QTest::addColumn<int>("answer");  // to the question about the refused text
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("accepted");
        QTest::newRow("below range") << int(kPort) << "5" << vx::kIdOk << "Invalid number, 5."
                                     << "50";
        QTest::newRow("rpc rule") << int(kRpc) << "390679" << vx::kIdOk << "RPC socket number"
                                  << "390680";
        QTest::newRow("rpc hex") << int(kRpc) << "0x5f5c7" << vx::kIdOk << "RPC socket number"
                                 << "390600";
        // Not creating a missing folder refuses it; creating it accepts it.
        const QString missing = qEnvironmentVariable("VX_CONFIG_HOME") + QStringLiteral("/new");
        QTest::newRow("missing folder") << int(kFolder) << missing << vx::kIdNo
                                        << "This folder does not exist - create?" << missing;
    }
    void refusedTextsKeepTheEditorOpen() {
        QFETCH(int, column);
        QFETCH(QString, refused);
        QFETCH(int, answer);
        QFETCH(QString, message);
        QFETCH(QString, accepted);
        Fixture f;
        vx::test::ScriptedPrompt prompt;
        prompt.answers = {answer, vx::kIdYes};  // the second for the accepted text, if asked
        QSignalSpy ended(f.list, &CColumnEditListCtrl::editEnded);
        const QString before = f.list->GetItemText(0, column);
        auto* edit = qobject_cast<QLineEdit*>(f.ClickToEdit(0, column));
        QVERIFY(edit != nullptr);
        QTest::keyClicks(edit, refused);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(f.EditorOpen(0, column));
        QCOMPARE(prompt.asked.size(), std::size_t{1});
        QVERIFY(QString::fromStdString(prompt.asked[0].text).contains(message));
        QVERIFY(prompt.asked[0].parent == &f.window);
        QCOMPARE(edit->text(), refused);
        QCOMPARE(f.list->GetItemText(0, column), before);
        QVERIFY(ended.isEmpty());

        edit->selectAll();
        QTest::keyClicks(edit, accepted);
        QTest::keyClick(edit, Qt::Key_Tab);  // Tab ends the edit without opening the next cell
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(f.list->GetItemText(0, column), accepted);
        QVERIFY(!f.list->IsInLabelEditMode());
    }

    // The folder dialog takes the focus from the editor, which must survive it.
    void browsedFolderFillsTheOpenEditor() {
        Fixture f;
        auto* edit = qobject_cast<vx::FolderBrowseEdit*>(f.ClickToEdit(0, kFolder));
        QVERIFY(edit != nullptr);
        const QString chosen = qEnvironmentVariable("VX_CONFIG_HOME");
        QTimer chooser;
        connect(&chooser, &QTimer::timeout, [&] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                dialog->setDirectory(chosen);
                static_cast<QDialog*>(dialog)->accept();  // QFileDialog::accept, as OK does
            }
        });
        chooser.start(50);
        edit->BrowseAction()->trigger();
        chooser.stop();
        QVERIFY(f.EditorOpen(0, kFolder));
        QCOMPARE(QDir(edit->text()), QDir(chosen));
        QCOMPARE(f.list->GetItemText(0, kFolder), QStringLiteral("/tmp"));
    }

    // The scenario that used to commit the refused text: a real message box takes the focus
    // from the editor while its text is refused.
    void messageBoxDuringEditKeepsTheEditor() {
        Fixture f;
        auto* edit = qobject_cast<QLineEdit*>(f.ClickToEdit(0, kPort));
        QVERIFY(edit != nullptr);
        const QPointer<QLineEdit> alive(edit);
        QTest::keyClick(edit, Qt::Key_5);
        bool shown = false;
        QTimer closer;
        connect(&closer, &QTimer::timeout, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                shown = true;
                box->accept();
            }
        });
        closer.start(50);
        QTest::keyClick(edit, Qt::Key_Return);
        closer.stop();
        QVERIFY(shown);
        QVERIFY(alive && f.EditorOpen(0, kPort));
        QCOMPARE(edit->text(), QStringLiteral("5"));
        QCOMPARE(f.list->GetItemText(0, kPort), QStringLiteral("80"));
    }

    void textEditEndsOnlyWhenAccepted() {
        Fixture f;
        QSignalSpy ended(f.list, &CColumnEditListCtrl::editEnded);
        bool editorGone = false;
        connect(f.list, &CColumnEditListCtrl::editEnded, [&](int row, int column) {
            editorGone = f.list->indexWidget(f.Index(row, column)) == nullptr &&
                         !f.list->IsInLabelEditMode();
        });
        auto* edit = qobject_cast<QLineEdit*>(f.ClickToEdit(1, kName));
        QVERIFY(edit != nullptr);
        QTest::keyClicks(edit, QStringLiteral("Click to add"));
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(f.EditorOpen(1, kName));
        QCOMPARE(f.list->GetItemText(1, kName), QStringLiteral("server1"));
        QTest::keyClick(edit, Qt::Key_Escape);
        QTRY_VERIFY(!f.list->IsInLabelEditMode());
        QVERIFY(ended.isEmpty());

        edit = qobject_cast<QLineEdit*>(f.ClickToEdit(1, kName));
        QVERIFY(edit != nullptr);
        QTest::keyClicks(edit, QStringLiteral("alice"));
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended[0], (QVariantList{1, int(kName)}));
        QVERIFY(editorGone);
        QCOMPARE(f.list->ended, QStringList{QStringLiteral("alice")});
        QCOMPARE(f.list->GetLastItemEdited(), 1);
        QCOMPARE(f.list->GetOriginalLabel(), QStringLiteral("server1"));
    }

    void togglesPostCommandsAndReportImageClicks() {
        Fixture f;
        const auto toggleImage = [&](int row) {
            const QRect cell = f.list->visualRect(f.Index(row, kToggle));
            const QRect image = vx::ColumnEditDelegate::ToggleImageRect(cell, f.list->style());
            return f.list->viewport()->grab(image).toImage();
        };
        QVERIFY(toggleImage(0) != toggleImage(1));  // a checked box, an empty one
        QCOMPARE(toggleImage(1), toggleImage(2));
        QSignalSpy posted(f.list, &CKorvelListCtrl::commandPosted);
        QSignalSpy imageClicked(f.list, &CColumnEditListCtrl::toggleBitmapClicked);
        const QPoint belowRows(f.CellCenter(0, kToggle).x(), f.list->viewport()->height() - 5);
        QVERIFY(!f.list->indexAt(belowRows).isValid());
        f.Click(belowRows);
        QVERIFY(posted.isEmpty());  // posted, not sent
        QTRY_COMPARE(posted.size(), 1);
        QCOMPARE(posted[0][0].toUInt(), kToggleCommand);
        QVERIFY(imageClicked.isEmpty() && !f.list->IsInLabelEditMode());

        f.Click(f.CellCenter(2, kToggle));
        QCOMPARE(imageClicked.size(), 1);
        QCOMPARE(imageClicked[0], (QVariantList{2, int(kToggle)}));
        QVERIFY(f.list->IsItemSelected(2) && f.list->IsItemFocused(2));
        QVERIFY(!f.list->IsItemSelected(7));
    }

    void fixedColumnsRefuseResizing() {
        Fixture f;
        QHeaderView* header = f.list->header();
        QCOMPARE(header->sectionResizeMode(kToggle), QHeaderView::Fixed);
        QCOMPARE(header->sectionResizeMode(kName), QHeaderView::Interactive);
        f.list->EnableColumnSize(kColumns, false);  // before the column exists
        QVERIFY(!f.list->CanColumnSize(kColumns));
        f.list->InsertColumn(kColumns, QStringLiteral("extra"), 50);
        QCOMPARE(header->sectionResizeMode(kColumns), QHeaderView::Fixed);
        f.list->EnableColumnSize(kToggle, true);
        QCOMPARE(header->sectionResizeMode(kToggle), QHeaderView::Interactive);
    }

    void contextMenuPerColumn() {
        Fixture f;
        QList<int> asked;
        QMenu menu;
        menu.addAction(QStringLiteral("Edit"));
        f.list->SetMenuProvider([&](int id) {
            asked << id;
            QTimer::singleShot(0, &menu, &QMenu::close);
            return &menu;
        });
        f.list->EnableContextMenu(kName, 3021);
        const auto openMenuAt = [&](QPoint at) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, at,
                                    f.list->viewport()->mapToGlobal(at));
            QApplication::sendEvent(f.list->viewport(), &event);
            return event.isAccepted();
        };
        const int right = f.list->GetColumnWidth(kName) * kColumns;
        const QPoint beyondLast(right + 20, 5);
        QCOMPARE(f.list->GetColumnFromPoint(f.list->viewport()->mapToGlobal(beyondLast)), -1);
        QCOMPARE(f.list->GetColumnFromPoint(f.list->viewport()->mapToGlobal(QPoint(right - 1, 5))),
                 kRpc);

        QVERIFY(!openMenuAt(f.CellCenter(0, kPort)));  // no menu: the parent's handling runs
        QVERIFY(openMenuAt(f.CellCenter(0, kName)));
        f.list->EnableContextMenu(-1, 3024);
        QVERIFY(openMenuAt(f.CellCenter(0, kPort)));
        QVERIFY(openMenuAt(beyondLast));
        QCOMPARE(asked, (QList<int>{3021, 3024, 3024}));
    }
};

VX_WIDGET_TEST_MAIN(ListCtrlTest)
#include "ListCtrlTest.moc"
