// A region: a set of pixels held as disjoint rectangles. Update regions,
// clip regions and the strips uncovered by scrolling are all regions.
#pragma once

#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

class TEXTZONE_EXPORT CRgn {
public:
    CRgn() = default;
    CRgn(const RECT& rc) { SetRectRgn(rc.left, rc.top, rc.right, rc.bottom); }

    BOOL CreateRectRgn(int l, int t, int r, int b) { return SetRectRgn(l, t, r, b), TRUE; }
    BOOL CreateRectRgnIndirect(const RECT* prc);
    void SetRectRgn(int l, int t, int r, int b);
    void SetRectRgn(const RECT* prc);
    void SetEmpty() { m_rects.clear(); }

    // Sets this region to a combined with b by RGN_AND, RGN_OR, RGN_XOR,
    // RGN_DIFF or RGN_COPY (a only); either source may be this region.
    // Returns NULLREGION, SIMPLEREGION, COMPLEXREGION or RGN_ERROR.
    int CombineRgn(const CRgn* a, const CRgn* b, int nMode);
    int CopyRgn(const CRgn* src);
    int OffsetRgn(int dx, int dy);
    int GetRgnBox(RECT* prc) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL RectInRegion(const RECT* prc) const;
    BOOL EqualRgn(const CRgn* other) const;

    bool IsEmpty() const { return m_rects.empty(); }
    int Type() const;
    const std::vector<RECT>& Rects() const { return m_rects; }
    long long Area() const;

    // Set operations on regions as values.
    static CRgn Union(const CRgn& a, const CRgn& b);
    static CRgn Intersection(const CRgn& a, const CRgn& b);
    static CRgn Difference(const CRgn& a, const CRgn& b);

private:
    void AddDisjoint(const RECT& rc);
    void Coalesce();

    std::vector<RECT> m_rects;  // disjoint, none empty
};
