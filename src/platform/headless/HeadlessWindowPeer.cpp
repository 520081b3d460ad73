#include "platform/headless/HeadlessWindowPeer.h"

#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/headless/HeadlessDC.h"

CHeadlessWindowPeer::CHeadlessWindowPeer(CWnd* pWnd, const CREATESTRUCTA& cs)
    : m_pWnd(pWnd),
      m_rcWindow{cs.x, cs.y, cs.x + cs.cx, cs.y + cs.cy},
      m_bVisible((cs.style & WS_VISIBLE) != 0) {}

void CHeadlessWindowPeer::GetClientRect(RECT* prc) {
    DWORD style = m_pWnd->GetStyle();
    int border = (style & WS_BORDER) ? 1 : 0;
    int w = m_rcWindow.right - m_rcWindow.left - 2 * border;
    int h = m_rcWindow.bottom - m_rcWindow.top - 2 * border;
    if (style & WS_VSCROLL) w -= ::GetSystemMetrics(SM_CXVSCROLL);
    if (style & WS_HSCROLL) h -= ::GetSystemMetrics(SM_CYHSCROLL);
    *prc = RECT{0, 0, std::max(w, 0), std::max(h, 0)};
}

POINT CHeadlessWindowPeer::GetClientOrigin() {
    POINT origin{m_rcWindow.left, m_rcWindow.top};
    if (CWnd* parent = m_pWnd->GetParent()) parent->ClientToScreen(&origin);
    int border = (m_pWnd->GetStyle() & WS_BORDER) ? 1 : 0;
    return POINT{origin.x + border, origin.y + border};
}

void CHeadlessWindowPeer::GetWindowRect(RECT* prc) {
    POINT origin{m_rcWindow.left, m_rcWindow.top};
    if (CWnd* parent = m_pWnd->GetParent()) parent->ClientToScreen(&origin);
    *prc = RECT{origin.x, origin.y, origin.x + m_rcWindow.right - m_rcWindow.left,
                origin.y + m_rcWindow.bottom - m_rcWindow.top};
}

void CHeadlessWindowPeer::SetWindowRect(const RECT& rc) {
    m_rcWindow = rc;
}

void CHeadlessWindowPeer::ClientToScreen(POINT* ppt) {
    POINT o = GetClientOrigin();
    ppt->x += o.x, ppt->y += o.y;
}

void CHeadlessWindowPeer::ScreenToClient(POINT* ppt) {
    POINT o = GetClientOrigin();
    ppt->x -= o.x, ppt->y -= o.y;
}

void CHeadlessWindowPeer::Show(int nCmdShow) {
    m_bVisible = nCmdShow != SW_HIDE;
}

bool CHeadlessWindowPeer::IsVisible() {
    for (CWnd* w = m_pWnd->GetParent(); w; w = w->GetParent())
        if (!w->IsWindowVisible()) return false;
    return m_bVisible;
}

std::unique_ptr<CDC> CHeadlessWindowPeer::CreateDC(const CRgn* pPaintRegion) {
    RECT client;
    GetClientRect(&client);
    CRgn surface(client);
    if (pPaintRegion) {
        ++m_nPaintCount;
        surface = CRgn::Intersection(surface, *pPaintRegion);
    }
    return std::make_unique<CHeadlessDC>(&m_displayList, surface, true);
}

void CHeadlessWindowPeer::OnInvalidate(const CRgn& rgn, BOOL bErase) {
    Invalidation inv{rgn, RECT{}, bErase};
    rgn.GetRgnBox(&inv.rcBox);
    m_invalidations.push_back(inv);
}

void CHeadlessWindowPeer::ClearLogs() {
    m_displayList.clear();
    m_invalidations.clear();
    m_scrollBarChanges.clear();
    m_nPaintCount = m_nDrawnCount = m_nStyleChanges = m_nCaretChanges = 0;
}
