// A drop-down list of owner-drawn items without strings: each item is its
// data. A sorted combo places a new item by asking CompareItem; drawing an
// item is DrawItem's. A derived class gives both.
#pragma once

#include <vector>

#include "TextzoneExport.h"
#include "platform/DialogControl.h"
#include "platform/OwnerDraw.h"

class TEXTZONE_EXPORT CComboBox : public CDialogControl {
public:
    // Adds an item with this data; returns its index.
    int AddItem(DWORD_PTR dwData);
    void ResetContent();
    int GetCount() const { return static_cast<int>(m_items.size()); }
    int GetCurSel() const { return m_nCurSel; }
    // -1 clears the selection; out of range clears it and gives CB_ERR.
    int SetCurSel(int nSelect);
    // CB_ERR (as data) for an index out of range.
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwData);

    // The item drawn into a context of the given size, as the list and the
    // closed combo show it; bFocus draws it as the focused item.
    void DrawItemInto(CDC* pDC, int nIndex, const RECT& rc, bool bFocus);

    // The user picks an item: the page hears CBN_SELCHANGE.
    void UserSelect(int nIndex);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    // Below 0 when item 1 goes first, 0 when equal, above 0 otherwise.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);

private:
    std::vector<DWORD_PTR> m_items;
    int m_nCurSel = -1;
};
