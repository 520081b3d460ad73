// The extended control's life: construction over a keyword-converting zone,
// the settings at creation and on every broadcast, and text in and out.
#include "editor/EditorEx.h"

#include <string>
#include <vector>

#include "editor/EditorInput.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "zones/TextZoneParam.h"

namespace {

// Keeps a plain text field within what the classic edit control holds.
constexpr LONG kLimitedTextLength = 32000;

CTextZoneParam* ZoneOrNew(CTextZoneParam* pZone) {
    return pZone ? pZone : new CTextZoneParam;
}

}  // namespace

CEditorEx::CEditorEx(CTextZoneParam* pZone) : CEditor(ZoneOrNew(pZone)) {
    m_pParamZone = static_cast<CTextZoneParam*>(m_pZone);
    if (!pZone) {
        // The control base deletes what it owns, after the window has gone.
        m_bOwnZone = 1;
        m_bOwnParamZone = 1;
    }
    m_pDefFont = std::make_unique<CFont>();
}

CEditorEx::~CEditorEx() {
    // The last messages of the window still find this class whole.
    DestroyWindow();
}

UINT CEditorEx::GetLoadIniMessage() {
    static const UINT nMessage = RegisterWindowMessageA("EditExLoadIniMessage");
    return nMessage;
}

void CEditorEx::InitEditor() {
    CEditor::InitEditor();
    // The control's own set-up puts in a tab of 4 and the parent's font;
    // what the user chose comes on top. A load in progress set the control
    // up on its way (its font change repaints) and goes on to do just that.
    if (!m_bLoading) OnLoadIniSetting(0, 0);
}

void CEditorEx::InitEditor(int nLanguage, int bLimit, int bSyntaxColor, int) {
    CEditor::InitEditor();
    if (bLimit) LimitText(kLimitedTextLength);
    // The window keeps the system colour round the text here: only the
    // broadcast and creation give it the colour of the settings.
    ApplyFontAndBehaviour();
    if (bSyntaxColor)
        m_pParamZone->SetSQLSyntaxColor(static_cast<unsigned int>(nLanguage));
    else
        m_pParamZone->EnableSyntaxColor(0, 1, 0, 1, 0, 0, 4);
}

const char* CEditorEx::GetText(unsigned short nEol) {
    static std::string strText;
    // The length is a size for the buffer; the text may come out shorter.
    std::vector<char> buffer(static_cast<size_t>(m_pZone->GetTextLength(nEol)) + 2, 0);
    m_pZone->GetText(buffer.data(), static_cast<LONG>(buffer.size()), nEol);
    strText = buffer.data();
    return strText.c_str();
}

int CEditorEx::InsertText(const VESK::String& strText, int nFlag, int bRegister, int bModified,
                          int nAtLine) {
    return InsertHostText(this, m_pZone, strText.c_str(), nFlag, bRegister, bModified, nAtLine);
}

void CEditorEx::SetModifiedFlag() {
    PostChange();
}

LRESULT CEditorEx::OnLoadIniSetting(WPARAM wParam, LPARAM) {
    m_bLoading = true;
    const LRESULT nResult = LoadIniSetting(wParam);
    m_bLoading = false;
    return nResult;
}

int CEditorEx::OnCreate(CREATESTRUCT*) {
    LRESULT nResult = Default();
    if (nResult == -1) return -1;
    OnLoadIniSetting(0, 0);
    return static_cast<int>(nResult);
}

void CEditorEx::OnMouseMove(UINT nFlags, CPoint) {
    // Alt pressed during a drag turns the selection into a box at once. A
    // proportional font has no columns, so the drag stays a stream.
    if (m_pZone->GetSelectionMode() != TZ_SEL_BOX && GetKeyState(VK_MENU) < 0 && (nFlags & MK_LBUTTON) &&
        !m_pZone->IsFontProportionnal())
        OnEditBoxmode();
}

LRESULT CEditorEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT s_nFindReplace = RegisterWindowMessageA("commdlg_FindReplace");
    if (message == GetLoadIniMessage()) return OnLoadIniSetting(wParam, lParam);
    if (message == s_nFindReplace)
        return CEditFindReplace::Instance().OnFindReplaceCmd(*this, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            return OnCreate(reinterpret_cast<CREATESTRUCT*>(lParam));
        case WM_MOUSEMOVE: {
            LRESULT nResult = CEditor::WindowProc(message, wParam, lParam);
            OnMouseMove(static_cast<UINT>(wParam),
                        CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
            return nResult;
        }
        case WM_DESTROY:
            CEditFindReplace::Instance().ForgetWindow(this);
            return CEditor::WindowProc(message, wParam, lParam);
        case WM_SETFOCUS: {
            LRESULT nResult = CEditor::WindowProc(message, wParam, lParam);
            // An open find dialog searches the editor the user is in.
            CEditFindReplace::Instance().FollowFocus(this);
            return nResult;
        }
        default:
            return CEditor::WindowProc(message, wParam, lParam);
    }
}
