// The "Editor Font" page: the editor's font face (from the fonts of the
// platform, fixed-pitch ones only unless the user asks for all), size, style
// and effects, and the colours of normal and selected text, with a sample of
// both that follows every change. Written back on OK or Apply, after which
// every open editor reloads.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "pages/ColorComboBox2.h"
#include "platform/Font.h"
#include "platform/ListBox.h"
#include "platform/PropertyPage.h"
#include "platform/Static.h"

class TEXTZONE_EXPORT CEditorFontPage : public CPropertyPage {
public:
    // pSection null means "Editor".
    explicit CEditorFontPage(const char* pSection = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnControlNotify(int nID, int nCode) override;
    HBRUSH OnCtlColor(CDC* pDC, CDialogControl* pWnd, UINT nCtlColor) override;

    CListBox m_listFont;
    CListBox m_listStyle;
    CListBox m_listSize;
    CColorComboBox2 m_comboSelBack;
    CColorComboBox2 m_comboSelText;
    CColorComboBox2 m_comboNorText;
    CColorComboBox2 m_comboNorBack;
    CStatic m_sampleSel;
    CStatic m_sampleNor;
    std::string m_strFontName;
    int m_bUnderline = 0;
    int m_bStrikeOut = 0;
    int m_nFontSize = 0;
    int m_bBold = 0;
    int m_bItalic = 0;
    COLORREF m_crSelBack = 0;
    COLORREF m_crSelText = 0;
    COLORREF m_crNorBack = 0;
    COLORREF m_crNorText = 0;
    CFont m_sampleFont;
    VESK::String m_strSection;

private:
    // Fills the face list from the platform's fonts by the two filters.
    void EnumerateFonts(const char* pszFamily = nullptr);
    static int CALLBACK_EnumFace(const LOGFONTA* plf, const TEXTMETRICA* ptm, DWORD dwFontType,
                                 LPARAM lParam);
};
