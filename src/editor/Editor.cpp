// The control's operations: set-up, and the edit-control calls a host makes
// directly, each a call on the zone.
#include "editor/Editor.h"

#include <cstring>
#include <vector>

#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

CEditor::CEditor(CTextZone* pZone) : m_pZone(pZone) {
    if (!m_pZone) {
        m_pZone = new CTextZone;
        m_bOwnZone = 1;
    }
}

CEditor::~CEditor() {
    // The window goes first: its last messages still reach the zone.
    DestroyWindow();
    m_pDropTarget.reset();
    if (m_bOwnZone)
        delete m_pZone;
    else if (m_pZone->GetWindow() == this)
        m_pZone->SetWindow(nullptr);  // a borrowed zone outlives its window
    m_pZone = nullptr;
}

void CEditor::InitEditor() {
    m_pZone->SetWindow(this);
    m_pZone->SetTabWidth(-4);
    m_pZone->SetNoBlockFlag(1);
    m_crBackground = GetSysColor(COLOR_WINDOW);
    if (GetStyle() & WS_HSCROLL) {
        ShowScrollBar(SB_HORZ, TRUE);
        EnableScrollBar(SB_HORZ, ESB_ENABLE_BOTH);
    }
    if (GetStyle() & WS_VSCROLL) {
        ShowScrollBar(SB_VERT, TRUE);
        EnableScrollBar(SB_VERT, ESB_ENABLE_BOTH);
    }
    if (CWnd* pParent = GetParent()) {
        auto hFont = reinterpret_cast<HFONT>(pParent->SendMessage(WM_GETFONT));
        if (hFont) {
            // The parent keeps its font: borrow the handle for the call only.
            CFont font;
            font.Attach(hFont);
            SetFont(&font, 0);
            font.Detach();
        }
    }
    if (!m_bInitialized && m_bOleDropTarget && m_pDropTarget) m_pDropTarget->Register(this);
    m_bInitialized = 1;
}

