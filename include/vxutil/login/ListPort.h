// What the accounts presenter needs of one of its two lists (users, servers). A Qt view
// implements it over its item view and model; tests implement it over plain vectors.
//
// Rows and columns count from 0. Selecting a row adds it to the selection (the lists allow
// several selected rows); focusing moves the current row without changing the selection.
#pragma once

#include <vector>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {

class VXUTIL_API ListPort {
public:
    virtual ~ListPort();

    virtual int GetRowCount() const = 0;
    // "" for a cell that does not exist.
    virtual CGNString GetCellText(int row, int column) const = 0;
    virtual void SetCellText(int row, int column, const CGNString& text) = 0;
    // Inserts a row before `row` (the row count appends) with `text` in column 0 and the other
    // cells empty.
    virtual void InsertRow(int row, const CGNString& text) = 0;
    virtual void DeleteRow(int row) = 0;

    virtual void SetRowSelected(int row, bool selected) = 0;
    virtual void SetFocusedRow(int row) = 0;
    // The selected rows in ascending order.
    virtual std::vector<int> GetSelectedRows() const = 0;
    // Starts the in-cell editor of a cell, as a click on it would.
    virtual void EditCell(int row, int column) = 0;
    // The text the cell being edited had when the edit started.
    virtual CGNString GetOriginalLabel() const = 0;

    // Inserts a column before `column` with its header text and width in pixels; the rest of
    // its settings come from the column tables of AccountsColumns.h.
    virtual void InsertColumn(int column, const CGNString& header, int width) = 0;
    virtual void DeleteColumn(int column) = 0;
    // The width in pixels; 0 for a column that does not exist.
    virtual int GetColumnWidth(int column) const = 0;
};

}  // namespace vx
