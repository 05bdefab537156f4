#include "runtime/qt/QtUserPrompt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {
namespace {

QMessageBox::Icon IconOf(unsigned style) {
    switch (style & 0xF0u) {
        case kMbIconStop:
            return QMessageBox::Critical;
        case kMbIconQuestion:
            return QMessageBox::Question;
        case kMbIconExclamation:
            return QMessageBox::Warning;
        case kMbIconInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton StandardButtonOf(int id) {
    switch (id) {
        case kIdOk:
            return QMessageBox::Ok;
        case kIdCancel:
            return QMessageBox::Cancel;
        case kIdAbort:
            return QMessageBox::Abort;
        case kIdRetry:
            return QMessageBox::Retry;
        case kIdIgnore:
            return QMessageBox::Ignore;
        case kIdYes:
            return QMessageBox::Yes;
        case kIdNo:
            return QMessageBox::No;
        default:
            return QMessageBox::NoButton;  // Try Again and Continue have no standard button
    }
}

// The box belongs to the dialog's window, never to the widget that asked: an in-cell editor
// may be gone by the time the box closes.
QWidget* OwnerOf(WindowHandle parent) {
    if (parent != nullptr) return static_cast<QWidget*>(parent)->window();
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return QApplication::activeWindow();
}

QString CaptionOf(const char* caption) {
    if (caption != nullptr) return ToQString(caption);
    if (const RApplication* app = RApplication::Current())
        return ToQString(app->GetAppName().c_str());
    return QGuiApplication::applicationDisplayName();
}

}  // namespace

int QtUserPrompt::Show(WindowHandle parent, const char* text, const char* caption, unsigned style) {
    QMessageBox box(OwnerOf(parent));
    box.setIcon(IconOf(style));
    box.setWindowTitle(CaptionOf(caption));
    box.setText(ToQString(text != nullptr ? text : ""));
    const int defaultAnswer = RUserPrompt::DefaultAnswer(style);
    std::vector<std::pair<QAbstractButton*, int>> answers;
    for (const PromptButton& button : RUserPrompt::Buttons(style)) {
        QAbstractButton* added = nullptr;
        if (QMessageBox::StandardButton standard = StandardButtonOf(button.id);
            standard != QMessageBox::NoButton) {
            added = box.addButton(standard);
        } else {
            added = box.addButton(ToQString(button.label.c_str()), QMessageBox::AcceptRole);
        }
        answers.emplace_back(added, button.id);
        if (button.id == defaultAnswer) box.setDefaultButton(qobject_cast<QPushButton*>(added));
        if (button.id == kIdCancel) box.setEscapeButton(added);
    }
    box.exec();
    for (const auto& [button, id] : answers)
        if (button == box.clickedButton()) return id;
    // Closed without a button (Escape in a box without Cancel): the answer Windows gives.
    return answers.size() == 1 ? answers.front().second : kIdCancel;
}

}  // namespace vx
