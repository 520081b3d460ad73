#include "platform/DC.h"

#include <algorithm>
#include <utility>

#include "platform/Brush.h"
#include "platform/Font.h"
#include "platform/ImageList.h"
#include "platform/Messages.h"
#include "platform/Pen.h"

namespace {

const FontObject& StockFont(int id) {
    return *static_cast<HFONT>(GetStockObject(id));
}
const BrushObject& StockBrush(int id) {
    return *static_cast<HBRUSH>(GetStockObject(id));
}
const PenObject& StockPen(int id) {
    return *static_cast<HPEN>(GetStockObject(id));
}

int FloorDiv(int a, int b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

}  // namespace

CDC::CDC()
    : m_hFont(&StockFont(SYSTEM_FONT)),
      m_font(StockFont(SYSTEM_FONT).lf),
      m_hBrush(&StockBrush(WHITE_BRUSH)),
      m_brush(StockBrush(WHITE_BRUSH)),
      m_hPen(&StockPen(BLACK_PEN)),
      m_pen(StockPen(BLACK_PEN)),
      m_nBkMode(OPAQUE),
      m_nMapMode(MM_TEXT) {}

CDC::~CDC() = default;

HFONT CDC::SelectObject(HFONT hFont) {
    HFONT old = m_hFont;
    if (!hFont) return old;
    m_hFont = hFont;
    if (!(m_font == hFont->lf)) {
        m_font = hFont->lf;
        m_pMetrics = nullptr;
    }
    return old;
}

HFONT CDC::SelectObject(const CFont* pFont) {
    return pFont ? SelectObject(pFont->GetSafeHandle()) : m_hFont;
}

HBRUSH CDC::SelectObject(HBRUSH hBrush) {
    HBRUSH old = m_hBrush;
    if (hBrush) m_hBrush = hBrush, m_brush = *hBrush;
    return old;
}

HBRUSH CDC::SelectObject(const CBrush* pBrush) {
    return pBrush ? SelectObject(pBrush->GetSafeHandle()) : m_hBrush;
}

HPEN CDC::SelectObject(HPEN hPen) {
    HPEN old = m_hPen;
    if (hPen) m_hPen = hPen, m_pen = *hPen;
    return old;
}

HPEN CDC::SelectObject(const CPen* pPen) {
    return pPen ? SelectObject(pPen->GetSafeHandle()) : m_hPen;
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject) {
    if (!hObject) return nullptr;
    switch (hObject->kind) {
        case GdiObject::Font:
            return SelectObject(static_cast<HFONT>(hObject));
        case GdiObject::Brush:
            return SelectObject(static_cast<HBRUSH>(hObject));
        case GdiObject::Pen:
            return SelectObject(static_cast<HPEN>(hObject));
    }
    return nullptr;
}

HGDIOBJ CDC::SelectStockObject(int nIndex) {
    return SelectObject(GetStockObject(nIndex));
}

COLORREF CDC::SetTextColor(COLORREF cr) {
    return std::exchange(m_crText, cr);
}
COLORREF CDC::SetBkColor(COLORREF cr) {
    return std::exchange(m_crBk, cr);
}

int CDC::SetBkMode(int nMode) {
    if (nMode != OPAQUE && nMode != TRANSPARENT) return 0;
    return std::exchange(m_nBkMode, nMode);
}

int CDC::SetMapMode(int nMode) {
    // Every surface here is in pixels; other mapping modes are refused.
    if (nMode != MM_TEXT) return 0;
    return std::exchange(m_nMapMode, nMode);
}

int CDC::SaveDC() {
    m_saved.push_back(State{m_hFont, m_font, m_hBrush, m_brush, m_hPen, m_pen, m_crText, m_crBk,
                            m_nBkMode, m_nMapMode, m_clip});
    return static_cast<int>(m_saved.size());
}

BOOL CDC::RestoreDC(int nSavedDC) {
    int count = static_cast<int>(m_saved.size());
    int index = nSavedDC < 0 ? count + nSavedDC : nSavedDC - 1;
    if (index < 0 || index >= count) return FALSE;
    State s = m_saved[static_cast<size_t>(index)];
    m_saved.erase(m_saved.begin() + index, m_saved.end());
    if (!(m_font == s.font)) m_pMetrics = nullptr;
    m_hFont = s.hFont, m_font = s.font;
    m_hBrush = s.hBrush, m_brush = s.brush;
    m_hPen = s.hPen, m_pen = s.pen;
    m_crText = s.crText, m_crBk = s.crBk;
    m_nBkMode = s.nBkMode, m_nMapMode = s.nMapMode;
    m_clip = s.clip;
    return TRUE;
}

const FontMetrics& CDC::Metrics() {
    if (!m_pMetrics) m_pMetrics = &MetricsOf(m_font);
    return *m_pMetrics;
}

BOOL CDC::GetTextMetrics(TEXTMETRICA* ptm) {
    if (!ptm) return FALSE;
    *ptm = Metrics().tm;
    return TRUE;
}

CSize CDC::GetTextExtent(const char* psz, int nCount) {
    const FontMetrics& fm = Metrics();
    if (!psz || nCount < 1) return CSize(0, fm.tm.tmHeight);
    return CSize(fm.Width(psz, nCount), fm.tm.tmHeight);
}

BOOL CDC::GetCharWidth(UINT nFirst, UINT nLast, int* pBuffer) {
    if (!pBuffer || nFirst > nLast || nLast > 255) return FALSE;
    const FontMetrics& fm = Metrics();
    for (UINT c = nFirst; c <= nLast; ++c)
        *pBuffer++ = fm.widths[c];
    return TRUE;
}

// Position of the next tab stop after xRel, both counted from the tab origin.
int CDC::NextTabStop(int xRel, int nTabPositions, const int* pTabStops, int nDefault) const {
    int step = nDefault;
    if (pTabStops && nTabPositions == 1 && pTabStops[0] > 0) step = pTabStops[0];
    if (pTabStops && nTabPositions > 1) {
        for (int i = 0; i < nTabPositions; ++i)
            if (pTabStops[i] > xRel) return pTabStops[i];
        int last = pTabStops[nTabPositions - 1];
        int prev = pTabStops[nTabPositions - 2];
        step = last > prev ? last - prev : nDefault;
        return last + (FloorDiv(xRel - last, step) + 1) * step;
    }
    if (step < 1) step = 1;
    return (FloorDiv(xRel, step) + 1) * step;
}

CSize CDC::GetTabbedTextExtent(const char* psz, int nCount, int nTabPositions,
                               const int* pTabStops) {
    const FontMetrics& fm = Metrics();
    int nDefault = 8 * fm.tm.tmAveCharWidth;
    int x = 0;
    for (int i = 0; psz && i < nCount; ++i) {
        unsigned char c = static_cast<unsigned char>(psz[i]);
        x = c == '\t' ? NextTabStop(x, nTabPositions, pTabStops, nDefault) : x + fm.widths[c];
    }
    return CSize(x, fm.tm.tmHeight);
}

BOOL CDC::TextOut(int x, int y, const char* psz, int nCount) {
    if (!psz || nCount < 1) return TRUE;
    const FontMetrics& fm = Metrics();
    int w = fm.Width(psz, nCount);
    if (m_nBkMode == OPAQUE) FillClipped(RECT{x, y, x + w, y + fm.tm.tmHeight}, m_crBk);
    DoText(x, y, psz, nCount, w);
    return TRUE;
}

CSize CDC::TabbedTextOut(int x, int y, const char* psz, int nCount, int nTabPositions,
                         const int* pTabStops, int nTabOrigin) {
    const FontMetrics& fm = Metrics();
    int nDefault = 8 * fm.tm.tmAveCharWidth;
    int h = fm.tm.tmHeight;
    int pos = x;
    int i = 0;
    while (psz && i < nCount) {
        if (psz[i] == '\t') {
            int next =
                nTabOrigin + NextTabStop(pos - nTabOrigin, nTabPositions, pTabStops, nDefault);
            if (m_nBkMode == OPAQUE) FillClipped(RECT{pos, y, next, y + h}, m_crBk);
            pos = next;
            ++i;
            continue;
        }
        int start = i;
        while (i < nCount && psz[i] != '\t')
            ++i;
        int w = fm.Width(psz + start, i - start);
        if (m_nBkMode == OPAQUE) FillClipped(RECT{pos, y, pos + w, y + h}, m_crBk);
        DoText(pos, y, psz + start, i - start, w);
        pos += w;
    }
    return CSize(pos - x, h);
}

void CDC::FillClipped(const RECT& rc, COLORREF cr) {
    if (!IsRectEmpty(&rc)) DoFill(rc, cr);
}

void CDC::FillRect(const RECT* prc, HBRUSH hBrush) {
    if (prc && hBrush && hBrush->lbStyle != BS_NULL) FillClipped(*prc, hBrush->lbColor);
}

void CDC::FillRect(const RECT* prc, const CBrush* pBrush) {
    if (pBrush) FillRect(prc, pBrush->GetSafeHandle());
}

void CDC::FillSolidRect(const RECT* prc, COLORREF cr) {
    if (prc) FillClipped(*prc, cr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF cr) {
    FillClipped(RECT{x, y, x + cx, y + cy}, cr);
}

BOOL CDC::Rectangle(int l, int t, int r, int b) {
    RECT rc{std::min(l, r), std::min(t, b), std::max(l, r), std::max(t, b)};
    bool pen = m_pen.lopnStyle != PS_NULL;
    int w = pen ? std::max(1, m_pen.lopnWidth) : 0;
    if (m_brush.lbStyle != BS_NULL) {
        RECT inner = pen ? RECT{rc.left + w, rc.top + w, rc.right - w, rc.bottom - w}
                         : RECT{rc.left, rc.top, rc.right - 1, rc.bottom - 1};
        FillClipped(inner, m_brush.lbColor);
    }
    if (pen) {
        COLORREF cr = m_pen.lopnColor;
        FillClipped(RECT{rc.left, rc.top, rc.right, rc.top + w}, cr);
        FillClipped(RECT{rc.left, rc.bottom - w, rc.right, rc.bottom}, cr);
        FillClipped(RECT{rc.left, rc.top + w, rc.left + w, rc.bottom - w}, cr);
        FillClipped(RECT{rc.right - w, rc.top + w, rc.right, rc.bottom - w}, cr);
    }
    return TRUE;
}

BOOL CDC::Rectangle(const RECT* prc) {
    return prc ? Rectangle(prc->left, prc->top, prc->right, prc->bottom) : FALSE;
}

BOOL CDC::RoundRect(int l, int t, int r, int b, int nEllipseW, int nEllipseH) {
    RECT rc{std::min(l, r), std::min(t, b), std::max(l, r), std::max(t, b)};
    if (IsRectEmpty(&rc)) return TRUE;
    DoRoundRect(rc, nEllipseW, nEllipseH, m_pen, m_brush);
    return TRUE;
}

void CDC::DrawFocusRect(const RECT* prc) {
    if (prc && !IsRectEmpty(prc)) DoFocusRect(*prc);
}

void CDC::DoFocusRect(const RECT&) {}

BOOL CDC::DrawImage(const CImageList& list, int nImage, int x, int y, UINT nStyle) {
    if (nImage < 0 || nImage >= list.GetImageCount()) return FALSE;
    DoImage(list, nImage, x, y, nStyle);
    return TRUE;
}

CRgn CDC::GetEffectiveClip() const {
    return m_clip ? CRgn::Intersection(m_rgnSystem, *m_clip) : m_rgnSystem;
}

int CDC::ClipType() const {
    return GetEffectiveClip().Type();
}

int CDC::IntersectClipRect(int l, int t, int r, int b) {
    CRgn rc;
    rc.SetRectRgn(l, t, r, b);
    m_clip = m_clip ? CRgn::Intersection(*m_clip, rc) : rc;
    return ClipType();
}

int CDC::IntersectClipRect(const RECT* prc) {
    return prc ? IntersectClipRect(prc->left, prc->top, prc->right, prc->bottom) : RGN_ERROR;
}

int CDC::ExcludeClipRect(int l, int t, int r, int b) {
    CRgn rc;
    rc.SetRectRgn(l, t, r, b);
    m_clip = CRgn::Difference(m_clip ? *m_clip : m_rgnSystem, rc);
    return ClipType();
}

int CDC::SelectClipRgn(const CRgn* pRgn) {
    if (pRgn)
        m_clip = *pRgn;
    else
        m_clip.reset();
    return ClipType();
}

int CDC::GetClipBox(RECT* prc) const {
    if (!prc) return RGN_ERROR;
    return GetEffectiveClip().GetRgnBox(prc);
}

BOOL CDC::RectVisible(const RECT* prc) const {
    return prc && GetEffectiveClip().RectInRegion(prc);
}

BOOL CDC::ScrollDC(int dx, int dy, const RECT* prcScroll, const RECT* prcClip, CRgn* pRgnUpdate,
                   RECT* prcUpdate) {
    RECT surface;
    m_rgnSystem.GetRgnBox(&surface);
    RECT scroll = prcScroll ? *prcScroll : surface;
    RECT area = scroll;
    if (prcClip && !IntersectRect(&area, &scroll, prcClip)) area = RECT{};
    // What lands inside the area comes from the scroll rectangle shifted back.
    RECT source = area;
    ::OffsetRect(&source, -dx, -dy);
    RECT visibleSource;
    BOOL moved = FALSE;
    if (IntersectRect(&visibleSource, &source, &scroll)) moved = DoScroll(dx, dy, visibleSource);
    CRgn exposed(area);
    if (moved) {
        RECT landed = visibleSource;
        ::OffsetRect(&landed, dx, dy);
        exposed = CRgn::Difference(exposed, CRgn(landed));
    }
    if (pRgnUpdate) pRgnUpdate->CopyRgn(&exposed);
    if (prcUpdate) exposed.GetRgnBox(prcUpdate);
    return moved || IsRectEmpty(&visibleSource);
}

BOOL CDC::DoScroll(int, int, const RECT&) {
    return FALSE;
}

int CDC::GetDeviceCaps(int nIndex) {
    RECT box;
    m_rgnSystem.GetRgnBox(&box);
    switch (nIndex) {
        case LOGPIXELSX:
        case LOGPIXELSY:
            return 96;
        case HORZRES:
            return box.right - box.left;
        case VERTRES:
            return box.bottom - box.top;
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        case TECHNOLOGY:
            return DT_RASDISPLAY;
        default:
            return 0;
    }
}

DWORD GetTabbedTextExtentA(HDC hDC, const char* psz, int nCount, int nTabPositions,
                           const int* pTabStops) {
    if (!hDC) return 0;
    CSize s = hDC->GetTabbedTextExtent(psz, nCount, nTabPositions, pTabStops);
    return MAKELONG(s.cx, s.cy);
}

LONG TabbedTextOutA(HDC hDC, int x, int y, const char* psz, int nCount, int nTabPositions,
                    const int* pTabStops, int nTabOrigin) {
    if (!hDC) return 0;
    CSize s = hDC->TabbedTextOut(x, y, psz, nCount, nTabPositions, pTabStops, nTabOrigin);
    return static_cast<LONG>(MAKELONG(s.cx, s.cy));
}

BOOL GetTextExtentPoint32A(HDC hDC, const char* psz, int nCount, SIZE* pSize) {
    if (!hDC || !pSize) return FALSE;
    *pSize = hDC->GetTextExtent(psz, nCount);
    return TRUE;
}

BOOL GetTextMetricsA(HDC hDC, TEXTMETRICA* ptm) {
    return hDC ? hDC->GetTextMetrics(ptm) : FALSE;
}

int CDC::StartDoc(const DOCINFOA*) {
    return -1;
}
int CDC::StartPage() {
    return -1;
}
int CDC::EndPage() {
    return -1;
}
int CDC::EndDoc() {
    return -1;
}
int CDC::AbortDoc() {
    return -1;
}
