#include "platform/ComboBox.h"

#include "platform/Messages.h"

int CComboBox::AddItem(DWORD_PTR dwData) {
    size_t nAt = m_items.size();
    if (GetItemStyle() & DIS_SORTED) {
        // After every item that does not sort after the new one.
        for (size_t i = 0; i < m_items.size(); ++i) {
            COMPAREITEMSTRUCT cis{ODT_COMBOBOX, static_cast<UINT>(GetDlgCtrlID()),
                                  this,         static_cast<UINT>(-1),
                                  dwData,       static_cast<UINT>(i),
                                  m_items[i]};
            if (CompareItem(&cis) < 0) {
                nAt = i;
                break;
            }
        }
    }
    m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(nAt), dwData);
    if (m_nCurSel >= static_cast<int>(nAt)) ++m_nCurSel;
    Invalidate();
    return static_cast<int>(nAt);
}

void CComboBox::ResetContent() {
    m_items.clear();
    m_nCurSel = -1;
    Invalidate();
}

int CComboBox::SetCurSel(int nSelect) {
    const bool bValid = nSelect >= 0 && nSelect < GetCount();
    m_nCurSel = bValid ? nSelect : -1;
    Invalidate();
    return bValid || nSelect == -1 ? m_nCurSel : CB_ERR;
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetCount()) return static_cast<DWORD_PTR>(CB_ERR);
    return m_items[static_cast<size_t>(nIndex)];
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwData) {
    if (nIndex < 0 || nIndex >= GetCount()) return CB_ERR;
    m_items[static_cast<size_t>(nIndex)] = dwData;
    Invalidate();
    return 0;
}

void CComboBox::DrawItemInto(CDC* pDC, int nIndex, const RECT& rc, bool bFocus) {
    if (nIndex < 0 || nIndex >= GetCount()) return;
    DRAWITEMSTRUCT dis{ODT_COMBOBOX,
                       static_cast<UINT>(GetDlgCtrlID()),
                       static_cast<UINT>(nIndex),
                       ODA_DRAWENTIRE,
                       bFocus ? ODS_FOCUS | ODS_SELECTED : 0u,
                       this,
                       pDC,
                       rc,
                       m_items[static_cast<size_t>(nIndex)]};
    DrawItem(&dis);
}

void CComboBox::UserSelect(int nIndex) {
    if (!IsWindowEnabled() || nIndex < 0 || nIndex >= GetCount()) return;
    m_nCurSel = nIndex;
    Invalidate();
    NotifyParent(CBN_SELCHANGE);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
