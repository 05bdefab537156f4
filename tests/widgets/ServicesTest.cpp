// The Qt services a client tool gets by loading the widgets library: message boxes, the
// station's timers and visual pumping, the window-update lock, and the string table with Qt's
// own translations in the library's language.
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>

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

// Asks through the installed prompt, describes the box shown and answers it with `key`.
int Ask(QWidget* parent, const char* text, const char* title, unsigned style, Qt::Key key,
        QString& shown) {
    vx::test::OnNextModal([&shown, parent, key](QWidget& modal) {
        auto* box = qobject_cast<QMessageBox*>(&modal);
        if (box != nullptr)
            shown = u"icon %1, %2: %3, %4 buttons, default %5%6"_s.arg(box->icon())
                        .arg(box->windowTitle(), box->text())
                        .arg(box->buttons().size())
                        .arg(box->standardButton(box->defaultButton()), 0, 16)
                        .arg(parent != nullptr && box->parentWidget() == parent->window()
                                 ? u", over the window"_s
                                 : QString());
        QTest::keyClick(&modal, key);
    });
    return RUserPrompt::Current().Show(parent, text, title, style);
}

class CountingQueue : public vx::MessageQueue {
public:
    int requests = 0;
    bool DispatchFirst(unsigned) override {
        ++requests;
        return false;
    }
};

class PaintCounter : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

}  // namespace

class ServicesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The style's icon and buttons, the answer's number and the box's owner: the window of the
    // in-cell editor that asks, the application's name when no title is given.
    void promptMapsStylesAndAnswersToMessageBoxes() {
        QWidget dialog;
        QWidget* editor = new QWidget(&dialog);
        dialog.show();
        QString shown;
        QCOMPARE(Ask(editor, "Create it?", "Question", 0x134, Qt::Key_Return, shown), vx::kIdNo);
        QCOMPARE(shown,
                 u"icon 2, Question: Create it?, 2 buttons, default 10000, "
                 u"over the window"_s);
        QCOMPARE(Ask(nullptr, "Failed.", nullptr, 0x11, Qt::Key_Escape, shown), vx::kIdCancel);
        QCOMPARE(shown, u"icon 3, Widget Tests: Failed., 2 buttons, default 400"_s);
        QCOMPARE(Ask(nullptr, "Done.", nullptr, 0x40, Qt::Key_Escape, shown), vx::kIdOk);
    }

    // Pumps tick through Qt timers; pumping visual messages repaints pending widgets once per
    // tick; a lock switches a widget's updates off for its scope.
    void stationPumpsAndLocksWorkOnQtWidgets() {
        vx::QtTimerSource timers;
        CountingQueue counting;
        RMessageStation station(20, counting, timers);
        RMessageStation* previous = RMessageStation::SetModule(&station);
        {
            RMessagePump pump(vx::kWmPaint, -1, 1);
            QVERIFY(pump.GetID() != 0);
            QTRY_VERIFY(counting.requests >= 2);
        }
        QCOMPARE(station.GetPumpCount(), std::size_t{0});
        RMessageStation::SetModule(previous);

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
        QCOMPARE(widget.paints, before + 1);
        {
            RLockWindowUpdate lock(&widget);
            QVERIFY(!widget.updatesEnabled());
        }
        QVERIFY(widget.updatesEnabled());
    }

    // With German resources attached, the library's texts and Qt's buttons are German alike.
    void germanResourcesTranslateLibraryAndQtTexts() {
        const auto reload = [](std::vector<std::string> languages) {
            vx::RemoveQtServices();
            vx::UnloadModule();
            vx::LoadModule(VXUTIL_TEST_MODULE_PATH, nullptr, std::move(languages));
            vx::InstallQtServices();
        };
        reload({"de"});
        QCOMPARE(vx::Tr(3055), u"%1\n\nDieser Ordner existiert nicht - erstellen?"_s);
        QCOMPARE(QCoreApplication::translate("CLoginDlg", "unused", "3055"), vx::Tr(3055));
        QCOMPARE(QCoreApplication::translate("CLoginDlg", "Plain", nullptr), u"Plain"_s);
        QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), u"Abbrechen"_s);
        reload({});
    }
};

VX_WIDGET_TEST_MAIN(ServicesTest)
#include "ServicesTest.moc"
