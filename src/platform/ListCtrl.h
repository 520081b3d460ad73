// A list in report view: columns with a header, rows of texts, one word of
// data and a state per row. Changes of a row's state tell the page
// LVN_ITEMCHANGED, once per row that changed.
#pragma once

#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/DialogControl.h"
#include "platform/OwnerDraw.h"

constexpr int LVCFMT_LEFT = 0;

class TEXTZONE_EXPORT CListCtrl : public CDialogControl {
public:
    struct Column {
        std::string strTitle;
        int nFormat;
        int nWidth;
    };

    int InsertColumn(int nCol, const char* pszHeading, int nFormat, int nWidth);
    int GetColumnCount() const { return static_cast<int>(m_columns.size()); }
    int GetColumnWidth(int nCol) const;
    BOOL SetColumnWidth(int nCol, int nWidth);
    const Column& GetColumn(int nCol) const { return m_columns[static_cast<size_t>(nCol)]; }

    int InsertItem(int nItem, const char* pszItem);
    BOOL SetItemText(int nItem, int nSubItem, const char* pszText);
    // Copies at most nLen - 1 bytes; returns the count copied.
    int GetItemText(int nItem, int nSubItem, char* pBuffer, int nLen) const;
    std::string GetItemText(int nItem, int nSubItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL DeleteItem(int nItem);
    int GetItemCount() const { return static_cast<int>(m_rows.size()); }
    // The next row after nItem (-1: from the top) with the flags, LVNI_ALL
    // for any; -1 if none.
    int GetNextItem(int nItem, int nFlags) const;
    // nItem -1 sets the state of every row.
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    UINT GetItemState(int nItem, UINT nMask) const;

    // The user clicks a row (selection is single) or drags a column divider.
    void UserSelectRow(int nItem);
    void UserSetColumnWidth(int nCol, int nWidth);

private:
    struct Row {
        std::vector<std::string> texts;
        DWORD_PTR dwData = 0;
        UINT nState = 0;
    };
    bool ValidRow(int nItem) const { return nItem >= 0 && nItem < GetItemCount(); }

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
};
