#include "pages/EditorOptionPage.h"

#include <cstdio>

#include "editor/EditorDefaults.h"
#include "host/AppDataManager.h"
#include "pages/PageDialogs.h"
#include "platform/DC.h"
#include "platform/DataExchange.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

CEditorOptionPage::CEditorOptionPage(bool bTSQL, const char* pSection)
    : CPropertyPage(GetEditorOptionsDialog()),
      m_strSection(pSection ? pSection : "Editor"),
      m_nItemCount(bTSQL ? 9 : 8) {
    static const char* const kLabels[kMaxItems] = {"Comments",
                                                   nullptr,
                                                   "System datatypes",
                                                   "Standard SQL keywords",
                                                   "Built-in functions",
                                                   "Minor SQL keywords",
                                                   "Special SQL keywords",
                                                   "Strings",
                                                   "Identifier"};
    for (int i = 0; i < kMaxItems; ++i)
        m_labels[i] = kLabels[i];
    m_labels[1] = bTSQL ? "T-SQL keywords" : "PL/SQL keywords";
    ReadSettings();
}

void CEditorOptionPage::ReadSettings() {
    const char* pszSection = m_strSection.c_str();
    m_bConvertTabs = ReadSettingInt(pszSection, "ConvertTabs", 0);
    m_bMarginMode = ReadSettingInt(pszSection, "MarginMode", 0);
    m_bBlockMode = ReadSettingInt(pszSection, "BlockMode", 0);
    m_bDragDrop = ReadSettingInt(pszSection, "DragDropEdit", 1);
    m_crMargin = static_cast<COLORREF>(ReadSettingInt(pszSection, "MarginBkgColor", 0xD0D0D0));
    m_crBookmark = static_cast<COLORREF>(ReadSettingInt(pszSection, "BookmarkColor", 0x800000));
    m_nKeywordMode = static_cast<unsigned int>(ReadSettingInt(pszSection, "KeywordMode", 0));
    m_nTabSize = ReadSettingInt(pszSection, "TabSize", 4);
    m_bConvertLeadingSpace = ReadSettingInt(pszSection, "ConvertLeadingSpace", 0);
    m_bRemoveTailingSpace = ReadSettingInt(pszSection, "RemoveTailingSpace", 0);
    m_bWordCompletion = ReadSettingInt(pszSection, "WordCompletion", 1);
    m_bUseSyntaxColor = ReadSettingInt(pszSection, "UseSyntaxColor", 1);
    // All nine whatever the variant, so the T-SQL colour survives a PL/SQL page.
    for (int i = 0; i < kMaxItems; ++i) {
        const std::string strValue =
            ReadSettingString(pszSection, CEditorDefaults::kSyntaxColorKeys[i],
                              CEditorDefaults::kSyntaxColorDefaults[i]);
        m_crSyntax[i] = CEditorDefaults::ParseColor(strValue.c_str());
    }
}

void CEditorOptionPage::WriteSettings() {
    const char* pszSection = m_strSection.c_str();
    WriteSettingInt(pszSection, "MarginMode", m_bMarginMode);
    WriteSettingInt(pszSection, "BlockMode", m_bBlockMode);
    WriteSettingInt(pszSection, "DragDropEdit", m_bDragDrop);
    WriteSettingInt(pszSection, "MarginBkgColor", static_cast<int>(m_crMargin));
    WriteSettingInt(pszSection, "BookmarkColor", static_cast<int>(m_crBookmark));
    WriteSettingInt(pszSection, "KeywordMode", static_cast<int>(m_nKeywordMode));
    WriteSettingInt(pszSection, "ConvertTabs", m_bConvertTabs);
    WriteSettingInt(pszSection, "TabSize", m_nTabSize);
    WriteSettingInt(pszSection, "ConvertLeadingSpace", m_bConvertLeadingSpace);
    WriteSettingInt(pszSection, "RemoveTailingSpace", m_bRemoveTailingSpace);
    WriteSettingInt(pszSection, "WordCompletion", m_bWordCompletion);
    WriteSettingInt(pszSection, "UseSyntaxColor", m_bUseSyntaxColor);
    // The bytes as they stand: "Default" (-1) goes out as 255,255,255, and
    // so reads back as white.
    for (int i = 0; i < kMaxItems; ++i) {
        char szValue[40];
        std::snprintf(szValue, sizeof szValue, "%d,%d,%d", GetRValue(m_crSyntax[i]),
                      GetGValue(m_crSyntax[i]), GetBValue(m_crSyntax[i]));
        WriteSettingString(pszSection, CEditorDefaults::kSyntaxColorKeys[i], szValue);
    }
}

