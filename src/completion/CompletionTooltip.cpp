#include "completion/CompletionTooltip.h"

#include <algorithm>
#include <cstring>

#include "colour/TextZoneColor.h"
#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/PaintDC.h"
#include "platform/Pen.h"
#include "platform/Platform.h"

namespace {

constexpr COLORREF kFaceColor = 0x70FFFF;  // a pale yellow
constexpr const char* kClassName = "TextzoneParmTooltip";

// Only the user-interface thread opens tooltips, so one pointer serves.
CCompletionTooltip* g_pOpenTooltip = nullptr;

void MakeFont(CFont* pFont, int nWeight, int nLogPixelsY) {
    LOGFONTA lf;
    lf.lfHeight = -MulDiv(9, nLogPixelsY, 72);
    lf.lfWeight = nWeight;
    lf.lfPitchAndFamily = VARIABLE_PITCH;
    std::strncpy(lf.lfFaceName, "Arial", sizeof lf.lfFaceName - 1);
    pFont->CreateFontIndirect(&lf);
}

}  // namespace

CCompletionTooltip::CCompletionTooltip(const VESK::String& strName, const VESK::String& strParms,
                                       int bNoParens, CWnd* pParent, CTextZoneColor* pZone)
    : m_strName(strName),
      m_strParms(strParms),
      m_bNoParens(bNoParens),
      m_pParent(pParent),
      m_pZone(pZone) {}

CCompletionTooltip::~CCompletionTooltip() {
    if (g_pOpenTooltip == this) g_pOpenTooltip = nullptr;
    if (GetSafeHwnd()) DestroyWindow();
}

CCompletionTooltip* CCompletionTooltip::GetOpenTooltip() {
    return g_pOpenTooltip;
}

BOOL CCompletionTooltip::CreateAt(POINT ptClient) {
    int nLogPixelsY = 96;
    if (m_pParent) {
        if (CDC* pDC = m_pParent->GetDC()) {
            nLogPixelsY = pDC->GetDeviceCaps(LOGPIXELSY);
            m_pParent->ReleaseDC(pDC);
        }
        m_pParent->ClientToScreen(&ptClient);
    }
    // Each tooltip makes its two fonts: only one is open at a time, and
    // nothing made once for the process outlives the platform it came from.
    MakeFont(&m_font, 300, nLogPixelsY);
    MakeFont(&m_boldFont, FW_BOLD, nLogPixelsY);
    // A top-level window: its place is in screen coordinates, and the
    // editor is only remembered, so that it can be told of a cancel.
    const RECT rc{ptClient.x, ptClient.y, ptClient.x, ptClient.y};
    if (!CreateEx(WS_EX_WINDOWEDGE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST, kClassName, "", WS_POPUP, rc,
                  nullptr, 0))
        return FALSE;
    g_pOpenTooltip = this;
    return TRUE;
}

void CCompletionTooltip::SetActiveParm(int nParm) {
    if (nParm == m_nActiveParm) return;
    m_nActiveParm = nParm;
    m_strBefore = m_strName;
    if (!m_bNoParens) m_strBefore += " ( ";
    m_strActive.Empty();
    m_strAfter = m_strParms;

    // The piece with index nParm and where it stands.
    const char* p = m_strParms.c_str();
    const int n = m_strParms.GetLength();
    int start = 0;
    for (int i = 0; i < nParm && start <= n; ++i) {
        const char* comma = static_cast<const char*>(std::memchr(p + start, ',', n - start));
        start = comma ? static_cast<int>(comma - p) + 1 : n + 1;
    }
    if (nParm >= 0 && start <= n) {
        const char* comma = static_cast<const char*>(std::memchr(p + start, ',', n - start));
        const int end = comma ? static_cast<int>(comma - p) : n;
        m_strBefore += m_strParms.left(start);
        m_strActive = VESK::String(p + start, end - start);
        m_strAfter = m_strParms.subString(end);
    }
    if (!m_bNoParens) m_strAfter += " )";

    if (!GetSafeHwnd()) return;
    const int border = GetSystemMetrics(SM_CYBORDER);
    int cx = 6 * border;
    int cy = 0;
    // Measured on the editor's context: the tooltip's own has no surface
    // while its size is still 0.
    CWnd* pMeasure = m_pParent ? m_pParent : this;
    if (CDC* pDC = pMeasure->GetDC()) {
        const VESK::String* pieces[3] = {&m_strBefore, &m_strActive, &m_strAfter};
        for (int i = 0; i < 3; ++i) {
            HFONT hOld = pDC->SelectObject(i == 1 ? &m_boldFont : &m_font);
            const CSize size = pDC->GetTextExtent(pieces[i]->c_str(), pieces[i]->GetLength());
            pDC->SelectObject(hOld);
            cx += size.cx;
            cy = std::max<int>(cy, size.cy);
        }
        pMeasure->ReleaseDC(pDC);
    }
    cy += 6 * border;
    RECT rc;
    GetWindowRect(&rc);
    int x = rc.left;
    const int screen = GetSystemMetrics(SM_CXSCREEN);
    if (x + cx > screen) x = std::max(0, screen - cx);
    SetWindowPos(nullptr, x, rc.top, cx, cy, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

LRESULT CCompletionTooltip::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            ++m_nMessageDepth;
            OnPaint();
            --m_nMessageDepth;
            return 0;
        case WM_CANCELMODE:
            ++m_nMessageDepth;
            OnCancelMode();
            --m_nMessageDepth;
            return 0;
        case WM_ERASEBKGND:
            return 1;  // the paint covers the whole face
        default:
            return CWnd::WindowProc(message, wParam, lParam);
    }
}

void CCompletionTooltip::OnPaint() {
    CPaintDC dc(this);
    if (!dc.GetDC()) return;
    RECT rc;
    GetClientRect(&rc);
    CBrush brush(kFaceColor);
    CPen pen(PS_SOLID, 1, 0);
    HBRUSH hOldBrush = dc->SelectObject(&brush);
    HPEN hOldPen = dc->SelectObject(&pen);
    dc->Rectangle(&rc);
    dc->SelectObject(hOldPen);
    dc->SelectObject(hOldBrush);

    dc->SetTextColor(0);
    dc->SetBkMode(TRANSPARENT);
    const int border = GetSystemMetrics(SM_CYBORDER);
    int x = 3 * border;
    const int y = 3 * border;
    const VESK::String* pieces[3] = {&m_strBefore, &m_strActive, &m_strAfter};
    HFONT hOld = dc->SelectObject(&m_font);
    for (int i = 0; i < 3; ++i) {
        dc->SelectObject(i == 1 ? &m_boldFont : &m_font);
        if (m_pZone) m_pZone->getGraphicText()(dc.GetDC(), x, y, *pieces[i]);
        x += dc->GetTextExtent(pieces[i]->c_str(), pieces[i]->GetLength()).cx;
    }
    dc->SelectObject(hOld);
}

void CCompletionTooltip::OnCancelMode() {
    if (m_pParent) m_pParent->PostMessage(WM_CANCELMODE);
    if (m_pZone) m_pZone->CloseParmTooltip(1);
}
