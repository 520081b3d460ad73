#include "platform/Wnd.h"

#include <algorithm>
#include <cstring>

#include "platform/Caret.h"
#include "platform/DC.h"
#include "platform/FrameWnd.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

namespace {

// Windows without a parent, for finding the window under a point.
std::vector<CWnd*>& TopLevelWindows() {
    static std::vector<CWnd*> windows;
    return windows;
}

bool WindowHolds(const CWnd* pWnd, POINT ptScreen) {
    RECT rc;
    pWnd->GetWindowRect(&rc);
    return pWnd->IsWindowVisible() && ptScreen.x >= rc.left && ptScreen.x < rc.right &&
           ptScreen.y >= rc.top && ptScreen.y < rc.bottom;
}

}  // namespace

CWnd* WindowFromPoint(POINT ptScreen) {
    const auto& windows = TopLevelWindows();
    // The newest window is taken to lie on top.
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if (!WindowHolds(*it, ptScreen)) continue;
        CWnd* pWnd = *it;
        for (;;) {
            POINT pt = ptScreen;
            pWnd->ScreenToClient(&pt);
            CWnd* pChild = pWnd->ChildWindowFromPoint(pt);
            if (!pChild || pChild == pWnd) return pWnd;
            pWnd = pChild;
        }
    }
    return nullptr;
}

CWnd* CWnd::ChildWindowFromPoint(POINT pt) const {
    POINT screen = pt;
    ClientToScreen(&screen);
    for (auto it = m_children.rbegin(); it != m_children.rend(); ++it)
        if (WindowHolds(*it, screen)) return *it;
    RECT rc;
    GetClientRect(&rc);
    bool inside = pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
    return inside ? const_cast<CWnd*>(this) : nullptr;
}

CWnd::CWnd() {
    for (int i = 0; i < 3; ++i) {
        SCROLLINFO& si = m_bars[i].si;
        si.cbSize = sizeof(SCROLLINFO);
        si.fMask = SIF_ALL;
        si.nMin = 0;
        // Window bars start with the range 0 to 100, bar controls empty.
        si.nMax = i == SB_CTL ? 0 : 100;
    }
}

CWnd::~CWnd() {
    DestroyWindow();
    DetachFromParent();
}

BOOL CWnd::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, nullptr, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, const char* lpszClassName, const char* lpszWindowName,
                    DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, void* lpParam) {
    IPlatform* platform = GetPlatform();
    if (m_pPeer || !platform) return FALSE;
    m_dwStyle = dwStyle;
    m_dwExStyle = dwExStyle;
    m_nID = nID;
    m_strText = lpszWindowName ? lpszWindowName : "";
    m_pParent = pParentWnd;
    if (m_pParent)
        m_pParent->m_children.push_back(this);
    else
        TopLevelWindows().push_back(this);

    CREATESTRUCTA cs;
    cs.lpCreateParams = lpParam;
    cs.hwndParent = pParentWnd;
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = rect.right - rect.left;
    cs.cy = rect.bottom - rect.top;
    cs.style = static_cast<LONG>(dwStyle);
    cs.lpszName = lpszWindowName;
    cs.lpszClass = lpszClassName;
    cs.dwExStyle = dwExStyle;
    m_pPeer = platform->CreateWindowPeer(this, cs);
    if (!m_pPeer) {
        DetachFromParent();
        return FALSE;
    }
    RECT client;
    GetClientRect(&client);
    m_lastClientSize = SIZE{client.right, client.bottom};
    if (SendMessage(WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) == -1) {
        DestroyWindow();
        return FALSE;
    }
    SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (!m_pPeer) return FALSE;
    SendMessage(WM_DESTROY);
    std::vector<CWnd*> children = m_children;
    for (CWnd* child : children)
        child->DestroyWindow();
    WindowProc(WM_NCDESTROY, 0, 0);
    if (GetCaretInfo().pOwner == this) DestroyCaret();
    if (IPlatform* platform = GetPlatform()) platform->OnWindowDestroyed(this);
    m_dcs.clear();
    m_pPeer.reset();
    m_rgnUpdate.SetEmpty();
    DetachFromParent();  // a destroyed window is nobody's child
    return TRUE;
}

