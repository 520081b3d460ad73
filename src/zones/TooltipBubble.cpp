#include "zones/TooltipBubble.h"

#include <algorithm>
#include <cstdio>

#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/GdiObjects.h"
#include "platform/Messages.h"
#include "platform/PaintDC.h"
#include "platform/Pen.h"
#include "zones/TextZoneReadOnly.h"

CTooltipBubble* CTooltipBubble::s_pCurrentBubble = nullptr;
HHOOK CTooltipBubble::s_hKeyboardHook = nullptr;
VESK::String CTooltipBubble::s_strWndClass;
int CTooltipBubble::s_nScreenWidth = 0;
int CTooltipBubble::s_nScreenHeight = 0;
CFont CTooltipBubble::s_font;
int CTooltipBubble::s_nLineHeight = 0;
int CTooltipBubble::s_nCharWidth = 0;
int CTooltipBubble::s_nTabStop = 0;

CTooltipBubble::CTooltipBubble(char const* pText, CWnd* pParent, CTextZoneReadOnly* pZone)
    : m_strText(pText), m_pParent(pParent), m_pZone(pZone) {}

CTooltipBubble::~CTooltipBubble() {
    Unhook();
}

void CTooltipBubble::Unhook() {
    if (s_pCurrentBubble != this) return;
    s_pCurrentBubble = nullptr;
    if (s_hKeyboardHook) UnhookWindowsHookEx(s_hKeyboardHook);
    s_hKeyboardHook = nullptr;
}

BOOL CTooltipBubble::DestroyWindow() {
    // A closed bubble hears no more keys, even before it is freed.
    Unhook();
    return CWnd::DestroyWindow();
}

int CTooltipBubble::Extent(CDC* pDC, const char* p, int n) const {
    return static_cast<int>(LOWORD(GetTabbedTextExtentA(pDC, p, n, 1, &s_nTabStop)));
}

void CTooltipBubble::WrapLine(CDC* pDC, const VESK::String& line, int nLimit) {
    VESK::String rest = line;
    while (!rest.IsEmpty()) {
        const int n = rest.GetLength();
        const char* p = rest.c_str();
        if (Extent(pDC, p, n) <= nLimit) {
            m_lines.push_back(rest);
            return;
        }
        int nBreak = -1;
        for (int i = 0; i < n; ++i) {
            if (p[i] != '\t' && p[i] != ' ' && p[i] != '-') continue;
            if (Extent(pDC, p, i + 1) > nLimit) break;
            nBreak = i;
        }
        int nHead;
        if (nBreak >= 0) {
            // The separators stay at the end of the head.
            nHead = nBreak;
            while (nHead < n && (p[nHead] == '\t' || p[nHead] == ' ' || p[nHead] == '-'))
                ++nHead;
        } else {
            nHead = 0;
            while (nHead < n && Extent(pDC, p, nHead + 1) <= nLimit)
                ++nHead;
            // A byte wider than the limit alone still goes, or this would
            // never end.
            nHead = std::max(nHead, 1);
        }
        m_lines.push_back(VESK::String(p, nHead));
        rest = VESK::String(p + nHead, n - nHead);
    }
}

