#include "platform/ListCtrl.h"

#include <algorithm>
#include <cstring>

#include "platform/Messages.h"

int CListCtrl::InsertColumn(int nCol, const char* pszHeading, int nFormat, int nWidth) {
    nCol = std::clamp(nCol, 0, GetColumnCount());
    m_columns.insert(m_columns.begin() + nCol,
                     Column{pszHeading ? pszHeading : "", nFormat, nWidth});
    for (Row& row : m_rows)
        if (static_cast<int>(row.texts.size()) > nCol)
            row.texts.insert(row.texts.begin() + nCol, std::string());
    Invalidate();
    return nCol;
}

int CListCtrl::GetColumnWidth(int nCol) const {
    if (nCol < 0 || nCol >= GetColumnCount()) return 0;
    return m_columns[static_cast<size_t>(nCol)].nWidth;
}

BOOL CListCtrl::SetColumnWidth(int nCol, int nWidth) {
    if (nCol < 0 || nCol >= GetColumnCount()) return FALSE;
    m_columns[static_cast<size_t>(nCol)].nWidth = std::max(0, nWidth);
    Invalidate();
    return TRUE;
}

int CListCtrl::InsertItem(int nItem, const char* pszItem) {
    nItem = std::clamp(nItem, 0, GetItemCount());
    Row row;
    row.texts.resize(std::max<size_t>(1, m_columns.size()));
    row.texts[0] = pszItem ? pszItem : "";
    m_rows.insert(m_rows.begin() + nItem, std::move(row));
    Invalidate();
    return nItem;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, const char* pszText) {
    if (!ValidRow(nItem) || nSubItem < 0 || nSubItem >= std::max(1, GetColumnCount())) return FALSE;
    Row& row = m_rows[static_cast<size_t>(nItem)];
    if (static_cast<int>(row.texts.size()) <= nSubItem)
        row.texts.resize(static_cast<size_t>(nSubItem) + 1);
    row.texts[static_cast<size_t>(nSubItem)] = pszText ? pszText : "";
    Invalidate();
    return TRUE;
}

int CListCtrl::GetItemText(int nItem, int nSubItem, char* pBuffer, int nLen) const {
    if (!pBuffer || nLen <= 0) return 0;
    const std::string text = GetItemText(nItem, nSubItem);
    const int n = std::min(static_cast<int>(text.size()), nLen - 1);
    std::memcpy(pBuffer, text.data(), static_cast<size_t>(n));
    pBuffer[n] = 0;
    return n;
}

std::string CListCtrl::GetItemText(int nItem, int nSubItem) const {
    if (!ValidRow(nItem) || nSubItem < 0) return std::string();
    const Row& row = m_rows[static_cast<size_t>(nItem)];
    return nSubItem < static_cast<int>(row.texts.size()) ? row.texts[static_cast<size_t>(nSubItem)]
                                                         : std::string();
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    if (!ValidRow(nItem)) return FALSE;
    m_rows[static_cast<size_t>(nItem)].dwData = dwData;
    return TRUE;
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    return ValidRow(nItem) ? m_rows[static_cast<size_t>(nItem)].dwData : 0;
}

BOOL CListCtrl::DeleteItem(int nItem) {
    if (!ValidRow(nItem)) return FALSE;
    m_rows.erase(m_rows.begin() + nItem);
    Invalidate();
    return TRUE;
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const {
    for (int i = std::max(0, nItem + 1); i < GetItemCount(); ++i) {
        const UINT nState = m_rows[static_cast<size_t>(i)].nState;
        if ((nFlags & LVNI_SELECTED) && !(nState & LVIS_SELECTED)) continue;
        if ((nFlags & LVNI_FOCUSED) && !(nState & LVIS_FOCUSED)) continue;
        return i;
    }
    return -1;
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    if (nItem != -1 && !ValidRow(nItem)) return FALSE;
    std::vector<int> changed;
    for (int i = 0; i < GetItemCount(); ++i) {
        if (nItem != -1 && i != nItem) continue;
        Row& row = m_rows[static_cast<size_t>(i)];
        const UINT nNew = (row.nState & ~nMask) | (nState & nMask);
        if (nNew == row.nState) continue;
        row.nState = nNew;
        changed.push_back(i);
    }
    if (!changed.empty()) Invalidate();
    for (size_t k = 0; k < changed.size(); ++k)
        NotifyParent(LVN_ITEMCHANGED);
    return TRUE;
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const {
    return ValidRow(nItem) ? m_rows[static_cast<size_t>(nItem)].nState & nMask : 0;
}

void CListCtrl::UserSelectRow(int nItem) {
    if (!IsWindowEnabled() || !ValidRow(nItem)) return;
    // Single selection: the old row loses it, then the new one gains it.
    for (int i = 0; i < GetItemCount(); ++i)
        if (i != nItem) SetItemState(i, 0, LVIS_SELECTED | LVIS_FOCUSED);
    SetItemState(nItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void CListCtrl::UserSetColumnWidth(int nCol, int nWidth) {
    SetColumnWidth(nCol, nWidth);
}