void CWnd::DetachFromParent() {
    auto& windows = TopLevelWindows();
    windows.erase(std::remove(windows.begin(), windows.end(), this), windows.end());
    if (m_pParent) {
        auto& siblings = m_pParent->m_children;
        siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
        m_pParent = nullptr;
    }
    for (CWnd* child : m_children)
        child->m_pParent = nullptr;
    m_children.clear();
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_pPeer) return 0;
    CurrentMessage saved = m_current;
    m_current = CurrentMessage{message, wParam, lParam};
    LRESULT result = WindowProc(message, wParam, lParam);
    m_current = saved;
    return result;
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return PostMessageA(this, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep) {
    std::vector<CWnd*> children = m_children;
    for (CWnd* child : children) {
        child->SendMessage(message, wParam, lParam);
        if (bDeep) child->SendMessageToDescendants(message, wParam, lParam, bDeep);
    }
}

void CWnd::SendMessageToAllWindows(UINT message, WPARAM wParam, LPARAM lParam) {
    std::vector<CWnd*> windows = TopLevelWindows();
    for (CWnd* pWnd : windows) {
        auto& live = TopLevelWindows();
        // One handler may close another window meanwhile.
        if (std::find(live.begin(), live.end(), pWnd) == live.end()) continue;
        pWnd->SendMessage(message, wParam, lParam);
        pWnd->SendMessageToDescendants(message, wParam, lParam, TRUE);
    }
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // A menu or accelerator command (no control in lParam) goes to the
    // window's command handlers; frames route it further.
    if (message == WM_COMMAND && lParam == 0 && OnCmdMsg(LOWORD(wParam), CN_COMMAND, nullptr))
        return 0;
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnCmdMsg(UINT, int, CCmdUI*) {
    return FALSE;
}

CFrameWnd* CWnd::GetParentFrame() const {
    for (CWnd* pWnd = m_pParent; pWnd; pWnd = pWnd->m_pParent)
        if (auto* pFrame = dynamic_cast<CFrameWnd*>(pWnd)) return pFrame;
    return nullptr;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT ps;
            BeginPaint(&ps);
            EndPaint(&ps);
            return 0;
        }
        case WM_ERASEBKGND: {
            auto* pDC = reinterpret_cast<CDC*>(wParam);
            if (!pDC) return 0;
            RECT rc;
            GetClientRect(&rc);
            pDC->FillSolidRect(&rc, ::GetSysColor(COLOR_WINDOW));
            return 1;
        }
        case WM_SETTEXT:
            SetWindowText(reinterpret_cast<const char*>(lParam));
            return TRUE;
        case WM_GETTEXT:
            return GetWindowText(reinterpret_cast<char*>(lParam), static_cast<int>(wParam));
        case WM_GETTEXTLENGTH:
            return GetWindowTextLength();
        case WM_CLOSE:
            DestroyWindow();
            return 0;
        case WM_NCHITTEST:
            return HTCLIENT;
        case WM_MOUSEACTIVATE:
            return MA_ACTIVATE;
        case WM_MOUSEWHEEL:
            // An unhandled wheel goes up to the parent, as on the desktop.
            return m_pParent ? m_pParent->SendMessage(message, wParam, lParam) : 0;
        default:
            return 0;
    }
}

LRESULT CWnd::Default() {
    return DefWindowProc(m_current.message, m_current.wParam, m_current.lParam);
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT) {
    DWORD style = (m_dwStyle & ~dwRemove) | dwAdd;
    if (style == m_dwStyle) return FALSE;
    m_dwStyle = style;
    if (m_pPeer) {
        m_pPeer->OnStyleChanged();
        NotifySizeChanged();
    }
    return TRUE;
}

CWnd* CWnd::SetActiveWindow() {
    if (m_pPeer) m_pPeer->Activate();
    return nullptr;
}

