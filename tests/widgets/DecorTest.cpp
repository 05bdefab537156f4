// The decoration widgets: the dialog base that keeps help to itself.
#include <QAction>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>

#include "support/WidgetTestMain.h"
#include "vxutil/decor/qt/CWDialog.h"

class DecorTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void dialogBaseKeepsHelpToItself() {
        QMainWindow main;
        QAction help(&main);
        help.setShortcut(Qt::Key_F1);
        help.setShortcutContext(Qt::ApplicationShortcut);
        main.addAction(&help);
        QSignalSpy helpAsked(&help, &QAction::triggered);
        main.show();

        CWDialog dialog(&main);
        QVERIFY(dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        auto* edit = new QLineEdit(&dialog);
        dialog.show();
        dialog.activateWindow();  // no window manager activates it under a bare X server
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_F1);
        QTest::keyClick(&dialog, Qt::Key_F1, Qt::ShiftModifier);
        QCOMPARE(helpAsked.count(), 0);
        QTest::keyClick(&main, Qt::Key_F1);  // outside the dialog the application's help runs
        QCOMPARE(helpAsked.count(), 1);

        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5),
                               dialog.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&dialog, &menu);
        QVERIFY(menu.isAccepted());
        QVERIFY(QApplication::activePopupWidget() == nullptr);

        dialog.EnableContextHelp(false);  // shown: must not hide the dialog
        QVERIFY(dialog.isVisible());
        QVERIFY(!dialog.IsContextHelpEnabled());
    }
};

VX_WIDGET_TEST_MAIN(DecorTest)
#include "DecorTest.moc"
