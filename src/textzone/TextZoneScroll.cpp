// Scroll bars and scrolling. A horizontal position is two characters; a
// vertical position is m_nLinesPerUnit lines, with m_nUnitRemainder lines
// inside the current one, so that a bar's range stays below 32768 however
// long the text.
#include <algorithm>
#include <cstdlib>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"
#include "textzone/ZoneScroll.h"

namespace {

constexpr int kMaxBarPosition = 32768;

int FloorDiv(int a, int b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

}  // namespace

CZoneScroll::CZoneScroll(CTextZone& zone, bool bVertical, CScrollBar* pControl)
    : m_zone(zone), m_bVertical(bVertical) {
    m_pControl = pControl ? pControl : (bVertical ? zone.m_pVScrollBar : zone.m_pHScrollBar);
    if (!m_pControl && zone.m_pWnd &&
        (zone.m_pWnd->GetStyle() & (bVertical ? WS_VSCROLL : WS_HSCROLL)))
        m_pWnd = zone.m_pWnd;
}

int CZoneScroll::GetPos() const {
    if (m_pControl) return m_pControl->GetScrollPos();
    if (m_pWnd) return m_pWnd->GetScrollPos(m_bVertical ? SB_VERT : SB_HORZ);
    return m_bVertical ? m_zone.m_nVScrollPos : m_zone.m_nHScrollPos;
}

void CZoneScroll::GetRange(int* pMin, int* pMax) const {
    if (m_pControl) return m_pControl->GetScrollRange(pMin, pMax);
    if (m_pWnd) return m_pWnd->GetScrollRange(m_bVertical ? SB_VERT : SB_HORZ, pMin, pMax);
    if (pMin) *pMin = m_bVertical ? -m_zone.m_nReservedTopLines : 0;
    if (pMax) *pMax = m_bVertical ? m_zone.m_nVScrollMax : m_zone.m_nHScrollMax;
}

void CZoneScroll::SetPos(int nPos, BOOL bRedraw) {
    if (m_pControl)
        m_pControl->SetScrollPos(nPos, bRedraw);
    else if (m_pWnd)
        m_pWnd->SetScrollPos(m_bVertical ? SB_VERT : SB_HORZ, nPos, bRedraw);
    else
        (m_bVertical ? m_zone.m_nVScrollPos : m_zone.m_nHScrollPos) = nPos;
}

void CZoneScroll::SetRange(int nMin, int nMax, BOOL bRedraw) {
    if (m_pControl)
        m_pControl->SetScrollRange(nMin, nMax, bRedraw);
    else if (m_pWnd)
        m_pWnd->SetScrollRange(m_bVertical ? SB_VERT : SB_HORZ, nMin, nMax, bRedraw);
    else
        (m_bVertical ? m_zone.m_nVScrollMax : m_zone.m_nHScrollMax) = nMax;
}

void CZoneScroll::ClearPage() {
    if (!m_pWnd) return;
    SCROLLINFO si;
    si.cbSize = sizeof(si);
    si.fMask = SIF_PAGE;
    si.nPage = 0;
    m_pWnd->SetScrollInfo(m_bVertical ? SB_VERT : SB_HORZ, &si, TRUE);
}

void CZoneScroll::Show() {
    if (m_pControl)
        m_pControl->ShowScrollBar(TRUE);
    else if (m_pWnd)
        m_pWnd->ShowScrollBar(m_bVertical ? SB_VERT : SB_HORZ, TRUE);
}

LONG CTextZone::GetHScrollOffset() {
    return CZoneScroll(*this, false).GetPos() * m_nCharWidth * 2;
}

LONG CTextZone::GetVScrollOffset() {
    int first = CZoneScroll(*this, true).GetPos() * m_nLinesPerUnit + m_nUnitRemainder;
    if (!(m_dwStyle & ZS_VARHEIGHT)) return first * m_nLineHeight;
    if (first <= 0) return 0;
    if (m_nLineCount == 0) return first * m_nLineHeight;
    // Hidden lines take no room; the store counts them per block.
    const int stop = std::min(first, m_nLineCount);
    return static_cast<LONG>((first - HiddenBefore(stop)) * m_nLineHeight);
}

// Moves what is on screen by (dx, dy) and asks for what that uncovers.
// Paints still pending move along with the text they were meant for.
void CTextZone::ScrollTextRect(int dx, int dy) {
    if (!m_pWnd || (dx == 0 && dy == 0)) return;
    CRgn pending;
    m_pWnd->GetUpdateRgn(&pending, FALSE);
    pending.OffsetRgn(dx, dy);
    m_pWnd->ValidateRgn(nullptr);
    CRgn exposed;
    if (CDC* pDC = m_pWnd->GetDC()) {
        pDC->ScrollDC(dx, dy, &m_rcText, &m_rcText, &exposed, nullptr);
        m_pWnd->ReleaseDC(pDC);
    } else {
        exposed.SetRectRgn(&m_rcText);
    }
    m_pWnd->InvalidateRgn(&exposed, FALSE);
    m_pWnd->InvalidateRgn(&pending, FALSE);
}

// A host that was just clicked wants what waits to be painted shown
// before the text moves under it.
void CTextZone::FlushPendingPaint() {
    if (!m_bRepaintBeforeScroll) return;
    m_bRepaintBeforeScroll = 0;
    if (!m_pWnd) return;
    CRgn pending;
    m_pWnd->GetUpdateRgn(&pending, FALSE);
    if (pending.IsEmpty()) return;
    m_pWnd->InvalidateRgn(&pending, TRUE);
    m_pWnd->UpdateWindow();
}

void CTextZone::HandleVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    FlushPendingPaint();
    int bCaret = m_bCaretShown;
    if (bCaret) HideCaret();