BOOL CTooltipBubble::CreateBubble(POINT* pPos) {
    if (s_strWndClass.IsEmpty()) {
        // The class of the desktop (redraw on size, save the bits under,
        // no erase) is a name here; the backend makes a tool popup of it.
        s_strWndClass = "TextzoneBubble";
        s_nScreenWidth = GetSystemMetrics(SM_CXFULLSCREEN);
        s_nScreenHeight = GetSystemMetrics(SM_CYFULLSCREEN);
    }
    if (s_strWndClass.IsEmpty()) return 0;
    const RECT empty{0, 0, 0, 0};
    const BOOL bCreated = CreateEx(WS_EX_WINDOWEDGE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST,
                                   s_strWndClass.c_str(), "", WS_POPUP, empty, nullptr, 0);
    HDC hDC = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    if (!s_font.GetSafeHandle() && hDC) {
        LOGFONTA lf{};
        lf.lfHeight = -((9 * hDC->GetDeviceCaps(LOGPIXELSY) + 36) / 72);
        lf.lfWeight = 300;
        lf.lfClipPrecision = 0x11;
        lf.lfPitchAndFamily = 2;
        std::snprintf(lf.lfFaceName, sizeof lf.lfFaceName, "%s", "Arial");
        s_font.CreateFontIndirect(&lf);
        hDC->SelectObject(&s_font);
        TEXTMETRICA tm;
        GetTextMetricsA(hDC, &tm);
        s_nLineHeight = tm.tmHeight;
        s_nCharWidth = tm.tmAveCharWidth;
        s_nTabStop = 4 * s_nCharWidth;
    }
    if (bCreated && hDC) {
        hDC->SelectObject(&s_font);
        // Lines end at CR, LF or CR LF; a text that stops behind a line end
        // has no further line.
        const char* p = m_strText.c_str();
        const int n = m_strText.GetLength();
        std::vector<VESK::String> lines;
        int from = 0;
        for (int i = 0; i < n; ++i) {
            if (p[i] != '\r' && p[i] != '\n') continue;
            lines.push_back(VESK::String(p + from, i - from));
            if (p[i] == '\r' && i + 1 < n && p[i + 1] == '\n') ++i;
            from = i + 1;
        }
        if (from < n || lines.empty()) lines.push_back(VESK::String(p + from, n - from));
        while (lines.size() > 1 && lines.back().IsEmpty())
            lines.pop_back();

        auto widest = [&](const std::vector<VESK::String>& list) {
            int w = 0;
            for (const auto& line : list)
                w = std::max(w, Extent(hDC, line.c_str(), line.GetLength()));
            return w;
        };
        int cx = widest(lines);
        int cy = static_cast<int>(lines.size()) * s_nLineHeight;
        const int nLimit = s_nScreenWidth * 4 / 5;
        if (cx <= nLimit) {
            m_lines = lines;
        } else {
            for (const auto& line : lines)
                WrapLine(hDC, line, nLimit);
            cx = widest(m_lines);
            cy = static_cast<int>(m_lines.size()) * s_nLineHeight;
        }
        const int border = 6 * GetSystemMetrics(SM_CXBORDER);
        RECT rc{pPos->x, pPos->y, pPos->x + cx + border, pPos->y + cy + border};
        if (m_pParent) m_pParent->ClientToScreen(&rc);
        if (rc.right > s_nScreenWidth) OffsetRect(&rc, s_nScreenWidth - rc.right, 0);
        if (rc.bottom > s_nScreenHeight) OffsetRect(&rc, 0, s_nScreenHeight - rc.bottom);
        if (rc.left < 0) rc.left = 0;
        if (rc.top < 0) rc.top = 0;
        SetWindowPos(nullptr, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        // A window that appears is painted whole.
        InvalidateRect(nullptr, FALSE);
        SetCapture();
    }
    if (hDC) DeleteDC(hDC);
    s_pCurrentBubble = this;
    if (s_hKeyboardHook) UnhookWindowsHookEx(s_hKeyboardHook);
    s_hKeyboardHook = SetWindowsHookExA(WH_KEYBOARD, &BubbleKeyboardHook, nullptr, 0);
    return bCreated;
}

void CTooltipBubble::OnPaint() {
    CPaintDC dc(this);
    CDC* pDC = dc.GetDC();
    if (!pDC) return;
    RECT rc;
    GetClientRect(&rc);
    CBrush face(kFace);
    pDC->SelectObject(&face);
    pDC->SelectStockObject(BLACK_PEN);
    pDC->RoundRect(rc.left, rc.top, rc.right, rc.bottom, 12, 12);
    const int inset = 3 * GetSystemMetrics(SM_CXBORDER);
    rc.left += inset;
    rc.top += inset;
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(RGB(0, 0, 0));
    pDC->SelectObject(&s_font);
    int y = rc.top;
    for (const auto& line : m_lines) {
        m_pZone->getGraphicText()(pDC, rc.left, y, line.c_str(), line.GetLength(), 1, &s_nTabStop,
                                  rc.left);
        y += s_nLineHeight;
    }
}

bool CTooltipBubble::ForwardMouse(UINT message, WPARAM wParam, LPARAM lParam, bool bAlways) {
    if (!m_pParent || !m_pParent->GetSafeHwnd()) return false;
    POINT pt{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    ClientToScreen(&pt);
    m_pParent->ScreenToClient(&pt);
    RECT client;
    m_pParent->GetClientRect(&client);
    const bool bInside = PtInRect(&client, pt);
    if (bInside || bAlways) m_pParent->PostMessage(message, wParam, MAKELPARAM(pt.x, pt.y));
    return bInside;
}

LRESULT CTooltipBubble::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            OnPaint();
            return 0;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            // The click reaches the text under the bubble, which goes.
            ForwardMouse(message, wParam, lParam, false);
            m_pZone->CloseBubble();
            return 0;
        case WM_MOUSEMOVE:
            ForwardMouse(message, wParam, lParam, true);
            return 0;
        case WM_CANCELMODE:
            if (m_pParent && m_pParent->GetSafeHwnd()) m_pParent->PostMessage(WM_CANCELMODE);
            m_pZone->CloseBubble();
            return 0;
        default:
            return CWnd::WindowProc(message, wParam, lParam);
    }
}

LRESULT CTooltipBubble::BubbleKeyboardHook(int nCode, WPARAM wParam, LPARAM lParam) {
    HHOOK hHook = s_hKeyboardHook;
    if (s_pCurrentBubble && nCode >= 0) {
        const bool bRelease = static_cast<LONG>(lParam) < 0;
        if (!(bRelease && (wParam == VK_F2 || wParam == VK_SHIFT)))
            s_pCurrentBubble->m_pZone->CloseBubble();
    }
    return CallNextHookEx(hHook, nCode, wParam, lParam);
}
