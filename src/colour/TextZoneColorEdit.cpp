// The engine operations a coloured zone wraps. Here they keep the cached
// line states honest: whatever an edit may have changed, the states from its
// first line on are no longer trusted. Narrower invalidation and the
// repainting of the lines below come with the coloured drawing.
#include "colour/TextZoneColor.h"

void CTextZoneColor::DeleteSelection(int bUpdate) {
    if (m_bSyntaxColor && TestSelection()) ResetLastLines(m_nSelStartLine);
    CTextZone::DeleteSelection(bUpdate);
}

int CTextZoneColor::InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal) {
    if (m_bSyntaxColor) ResetLastLines(m_nSelStartLine);
    return CTextZone::InsertText(pszText, bSelect, bScroll, bHorizontal);
}

void CTextZoneColor::DrawTextLine(CDC* pDC, int nLine) {
    CTextZone::DrawTextLine(pDC, nLine);
    FreeColorDefs();
}

int CTextZoneColor::SetText(const char* pszText) {
    ResetLastLines(0);
    return CTextZone::SetText(pszText);
}

void CTextZoneColor::HandleLButtonDown(UINT nFlags, POINT* pt) {
    CTextZone::HandleLButtonDown(nFlags, pt);
}

void CTextZoneColor::HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    // A key may join the line with the one before (Backspace at its start),
    // which changes the state of the caret line itself.
    if (m_bSyntaxColor && !m_bReadOnly) ResetLastLines(m_nSelStartLine);
    CTextZone::HandleKeyDown(nChar, nRepCnt, nFlags);
}

void CTextZoneColor::HandleChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (m_bSyntaxColor && !m_bReadOnly) ResetLastLines(m_nSelStartLine);
    CTextZone::HandleChar(nChar, nRepCnt, nFlags);
}

void CTextZoneColor::HandleKillFocus(CWnd* pNewWnd) {
    CloseParmTooltip(1);
    CTextZone::HandleKillFocus(pNewWnd);
}

LONG CTextZoneColor::HandleUserMessage(std::uint64_t wParam, std::int64_t lParam) {
    return CTextZone::HandleUserMessage(wParam, lParam);
}
