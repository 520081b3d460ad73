// The caret, keeping it in view, and the vertical geometry of lines.
#include <algorithm>
#include <climits>
#include <cstdlib>

#include "platform/Caret.h"
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"
#include "textzone/ZoneScroll.h"

void CTextZone::HideCaret() {
    if (!m_bCaretShown) return;
    ::HideCaret(m_pWnd);
    ::DestroyCaret();
    m_bCaretShown = 0;
}

int CTextZone::CaretX(CDC* pDC, int nLine, int nIndex, bool bColumns) {
    CStringEx* pLine = nLine >= 0 ? GetLine(nLine) : nullptr;
    CStringEx copy;
    const CStringEx* p = pLine;
    if (pLine && bColumns) {
        GetSpaceEquivalentLine(&copy, pLine);
        p = &copy;
    }
    if (!p || nIndex > p->GetLength() - p->IsEnded()) {
        if (p && p != &copy) copy = *p;
        if (copy.IsEnded()) copy.discardRight(1);
        copy.EnsureMinimumLength(nIndex);
        p = &copy;
    }
    return m_rcText.left - GetHScrollOffset() + GetTextWidth(pDC, p->c_str(), nIndex);
}

void CTextZone::DrawCaret(int bScroll, int bHorizontal) {
    const bool bSelection = TestSelection() != 0;
    // No caret shows while anything is selected.
    if (bSelection || !m_pWnd) {
        HideCaret();
        if (!bScroll) return;
    }

    int line = GetSelMobileLine();
    int index = GetSelMobileChar();
    const bool bColumns = bSelection && m_nSelectionMode == TZ_SEL_BOX;
    // A stream that ends at the start of a line selects nothing there, so
    // there is nothing on that line to bring into view.
    if (bSelection && !bColumns && index == 0 && line == m_nSelEndLine && line > m_nSelStartLine)
        --line;
    // A drag scrolls as far as the pointer asks, without jumping ahead.
    const int ahead = bSelection && GetKeyState(VK_LBUTTON) < 0 ? 0 : 10;
    const int cw = std::max(1, m_nCharWidth);
    const int lh = std::max(1, m_nLineHeight);
    const RECT& rc = m_rcText;

    CDC* pDC = GetStandardDC();
    int x = CaretX(pDC, line, index, bColumns);
    int y = rc.top - GetVScrollOffset() + GetLinePosition(line);
    bool bScrolled = false;

    if (bScroll && bHorizontal) {
        int distance = 0;
        if (x < rc.left)
            distance = (x - rc.left) / cw - ahead;
        else if (x > rc.right - cw)
            distance = (cw - rc.right - 1 + x) / cw + 1 + ahead;
        if (distance != 0) {
            CZoneScroll bar(*this, false);
            int pos = bar.GetPos();
            int nMin = 0, nMax = 0;
            bar.GetRange(&nMin, &nMax);
            int newPos = std::max(pos + distance / 2, nMin);
            // A free caret may stand beyond the widest line: the range follows it.
            if (newPos > nMax) bar.SetRange(nMin, newPos);
            int moved = newPos - pos;
            if (std::abs(moved) <= 2) {
                for (int i = 0; i < std::abs(moved); ++i)
                    HandleHScroll(moved > 0 ? SB_LINERIGHT : SB_LINELEFT, 0, m_pHScrollBar);
            } else {
                bar.SetPos(newPos);
            }
            if (moved != 0) {
                if (m_pWnd) m_pWnd->InvalidateRect(&m_rcText, FALSE);
                bScrolled = true;
            }
        }
    }

    if (bScroll && (y < rc.top || y > rc.bottom - lh)) {
        CZoneScroll bar(*this, true);
        int pos = bar.GetPos();
        const int unit = std::max(1, m_nLinesPerUnit);
        const int rem = m_nUnitRemainder;
        int distance = 0;
        if (!(m_dwStyle & ZS_VARHEIGHT)) {
            distance = y < rc.top ? (y - rc.top) / lh : (lh - rc.bottom - 1 + y) / lh + 1;
        } else {
            int first = pos * unit + rem;
            if (y < rc.top) {
                distance = line - first;
            } else {
                for (int n = first; y > rc.bottom - lh && n < line; ++n, ++distance)
                    y -= n < 0 ? 0 : GetLineHeight(n);
            }
        }
        int nMin = 0, nMax = 0;
        bar.GetRange(&nMin, &nMax);
        int newPos = pos + distance / unit;
        int newRem = rem + distance % unit;
        if (newRem >= unit)
            newRem -= unit, ++newPos;
        else if (newRem < 0)
            newRem += unit, --newPos;
        if (newPos < nMin)
            newPos = nMin, newRem = 0;
        else if (newPos > nMax)
            newPos = nMax, newRem = unit - 1;
        int moved = (newPos - pos) * unit - rem + newRem;
        if (std::abs(moved) >= 3) {
            // A long way is cheaper repainted than blitted line by line.
            m_nUnitRemainder = newRem;
            bar.SetPos(newPos);
            if (m_pWnd) m_pWnd->InvalidateRect(&m_rcText, FALSE);
            HandleVScroll(SB_ENDSCROLL, static_cast<UINT>(newPos), m_pVScrollBar);
        } else {
            for (int i = 0; i < std::abs(moved); ++i)
                HandleVScroll(moved > 0 ? SB_LINEDOWN : SB_LINEUP, 0, m_pVScrollBar);
        }
        if (moved != 0) bScrolled = true;
    }

    if (bScrolled) {
        x = CaretX(pDC, line, index, bColumns);
        y = rc.top - GetVScrollOffset() + GetLinePosition(line);
    }
    ReleaseStandardDC(pDC);
    if (bScrolled && m_pWnd) m_pWnd->UpdateWindow();
    if (bSelection || !m_pWnd) return;

    bool bInside = x >= rc.left && x <= rc.right - cw && y >= rc.top && y <= rc.bottom - lh;
    if (!bInside || CWnd::GetFocus() != m_pWnd) {
        HideCaret();
        return;
    }
    if (!m_bCaretShown) {
        // Whoever had the caret before us, it is ours now.
        POINT old;
        if (::GetCaretPos(&old)) ::DestroyCaret();
        ::CreateCaret(m_pWnd, nullptr, 0, m_nLineHeight);
    }
    ::SetCaretPos(x, y);
    if (!m_bCaretShown) {
        ::ShowCaret(m_pWnd);
        m_bCaretShown = 1;
    }
}

