// Caret, scrolling and the vertical geometry of lines.
#include <algorithm>

#include "platform/Caret.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

void CTextZone::HideCaret() {
    if (!m_bCaretShown) return;
    ::HideCaret(m_pWnd);
    ::DestroyCaret();
    m_bCaretShown = 0;
}

// Scrolling follows with the painting; the view stays at the top for now.
void CTextZone::UpdateHScrollBar(int, int) {}
void CTextZone::UpdateVScrollBar() {}
void CTextZone::DrawCaret(int, int) {}
void CTextZone::SetFirstVisiblePosition(int, int) {}
void CTextZone::HandleVScroll(UINT, UINT, CScrollBar*) {}
void CTextZone::HandleHScroll(UINT, UINT, CScrollBar*) {}
LONG CTextZone::GetVScrollOffset() {
    return 0;
}
LONG CTextZone::GetHScrollOffset() {
    return 0;
}

void CTextZone::HandleSetFocus(CWnd*) {
    DrawCaret(0, 1);
}
void CTextZone::HandleKillFocus(CWnd*) {
    HideCaret();
}

LONG CTextZone::GetLinePosition(int nLine) {
    return nLine * m_nLineHeight;
}

int CTextZone::GetLineHeight(int nLine) {
    CStringEx* line = GetLine(nLine);
    // A line hidden inside a closed block takes no room.
    if (line && (line->m_dwBlockFlags & 4)) return 0;
    return m_nLineHeight;
}

int CTextZone::GetLineTopPos(int nLine) {
    int y = m_rcText.top - GetVScrollOffset();
    if (!(m_dwStyle & ZS_VARHEIGHT)) return y + GetLineHeight(0) * nLine;
    for (int i = 0; i < nLine; ++i)
        y += GetLineHeight(i);
    return y;
}

int CTextZone::GetLineFromPoint(POINT* pt) {
    if (!pt) return 0;
    int y = std::max(0, static_cast<int>(pt->y - m_rcText.top + GetVScrollOffset()));
    if (!(m_dwStyle & ZS_VARHEIGHT)) {
        int h = GetLineHeight(0);
        return h > 0 ? y / h : 0;
    }
    int sum = 0;
    int last = GetLastLineIndex();
    for (int line = 0; line <= last + 1; ++line) {
        sum += GetLineHeight(line);
        if (sum > y) return line;
    }
    return last + 1;
}
