// The list of the accounts dialog and the client tools: rows that can be disabled (shown
// greyed, not editable), columns that cannot be resized, columns whose click posts a command
// (toggling a value of the selected rows), and columns whose cells are edited by a single
// click.
//
// A row's item data word holds its disabled flag, so callers must not use the item data of
// these lists for anything else.
#pragma once

#include "vxutil/listctrl/qt/CColumnMenuListCtrl.h"

class VXUTIL_WIDGETS_API CKorvelListCtrl : public CColumnMenuListCtrl {
    Q_OBJECT
public:
    explicit CKorvelListCtrl(QWidget* parent = nullptr);

    // False for a row beyond the item count.
    bool IsItemSelected(int row) const;
    bool IsItemFocused(int row) const;
    bool IsItemEnabled(int row) const;
    // Overwrites the row's item data; rows beyond the count are ignored.
    void SetItemEnabled(int row, bool enable);

    // The switches may be set before the column is inserted.
    bool EnableColumnSize(int column, bool enable);
    // A column that does not exist is not sizable; the user cannot drag the edge of a column
    // that is not.
    virtual bool CanColumnSize(int column);
    bool EnableColumnToggle(int column, bool enable, unsigned commandId);
    virtual bool CanToggle(int column);
    // Posts the column's toggle command (commandPosted) when the column exists and toggles.
    void ToggleValue(int column);
    bool EnableDirectEdit(int column, bool enable);
    // Note the order, column first: an override must keep it.
    virtual bool IsDirectEdit(int column, int row);
    // Posts the start of the edit of the cell when the column exists and is edited directly;
    // a row of -1 (a click below the last row) starts nothing.
    void DirectEdit(int column, int row);

Q_SIGNALS:
    // A toggle command, posted: it arrives after the click that caused it has been handled.
    void commandPosted(unsigned commandId);

protected:
    bool IsRowEnabled(int row) const override;
    // After the selection: the column's toggle, then the direct edit of the clicked cell.
    void mousePressEvent(QMouseEvent* event) override;

private:
    // Fixes the columns that cannot be sized; run when the switches or the columns change.
    void ApplyColumnSizing();
};