    CZoneScroll bar(*this, true, pScrollBar);
    int pos = bar.GetPos();
    int nMin = 0, nMax = 0;
    bar.GetRange(&nMin, &nMax);
    int given = static_cast<int>(nPos);
    const bool bLines = GetLine(1) != nullptr;
    if (!bLines) nMax = nMin, given = nMin;

    const int unit = std::max(1, m_nLinesPerUnit);
    const int lh = std::max(1, m_nLineHeight);
    const int page = std::max(1, (m_rcText.bottom - m_rcText.top) / lh - 1);
    int newPos = pos;
    int newRem = m_nUnitRemainder;
    auto first = [&] { return newPos * unit + newRem; };
    auto hidden = [&](int n) { return n >= 0 && GetLineHeight(n) == 0; };
    auto atLine = [&](int n) {
        newPos = FloorDiv(n, unit);
        newRem = n - newPos * unit;
        if (newPos < nMin) newPos = nMin, newRem = 0;
        if (newPos > nMax) newPos = nMax, newRem = unit - 1;
    };

    switch (static_cast<int>(nSBCode)) {
        case SB_LINEUP:
            // Lines hidden in a closed block are passed over.
            do {
                if (newPos < nMin || (newPos == nMin && newRem <= 0)) {
                    newPos = nMin, newRem = 0;
                    break;
                }
                atLine(first() - 1);
            } while (hidden(first()));
            break;
        case SB_LINEDOWN:
            do {
                if (newPos > nMax || (newPos == nMax && newRem >= unit - 1)) {
                    newPos = nMax, newRem = unit - 1;
                    break;
                }
                atLine(first() + 1);
            } while (hidden(first()));
            break;
        case SB_PAGEUP:
            atLine(first() - page);
            break;
        case SB_PAGEDOWN:
            atLine(first() + page);
            break;
        case SB_TOP:
            newPos = nMin, newRem = 0;
            break;
        case SB_BOTTOM:
            newPos = nMax, newRem = unit - 1;
            break;
        case SB_ENDSCROLL:
            if (m_pWnd) m_pWnd->UpdateWindow();
            if (bCaret) DrawCaret(0, 1);
            return;
        default:  // the thumb, and whatever else names a position
            newPos = std::clamp(given, nMin, std::max(nMin, nMax));
            newRem = 0;
            break;
    }

    if (bLines && newPos == pos && newRem == m_nUnitRemainder) {
        if (bCaret) DrawCaret(0, 1);
        return;
    }
    LONG before = GetVScrollOffset();
    bar.SetPos(newPos);
    m_nUnitRemainder = newRem;
    ScrollTextRect(0, static_cast<int>(before - GetVScrollOffset()));
    if (bCaret) DrawCaret(0, 1);
}

