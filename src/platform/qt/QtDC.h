// A drawing context over an image: a window's backing image, or none for a
// context that only measures. Each primitive paints with its own QPainter,
// so the image may be resized between calls; what was painted is added to
// the owner's dirty rectangle, for the window to show when drawing ends.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QRegion>
#include <optional>

#include "platform/DC.h"

class CQtFonts;

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

    // A painter on the surface, clipped to the effective clip, or null when
    // the touched rectangle cannot be reached. An image's painter is made in
    // local, for the one primitive; a printer keeps one for its document.
    virtual QPainter* Open(std::optional<QPainter>& local, const QRect& rcTouched);
    QRegion ClipRegion() const;
    CQtFonts& Fonts() { return m_fonts; }

private:

    CQtFonts& m_fonts;
    QImage* m_pImage;
    QRect* m_pDirty;
};
