// The extended view's set-up, its settings and its text insertion.
#include "editor/EditorViewEx.h"

#include "editor/EditorInput.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "zones/TextZoneParam.h"

CEditorViewEx::CEditorViewEx(CTextZoneParam* pZone) : m_pParamZone(pZone) {
    if (!m_pParamZone) {
        m_pParamZone = new CTextZoneParam;
        m_bOwnParamZone = 1;
    }
    SetTextZone(m_pParamZone);
}

CEditorViewEx::~CEditorViewEx() {
    // The window goes while the zone still stands.
    DestroyWindow();
    if (m_bOwnParamZone)
        delete m_pParamZone;
    else if (m_pParamZone->GetWindow() == this)
        m_pParamZone->SetWindow(nullptr);
    m_pParamZone = nullptr;
    m_pZone = nullptr;
}

CEditorViewEx* CEditorViewEx::CreateObject() {
    return new CEditorViewEx(nullptr);
}

int CEditorViewEx::OnCreate(CREATESTRUCT* pcs) {
    int nResult = CEditorView::OnCreate(pcs);
    if (nResult == -1) return -1;
    m_pDefFont = std::make_unique<CFont>();
    OnLoadIniSetting(0, 0);
    return nResult;
}

void CEditorViewEx::OnInitialUpdate() {
    OnLoadIniSetting(0, 0);
    CEditorView::OnInitialUpdate();
}

int CEditorViewEx::OnFontSize(unsigned int) {
    OnLoadIniSetting(0, 0);
    return 1;
}

LRESULT CEditorViewEx::OnLoadIniSetting(WPARAM wParam, LPARAM) {
    return LoadIniSetting(wParam);
}

LRESULT CEditorViewEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT s_nLoadIni = RegisterWindowMessageA("EditExLoadIniMessage");
    if (message == s_nLoadIni) return OnLoadIniSetting(wParam, lParam);
    return CEditorView::WindowProc(message, wParam, lParam);
}

int CEditorViewEx::InsertText(const VESK::String& text, int nFlag, int bRegister, int bModified,
                              int nAtLine) {
    return InsertHostText(this, m_pParamZone, text.c_str(), nFlag, bRegister, bModified, nAtLine);
}
