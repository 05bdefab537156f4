#include "vxutil/login/qt/CLoginDlg.h"

#include <QKeyEvent>
#include <QValidator>

#include "login/qt/CapsLockState.h"
#include "login/qt/DialogGeometry.h"
#include "login/qt/LoginView.h"
#include "login/qt/PasswordReveal.h"
#include "ui_login.h"
#include "vxutil/login/LoginField.h"
#include "vxutil/login/LoginPresenter.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

constexpr char kGeometryEntry[] = "LoginGeometry";

// Refuses input whose stored form would not fit a user or password field. The limit counts
// bytes of the client's multi-byte text, which QLineEdit::setMaxLength (UTF-16 units) cannot.
class LoginFieldValidator : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        return vx::FitsLoginField(vx::FromQString(input).view()) ? Acceptable : Invalid;
    }
};

// The controls of login.ui, made when the dialog is.
struct LoginForm : Ui::CLoginDlg {
    explicit LoginForm(QDialog& dialog) { setupUi(&dialog); }
};

}  // namespace

// The dialog's workings. The connections and the event filter of its controls end with it, before
// QDialog's destructor hides the dialog and takes the focus from the controls.
struct CLoginDlg::Parts : QObject {
    Parts(CLoginDlg& dialog, CLoginOwner* owner, const QString& user, const QString& password)
        : ui(dialog),
          reveal(*ui.passwordEdit_3401),
          view(dialog, ui, reveal),
          presenter(view, owner, vx::FromQString(user), vx::FromQString(password)) {
        QComboBox& combo = *ui.userCombo_3400;
        // When typing ends with a text equal to a list entry, QComboBox selects that entry and
        // reports it as activated, as if the user had chosen it. Typing must not clear the
        // password, so the combo gets a line edit whose finishing is bracketed by these two
        // connections: slots run in the order they were connected, and the combo connects its
        // own in between.
        auto* userEdit = new QLineEdit(&combo);
        connect(userEdit, &QLineEdit::editingFinished, this, [this] { finishingUserText = true; });
        combo.setLineEdit(userEdit);
        connect(userEdit, &QLineEdit::editingFinished, this, [this] { finishingUserText = false; });
        combo.setCompleter(nullptr);  // what the user types is what is stored
        combo.setValidator(new LoginFieldValidator(&combo));
        ui.passwordEdit_3401->setValidator(new LoginFieldValidator(ui.passwordEdit_3401));

        connect(&combo, &QComboBox::activated, this, [this](int index) {
            if (!finishingUserText) presenter.OnSelChangeUser(index);
        });
        connect(userEdit, &QLineEdit::textEdited, this, [this] { presenter.SetButtonState(); });
        connect(ui.accountsButton_3402, &QPushButton::clicked, this,
                [this] { presenter.OnLoginAccounts(); });
        connect(ui.okButton, &QPushButton::clicked, this, [this] { presenter.OnOK(); });
        connect(ui.cancelButton, &QPushButton::clicked, &dialog, &CLoginDlg::reject);

        // Where the platform can tell, the hint keeps its room so that the dialog does not jump.
        QSizePolicy hintPolicy = ui.capsLockHint->sizePolicy();
        hintPolicy.setRetainSizeWhenHidden(vx::CapsLockState().has_value());
        ui.capsLockHint->setSizePolicy(hintPolicy);
        userEdit->installEventFilter(this);
        ui.passwordEdit_3401->installEventFilter(this);
    }

    void UpdateCapsLockHint() const {
        ui.capsLockHint->setVisible(vx::CapsLockState().value_or(false));
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // The lock changes with a key; the user may have toggled it in another window.
        if (event->type() == QEvent::KeyRelease || event->type() == QEvent::FocusIn)
            UpdateCapsLockHint();
        return QObject::eventFilter(watched, event);
    }

    LoginForm ui;
    vx::PasswordReveal reveal;
    vx::LoginView view;
    vx::LoginPresenter presenter;
    // Set while the user's typing in the user field is being finished (focus left, Return).
    bool finishingUserText = false;
};

CLoginDlg::CLoginDlg(const QString& user, CLoginOwner* owner, QWidget* parent,
                     const QString& password)
    : CWDialog(parent), m_pParts(std::make_unique<Parts>(*this, owner, user, password)) {
    vx::RestoreDialogGeometry(*this, kGeometryEntry);
    // The owner's answer only says whether it placed the focus itself; Qt gives the first
    // control the focus otherwise.
    m_pParts->presenter.OnInitDialog();
}

CLoginDlg::~CLoginDlg() = default;

void CLoginDlg::EnableInfoButton(int enable) {
    m_pParts->presenter.EnableInfoButton(enable);
}

void CLoginDlg::EnableContextHelp(int enable) {
    m_pParts->presenter.EnableContextHelp(enable);
}

int CLoginDlg::exec() {
    // A dialog hidden or closed other than through its buttons ends with Rejected (0).
    const int result = CWDialog::exec();
    return result == Rejected ? vx::kLoginDialogCancel : result;
}

void CLoginDlg::reject() {
    // Also how a close request arrives: while the owner logs in (and perhaps pumps messages)
    // the dialog stays, and QDialog then refuses the close event.
    if (!m_pParts->view.IsBusy()) m_pParts->presenter.OnCancel();
}

void CLoginDlg::done(int result) {
    if (isVisible()) vx::SaveDialogGeometry(*this, kGeometryEntry);
    CWDialog::done(result);
}

bool CLoginDlg::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) m_pParts->UpdateCapsLockHint();
    return CWDialog::event(event);
}
