// Painting the zone.
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

// Until lines are painted, a redraw asks the window to repaint the text.
void CTextZone::RedrawLines(int, int, int bUpdate) {
    if (!m_pWnd || !m_bRedraw) return;
    m_pWnd->InvalidateRect(&m_rcText, FALSE);
    if (bUpdate) m_pWnd->UpdateWindow();
}

void CTextZone::RedrawTextZone() {
    if (!m_pWnd || !m_bRedraw) return;
    m_pWnd->InvalidateRect(&m_rcText, FALSE);
    m_pWnd->UpdateWindow();
}

void CTextZone::DrawTextLine(CDC*, int) {}
void CTextZone::HandlePaint(CDC*) {}