void CWnd::SetWindowText(const char* psz) {
    m_strText = psz ? psz : "";
    if (m_pPeer) m_pPeer->OnTextChanged();
}

int CWnd::GetWindowText(char* pszBuffer, int nMaxCount) const {
    if (!pszBuffer || nMaxCount < 1) return 0;
    int n = std::min(nMaxCount - 1, GetWindowTextLength());
    std::memcpy(pszBuffer, m_strText.data(), static_cast<size_t>(n));
    pszBuffer[n] = 0;
    return n;
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    BOOL wasDisabled = !m_bEnabled;
    m_bEnabled = bEnable ? TRUE : FALSE;
    if (m_pPeer) m_pPeer->Enable(m_bEnabled);
    if (wasDisabled == !m_bEnabled) return wasDisabled;
    SendMessage(WM_ENABLE, static_cast<WPARAM>(m_bEnabled));
    return wasDisabled;
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    BOOL wasVisible = IsWindowVisible();
    if (nCmdShow == SW_HIDE)
        m_dwStyle &= ~WS_VISIBLE;
    else
        m_dwStyle |= WS_VISIBLE;
    if (m_pPeer) m_pPeer->Show(nCmdShow);
    return wasVisible;
}

BOOL CWnd::IsWindowVisible() const {
    return m_pPeer && m_pPeer->IsVisible();
}

void CWnd::GetClientRect(RECT* prc) const {
    if (!prc) return;
    if (m_pPeer)
        m_pPeer->GetClientRect(prc);
    else
        *prc = RECT{};
}

void CWnd::GetWindowRect(RECT* prc) const {
    if (!prc) return;
    if (m_pPeer)
        m_pPeer->GetWindowRect(prc);
    else
        *prc = RECT{};
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    if (!m_pPeer) return;
    m_pPeer->SetWindowRect(RECT{x, y, x + nWidth, y + nHeight});
    NotifySizeChanged();
    if (bRepaint) Invalidate(TRUE);
}

void CWnd::MoveWindow(const RECT* prc, BOOL bRepaint) {
    if (prc)
        MoveWindow(prc->left, prc->top, prc->right - prc->left, prc->bottom - prc->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd*, int x, int y, int cx, int cy, UINT nFlags) {
    if (!m_pPeer) return FALSE;
    RECT rc;
    GetWindowRect(&rc);
    if (m_pParent) m_pParent->ScreenToClient(&rc);
    if (!(nFlags & SWP_NOMOVE)) ::OffsetRect(&rc, x - rc.left, y - rc.top);
    if (!(nFlags & SWP_NOSIZE)) rc.right = rc.left + cx, rc.bottom = rc.top + cy;
    if ((nFlags & (SWP_NOMOVE | SWP_NOSIZE)) != (SWP_NOMOVE | SWP_NOSIZE)) {
        m_pPeer->SetWindowRect(rc);
        NotifySizeChanged();
    }
    if (nFlags & SWP_SHOWWINDOW) ShowWindow(SW_SHOWNA);
    if (nFlags & SWP_HIDEWINDOW) ShowWindow(SW_HIDE);
    return TRUE;
}

void CWnd::NotifySizeChanged() {
    if (!m_pPeer) return;
    RECT client;
    GetClientRect(&client);
    SIZE size{client.right - client.left, client.bottom - client.top};
    if (size == m_lastClientSize) return;
    m_lastClientSize = size;
    m_rgnUpdate = CRgn::Intersection(m_rgnUpdate, CRgn(client));
    SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(size.cx, size.cy));
}

void CWnd::ClientToScreen(POINT* ppt) const {
    if (ppt && m_pPeer) m_pPeer->ClientToScreen(ppt);
}

void CWnd::ClientToScreen(RECT* prc) const {
    if (!prc) return;
    POINT a{prc->left, prc->top}, b{prc->right, prc->bottom};
    ClientToScreen(&a), ClientToScreen(&b);
    *prc = RECT{a.x, a.y, b.x, b.y};
}