void CTextZone::HandleHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    FlushPendingPaint();
    int bCaret = m_bCaretShown;
    if (bCaret) HideCaret();

    CZoneScroll bar(*this, false, pScrollBar);
    int pos = bar.GetPos();
    int nMin = 0, nMax = 0;
    bar.GetRange(&nMin, &nMax);
    const int step = std::max(1, m_nCharWidth * 2);
    const int page = std::max(1, (m_rcText.right - m_rcText.left) / step - 1);
    int newPos = pos;
    switch (static_cast<int>(nSBCode)) {
        case SB_LINELEFT:
            newPos = pos - 1;
            break;
        case SB_LINERIGHT:
            newPos = pos + 1;
            break;
        case SB_PAGELEFT:
            newPos = pos - page;
            break;
        case SB_PAGERIGHT:
            newPos = pos + page;
            break;
        case SB_LEFT:
            newPos = nMin;
            break;
        case SB_RIGHT:
            newPos = nMax;
            break;
        case SB_ENDSCROLL:
            if (m_pWnd) m_pWnd->UpdateWindow();
            if (bCaret) DrawCaret(0, 1);
            return;
        default:
            newPos = static_cast<int>(nPos);
            break;
    }
    newPos = std::clamp(newPos, nMin, std::max(nMin, nMax));
    if (newPos == pos) {
        if (bCaret) DrawCaret(0, 1);
        return;
    }
    bar.SetPos(newPos);
    ScrollTextRect((pos - newPos) * step, 0);
    if (bCaret) DrawCaret(0, 1);
}

void CTextZone::UpdateVScrollBar() {
    const int last = GetLastLineIndex();
    const int units = std::max(0, last / kMaxBarPosition) + 1;
    const int nMin = -m_nReservedTopLines;
    CZoneScroll bar(*this, true);
    if (units != m_nLinesPerUnit) {
        // The first visible line stays where it is, counted in the new unit.
        int first = bar.GetPos() * m_nLinesPerUnit + m_nUnitRemainder;
        m_nLinesPerUnit = units;
        int pos = FloorDiv(first, units);
        m_nUnitRemainder = first - pos * units;
        bar.SetRange(nMin, std::max(nMin, last / units), FALSE);
        bar.SetPos(pos, FALSE);
    }
    bar.ClearPage();
    int pos = bar.GetPos();
    int first = pos * units + m_nUnitRemainder;
    if (pos < nMin || first > last) {
        if (pos < nMin)
            pos = nMin, m_nUnitRemainder = 0;
        else
            pos = last / units, m_nUnitRemainder = units - 1;
        bar.SetPos(pos);
        RedrawTextZone();
    }
    // A window's bar that could not move would vanish; it stays on show.
    if (bar.IsWindowBar() && last == nMin) {
        bar.SetRange(0, 1);
        bar.SetPos(0);
    } else {
        bar.SetRange(nMin, std::max(nMin, last / units));
    }
    bar.Show();
}

void CTextZone::UpdateHScrollBar(int nFirst, int nLast) {
    CZoneScroll bar(*this, false);
    int nMin = 0, nMax = 0;
    bar.GetRange(&nMin, &nMax);
    int width = GetMaxLineWidth(nFirst, nLast) / std::max(1, m_nCharWidth);
    // A partial update only sees some lines, so it never narrows the range.
    if (nFirst != 0 || nLast != TZ_TO_END) width = std::max(width, 2 * nMax);
    width = std::max({width, m_nSelStartChar, m_nSelEndChar});
    const int limit = width / 2;
    bar.ClearPage();
    int pos = bar.GetPos();
    if (pos < 0 || pos > limit) {
        bar.SetPos(std::clamp(pos, 0, limit));
        RedrawTextZone();
    }
    bar.SetRange(0, bar.IsWindowBar() && width < 2 ? 1 : limit);
    bar.Show();
}

void CTextZone::SetFirstVisiblePosition(int nLine, int nChar) {
    nLine = std::clamp(nLine, 0, GetLastLineIndex());
    CStringEx* pLine = GetLine(nLine);
    int length = pLine ? pLine->GetLength() - pLine->IsEnded() : 0;
    nChar = std::clamp(nChar, 0, length);
    // The index goes in as a position, two characters each, as it always has.
    CZoneScroll(*this, false).SetPos(nChar);
    const int unit = std::max(1, m_nLinesPerUnit);
    CZoneScroll bar(*this, true);
    bar.SetPos(nLine / unit);
    m_nUnitRemainder = nLine % unit;
    if (m_pWnd) m_pWnd->InvalidateRect(&m_rcText, FALSE);
    HandleVScroll(SB_ENDSCROLL, static_cast<UINT>(nLine / unit), m_pVScrollBar);
}

void CTextZone::SetReservedTopLines(int nLines) {
    if (nLines == m_nReservedTopLines) return;
    m_nReservedTopLines = nLines;
    UpdateVScrollBar();
}

int CTextZone::GetReservedTopLines() {
    return m_nReservedTopLines;
}
