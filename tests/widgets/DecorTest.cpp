// The decoration widgets: the dialog base that keeps help to itself, dialog bars that share one
// stored look, gradient captions of MDI children, and menu merging. The rules behind the look,
// the gradient and the merge are tested in tests/decor.
#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSignalSpy>

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
        titles << (action->isSeparator() ? u"-"_s : action->text());
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
        QVERIFY(vx::test::ShowActive(dialog));
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_F1);
        QTest::keyClick(&dialog, Qt::Key_F1, Qt::ShiftModifier);
        QCOMPARE(helpAsked.count(), 0);
        QTest::keyClick(&main, Qt::Key_F1);  // outside the dialog the application's help runs
        QCOMPARE(helpAsked.count(), 1);

        QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, dialog.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&dialog, &menu);
        QVERIFY(menu.isAccepted() && QApplication::activePopupWidget() == nullptr);
        dialog.EnableContextHelp(false);  // shown: must not hide the dialog
        QVERIFY(dialog.isVisible() && !dialog.IsContextHelpEnabled());
    }

    // A look the user picks on one bar is stored and reaches every open bar.
    void dialogBarLookReachesEveryBarAndTheProfile() {
        RApplication* app = RApplication::Current();
        RDialogBar first, second;
        first.resize(200, 24);
        first.show();
        first.SetDisplayText("Users");
        auto* text = first.findChild<QLabel*>(u"text_3405"_s);
        QCOMPARE(text->geometry(), QRect(2, 4, 196, 16));
        QCOMPARE(text->text(), u"Users"_s);

        FixedChooser chooser;
        first.OnBkgndColorChange();
        first.OnFontChange();
        QCOMPARE(second.BackgroundColor(), QColor(10, 20, 30));
        QCOMPARE(second.TextLogFont().lfHeight, -17);
        QCOMPARE(app->GetProfileString("DialogBar", "BackgroundColor").str(), "10,20,30");
        QVERIFY(app->GetProfileString("DialogBar", "TextLogfont").str().rfind("-17,", 0) == 0);
        QCOMPARE(RDialogBar().BackgroundColor(), QColor(10, 20, 30));  // a bar opened later
    }

    // The painted caption has the colour of the gradient band under it, and the plain
    // highlight once the gradient is off.
    void mdiCaptionShowsTheGradient() {
        QMdiArea area;
        area.resize(400, 300);
        QMdiSubWindow* child = area.addSubWindow(new QWidget);
        child->setWindowTitle(u"Query"_s);
        child->resize(300, 200);
        area.show();
        area.setActiveSubWindow(child);
        QVERIFY(QTest::qWaitForWindowExposed(&area));

        RCaptionPainter painter;
        QCOMPARE(painter.Install(child), 1);
        painter.SetGradient(1);
        const QPoint probe(child->width() / 2, 1);  // in the caption, above its text
        const std::vector<vx::Band> bands =
            painter.CaptionBands(child->palette(), true, child->width(), 20);
        const auto band = std::find_if(bands.rbegin(), bands.rend(), [&](const vx::Band& b) {
            return probe.x() >= b.x && probe.x() < b.x + b.w;
        });
        QVERIFY(band != bands.rend());
        QCOMPARE(child->grab().toImage().pixelColor(probe),
                 QColor(vx::RedOf(band->color), vx::GreenOf(band->color), vx::BlueOf(band->color)));
        painter.SetGradient(0);
        QCOMPARE(child->grab().toImage().pixelColor(probe),
                 child->palette().color(QPalette::Active, QPalette::Highlight));
    }

    // Pop-ups go before Help, into the host's pop-up of the same name or as new ones; the
    // module's items are shared, its bar is left as it was.
    void mergedMenusGoBeforeHelp() {
        QMenuBar host, module;
        host.addMenu(u"&File"_s)->addAction(u"E&xit"_s);
        host.addMenu(u"&Help"_s);
        QAction* trace = module.addMenu(u"&Tools"_s)->addAction(u"&T"_s);
        QMenu* moduleFile = module.addMenu(u"F&ile"_s);
        moduleFile->addSeparator();
        moduleFile->addAction(u"&Export"_s);

        QCOMPARE(RMergeMenu(&host, &module), 1);
        QCOMPARE(Titles(host), (QStringList{u"&File"_s, u"&Tools"_s, u"&Help"_s}));
        QCOMPARE(Titles(*host.actions().at(0)->menu()),
                 (QStringList{u"E&xit"_s, u"-"_s, u"&Export"_s}));
        QMenu* merged = host.actions().at(1)->menu();
        QVERIFY(merged != module.actions().at(0)->menu());  // pop-ups are made anew
        QCOMPARE(merged->actions().at(0), trace);
        QCOMPARE(Titles(module), (QStringList{u"&Tools"_s, u"F&ile"_s}));
        QCOMPARE(RMergeMenu(nullptr, &module), 0);
    }
};

VX_WIDGET_TEST_MAIN(DecorTest)
#include "DecorTest.moc"
