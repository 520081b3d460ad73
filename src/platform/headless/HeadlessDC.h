// A drawing context that records what it is asked to draw. On a window it
// records into the window's display list; off screen into its own.
#pragma once

#include <utility>

#include "TextzoneExport.h"
#include "platform/DC.h"
#include "platform/headless/DrawRecord.h"

class TEXTZONE_EXPORT CHeadlessDC : public CDC {
public:
    // pList null: the context keeps its own list. bCanScroll: a window's
    // context, whose pixels ScrollDC may move.
    CHeadlessDC(DisplayList* pList, const CRgn& rgnSurface, bool bCanScroll);

    const DisplayList& GetDisplayList() const { return *m_pList; }

protected:
    // Hands over what was recorded so far and starts an empty record.
    DisplayList TakeDisplayList() { return std::exchange(*m_pList, DisplayList()); }

    const FontMetrics& MetricsOf(const LOGFONTA& lf) override;
    void DoFill(const RECT& rc, COLORREF cr) override;
    void DoText(int x, int y, const char* p, int n, int nWidth) override;
    void DoRoundRect(const RECT& rc, int ew, int eh, const PenObject& pen,
                     const BrushObject& brush) override;
    void DoImage(const CImageList& list, int nImage, int x, int y, UINT nStyle) override;
    BOOL DoScroll(int dx, int dy, const RECT& rcSource) override;
    void DoFocusRect(const RECT& rc) override;

private:
    // Adds the record unless it lies wholly outside the clip.
    void Record(DrawRecord rec);

    DisplayList m_own;
    DisplayList* m_pList;
    bool m_bCanScroll;
};
