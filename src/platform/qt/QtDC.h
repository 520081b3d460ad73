// A drawing context over an image: a window's backing image, or none for a
// context that only measures. Each primitive paints with its own QPainter,
// so the image may be resized between calls; what was painted is added to
// the owner's dirty rectangle, for the window to show when drawing ends.
#pragma once

#include <QImage>
#include <QRect>

#include "platform/DC.h"

class CQtFonts;
class QPainter;

class CQtDC : public CDC {
public:
    // pImage null: a measuring context. pDirty may be null.
    CQtDC(CQtFonts& fonts, QImage* pImage, const CRgn& rgnSurface, QRect* pDirty);

protected:
    const FontMetrics& MetricsOf(const LOGFONTA& lf) override;
    void DoFill(const RECT& rc, COLORREF cr) override;
    void DoText(int x, int y, const char* p, int n, int nWidth) override;
    void DoRoundRect(const RECT& rc, int ew, int eh, const PenObject& pen,
                     const BrushObject& brush) override;
    void DoImage(const CImageList& list, int nImage, int x, int y, UINT nStyle) override;
    BOOL DoScroll(int dx, int dy, const RECT& rcSource) override;
    void DoFocusRect(const RECT& rc) override;

private:
    // Opens a painter clipped to the effective clip; false when nothing
    // can be reached.
    bool Begin(QPainter& painter, const QRect& rcTouched);

    CQtFonts& m_fonts;
    QImage* m_pImage;
    QRect* m_pDirty;
};
