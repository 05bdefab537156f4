// The Qt services a client tool gets by loading the widgets library: message boxes, the
// station's timers and visual pumping, the window-update lock, and the string table with Qt's
// own translations in the library's language.
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "runtime/module/Module.h"
#include "runtime/qt/QtMessageBackend.h"
#include "support/WidgetTestMain.h"
#include "vxutil/runtime/RLockWindowUpdate.h"
#include "vxutil/runtime/RMessagePump.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/WindowMessages.h"
#include "vxutil/runtime/qt/QtServices.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

// Runs `inspect` on the message box once it is shown, then presses `key` in it.
void AnswerNextBox(std::function<void(QMessageBox&)> inspect, Qt::Key key) {
    QTimer::singleShot(0, [inspect, key] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        inspect(*box);
        QTest::keyClick(box, key);
    });
}

class PaintCounter : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

class CountingQueue : public vx::MessageQueue {
public:
    int requests = 0;
    bool DispatchFirst(unsigned) override {
        ++requests;
        return false;
    }
};

}  // namespace

class ServicesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void promptShowsTheStyleAndReturnsTheAnswer() {
        QWidget dialog;
        QWidget* editor = new QWidget(&dialog);
        dialog.show();
        QWidget* owner = nullptr;
        AnswerNextBox(
            [&](QMessageBox& box) {
                owner = box.parentWidget();
                QCOMPARE(box.icon(), QMessageBox::Warning);
                QCOMPARE(box.windowTitle(), QStringLiteral("Question"));
                QCOMPARE(box.text(), QStringLiteral("Create it?"));
                QCOMPARE(box.buttons().size(), 2);
                QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
            },
            Qt::Key_Return);
        // Asked from an in-cell editor: the box belongs to the editor's window.
        QCOMPARE(RUserPrompt::Current().Show(editor, "Create it?", "Question", 0x134), vx::kIdNo);
        QCOMPARE(owner, &dialog);

        AnswerNextBox([](QMessageBox& box) { QCOMPARE(box.icon(), QMessageBox::Critical); },
                      Qt::Key_Escape);
        QCOMPARE(RUserPrompt::Current().Show(nullptr, "Failed.", nullptr, 0x11), vx::kIdCancel);
        AnswerNextBox(
            [](QMessageBox& box) { QCOMPARE(box.windowTitle(), QStringLiteral("Widget Tests")); },
            Qt::Key_Escape);
        QCOMPARE(RUserPrompt::Current().Show(nullptr, "Done.", nullptr, 0x40), vx::kIdOk);
    }

    void stationTicksPumpsThroughQtTimers() {
        vx::QtTimerSource timers;
        CountingQueue queue;
        RMessageStation station(20, queue, timers);
        RMessageStation* previous = RMessageStation::SetModule(&station);
        {
            RMessagePump pump(vx::kWmPaint, -1, 1);
            QVERIFY(pump.GetID() != 0);
            QTRY_VERIFY(queue.requests >= 2);
        }
        QCOMPARE(station.GetPumpCount(), std::size_t{0});
        RMessageStation::SetModule(previous);
    }

    // A long operation that pumps visual messages repaints pending widgets once per tick.
    void visualRequestRepaintsOncePerTick() {
        vx::QtTimerSource timers;
        vx::QtMessageQueue queue(timers);
        PaintCounter widget;
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        const int before = widget.paints;
        widget.update();
        QVERIFY(!queue.DispatchFirst(vx::kWmPaint));
        QCOMPARE(widget.paints, before + 1);
        widget.update();
        QVERIFY(!queue.DispatchFirst(vx::kWmMouseMove));  // same tick: nothing more is run
        QVERIFY(!queue.DispatchFirst(vx::kWmUser));
        QCOMPARE(widget.paints, before + 1);
    }

    void lockSwitchesUpdatesOffForTheOutermostScope() {
        QWidget first, second;
        {
            RLockWindowUpdate outer(&first);
            {
                RLockWindowUpdate inner(&second);
                QVERIFY(!first.updatesEnabled());
                QVERIFY(second.updatesEnabled());
            }
            QVERIFY(!first.updatesEnabled());
            QVERIFY(RLockWindowUpdate::IsLocked());
        }
        QVERIFY(first.updatesEnabled());
        QVERIFY(!RLockWindowUpdate::IsLocked());
    }

    // With German resources attached, the library's texts and Qt's buttons are German alike.
    void germanResourcesTranslateLibraryAndQtTexts() {
        vx::RemoveQtServices();
        vx::UnloadModule();
        vx::LoadModule(VXUTIL_TEST_MODULE_PATH, nullptr, {"de"});
        vx::InstallQtServices();
        QCOMPARE(vx::Tr(3055), QStringLiteral("%1\n\nDieser Ordner existiert nicht - erstellen?"));
        QCOMPARE(QCoreApplication::translate("CLoginDlg", "unused", "3055"), vx::Tr(3055));
        QCOMPARE(QCoreApplication::translate("CLoginDlg", "Plain", nullptr),
                 QStringLiteral("Plain"));
        QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Abbrechen"));
        vx::RemoveQtServices();
        vx::UnloadModule();
        vx::LoadModule(VXUTIL_TEST_MODULE_PATH, nullptr, {});
        vx::InstallQtServices();
    }
};

VX_WIDGET_TEST_MAIN(ServicesTest)
#include "ServicesTest.moc"
