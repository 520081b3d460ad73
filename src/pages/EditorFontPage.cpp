#include "pages/EditorFontPage.h"

#include <cstdlib>
#include <cstring>

#include "editor/EditorDefaults.h"
#include "host/AppDataManager.h"
#include "pages/PageDialogs.h"
#include "platform/DC.h"
#include "platform/DataExchange.h"
#include "platform/FontFamilies.h"
#include "platform/GdiObjects.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

CEditorFontPage::CEditorFontPage(const char* pSection)
    : CPropertyPage(GetEditorFontDialog()), m_strSection(pSection ? pSection : "Editor") {
    const char* pszSection = m_strSection.c_str();
    m_nFontSize = ReadSettingInt(pszSection, "FontSize", 14);
    m_bBold = ReadSettingInt(pszSection, "FontBold", 0);
    m_bItalic = ReadSettingInt(pszSection, "FontItalic", 0);
    m_bStrikeOut = ReadSettingInt(pszSection, "FontStrikeOut", 0);
    m_bUnderline = ReadSettingInt(pszSection, "FontUnderline", 0);
    m_strFontName = ReadSettingString(pszSection, "FontName", "Courier New");
    m_crSelBack = static_cast<COLORREF>(ReadSettingInt(pszSection, "FontSelBkgColor", -1));
    m_crSelText = static_cast<COLORREF>(ReadSettingInt(pszSection, "FontSelFrgColor", -1));
    m_crNorBack = static_cast<COLORREF>(ReadSettingInt(pszSection, "FontNorBkgColor", -1));
    m_crNorText = static_cast<COLORREF>(ReadSettingInt(pszSection, "FontNorFrgColor", -1));
}

BOOL CEditorFontPage::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    // "Default" comes after the selection here, so a stored -1 leaves the
    // combo empty until the user picks; it still reads as -1.
    struct {
        CColorComboBox2* pCombo;
        COLORREF cr;
    } combos[] = {{&m_comboSelBack, m_crSelBack},
                  {&m_comboSelText, m_crSelText},
                  {&m_comboNorText, m_crNorText},
                  {&m_comboNorBack, m_crNorBack}};
    for (auto& combo : combos) {
        combo.pCombo->AddColors();
        combo.pCombo->SelectColor(combo.cr);
        combo.pCombo->AddItem(static_cast<DWORD_PTR>(-1));
    }
    CheckDlgButton(1045, BST_UNCHECKED);
    CheckDlgButton(1046, BST_CHECKED);
    for (const char* pszStyle : {"Normal", "Italic", "Bold", "Bold Italic"})
        m_listStyle.AddString(pszStyle);
    for (int nSize = 6; nSize <= 48; ++nSize)
        m_listSize.AddString(std::to_string(nSize).c_str());
    m_listFont.ResetContent();
    EnumerateFonts();
    UpdateData(FALSE);
    UpdateData(TRUE);
    return TRUE;
}

int CEditorFontPage::CALLBACK_EnumFace(const LOGFONTA* plf, const TEXTMETRICA*, DWORD dwFontType,
                                       LPARAM lParam) {
    auto* pPage = reinterpret_cast<CEditorFontPage*>(lParam);
    if (pPage->IsDlgButtonChecked(1045) && !(dwFontType & TRUETYPE_FONTTYPE)) return 1;
    if (pPage->IsDlgButtonChecked(1046) && !(plf->lfPitchAndFamily & FIXED_PITCH)) return 1;
    if (pPage->m_listFont.FindStringExact(-1, plf->lfFaceName) == LB_ERR)
        pPage->m_listFont.AddString(plf->lfFaceName);
    return 1;
}

void CEditorFontPage::EnumerateFonts(const char* pszFamily) {
    std::unique_ptr<CDC> pDC;
    if (IPlatform* pPlatform = GetPlatform()) pDC = pPlatform->CreateDisplayDC();
    EnumFontFamiliesA(pDC.get(), pszFamily, &CALLBACK_EnumFace, reinterpret_cast<LPARAM>(this));
}

