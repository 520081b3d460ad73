// The "Editor Options" page: keyword case, word completion, blocks, margin,
// bookmarks, drag and drop, tabs and the syntax colours, read from the
// settings store when the page is built and written back on OK or Apply,
// after which every open editor reloads them. Two variants: PL/SQL with
// eight syntax colours, T-SQL with a ninth for identifiers.
#pragma once

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "pages/ColorComboBox2.h"
#include "platform/ListBox.h"
#include "platform/PropertyPage.h"
#include "platform/Static.h"

class TEXTZONE_EXPORT CEditorOptionPage : public CPropertyPage {
public:
    static constexpr int kMaxItems = 9;

    // bTSQL picks the T-SQL variant; pSection null means "Editor".
    explicit CEditorOptionPage(bool bTSQL = false, const char* pSection = nullptr);

    virtual void ReadSettings();
    virtual void WriteSettings();

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnControlNotify(int nID, int nCode) override;
    HBRUSH OnCtlColor(CDC* pDC, CDialogControl* pWnd, UINT nCtlColor) override;

    CListBox m_listItems;
    CStatic m_sample;
    int m_bUseSyntaxColor = 0;
    int m_nCurrentItem = -1;
    int m_bConvertTabs = 0;
    int m_nTabSize = 0;
    int m_bConvertLeadingSpace = 0;
    int m_bRemoveTailingSpace = 0;
    int m_bWordCompletion = 0;
    int m_bMarginMode = 0;
    int m_bBlockMode = 0;
    int m_bDragDrop = 0;
    CColorComboBox2 m_comboColor;
    CColorComboBox2 m_comboMargin;
    CColorComboBox2 m_comboBookmark;
    COLORREF m_crMargin = 0;
    COLORREF m_crBookmark = 0;
    unsigned int m_nKeywordMode = 0;
    VESK::String m_strSection;
    const char* m_labels[kMaxItems] = {};
    COLORREF m_crSyntax[kMaxItems] = {};
    int m_nItemCount = 8;

private:
    // The list's index, or entry 0 (selected again) when it is out of range.
    int CurrentItemChecked();
};
