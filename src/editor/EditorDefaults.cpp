#include "editor/EditorDefaults.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "host/AppDataManager.h"
#include "platform/GdiObjects.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "zones/TextZoneParam.h"

const char* const CEditorDefaults::kSyntaxColorKeys[kSyntaxColorCount] = {
    "Comment",  "KeyWord1", "KeyWord2", "KeyWord3", "KeyWord4",
    "KeyWord5", "KeyWord6", "String",   "Variable"};
const char* const CEditorDefaults::kSyntaxColorDefaults[kSyntaxColorCount] = {
    "000,127,000", "000,000,255", "000,127,127", "000,000,127", "127,000,000",
    "000,000,255", "000,000,255", "255,000,255", "255,000,000"};

CEditorDefaults::~CEditorDefaults() = default;

int CEditorDefaults::ReadInt(const char* pszKey, int nDefault) {
    return ReadSettingInt(m_strSection.c_str(), pszKey, nDefault);
}

LOGFONTA* CEditorDefaults::GetDefFont() {
    static LOGFONTA lf;
    lf = LOGFONTA{};
    lf.lfHeight = -ReadInt("FontSize", 14);
    lf.lfWeight = ReadInt("FontBold", 0) ? FW_BOLD : FW_NORMAL;
    lf.lfItalic = static_cast<BYTE>(ReadInt("FontItalic", 0));
    lf.lfUnderline = static_cast<BYTE>(ReadInt("FontUnderline", 0));
    lf.lfStrikeOut = static_cast<BYTE>(ReadInt("FontStrikeOut", 0));
    std::string strFace = ReadSettingString(m_strSection.c_str(), "FontName", "Courier New");
    std::strncpy(lf.lfFaceName, strFace.c_str(), sizeof lf.lfFaceName - 1);
    return &lf;
}

int CEditorDefaults::GetDefTabSize() {
    return ReadInt("TabSize", 4);
}
int CEditorDefaults::GetDefTabConvert() {
    return ReadInt("ConvertTabs", 0);
}
int CEditorDefaults::GetDefWordCompletion() {
    return ReadInt("WordCompletion", 1);
}
int CEditorDefaults::GetDefKeywordMode() {
    return ReadInt("KeywordMode", 0);
}
int CEditorDefaults::GetDefDragDropFlag() {
    return ReadInt("DragDropEdit", 1);
}
int CEditorDefaults::GetDefMarginMode() {
    return ReadInt("MarginMode", 0);
}
int CEditorDefaults::GetDefBlockMode() {
    return ReadInt("BlockMode", 0);
}
COLORREF CEditorDefaults::GetDefMarginColor() {
    return static_cast<COLORREF>(ReadInt("MarginBkgColor", 0xD0D0D0));
}
COLORREF CEditorDefaults::GetDefBookmarkColor() {
    return static_cast<COLORREF>(ReadInt("BookmarkColor", 0x800000));
}
COLORREF CEditorDefaults::GetDefTextColor() {
    return static_cast<COLORREF>(ReadInt("FontNorFrgColor", -1));
}
COLORREF CEditorDefaults::GetDefBackgroundColor() {
    return static_cast<COLORREF>(ReadInt("FontNorBkgColor", -1));
}
COLORREF CEditorDefaults::GetDefSelectedTextColor() {
    return static_cast<COLORREF>(ReadInt("FontSelFrgColor", -1));
}
COLORREF CEditorDefaults::GetDefSelectedBkgColor() {
    return static_cast<COLORREF>(ReadInt("FontSelBkgColor", -1));
}
int CEditorDefaults::GetDefSyntaxColorEnable() {
    return ReadInt("UseSyntaxColor", 1);
}
int CEditorDefaults::GetDefSyntaxColorLang() {
    return 10;  // the SQL dialect the ready-made editors colour by default
}
int CEditorDefaults::GetDefShortcutsEnable() {
    return ReadInt("EnableShortcuts", 1);
}

COLORREF CEditorDefaults::GetDefSyntaxColor(int nIndex) {
    if (nIndex < 0 || nIndex >= kSyntaxColorCount) return 0;
    std::string strValue = ReadSettingString(m_strSection.c_str(), kSyntaxColorKeys[nIndex],
                                             kSyntaxColorDefaults[nIndex]);
    return ParseColor(strValue.c_str());
}

void CEditorDefaults::BroadcastSettingsChanged(const char* pszSection) {
    CWnd::SendMessageToAllWindows(RegisterWindowMessageA("EditExLoadIniMessage"),
                                  reinterpret_cast<WPARAM>(pszSection), 0);
}

COLORREF CEditorDefaults::ParseColor(const char* pszText) {
    int rgb[3] = {0, 0, 0};
    if (pszText) std::sscanf(pszText, "%d,%d,%d", &rgb[0], &rgb[1], &rgb[2]);
    return RGB(rgb[0], rgb[1], rgb[2]);
}

BOOL CEditorDefaults::ApplyFontAndBehaviour() {
    // The zone must not hold the old font while it goes.
    CFont stock;
    stock.Attach(reinterpret_cast<HFONT>(GetStockObject(SYSTEM_FIXED_FONT)));
    SetSettingsFont(&stock, 0);
    stock.Detach();
    m_pDefFont = std::make_unique<CFont>();
    if (!m_pDefFont->CreateFontIndirect(GetDefFont())) return FALSE;

    CTextZoneParam* pZone = GetSettingsZone();
    SetSettingsFont(m_pDefFont.get(), 1);
    pZone->SetTabWidth(-std::abs(GetDefTabSize()));
    pZone->SetTabConvert(GetDefTabConvert());
    pZone->SetWordCompletion(static_cast<unsigned int>(GetDefWordCompletion()));
    pZone->SetKeywordMode(static_cast<unsigned int>(GetDefKeywordMode()), 1);
    pZone->SetDragDropFlag(GetDefDragDropFlag());
    pZone->SetMarginMode(GetDefMarginMode());
    pZone->SetBlockMode(GetDefBlockMode());
    pZone->SetMarginColor(GetDefMarginColor());
    pZone->SetColors(GetDefTextColor(), GetDefBackgroundColor(), GetDefSelectedTextColor(),
                     GetDefSelectedBkgColor());
    pZone->SetBookmarkColor(GetDefBookmarkColor(), 0);
    return TRUE;
}

void CEditorDefaults::ApplySyntaxColors() {
    CTextZoneParam* pZone = GetSettingsZone();
    if (!GetDefSyntaxColorEnable()) {
        pZone->SetSQLSyntaxColor(0);
        return;
    }
    pZone->SetSQLSyntaxColor(static_cast<unsigned int>(GetDefSyntaxColorLang()));
    for (int i = 0; i < kSyntaxColorCount; ++i)
        pZone->SetSyntaxColor(static_cast<unsigned int>(i + 1), GetDefSyntaxColor(i));
}

LRESULT CEditorDefaults::LoadIniSetting(WPARAM wParam) {
    if (wParam) m_strSection = reinterpret_cast<const char*>(wParam);
    if (ApplyFontAndBehaviour()) {
        COLORREF crBack = GetDefBackgroundColor();
        SetSettingsBackground(crBack == static_cast<COLORREF>(-1) ? GetSysColor(COLOR_WINDOW)
                                                                   : crBack);
    }
    ApplySyntaxColors();
    GetSettingsZone()->EnableShortcuts(GetDefShortcutsEnable());
    if (CWnd* pWnd = GetSettingsWindow()) pWnd->InvalidateRect(nullptr, TRUE);
    return 0;
}
