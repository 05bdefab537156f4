#include <QColorDialog>
#include <QFontDialog>

#include "vxutil/decor/qt/RDialogBar.h"

namespace vx {
namespace {

class DialogChooser final : public DialogBarChooser {
public:
    std::optional<QFont> ChooseFont(QWidget* parent, const QFont& current) override {
        bool chosen = false;
        const QFont font = QFontDialog::getFont(&chosen, current, parent);
        return chosen ? std::optional(font) : std::nullopt;
    }
    std::optional<QColor> ChooseColor(QWidget* parent, const QColor& current) override {
        const QColor color = QColorDialog::getColor(current, parent);
        return color.isValid() ? std::optional(color) : std::nullopt;
    }
};

DialogBarChooser* g_chooser = nullptr;

}  // namespace

DialogBarChooser::~DialogBarChooser() = default;

DialogBarChooser* DialogBarChooser::SetCurrent(DialogBarChooser* chooser) {
    DialogBarChooser* previous = g_chooser;
    g_chooser = chooser;
    return previous;
}

DialogBarChooser& DialogBarChooser::Current() {
    static DialogChooser dialogs;
    return g_chooser != nullptr ? *g_chooser : dialogs;
}

}  // namespace vx