void CEditorFontPage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
    std::string strSize = std::to_string(m_nFontSize);
    int nStyle = 2 * (m_bBold ? 1 : 0) + (m_bItalic ? 1 : 0);
    DDX_Control(pDX, 1001, m_listFont);
    DDX_Control(pDX, 1000, m_listStyle);
    DDX_Control(pDX, 1002, m_listSize);
    DDX_Control(pDX, 1052, m_comboSelBack);
    DDX_Control(pDX, 1051, m_comboSelText);
    DDX_Control(pDX, 1047, m_comboNorText);
    DDX_Control(pDX, 1048, m_comboNorBack);
    DDX_Control(pDX, 1049, m_sampleSel);
    DDX_Control(pDX, 1040, m_sampleNor);
    DDX_LBString(pDX, 1001, m_strFontName);
    DDX_Check(pDX, 1043, m_bStrikeOut);
    DDX_Check(pDX, 1044, m_bUnderline);
    DDX_LBIndex(pDX, 1000, nStyle);
    DDX_LBString(pDX, 1002, strSize);
    m_bBold = nStyle >= 0 ? nStyle / 2 : 0;
    m_bItalic = nStyle >= 0 ? nStyle % 2 : 0;
    if (!pDX->m_bSaveAndValidate) return;

    m_crSelBack = m_comboSelBack.GetSelectedColor();
    m_crSelText = m_comboSelText.GetSelectedColor();
    m_crNorBack = m_comboNorBack.GetSelectedColor();
    m_crNorText = m_comboNorText.GetSelectedColor();
    // The number on the list is a character height in pixels, not points.
    m_nFontSize = std::atoi(strSize.c_str());
    LOGFONTA lf{};
    lf.lfHeight = -m_nFontSize;
    lf.lfWeight = m_bBold ? FW_BOLD : FW_NORMAL;
    lf.lfItalic = static_cast<BYTE>(m_bItalic);
    lf.lfUnderline = static_cast<BYTE>(m_bUnderline);
    lf.lfStrikeOut = static_cast<BYTE>(m_bStrikeOut);
    std::strncpy(lf.lfFaceName, m_strFontName.c_str(), sizeof lf.lfFaceName - 1);
    if (m_sampleFont.GetSafeHandle()) {
        HFONT hSystem = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
        m_sampleSel.SetFont(hSystem, FALSE);
        m_sampleNor.SetFont(hSystem, FALSE);
        m_sampleFont.DeleteObject();
    }
    m_sampleFont.CreateFontIndirect(&lf);
    m_sampleSel.SetFont(&m_sampleFont, TRUE);
    m_sampleNor.SetFont(&m_sampleFont, TRUE);
}

void CEditorFontPage::OnOK() {
    const char* pszSection = m_strSection.c_str();
    WriteSettingString(pszSection, "FontName", m_strFontName.c_str());
    WriteSettingInt(pszSection, "FontSize", m_nFontSize);
    WriteSettingInt(pszSection, "FontBold", m_bBold);
    WriteSettingInt(pszSection, "FontItalic", m_bItalic);
    WriteSettingInt(pszSection, "FontStrikeOut", m_bStrikeOut);
    WriteSettingInt(pszSection, "FontUnderline", m_bUnderline);
    WriteSettingInt(pszSection, "FontSelBkgColor", static_cast<int>(m_crSelBack));
    WriteSettingInt(pszSection, "FontSelFrgColor", static_cast<int>(m_crSelText));
    WriteSettingInt(pszSection, "FontNorBkgColor", static_cast<int>(m_crNorBack));
    WriteSettingInt(pszSection, "FontNorFrgColor", static_cast<int>(m_crNorText));
    CPropertyPage::OnOK();
    SetModified(FALSE);
    CancelToClose();
    CEditorDefaults::BroadcastSettingsChanged();
}

void CEditorFontPage::OnControlNotify(int nID, int nCode) {
    switch (nID) {
        case 1001:
            if (nCode != LBN_SELCHANGE) return;
            UpdateData(TRUE);
            // Enumerating the chosen face again changes nothing: it is listed.
            EnumerateFonts(m_strFontName.c_str());
            SetModified(TRUE);
            return;
        case 1000:
        case 1002:
            if (nCode != LBN_SELCHANGE) return;
            UpdateData(TRUE);
            SetModified(TRUE);
            return;
        case 1047:
        case 1048:
        case 1051:
        case 1052:
            if (nCode != CBN_SELCHANGE) return;
            UpdateData(TRUE);
            SetModified(TRUE);
            return;
        case 1043:
        case 1044:
            if (nCode != BN_CLICKED) return;
            UpdateData(TRUE);
            SetModified(TRUE);
            return;
        case 1045:
        case 1046:
            if (nCode != BN_CLICKED) return;
            m_listFont.ResetContent();
            EnumerateFonts();
            UpdateData(FALSE);
            UpdateData(TRUE);
            return;
        default:
            return;
    }
}

HBRUSH CEditorFontPage::OnCtlColor(CDC* pDC, CDialogControl* pWnd, UINT nCtlColor) {
    HBRUSH hBrush = CPropertyPage::OnCtlColor(pDC, pWnd, nCtlColor);
    const int nID = pWnd ? pWnd->GetDlgCtrlID() : 0;
    const COLORREF kDefault = static_cast<COLORREF>(-1);
    if (nID == 1040) {
        pDC->SetBkMode(OPAQUE);
        pDC->SetTextColor(m_crNorText == kDefault ? GetSysColor(COLOR_WINDOWTEXT) : m_crNorText);
        pDC->SetBkColor(m_crNorBack == kDefault ? GetSysColor(COLOR_WINDOW) : m_crNorBack);
    } else if (nID == 1049) {
        pDC->SetBkMode(OPAQUE);
        pDC->SetTextColor(m_crSelText == kDefault ? GetSysColor(COLOR_HIGHLIGHTTEXT) : m_crSelText);
        pDC->SetBkColor(m_crSelBack == kDefault ? GetSysColor(COLOR_HIGHLIGHT) : m_crSelBack);
    }
    return hBrush;
}
