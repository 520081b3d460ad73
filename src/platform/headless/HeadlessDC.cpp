#include "platform/headless/HeadlessDC.h"

#include "platform/ImageList.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessFonts.h"

CHeadlessDC::CHeadlessDC(DisplayList* pList, const CRgn& rgnSurface, bool bCanScroll)
    : m_pList(pList ? pList : &m_own), m_bCanScroll(bCanScroll) {
    SetSystemClip(rgnSurface);
}

const FontMetrics& CHeadlessDC::MetricsOf(const LOGFONTA& lf) {
    return CHeadlessFonts::Get(lf);
}

void CHeadlessDC::Record(DrawRecord rec) {
    if (!RectVisible(&rec.rc)) return;
    GetClipBox(&rec.rcClipBox);
    m_pList->push_back(std::move(rec));
}

void CHeadlessDC::DoFill(const RECT& rc, COLORREF cr) {
    DrawRecord rec;
    rec.kind = DrawRecord::Fill;
    rec.rc = rc;
    rec.crFill = cr;
    Record(std::move(rec));
}

void CHeadlessDC::DoText(int x, int y, const char* p, int n, int nWidth) {
    DrawRecord rec;
    rec.kind = DrawRecord::Text;
    rec.rc = RECT{x, y, x + nWidth, y + Metrics().tm.tmHeight};
    rec.text.assign(p, static_cast<size_t>(n));
    rec.font = GetCurrentLogFont();
    rec.crText = GetTextColor();
    rec.crBk = GetBkColor();
    rec.nBkMode = GetBkMode();
    Record(std::move(rec));
}

void CHeadlessDC::DoRoundRect(const RECT& rc, int ew, int eh, const PenObject& pen,
                              const BrushObject& brush) {
    DrawRecord rec;
    rec.kind = DrawRecord::RoundRect;
    rec.rc = rc;
    rec.nEllipseW = ew;
    rec.nEllipseH = eh;
    rec.bHasBrush = brush.lbStyle != BS_NULL;
    rec.crFill = brush.lbColor;
    rec.bHasPen = pen.lopnStyle != PS_NULL;
    rec.crPen = pen.lopnColor;
    Record(std::move(rec));
}

void CHeadlessDC::DoImage(const CImageList& list, int nImage, int x, int y, UINT) {
    int cx = 0, cy = 0;
    list.GetIconSize(&cx, &cy);
    DrawRecord rec;
    rec.kind = DrawRecord::Image;
    rec.rc = RECT{x, y, x + cx, y + cy};
    rec.pImageList = &list;
    rec.nImage = nImage;
    Record(std::move(rec));
}

BOOL CHeadlessDC::DoScroll(int dx, int dy, const RECT& rcSource) {
    if (!m_bCanScroll) return FALSE;
    DrawRecord rec;
    rec.kind = DrawRecord::Scroll;
    rec.rc = rcSource;
    rec.dx = dx;
    rec.dy = dy;
    GetClipBox(&rec.rcClipBox);
    m_pList->push_back(std::move(rec));
    return TRUE;
}

void CHeadlessDC::DoFocusRect(const RECT& rc) {
    DrawRecord rec;
    rec.kind = DrawRecord::FocusRect;
    rec.rc = rc;
    Record(std::move(rec));
}
