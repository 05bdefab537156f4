#include "vxutil/login/qt/CLoginPropDlg.h"

#include <QDialogButtonBox>
#include <QItemSelectionModel>
#include <QScopedValueRollback>

#include "login/qt/AccountsLists.h"
#include "login/qt/AccountsMenus.h"
#include "login/qt/DialogGeometry.h"
#include "login/qt/KorvelListPort.h"
#include "ui_accounts.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

constexpr const char* kGeometryEntry = "AccountsGeometry";

Ui::CLoginPropDlg SetUpUi(QDialog& dialog) {
    Ui::CLoginPropDlg ui;
    ui.setupUi(&dialog);
    return ui;
}

}  // namespace

struct CLoginPropDlg::Parts final : vx::AccountsView {
    Parts(CLoginPropDlg& owner, const QString& user, CLoginOwner* loginOwner)
        : dialog(owner),
          ui(SetUpUi(owner)),
          users(*ui.userList_3403, vx::kUserColumns),
          servers(*ui.serverList_3404, vx::kServerColumns),
          presenter(*this, users, servers, vx::FromQString(user), loginOwner),
          menus(owner, presenter,
                [this](int command) { Present([&] { presenter.OnCommand(command); }); }) {}

    void SetUsersTitle(const CGNString& title) override {
        SetTitle(*ui.usersBar, *ui.userList_3403, title);
    }
    void SetServersTitle(const CGNString& title) override {
        SetTitle(*ui.serversBar, *ui.serverList_3404, title);
    }
    bool IsAdvancedOptionsChecked() const override { return ui.advancedOptions_3424->isChecked(); }
    void SetAdvancedOptionsChecked(bool checked) override {
        ui.advancedOptions_3424->setChecked(checked);
    }
    void UpdateColumnImages() override { ui.serverList_3404->UpdateColumnImages(); }
    vx::WindowHandle GetWindowHandle() const override { return static_cast<QWidget*>(&dialog); }

    // The bar names its list for screen readers too.
    static void SetTitle(RDialogBar& bar, QWidget& list, const CGNString& title) {
        bar.SetDisplayText(title.c_str());
        list.setAccessibleName(bar.GetDisplayText());
    }

    // Runs a call into the presenter. The selection changes the presenter makes on its way are
    // its own doing, which it follows itself; only the user's are reported to it.
    template <typename Call>
    void Present(Call call) {
        const QScopedValueRollback<bool> inside(presenting, true);
        call();
    }

    void Connect();

    CLoginPropDlg& dialog;
    Ui::CLoginPropDlg ui;
    vx::KorvelListPort users;
    vx::KorvelListPort servers;
    vx::AccountsPresenter presenter;
    vx::AccountsMenus menus;
    bool presenting = false;
};

void CLoginPropDlg::Parts::Connect() {
    CUserList* userList = ui.userList_3403;
    CServerList* serverList = ui.serverList_3404;
    for (CUserServerList* list :
         {static_cast<CUserServerList*>(userList), static_cast<CUserServerList*>(serverList)}) {
        list->Attach(&presenter);
        list->SetMenuProvider([this](int menuId) { return menus.Menu(menuId); });
    }
    // The model may change here: the editor is gone when an edit has ended.
    connect(userList, &CColumnEditListCtrl::editEnded, &dialog, [this](int row, int column) {
        Present([&] { presenter.OnEndLabelEditUserList(row, column); });
    });
    connect(serverList, &CColumnEditListCtrl::editEnded, &dialog, [this](int row, int column) {
        Present([&] { presenter.OnEndLabelEditServerList(row, column); });
    });
    connect(userList->selectionModel(), &QItemSelectionModel::selectionChanged, &dialog, [this] {
        if (!presenting) Present([&] { presenter.OnItemchangedUserList(); });
    });
    connect(userList, &CUserServerList::deleteKeyPressed, &dialog,
            [this] { Present([&] { presenter.OnListDeleteKey(users); }); });
    connect(serverList, &CUserServerList::deleteKeyPressed, &dialog,
            [this] { Present([&] { presenter.OnListDeleteKey(servers); }); });
    connect(serverList, &CColumnEditListCtrl::toggleBitmapClicked, &dialog,
            [this](int row, int column) {
                Present([&] { presenter.OnKorvelNotifyToggleBitmap(row, column); });
            });
    connect(ui.advancedOptions_3424, &QCheckBox::clicked, &dialog,
            [this] { Present([&] { presenter.OnAdvancedServerOptions(); }); });
    connect(ui.buttonBox, &QDialogButtonBox::accepted, &dialog, [this] {
        Present([&] { presenter.OnOK(); });
        dialog.accept();
    });
    connect(ui.buttonBox, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    connect(&dialog, &QDialog::finished, &dialog,
            [this] { vx::SaveDialogGeometry(dialog, kGeometryEntry); });
}

CLoginPropDlg::CLoginPropDlg(const QString& user, QWidget* parent, CLoginOwner* owner)
    : CWDialog(parent), m_pParts(std::make_unique<Parts>(*this, user, owner)) {
    m_pParts->Connect();
    m_pParts->Present([&] { m_pParts->presenter.OnInitDialog(); });
    if (owner != nullptr) owner->OnInitDialog(static_cast<QWidget*>(this));
    // Where the user left the dialog last time wins over the owner's placing.
    vx::RestoreDialogGeometry(*this, kGeometryEntry);
}

CLoginPropDlg::~CLoginPropDlg() = default;

int CLoginPropDlg::IsDirty() const {
    return m_pParts->presenter.IsDirty();
}

QString CLoginPropDlg::GetCurrentUser() const {
    return vx::ToQString(m_pParts->presenter.GetCurrentUser());
}

CGNString CLoginPropDlg::GetServerColumnWidths() const {
    return m_pParts->presenter.GetServerColumnWidths();
}