void CEditor::SetFont(CFont* pFont, int bRedraw) {
    m_hFont = pFont ? pFont->GetSafeHandle() : nullptr;
    m_pZone->SetFont(m_hFont);
    RECT rc;
    GetClientRect(&rc);
    OnSize(SIZE_RESTORED, rc.right - rc.left, rc.bottom - rc.top);
    if (bRedraw) RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

int CEditor::CanUndo() {
    return m_pZone->GetUndoType() != 0;
}

int CEditor::GetFirstVisibleLine() {
    int nPos = GetScrollPos(SB_VERT);
    return nPos < 0 ? 0 : nPos;
}

int CEditor::GetLine(int nLine, char* pBuffer, int nMax) {
    if (!pBuffer || nMax < 1) return 0;
    CStringEx* pLine = m_pZone->GetLine(nLine);
    int n = 0;
    if (pLine) {
        n = std::min(pLine->GetLength(), nMax - 1);
        std::memcpy(pBuffer, pLine->c_str(), static_cast<size_t>(n));
    }
    pBuffer[n] = 0;
    return n;
}

int CEditor::GetLineCount() {
    int nCount = m_pZone->GetLastLineIndex() + 1;
    if (nCount == 1 && !m_pZone->GetLine(0)) return 0;
    return nCount;
}

int CEditor::GetModify() {
    return m_pZone->GetModify();
}

void CEditor::SetModify(int bModify) {
    m_pZone->SetModify(bModify);
}

int CEditor::LineFromChar(LONG lChar) {
    return m_pZone->LineFromChar(lChar, 0);
}

LONG CEditor::LineIndex(int nLine) {
    return m_pZone->LineIndex(nLine);
}

int CEditor::LineLength(int nLine) {
    CStringEx* pLine = m_pZone->GetLine(nLine);
    return pLine ? pLine->GetLength() : 0;
}

int CEditor::Undo() {
    ++m_nNotifyDepth;
    m_pZone->Undo();
    --m_nNotifyDepth;
    return 1;
}

int CEditor::Redo() {
    ++m_nNotifyDepth;
    m_pZone->Redo();
    --m_nNotifyDepth;
    return 1;
}

int CEditor::Cut() {
    return m_pZone->Cut();
}

int CEditor::Copy() {
    return m_pZone->Copy();
}

int CEditor::Paste() {
    return m_pZone->Paste();
}

void CEditor::Clear() {
    m_pZone->SetSelection(0, -1, 0, 0, 1, 0);
    // The code of the Delete key goes in as a character: the text becomes ".",
    // and hosts rely on that.
    m_pZone->HandleChar(VK_DELETE, 0, 0);
}

void CEditor::GetSel(int& nStart, int& nEnd) {
    LONG lStart = 0, lEnd = 0;
    m_pZone->GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    nStart = lStart;
    nEnd = lEnd;
}

DWORD CEditor::GetSel() {
    int nStart = 0, nEnd = 0;
    GetSel(nStart, nEnd);
    return static_cast<DWORD>(MAKELONG(nStart, nEnd));
}

void CEditor::SetSel(int nStart, int nEnd, int bNoScroll) {
    m_pZone->SetSelection(nStart, nEnd, 0, 0, 1, !bNoScroll);
    if (bNoScroll) m_pZone->RedrawTextZone();
}

void CEditor::SetSel(DWORD dwSelection, int bNoScroll) {
    SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
}

short CEditor::GetSelection(LONG* plStart, LONG* plEnd, int* pnStartChar, int* pnEndChar,
                            short wMode) {
    return m_pZone->GetSelection(plStart, plEnd, pnStartChar, pnEndChar, wMode);
}

void CEditor::SetSelection(LONG lStart, LONG lEnd, int nStartChar, int nEndChar, short wMode,
                           int bRedraw) {
    m_pZone->SetSelection(lStart, lEnd, nStartChar, nEndChar, wMode, bRedraw);
}

void CEditor::SetSelectionMode(short wMode) {
    m_pZone->SetSelectionMode(wMode);
}

void CEditor::ReplaceSel(const char* pszText) {
    // Outside an undo frame the replacement is not recorded, so the places
    // the history holds no longer match the text: replaying them would edit
    // the wrong bytes. Drop the history, as for a new text.
    const bool bRecorded = m_pZone->m_pCurrentOperation || m_pZone->m_bUndoing;
    m_pZone->InsertText(pszText, 0, 1, 1);
    if (!bRecorded) m_pZone->FreeAllOperations();
}

LONG CEditor::GetWindowTextA(char* pBuffer, LONG lSize) {
    if (pBuffer && lSize > 0) m_pZone->GetText(pBuffer, lSize, TF_CRLF);
    return m_pZone->GetTextLength(TF_CRLF);
}

void CEditor::GetWindowTextA(VESK::String& strText) {
    // The length is a size for the buffer; the text may come out shorter.
    std::vector<char> buffer(static_cast<size_t>(m_pZone->GetTextLength(TF_CRLF)) + 2, 0);
    m_pZone->GetText(buffer.data(), static_cast<LONG>(buffer.size()), TF_CRLF);
    strText = buffer.data();
}

LONG CEditor::GetWindowTextLengthA() {
    return m_pZone->GetTextLength(TF_CRLF);
}

void CEditor::SetWindowTextA(const char* pszText) {
    ++m_nNotifyDepth;
    m_pZone->SetText(pszText);
    --m_nNotifyDepth;
}

void CEditor::LimitText(LONG lMax) {
    m_pZone->SetMaxLength(lMax);
}

int CEditor::SetReadOnly(int bReadOnly) {
    m_pZone->SetReadOnly(bReadOnly);
    return 1;
}

int CEditor::SetTabStops(const int& nTabStops) {
    if (nTabStops == 0) return 0;
    m_pZone->SetTabWidth(nTabStops);
    return 1;
}

void CEditor::SetOleDropTarget(bool b) {
    m_bOleDropTarget = b;
    if (!m_pDropTarget) m_pDropTarget = std::make_unique<COleEditDropTarget>(this);
}
