// The decoration widgets: the dialog base that keeps help to itself, dialog bars that share one
// stored look, gradient captions of MDI children, and menu merging.
#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QTimer>

#include "support/WidgetTestMain.h"
#include "vxutil/decor/qt/CWDialog.h"
#include "vxutil/decor/qt/RCaptionPainter.h"
#include "vxutil/decor/qt/RDialogBar.h"
#include "vxutil/decor/qt/RMergeMenu.h"

namespace {

class FixedChooser : public vx::DialogBarChooser {
public:
    FixedChooser() : m_previous(SetCurrent(this)) {}
    ~FixedChooser() override { SetCurrent(m_previous); }
    std::optional<QFont> ChooseFont(QWidget*, const QFont& current) override {
        QFont font = current;
        font.setPixelSize(17);
        return font;
    }
    std::optional<QColor> ChooseColor(QWidget*, const QColor&) override {
        return QColor(10, 20, 30);
    }

private:
    DialogBarChooser* m_previous;
};

QStringList Titles(const QWidget& menu) {
    QStringList titles;
    for (const QAction* action : menu.actions())
        titles << (action->isSeparator() ? QStringLiteral("-") : action->text());
    return titles;
}

}  // namespace

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

    // A look the user picks on one bar is stored and reaches every open bar.
    void dialogBarLookReachesEveryBarAndTheProfile() {
        RApplication* app = RApplication::Current();
        RDialogBar first, second;
        QCOMPARE(app->GetProfileString("DialogBar", "BackgroundColor").str(),
                 vx::FormatColorText(vx::MakeColor(first.BackgroundColor().red(),
                                                   first.BackgroundColor().green(),
                                                   first.BackgroundColor().blue())));
        first.resize(200, 24);
        first.show();
        first.SetDisplayText("Users");
        auto* text = first.findChild<QLabel*>(QStringLiteral("text_3405"));
        QVERIFY(text != nullptr);
        QCOMPARE(text->geometry(), QRect(2, 4, 196, 16));
        QCOMPARE(text->text(), QStringLiteral("Users"));

        FixedChooser chooser;
        first.OnBkgndColorChange();
        first.OnFontChange();
        QCOMPARE(second.BackgroundColor(), QColor(10, 20, 30));
        QCOMPARE(second.TextLogFont().lfHeight, -17);
        QCOMPARE(app->GetProfileString("DialogBar", "BackgroundColor").str(),
                 std::string("10,20,30"));
        QVERIFY(app->GetProfileString("DialogBar", "TextLogfont").str().rfind("-17,", 0) == 0);
        RDialogBar third;  // a bar opened later reads the same look
        QCOMPARE(third.BackgroundColor(), QColor(10, 20, 30));
    }

    void mdiCaptionShowsTheGradient() {
        QMdiArea area;
        area.resize(400, 300);
        QMdiSubWindow* child = area.addSubWindow(new QWidget);
        child->setWindowTitle(QStringLiteral("Query"));
        child->resize(300, 200);
        area.show();
        area.setActiveSubWindow(child);
        QVERIFY(QTest::qWaitForWindowExposed(&area));

        RCaptionPainter painter;
        QCOMPARE(painter.Install(child), 1);
        painter.SetGradient(1);
        QStyleOptionTitleBar title;
        title.initFrom(child);
        title.titleBarState = child->windowState() | Qt::WindowActive;
        title.titleBarFlags = child->windowFlags();
        const QRect bar = child->style()->subControlRect(QStyle::CC_TitleBar, &title,
                                                         QStyle::SC_TitleBarLabel, child);
        const QImage shot = child->grab().toImage();
        const std::vector<vx::Band> bands =
            painter.CaptionBands(child->palette(), true, child->width(), 20);
        // One pixel above the caption text, just right of the icon.
        const QPoint probe(bar.left() + 1, 1);
        const auto band = std::find_if(bands.rbegin(), bands.rend(), [&](const vx::Band& b) {
            return probe.x() >= b.x && probe.x() < b.x + b.w;
        });
        QVERIFY(band != bands.rend());
        QCOMPARE(shot.pixelColor(probe),
                 QColor(vx::RedOf(band->color), vx::GreenOf(band->color), vx::BlueOf(band->color)));
        painter.SetGradient(0);
        QCOMPARE(child->grab().toImage().pixelColor(probe),
                 child->palette().color(QPalette::Active, QPalette::Highlight));
    }

    void mergedMenusGoBeforeHelp() {
        QMenuBar host;
        host.addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
        host.addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("&About"));
        QMenuBar module;
        QMenu* tools = module.addMenu(QStringLiteral("&Tools"));
        QAction* trace = tools->addAction(QStringLiteral("&Trace"));
        QMenu* moduleFile = module.addMenu(QStringLiteral("F&ile"));
        moduleFile->addSeparator();
        moduleFile->addAction(QStringLiteral("&Export"));

        QCOMPARE(RMergeMenu(&host, &module), 1);
        QCOMPARE(Titles(host), (QStringList{QStringLiteral("&File"), QStringLiteral("&Tools"),
                                            QStringLiteral("&Help")}));
        QCOMPARE(
            Titles(*host.actions().at(0)->menu()),
            (QStringList{QStringLiteral("E&xit"), QStringLiteral("-"), QStringLiteral("&Export")}));
        QMenu* merged = host.actions().at(1)->menu();
        QVERIFY(merged != tools);                  // pop-ups are made anew
        QCOMPARE(merged->actions().at(0), trace);  // plain items are shared
        QCOMPARE(Titles(module), (QStringList{QStringLiteral("&Tools"), QStringLiteral("F&ile")}));
        QCOMPARE(RMergeMenu(nullptr, &module), 0);
    }
};

VX_WIDGET_TEST_MAIN(DecorTest)
#include "DecorTest.moc"
