// The accounts presenter's view of one CKorvelListCtrl: rows, cells, selection and columns,
// each column set up from its entry in the column table when it is inserted.
#pragma once

#include <span>

#include "vxutil/login/AccountsControls.h"
#include "vxutil/login/ListPort.h"

class CKorvelListCtrl;

namespace vx {

class KorvelListPort : public ListPort {
public:
    KorvelListPort(CKorvelListCtrl& list, std::span<const AccountsColumn> columns)
        : m_list(list), m_columns(columns) {}

    int GetRowCount() const override;
    CGNString GetCellText(int row, int column) const override;
    void SetCellText(int row, int column, const CGNString& text) override;
    void InsertRow(int row, const CGNString& text) override;
    void DeleteRow(int row) override;
    void SetRowSelected(int row, bool selected) override;
    void SetFocusedRow(int row) override;
    std::vector<int> GetSelectedRows() const override;
    void EditCell(int row, int column) override;
    CGNString GetOriginalLabel() const override;
    void InsertColumn(int column, const CGNString& header, int width) override;
    void DeleteColumn(int column) override;
    int GetColumnWidth(int column) const override;

private:
    CKorvelListCtrl& m_list;
    std::span<const AccountsColumn> m_columns;
};

}  // namespace vx