BOOL CEditorOptionPage::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    m_comboMargin.AddColors();
    m_comboMargin.SelectColor(m_crMargin);
    m_comboBookmark.AddColors();
    m_comboBookmark.SelectColor(m_crBookmark);
    m_comboColor.AddColors();
    m_comboColor.AddItem(static_cast<DWORD_PTR>(-1));

    for (int i = 0; i < m_nItemCount; ++i)
        m_listItems.AddString(m_labels[i]);
    m_listItems.SetCurSel(0);
    m_comboColor.SelectColor(m_crSyntax[0]);

    // A stored mode above 3 checks none.
    CheckRadioButton(1030, 1033, 1030 + static_cast<int>(m_nKeywordMode > 3 ? 4 : m_nKeywordMode));
    SetModified(FALSE);
    return TRUE;
}

void CEditorOptionPage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, 1005, m_listItems);
    DDX_Control(pDX, 1041, m_sample);
    DDX_Control(pDX, 1006, m_comboColor);
    DDX_Control(pDX, 1039, m_comboMargin);
    DDX_Control(pDX, 1040, m_comboBookmark);
    DDX_Check(pDX, 1007, m_bUseSyntaxColor);
    DDX_LBIndex(pDX, 1005, m_nCurrentItem);
    DDX_Check(pDX, 1019, m_bConvertTabs);
    DDX_Text(pDX, 1017, m_nTabSize);
    DDX_Check(pDX, 1020, m_bConvertLeadingSpace);
    DDX_Check(pDX, 1021, m_bRemoveTailingSpace);
    DDX_Check(pDX, 1029, m_bWordCompletion);
    DDX_Check(pDX, 1034, m_bMarginMode);
    DDX_Check(pDX, 1014, m_bBlockMode);
    DDX_Check(pDX, 1035, m_bDragDrop);
    // Read back through the palette, so an untouched odd colour comes back
    // as its nearest palette entry.
    if (pDX->m_bSaveAndValidate) {
        m_crMargin = m_comboMargin.GetSelectedColor();
        m_crBookmark = m_comboBookmark.GetSelectedColor();
    }
}

void CEditorOptionPage::OnOK() {
    WriteSettings();
    CPropertyPage::OnOK();
    SetModified(FALSE);
    CancelToClose();
    CEditorDefaults::BroadcastSettingsChanged();
}

int CEditorOptionPage::CurrentItemChecked() {
    // The list can't give m_nItemCount; the test lets it pass all the same.
    if (m_nCurrentItem < 0 || m_nCurrentItem > m_nItemCount || m_nCurrentItem >= kMaxItems) {
        m_listItems.SetCurSel(0);
        m_nCurrentItem = 0;
    }
    return m_nCurrentItem;
}

void CEditorOptionPage::OnControlNotify(int nID, int nCode) {
    switch (nID) {
        case 1030:
        case 1031:
        case 1032:
        case 1033:
            if (nCode != BN_CLICKED) return;
            SetModified(TRUE);
            m_nKeywordMode = static_cast<unsigned int>(nID - 1030);
            return;
        case 1005:
            if (nCode != LBN_SELCHANGE) return;
            m_nCurrentItem = m_listItems.GetCurSel();
            m_comboColor.SelectColor(m_crSyntax[CurrentItemChecked()]);
            m_sample.Invalidate();
            return;
        case 1006:
            if (nCode != CBN_SELCHANGE) return;
            SetModified(TRUE);
            m_nCurrentItem = m_listItems.GetCurSel();
            m_crSyntax[CurrentItemChecked()] = m_comboColor.GetSelectedColor();
            m_sample.Invalidate();
            return;
        case 1039:
        case 1040:
            if (nCode == CBN_SELCHANGE) SetModified(TRUE);
            return;
        case 1007:
        case 1019:
        case 1020:
        case 1021:
        case 1029:
        case 1034:
        case 1014:
        case 1035:
            if (nCode == BN_CLICKED) SetModified(TRUE);
            return;
        case 1017:
            if (nCode == EN_CHANGE) SetModified(TRUE);
            return;
        default:
            return;
    }
}

HBRUSH CEditorOptionPage::OnCtlColor(CDC* pDC, CDialogControl* pWnd, UINT nCtlColor) {
    HBRUSH hBrush = CPropertyPage::OnCtlColor(pDC, pWnd, nCtlColor);
    if (pWnd && pWnd->GetDlgCtrlID() == 1041) {
        // Until the list has been read the current item is -1: show entry 0,
        // which the list has selected.
        const int nItem = m_nCurrentItem >= 0 && m_nCurrentItem < kMaxItems ? m_nCurrentItem : 0;
        pDC->SetBkMode(OPAQUE);
        pDC->SetTextColor(m_crSyntax[nItem] == static_cast<COLORREF>(-1)
                              ? GetSysColor(COLOR_WINDOWTEXT)
                              : m_crSyntax[nItem]);
    }
    return hBrush;
}
