// A report list whose columns come from one header string, whose rows are
// tab-separated texts, and whose proportional columns share out the width
// when the list is resized, keeping the ratio the user last dragged them to.
// Header string: columns separated by TAB, each "<title>;<width>" or
// "<title>;P<width>" (proportional), widths in dialog units.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/ListCtrl.h"

class TEXTZONE_EXPORT CListCtrlEx : public CListCtrl {
public:
    ~CListCtrlEx() override;

    // Builds the columns once; a second call does nothing.
    void SetColumns(const char* pHeader);
    // Rows from tab-separated text. Parts beyond the last column are kept,
    // tabs and all, as the row's hidden extra text.
    int AddRow(const char* pText);
    int InsertRow(int nIndex, const char* pText);
    void SetRow(int nIndex, const char* pText);
    // The row as tab-separated text into pBuffer (each column cut at 255
    // bytes, as the list hands them out); returns its length.
    int GetRowText(int nIndex, char* pBuffer);
    std::string GetRowText(int nIndex);
    void DeleteRow(int nIndex);
    int GetSelectedRow() const;
    int GetRowCount() const { return GetItemCount(); }
    void SelectRow(int nIndex);

    int m_nColumns = 0;
    std::list<std::unique_ptr<std::string>> m_extraList;
    std::vector<int> m_pProportional;
    std::vector<int> m_pWidths;
    std::vector<int> m_pBaseWidths;
    int m_nBaseWidth = 0;
    int m_nClientWidth = 0;

protected:
    void OnSize(UINT nType, int cx, int cy) override;

private:
    void FillRow(int nIndex, const char* pText);
    void FreeExtra(int nIndex);
    static bool s_bInSize;
};
