#include "vxutil/login/qt/CLoginPropDlg.h"

struct CLoginPropDlg::Parts {
    QString currentUser;
};

CLoginPropDlg::CLoginPropDlg(const QString& user, QWidget* parent, CLoginOwner*)
    : CWDialog(parent), m_parts(std::make_unique<Parts>()) {
    m_parts->currentUser = user;
}

CLoginPropDlg::~CLoginPropDlg() = default;

int CLoginPropDlg::IsDirty() const {
    return 0;
}

QString CLoginPropDlg::GetCurrentUser() const {
    return m_parts->currentUser;
}

CGNString CLoginPropDlg::GetServerColumnWidths() const {
    return {};
}
