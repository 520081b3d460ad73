// Bookmarks: a word of bits on each line, kept by the line object so that it
// travels with the line's text through edits. The low 16 bits are drawn, each
// in its own colour; bit 0 is the user's bookmark, the others are the host's.
#include "host/MessageBeep.h"
#include "textzone/TextZone.h"

namespace {

constexpr int kBookmarkKinds = 16;

}  // namespace

void CTextZone::ToggleBookmark() {
    const int line = GetSelMobileLine();
    CStringEx* pLine = line >= 0 ? GetLine(line) : nullptr;
    if (!pLine) {
        VESKMessageBeep(0);
        return;
    }
    pLine->m_dwBookmarks ^= 1;
    RedrawLines(line, line, 1);
}

void CTextZone::SetLineBookmark(int nLine, int nBit, int bOn) {
    CStringEx* pLine = nLine >= 0 ? GetLine(nLine) : nullptr;
    if (!pLine) return;
    const DWORD bit = DWORD{1} << (nBit & 31);
    const DWORD old = pLine->m_dwBookmarks;
    pLine->m_dwBookmarks = bOn ? old | bit : old & ~bit;
    if (pLine->m_dwBookmarks != old) RedrawLines(nLine, nLine, 1);
}

// Walks from the caret's line to the next line with bit 0, wrapping at the
// end of the text, and comes back to the caret's own line last, so that a
// single bookmark under the caret is found too.
void CTextZone::GotoNextBookmark(int bPrevious) {
    const int start = GetSelMobileLine();
    const int ch = GetSelMobileChar();
    int line = start;
    int wraps = 0;
    for (;;) {
        line += bPrevious ? -1 : 1;
        if (line < 0 || !GetLine(line)) {
            line = bPrevious ? GetLastLineIndex() : 0;
            ++wraps;
        }
        CStringEx* pLine = GetLine(line);
        if (!pLine) break;
        if (pLine->m_dwBookmarks & 1) {
            SetSelection(line, line, ch, ch, 0, 1);
            return;
        }
        if (line == start || wraps >= 2) break;
    }
    VESKMessageBeep(0);
}

int CTextZone::GetBookmarkImageIndex(int nIndex) {
    return nIndex <= 15 ? nIndex : 0;
}

COLORREF CTextZone::GetBookmarkColor(int nIndex) {
    return nIndex >= 0 && nIndex < kBookmarkKinds ? m_crBookmark[nIndex] : 0;
}

void CTextZone::SetBookmarkColor(COLORREF cr, int nIndex) {
    // The same colour again repaints nothing.
    if (nIndex < 0 || nIndex >= kBookmarkKinds || m_crBookmark[nIndex] == cr) return;
    m_crBookmark[nIndex] = cr;
    RedrawLines(0, TZ_TO_END, 1);
}
