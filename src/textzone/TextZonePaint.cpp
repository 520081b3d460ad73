// Painting the zone: the walk over the lines a paint asks for, and the
// requests for repaints.
#include <algorithm>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

void CTextZone::HandlePaint(CDC* pDC) {
    if (!pDC) return;
    pDC->IntersectClipRect(&m_rcText);
    int bCaret = m_bCaretShown;
    if (bCaret) HideCaret();

    RECT box;
    pDC->GetClipBox(&box);
    if (!IntersectRect(&box, &box, &m_rcText)) box = RECT{};
    CRgn clip(box);
    pDC->SelectClipRgn(&clip);

    if (!IsRectEmpty(&box)) {
        POINT top{box.left, box.top};
        POINT bottom{box.left, box.bottom};
        int first = GetLineFromPoint(&top);
        int last = GetLineFromPoint(&bottom);
        if (m_hFont) pDC->SelectObject(m_hFont);
        pDC->SelectStockObject(WHITE_BRUSH);
        pDC->SelectStockObject(NULL_PEN);

        const bool bVarHeight = (m_dwStyle & ZS_VARHEIGHT) != 0;
        const int origin = m_rcText.top - GetVScrollOffset();
        int y = origin + GetLinePosition(first);
        // Places reserved above line 0 have no line to paint them.
        if (y > box.top) {
            RECT above{m_rcText.left, box.top, m_rcText.right, y};
            pDC->FillSolidRect(&above, m_crBack);
        }
        for (int n = first; n <= last; ++n) {
            int h = GetLineHeight(n);
            if (!bVarHeight || h > 0) {
                // Without a pen the rectangle stops a pixel short: hence + 1.
                pDC->Rectangle(m_rcText.left, y, m_rcText.right + 1, y + h + 1);
                DrawTextLine(pDC, n);
            }
            y += bVarHeight ? h : m_nLineHeight;
        }
    }

    pDC->SelectStockObject(SYSTEM_FONT);
    pDC->SelectClipRgn(nullptr);
    if (bCaret) DrawCaret(0, 1);
}

void CTextZone::RedrawLines(int nFirst, int nLast, int bUpdate) {
    if (!m_pWnd || !m_bRedraw) return;
    RECT rc = m_rcText;
    const long long origin = static_cast<long long>(m_rcText.top) - GetVScrollOffset();
    if (nFirst > 0) {
        long long y = origin + GetLinePosition(nFirst);
        if (y > rc.top) rc.top = static_cast<LONG>(std::min<long long>(y, rc.bottom));
    }
    if (nLast != TZ_TO_END) {
        long long y = origin + GetLinePosition(nLast) + GetLineHeight(nLast);
        if (y < rc.bottom) rc.bottom = static_cast<LONG>(std::max<long long>(y, rc.top));
    }
    if (IsRectEmpty(&rc)) return;
    m_pWnd->InvalidateRect(&rc, FALSE);
    if (bUpdate) m_pWnd->UpdateWindow();
}

void CTextZone::RedrawTextZone() {
    if (!m_pWnd || !m_bRedraw) return;
    m_pWnd->InvalidateRect(&m_rcText, FALSE);
    m_pWnd->UpdateWindow();
}