void CWnd::ScreenToClient(POINT* ppt) const {
    if (ppt && m_pPeer) m_pPeer->ScreenToClient(ppt);
}

void CWnd::ScreenToClient(RECT* prc) const {
    if (!prc) return;
    POINT a{prc->left, prc->top}, b{prc->right, prc->bottom};
    ScreenToClient(&a), ScreenToClient(&b);
    *prc = RECT{a.x, a.y, b.x, b.y};
}

void CWnd::InvalidateRect(const RECT* prc, BOOL bErase) {
    if (!m_pPeer) return;
    RECT client;
    GetClientRect(&client);
    RECT rc = client;
    if (prc && !IntersectRect(&rc, prc, &client)) return;
    if (IsRectEmpty(&rc)) return;
    CRgn rgn(rc);
    m_rgnUpdate = CRgn::Union(m_rgnUpdate, rgn);
    if (bErase) m_bErasePending = TRUE;
    m_pPeer->OnInvalidate(rgn, bErase);
}

void CWnd::InvalidateRgn(const CRgn* pRgn, BOOL bErase) {
    if (!pRgn) return InvalidateRect(nullptr, bErase);
    if (!m_pPeer) return;
    RECT client;
    GetClientRect(&client);
    CRgn rgn = CRgn::Intersection(*pRgn, CRgn(client));
    if (rgn.IsEmpty()) return;
    m_rgnUpdate = CRgn::Union(m_rgnUpdate, rgn);
    if (bErase) m_bErasePending = TRUE;
    m_pPeer->OnInvalidate(rgn, bErase);
}

void CWnd::ValidateRect(const RECT* prc) {
    if (!prc) {
        m_rgnUpdate.SetEmpty();
        m_bErasePending = FALSE;
        return;
    }
    m_rgnUpdate = CRgn::Difference(m_rgnUpdate, CRgn(*prc));
    if (m_rgnUpdate.IsEmpty()) m_bErasePending = FALSE;
}

void CWnd::ValidateRgn(const CRgn* pRgn) {
    if (!pRgn) return ValidateRect(nullptr);
    m_rgnUpdate = CRgn::Difference(m_rgnUpdate, *pRgn);
    if (m_rgnUpdate.IsEmpty()) m_bErasePending = FALSE;
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL) const {
    if (!pRgn) return RGN_ERROR;
    return pRgn->CopyRgn(&m_rgnUpdate);
}

BOOL CWnd::GetUpdateRect(RECT* prc, BOOL) const {
    RECT box;
    m_rgnUpdate.GetRgnBox(&box);
    if (prc) *prc = box;
    return !m_rgnUpdate.IsEmpty();
}

void CWnd::UpdateWindow() {
    if (m_pPeer && !m_rgnUpdate.IsEmpty()) SendMessage(WM_PAINT);
}

BOOL CWnd::RedrawWindow(const RECT* prcUpdate, const CRgn* pRgnUpdate, UINT flags) {
    if (!m_pPeer) return FALSE;
    BOOL erase = (flags & RDW_ERASE) ? TRUE : FALSE;
    if (flags & RDW_INVALIDATE) {
        if (pRgnUpdate)
            InvalidateRgn(pRgnUpdate, erase);
        else
            InvalidateRect(prcUpdate, erase);
        if (flags & RDW_ALLCHILDREN)
            for (CWnd* child : m_children)
                child->RedrawWindow(nullptr, nullptr, flags);
    }
    if (flags & RDW_VALIDATE) {
        if (pRgnUpdate)
            ValidateRgn(pRgnUpdate);
        else
            ValidateRect(prcUpdate);
    }
    if (flags & RDW_UPDATENOW) UpdateWindow();
    return TRUE;
}

