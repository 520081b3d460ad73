#include "platform/qt/QtDC.h"

#include <QGlyphRun>
#include <QPainter>
#include <QVector>

#include "platform/ImageList.h"
#include "platform/Messages.h"
#include "platform/qt/QtFonts.h"
#include "platform/qt/Windows1252.h"

namespace {

QColor ColorOf(COLORREF cr) {
    return QColor(GetRValue(cr), GetGValue(cr), GetBValue(cr));
}

QRect RectOf(const RECT& rc) {
    return QRect(QPoint(rc.left, rc.top), QPoint(rc.right - 1, rc.bottom - 1));
}

QRegion RegionOf(const CRgn& rgn) {
    QRegion region;
    for (const RECT& rc : rgn.Rects())
        region += RectOf(rc);
    return region;
}

}  // namespace

CQtDC::CQtDC(CQtFonts& fonts, QImage* pImage, const CRgn& rgnSurface, QRect* pDirty)
    : m_fonts(fonts), m_pImage(pImage), m_pDirty(pDirty) {
    SetSystemClip(rgnSurface);
}

const FontMetrics& CQtDC::MetricsOf(const LOGFONTA& lf) {
    return m_fonts.Get(lf).metrics;
}

QPainter* CQtDC::Open(std::optional<QPainter>& local, const QRect& rcTouched) {
    if (!m_pImage || m_pImage->isNull()) return nullptr;
    QRegion clip = RegionOf(GetEffectiveClip()) & m_pImage->rect();
    if (!clip.intersects(rcTouched)) return nullptr;
    if (m_pDirty) *m_pDirty |= clip.boundingRect() & rcTouched;
    local.emplace(m_pImage);
    local->setClipRegion(clip);
    return &*local;
}

QRegion CQtDC::ClipRegion() const {
    return RegionOf(GetEffectiveClip());
}

void CQtDC::DoFill(const RECT& rc, COLORREF cr) {
    std::optional<QPainter> local;
    QRect r = RectOf(rc);
    if (QPainter* painter = Open(local, r)) painter->fillRect(r, ColorOf(cr));
}

void CQtDC::DoText(int x, int y, const char* p, int n, int nWidth) {
    const CQtFonts::Font& f = m_fonts.Get(GetCurrentLogFont());
    // Italic and overhanging glyphs may reach a little past their cells.
    int h = f.metrics.tm.tmHeight;
    std::optional<QPainter> local;
    QPainter* painter = Open(local, QRect(x - h / 4, y, nWidth + h / 2, h));
    if (!painter) return;
    painter->setPen(ColorOf(GetTextColor()));
    painter->setFont(f.font);
    // Glyphs go at the integer advances the text was measured with; bytes
    // the face lacks are drawn one by one from a fallback face.
    QVector<quint32> glyphs;
    QVector<QPointF> positions;
    glyphs.reserve(n);
    positions.reserve(n);
    int baseline = y + f.metrics.tm.tmAscent;
    int pos = x;
    for (int i = 0; i < n; ++i) {
        auto byte = static_cast<unsigned char>(p[i]);
        quint32 glyph = f.glyphs[byte];
        if (glyph != 0 || byte < 0x20) {
            glyphs.push_back(glyph);
            positions.push_back(QPointF(pos - x, 0));
        } else {
            painter->drawText(QPoint(pos, baseline), QString(QChar(CWindows1252::ToUnicode(byte))));
        }
        pos += f.metrics.widths[byte];
    }
    if (glyphs.isEmpty()) return;
    QGlyphRun run;
    run.setRawFont(f.raw);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    run.setUnderline(f.font.underline());
    run.setStrikeOut(f.font.strikeOut());
    // Positions are relative to the run's start: Qt draws an underline
    // from the run's position for the run's width.
    painter->drawGlyphRun(QPointF(x, baseline), run);
}

void CQtDC::DoRoundRect(const RECT& rc, int ew, int eh, const PenObject& pen,
                        const BrushObject& brush) {
    std::optional<QPainter> local;
    QPainter* painter = Open(local, RectOf(rc));
    if (!painter) return;
    // The shape covers left..right-1 and top..bottom-1; a one-pixel pen is
    // centred on the pixels of that outline.
    bool hasPen = pen.lopnStyle != PS_NULL;
    int w = hasPen ? std::max(1, pen.lopnWidth) : 0;
    if (hasPen)
        painter->setPen(QPen(ColorOf(pen.lopnColor), w));
    else
        painter->setPen(Qt::NoPen);
    if (brush.lbStyle != BS_NULL)
        painter->setBrush(ColorOf(brush.lbColor));
    else
        painter->setBrush(Qt::NoBrush);
    QRectF shape = hasPen ? QRectF(rc.left + w / 2.0, rc.top + w / 2.0, rc.right - rc.left - w,
                                   rc.bottom - rc.top - w)
                          : QRectF(rc.left, rc.top, rc.right - rc.left - 1, rc.bottom - rc.top - 1);
    painter->drawRoundedRect(shape, ew / 2.0, eh / 2.0);
}

void CQtDC::DoImage(const CImageList& list, int nImage, int x, int y, UINT) {
    const std::vector<DWORD>* pixels = list.GetImage(nImage);
    int cx = 0, cy = 0;
    list.GetIconSize(&cx, &cy);
    std::optional<QPainter> local;
    QPainter* painter = pixels ? Open(local, QRect(x, y, cx, cy)) : nullptr;
    if (!painter) return;
    QImage image(reinterpret_cast<const uchar*>(pixels->data()), cx, cy, cx * 4,
                 QImage::Format_ARGB32);
    painter->drawImage(QPoint(x, y), image);
}

BOOL CQtDC::DoScroll(int dx, int dy, const RECT& rcSource) {
    if (!m_pImage || !m_pDirty) return FALSE;
    QRect source = RectOf(rcSource) & m_pImage->rect();
    if (source.isEmpty()) return TRUE;
    QImage moved = m_pImage->copy(source);
    QPainter painter(m_pImage);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(source.topLeft() + QPoint(dx, dy), moved);
    *m_pDirty |= source.translated(dx, dy) & m_pImage->rect();
    return TRUE;
}

void CQtDC::DoFocusRect(const RECT& rc) {
    std::optional<QPainter> local;
    QRect r = RectOf(rc);
    QPainter* painter = Open(local, r);
    if (!painter) return;
    // Dotted and inverting, so that drawing it twice takes it away.
    painter->setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    QPen pen(Qt::white, 1, Qt::DotLine);
    painter->setPen(pen);
    painter->drawRect(r.adjusted(0, 0, -1, -1));
}
