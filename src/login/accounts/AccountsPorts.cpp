// The port columns of the server list: the advanced server options switch that shows them,
// the stored column widths, and the check of a typed port number.
#include <cstdio>
#include <iterator>

#include "login/accounts/AccountsPrompts.h"
#include "login/accounts/AccountsSettings.h"
#include "login/accounts/AccountsText.h"
#include "login/accounts/AccountsTrace.h"
#include "vxutil/listctrl/RHexEditLogic.h"
#include "vxutil/listctrl/RangeMessage.h"
#include "vxutil/listctrl/RpcNumberRule.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/runtime/RUtils.h"

namespace vx {

using accounts::AccountsTrace;
using accounts::kFixedServerColumns;
using accounts::ServerColumnWidths;

namespace {

constexpr int kServerColumnCount = static_cast<int>(std::size(kServerColumns));

}  // namespace

void AccountsPresenter::OnAdvancedServerOptions() {
    AccountsTrace trace("CLoginPropDlg::OnAdvancedServerOptions");
    const bool checked = m_view.IsAdvancedOptionsChecked();
    // Measured before the columns change, so that hiding the ports keeps their last widths.
    const CGNString widths = GetServerColumnWidths();
    if (checked && !m_bPortsShown) {
        const ServerColumnWidths stored = accounts::ReadServerColumnWidths();
        for (int column = kFixedServerColumns; column < kServerColumnCount; ++column)
            m_servers.InsertColumn(column, accounts::Text(accounts::kServerHeaders[column]),
                                   stored[static_cast<std::size_t>(column)]);
        m_bPortsShown = true;
        UpdatePortColumns();
    } else if (!checked && m_bPortsShown) {
        for (int column = kFixedServerColumns; column < kServerColumnCount; ++column)
            m_servers.DeleteColumn(kFixedServerColumns);
        m_bPortsShown = false;
    }
    if (m_bInitialising) return;
    accounts::WriteAdvancedServerOptions(checked);
    accounts::WriteServerColumnWidths(widths);
}

// Columns that are not shown keep the widths stored for them.
CGNString AccountsPresenter::GetServerColumnWidths() const {
    AccountsTrace trace("CLoginPropDlg::GetServerColumnWidths");
    ServerColumnWidths widths = accounts::ReadServerColumnWidths();
    const int shown = m_bPortsShown ? kServerColumnCount : kFixedServerColumns;
    for (int column = 0; column < shown; ++column)
        widths[static_cast<std::size_t>(column)] = m_servers.GetColumnWidth(column);
    char text[6 * 12];
    std::snprintf(text, sizeof text, "%i;%i;%i;%i;%i;%i", widths[0], widths[1], widths[2],
                  widths[3], widths[4], widths[5]);
    return text;
}

// An empty cell means no port of its own: the server's default.
bool AccountsPresenter::CheckPortText(int column, const CGNString& typed) const {
    CGNString text = typed;
    text.Trim();
    if (text.IsEmpty()) return true;
    const WindowHandle parent = m_view.GetWindowHandle();
    const bool rpc = column == kRpcColumn;
    const AccountsColumn& range = kServerColumns[column];
    bool valid = RHexEditLogic::VerifyHexNumber(text);
    if (valid && !rpc) {
        const int value = RHexToInt(text);
        valid = value >= range.minimum && value <= range.maximum;
    }
    if (!valid) {
        accounts::ShowError(parent, NumberRangeMessage(text, range.minimum, range.maximum));
        return false;
    }
    return !rpc || CheckPrivateRpcNumber(text, parent);
}

}  // namespace vx