CDC* CWnd::BeginPaint(PAINTSTRUCT* pPaint) {
    if (!m_pPeer || !pPaint) return nullptr;
    CRgn rgn = m_rgnUpdate;
    BOOL erase = m_bErasePending;
    m_rgnUpdate.SetEmpty();
    m_bErasePending = FALSE;
    m_dcs.push_back(m_pPeer->CreateDC(&rgn));
    CDC* pDC = m_dcs.back().get();
    pPaint->hdc = pDC;
    rgn.GetRgnBox(&pPaint->rcPaint);
    pPaint->fErase = erase && !SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(pDC));
    return pDC;
}

void CWnd::EndPaint(const PAINTSTRUCT* pPaint) {
    if (pPaint) ReleaseDC(pPaint->hdc);
}

CDC* CWnd::GetDC() {
    if (!m_pPeer) return nullptr;
    m_dcs.push_back(m_pPeer->CreateDC(nullptr));
    return m_dcs.back().get();
}

int CWnd::ReleaseDC(CDC* pDC) {
    auto it = std::find_if(m_dcs.begin(), m_dcs.end(),
                           [&](const std::unique_ptr<CDC>& p) { return p.get() == pDC; });
    if (it == m_dcs.end()) return 0;
    m_dcs.erase(it);
    if (m_pPeer) m_pPeer->OnDrawn();
    return 1;
}

CWnd::ScrollBarState* CWnd::Bar(int nBar) {
    return nBar >= SB_HORZ && nBar <= SB_CTL ? &m_bars[nBar] : nullptr;
}

const CWnd::ScrollBarState* CWnd::Bar(int nBar) const {
    return nBar >= SB_HORZ && nBar <= SB_CTL ? &m_bars[nBar] : nullptr;
}

void CWnd::ClampScrollPos(ScrollBarState& bar) {
    SCROLLINFO& si = bar.si;
    int limit = si.nMax - std::max(static_cast<int>(si.nPage) - 1, 0);
    si.nPos = std::clamp(si.nPos, si.nMin, std::max(si.nMin, limit));
}

int CWnd::GetScrollLimit(int nBar) const {
    const ScrollBarState* bar = Bar(nBar);
    if (!bar) return 0;
    return std::max(bar->si.nMin, bar->si.nMax - std::max(static_cast<int>(bar->si.nPage) - 1, 0));
}

void CWnd::ScrollBarChanged(int nBar, bool bRangeChanged) {
    if (bRangeChanged && nBar != SB_CTL) {
        // A window's own bar shows while it can scroll and hides when it can't.
        const SCROLLINFO& si = m_bars[nBar].si;
        bool canScroll =
            si.nMax > si.nMin && (si.nPage == 0 || static_cast<int>(si.nPage) <= si.nMax - si.nMin);
        DWORD bit = nBar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
        if (canScroll)
            ModifyStyle(0, bit);
        else
            ModifyStyle(bit, 0);
    }
    if (m_pPeer) m_pPeer->OnScrollBarChanged(nBar);
}

int CWnd::GetScrollPos(int nBar) const {
    const ScrollBarState* bar = Bar(nBar);
    return bar ? bar->si.nPos : 0;
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL) {
    ScrollBarState* bar = Bar(nBar);
    if (!bar) return 0;
    int old = bar->si.nPos;
    bar->si.nPos = nPos;
    ClampScrollPos(*bar);
    ScrollBarChanged(nBar, false);
    return old;
}

void CWnd::GetScrollRange(int nBar, int* pMin, int* pMax) const {
    const ScrollBarState* bar = Bar(nBar);
    if (pMin) *pMin = bar ? bar->si.nMin : 0;
    if (pMax) *pMax = bar ? bar->si.nMax : 0;
}

void CWnd::SetScrollRange(int nBar, int nMin, int nMax, BOOL) {
    ScrollBarState* bar = Bar(nBar);
    if (!bar) return;
    bar->si.nMin = nMin;
    bar->si.nMax = nMax;
    ClampScrollPos(*bar);
    ScrollBarChanged(nBar, true);
}

