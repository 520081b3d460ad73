#include "platform/ListBox.h"

#include <strings.h>
#include <algorithm>

#include "platform/Messages.h"

int CListBox::AddString(const char* pszItem) {
    const std::string item = pszItem ? pszItem : "";
    auto it = m_items.end();
    if (GetItemStyle() & DIS_SORTED)
        it = std::upper_bound(m_items.begin(), m_items.end(), item,
                              [](const std::string& a, const std::string& b) {
                                  return strcasecmp(a.c_str(), b.c_str()) < 0;
                              });
    const int nIndex = static_cast<int>(it - m_items.begin());
    m_items.insert(it, item);
    if (m_nCurSel >= nIndex) ++m_nCurSel;
    Invalidate();
    return nIndex;
}

void CListBox::ResetContent() {
    m_items.clear();
    m_nCurSel = -1;
    Invalidate();
}

int CListBox::SetCurSel(int nSelect) {
    const bool bValid = nSelect >= 0 && nSelect < GetCount();
    m_nCurSel = bValid ? nSelect : -1;
    Invalidate();
    return bValid || nSelect == -1 ? m_nCurSel : LB_ERR;
}

std::string CListBox::GetText(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetCount()) return std::string();
    return m_items[static_cast<size_t>(nIndex)];
}

int CListBox::FindStringExact(int nStartAfter, const char* pszFind) const {
    const int n = GetCount();
    if (!pszFind || n == 0) return LB_ERR;
    const int nFirst = nStartAfter < 0 || nStartAfter >= n ? 0 : nStartAfter + 1;
    for (int k = 0; k < n; ++k) {
        const int i = (nFirst + k) % n;
        if (strcasecmp(m_items[static_cast<size_t>(i)].c_str(), pszFind) == 0) return i;
    }
    return LB_ERR;
}

void CListBox::UserSelect(int nIndex) {
    if (!IsWindowEnabled() || nIndex < 0 || nIndex >= GetCount()) return;
    m_nCurSel = nIndex;
    Invalidate();
    NotifyParent(LBN_SELCHANGE);
}
