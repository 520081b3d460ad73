// A list of strings with one selection. A sorted list inserts each string
// in case-insensitive order; searches are case-insensitive too, as the
// list box's own are.
#pragma once

#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/DialogControl.h"

class TEXTZONE_EXPORT CListBox : public CDialogControl {
public:
    int AddString(const char* pszItem);
    void ResetContent();
    int GetCount() const { return static_cast<int>(m_items.size()); }
    // -1 (LB_ERR) when nothing is selected.
    int GetCurSel() const { return m_nCurSel; }
    // -1 clears the selection; an index out of range clears it and gives LB_ERR.
    int SetCurSel(int nSelect);
    std::string GetText(int nIndex) const;
    // The first item after nStartAfter (-1: from the top) equal to the text
    // whatever its case, searching round; LB_ERR if none.
    int FindStringExact(int nStartAfter, const char* pszFind) const;
    const std::vector<std::string>& Items() const { return m_items; }

    // The user selects an item: the page hears LBN_SELCHANGE.
    void UserSelect(int nIndex);

private:
    std::vector<std::string> m_items;
    int m_nCurSel = -1;
};