BOOL CWnd::SetScrollInfo(int nBar, const SCROLLINFO* psi, BOOL) {
    ScrollBarState* bar = Bar(nBar);
    if (!bar || !psi) return FALSE;
    SCROLLINFO& si = bar->si;
    if (psi->fMask & SIF_RANGE) si.nMin = psi->nMin, si.nMax = psi->nMax;
    if (psi->fMask & SIF_PAGE) {
        si.nPage = psi->nPage;
        UINT span = static_cast<UINT>(std::max(si.nMax - si.nMin + 1, 0));
        si.nPage = std::min(si.nPage, span);
    }
    if (psi->fMask & SIF_POS) si.nPos = psi->nPos;
    ClampScrollPos(*bar);
    ScrollBarChanged(nBar, (psi->fMask & (SIF_RANGE | SIF_PAGE)) != 0);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, SCROLLINFO* psi, UINT nMask) const {
    const ScrollBarState* bar = Bar(nBar);
    if (!bar || !psi) return FALSE;
    const SCROLLINFO& si = bar->si;
    psi->fMask = nMask;
    if (nMask & SIF_RANGE) psi->nMin = si.nMin, psi->nMax = si.nMax;
    if (nMask & SIF_PAGE) psi->nPage = si.nPage;
    if (nMask & SIF_POS) psi->nPos = si.nPos;
    if (nMask & SIF_TRACKPOS) psi->nTrackPos = si.nTrackPos;
    return TRUE;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    if (nBar == SB_CTL) {
        ShowWindow(bShow ? SW_SHOW : SW_HIDE);
        return;
    }
    DWORD bits = nBar == SB_HORZ   ? WS_HSCROLL
                 : nBar == SB_VERT ? WS_VSCROLL
                 : nBar == SB_BOTH ? (WS_HSCROLL | WS_VSCROLL)
                                   : 0;
    if (bShow)
        ModifyStyle(0, bits);
    else
        ModifyStyle(bits, 0);
}

BOOL CWnd::EnableScrollBar(int nBar, UINT nArrowFlags) {
    if (nBar == SB_BOTH)
        return EnableScrollBar(SB_HORZ, nArrowFlags) && EnableScrollBar(SB_VERT, nArrowFlags);
    ScrollBarState* bar = Bar(nBar);
    if (!bar) return FALSE;
    bar->nDisabledArrows = nArrowFlags;
    if (m_pPeer) m_pPeer->OnScrollBarChanged(nBar);
    return TRUE;
}

UINT CWnd::GetScrollBarArrows(int nBar) const {
    const ScrollBarState* bar = Bar(nBar);
    return bar ? bar->nDisabledArrows : 0;
}

BOOL CWnd::IsScrollBarVisible(int nBar) const {
    switch (nBar) {
        case SB_HORZ:
            return (m_dwStyle & WS_HSCROLL) != 0;
        case SB_VERT:
            return (m_dwStyle & WS_VSCROLL) != 0;
        case SB_CTL:
            return IsWindowVisible();
        default:
            return FALSE;
    }
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight) {
    ::CreateCaret(this, nullptr, nWidth, nHeight);
}
void CWnd::ShowCaret() {
    ::ShowCaret(this);
}
void CWnd::HideCaret() {
    ::HideCaret(this);
}
void CWnd::SetCaretPos(POINT pt) {
    ::SetCaretPos(pt.x, pt.y);
}

CPoint CWnd::GetCaretPos() {
    POINT pt;
    ::GetCaretPos(&pt);
    return pt;
}

CWnd* CWnd::SetFocus() {
    return ::SetFocus(this);
}
CWnd* CWnd::GetFocus() {
    return ::GetFocus();
}
CWnd* CWnd::SetCapture() {
    return ::SetCapture(this);
}
CWnd* CWnd::GetCapture() {
    return ::GetCapture();
}

void CWnd::BeginWaitCursor() {
    if (IPlatform* p = GetPlatform()) p->BeginWaitCursor();
}

void CWnd::EndWaitCursor() {
    if (IPlatform* p = GetPlatform()) p->EndWaitCursor();
}