void CTextZone::HandleSetFocus(CWnd*) {
    DrawCaret(0, 1);
}

void CTextZone::HandleKillFocus(CWnd*) {
    HideCaret();
}

LONG CTextZone::GetLinePosition(int nLine) {
    if (!(m_dwStyle & ZS_VARHEIGHT) || nLine <= 0) {
        long long y = static_cast<long long>(nLine) * m_nLineHeight;
        return static_cast<LONG>(std::clamp<long long>(y, INT_MIN, INT_MAX));
    }
    // Lines hidden in a closed block take no room; below the text every
    // place is a line high, so only the lines of the text are walked.
    const int stop = std::min(nLine, GetLastLineIndex() + 1);
    long long y = static_cast<long long>(nLine - stop) * m_nLineHeight;
    if (m_nLineCount == 0) {
        y += GetLineHeight(0);  // no line: the place of line 0 is a line high
    } else {
        // The store counts the hidden lines per block, so this needs no walk.
        y += (stop - HiddenBefore(stop)) * m_nLineHeight;
    }
    return static_cast<LONG>(std::min<long long>(y, INT_MAX));
}

int CTextZone::GetLineHeight(int nLine) {
    CStringEx* line = GetLine(nLine);
    if (line && (line->m_dwBlockFlags & BF_HIDDEN)) return 0;
    return m_nLineHeight;
}

int CTextZone::GetLineTopPos(int nLine) {
    // A host may ask for any line: the sum is taken wide and held to int.
    long long y = static_cast<long long>(m_rcText.top) - GetVScrollOffset();
    if (!(m_dwStyle & ZS_VARHEIGHT))
        y += static_cast<long long>(GetLineHeight(0)) * nLine;
    else
        y += GetLinePosition(nLine);
    return static_cast<int>(std::clamp<long long>(y, INT_MIN, INT_MAX));
}

int CTextZone::GetLineFromPoint(POINT* pt) {
    if (!pt) return 0;
    const long long yWide = static_cast<long long>(pt->y) - m_rcText.top + GetVScrollOffset();
    int y = static_cast<int>(std::clamp<long long>(yWide, 0, INT_MAX));
    if (!(m_dwStyle & ZS_VARHEIGHT)) {
        int h = GetLineHeight(0);
        return h > 0 ? y / h : 0;
    }
    if (m_nLineCount > 0 && m_nLineHeight > 0) return LineAtHeight(y);
    int sum = 0;
    int last = GetLastLineIndex();
    for (int line = 0; line <= last; ++line) {
        sum += GetLineHeight(line);
        if (sum > y) return line;
    }
    // Below the text every place is one line high.
    return last + 1 + (y - sum) / std::max(1, m_nLineHeight);
}
