#include <gtest/gtest.h>

#include "platform/Messages.h"
#include "platform/Rgn.h"

namespace {

CRgn Rect(int l, int t, int r, int b) {
    return CRgn(RECT{l, t, r, b});
}

bool Same(const CRgn& a, const CRgn& b) {
    return a.EqualRgn(&b);
}

RECT Box(const CRgn& rgn) {
    RECT rc;
    rgn.GetRgnBox(&rc);
    return rc;
}

}  // namespace

TEST(RgnTest, SetOperationsKeepAreasAndTypes) {
    CRgn a = Rect(0, 0, 10, 10), b = Rect(5, 5, 15, 15);

    CRgn u = CRgn::Union(a, b);
    EXPECT_EQ(u.Area(), 100 + 100 - 25);
    EXPECT_EQ(u.Type(), COMPLEXREGION);
    EXPECT_EQ(Box(u), (RECT{0, 0, 15, 15}));
    EXPECT_TRUE(u.PtInRegion(12, 12));
    EXPECT_FALSE(u.PtInRegion(12, 2));

    CRgn i = CRgn::Intersection(a, b);
    EXPECT_TRUE(Same(i, Rect(5, 5, 10, 10)));
    EXPECT_EQ(i.Type(), SIMPLEREGION);

    CRgn d = CRgn::Difference(a, b);
    EXPECT_EQ(d.Area(), 75);
    EXPECT_FALSE(d.PtInRegion(7, 7));
    EXPECT_TRUE(d.PtInRegion(2, 7));

    EXPECT_TRUE(CRgn::Difference(a, a).IsEmpty());
    EXPECT_EQ(CRgn::Difference(a, a).Type(), NULLREGION);
    EXPECT_TRUE(CRgn::Intersection(a, Rect(20, 20, 30, 30)).IsEmpty());
}

TEST(RgnTest, CombineAcceptsItselfAsSourceAndRefusesBadModes) {
    CRgn r = Rect(0, 0, 10, 10);
    CRgn other = Rect(10, 0, 20, 10);
    EXPECT_EQ(r.CombineRgn(&r, &other, RGN_OR), SIMPLEREGION);  // side by side merge
    EXPECT_EQ(Box(r), (RECT{0, 0, 20, 10}));
    EXPECT_EQ(r.CombineRgn(&r, &other, RGN_XOR), SIMPLEREGION);
    EXPECT_TRUE(Same(r, Rect(0, 0, 10, 10)));
    EXPECT_EQ(r.CombineRgn(&r, &other, 99), RGN_ERROR);
    EXPECT_EQ(r.CombineRgn(&r, nullptr, RGN_AND), RGN_ERROR);
    CRgn copy;
    EXPECT_EQ(copy.CopyRgn(&r), SIMPLEREGION);
    EXPECT_TRUE(copy.EqualRgn(&r));
}

TEST(RgnTest, OffsetBoxAndRectangleTests) {
    CRgn r = CRgn::Union(Rect(0, 0, 10, 10), Rect(20, 20, 30, 30));
    r.OffsetRgn(5, -5);
    EXPECT_EQ(Box(r), (RECT{5, -5, 35, 25}));
    RECT inGap{16, 6, 24, 14};
    EXPECT_FALSE(r.RectInRegion(&inGap));
    RECT touching{14, 4, 16, 6};
    EXPECT_TRUE(r.RectInRegion(&touching));
    // Right and bottom edges lie outside.
    EXPECT_FALSE(r.PtInRegion(15, 0));
    EXPECT_TRUE(r.PtInRegion(14, 4));
}

TEST(RgnTest, EqualityIgnoresHowTheRegionIsCut) {
    CRgn cutTwice = CRgn::Union(Rect(0, 0, 10, 5), Rect(0, 5, 10, 10));
    CRgn cutOtherWay = CRgn::Union(Rect(0, 0, 5, 10), Rect(5, 0, 10, 10));
    EXPECT_TRUE(cutTwice.EqualRgn(&cutOtherWay));
    EXPECT_FALSE(Same(cutTwice, Rect(0, 0, 10, 11)));
    // Many small invalidations of one line stay one rectangle.
    CRgn grown;
    for (int x = 0; x < 100; x += 10)
        grown = CRgn::Union(grown, Rect(x, 0, x + 10, 16));
    EXPECT_EQ(grown.Rects().size(), 1u);
}

TEST(RgnTest, EmptyRectanglesMakeEmptyRegions) {
    CRgn r = Rect(5, 5, 5, 10);
    EXPECT_TRUE(r.IsEmpty());
    r.SetRectRgn(10, 10, 0, 0);  // corners in either order
    EXPECT_EQ(r.Area(), 100);
}
