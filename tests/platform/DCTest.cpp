#include <gtest/gtest.h>

#include <cstring>

#include "platform/Brush.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessDC.h"
#include "platform/headless/HeadlessFonts.h"

namespace {

// An off-screen recording context of 400 x 300 pixels with a font selected.
struct Canvas {
    explicit Canvas(const char* face = CHeadlessFonts::kFixedFace, int height = 16)
        : dc(nullptr, CRgn(RECT{0, 0, 400, 300}), false) {
        LOGFONTA lf = CHeadlessFonts::MakeFont(face, height);
        font.CreateFontIndirect(&lf);
        dc.SelectObject(&font);
    }
    const DisplayList& List() const { return dc.GetDisplayList(); }
    CFont font;
    CHeadlessDC dc;
};

int TabbedWidth(CDC& dc, const char* s, int nStops, const int* stops) {
    return dc.GetTabbedTextExtent(s, static_cast<int>(std::strlen(s)), nStops, stops).cx;
}

}  // namespace

TEST(HeadlessFontsTest, FixedAndProportionalFacesMeasureAsDocumented) {
    Canvas fixed;
    TEXTMETRICA tm;
    ASSERT_TRUE(fixed.dc.GetTextMetrics(&tm));
    EXPECT_EQ(tm.tmHeight, 16);
    EXPECT_EQ(tm.tmAveCharWidth, 8);
    EXPECT_EQ(fixed.dc.GetTextExtent("iW\xE9", 3).cx, 24);

    Canvas prop(CHeadlessFonts::kProportionalFace, 16);
    EXPECT_EQ(prop.dc.GetTextExtent("i", 1).cx, 4);
    EXPECT_EQ(prop.dc.GetTextExtent("W", 1).cx, 12);
    EXPECT_EQ(prop.dc.GetTextExtent("iWa", 3).cx, 24);
    prop.dc.GetTextMetrics(&tm);
    EXPECT_EQ(tm.tmMaxCharWidth, 12);

    // Heights scale the widths; negative heights mean the same size.
    Canvas big(CHeadlessFonts::kFixedFace, -20);
    EXPECT_EQ(big.dc.GetTextExtent("ab", 2).cx, 20);
}

TEST(DCTest, TabbedExtentsFollowTheStops) {
    Canvas c;  // 8 pixels a byte
    int step = 32;
    EXPECT_EQ(TabbedWidth(c.dc, "a\tb", 1, &step), 40);
    // A tab standing on a stop goes on to the next one.
    EXPECT_EQ(TabbedWidth(c.dc, "aaaa\t", 1, &step), 64);
    // Without stops a tab is eight average characters.
    EXPECT_EQ(TabbedWidth(c.dc, "\t", 0, nullptr), 64);
    // Several stops are positions; past the last one its interval repeats.
    int stops[] = {10, 50};
    EXPECT_EQ(TabbedWidth(c.dc, "\t", 2, stops), 10);
    EXPECT_EQ(TabbedWidth(c.dc, "\t\t", 2, stops), 50);
    EXPECT_EQ(TabbedWidth(c.dc, "\t\t\t", 2, stops), 90);
    // The free call packs the width in the low word, as callers expect.
    DWORD packed = GetTabbedTextExtentA(&c.dc, "a\tb", 3, 1, &step);
    EXPECT_EQ(LOWORD(packed), 40);
    EXPECT_EQ(HIWORD(packed), 16);
}

TEST(DCTest, TabbedOutputExpandsFromTheOriginAndFillsGapsWhenOpaque) {
    Canvas c;
    int step = 32;
    c.dc.SetTextColor(RGB(1, 2, 3));
    c.dc.SetBkColor(RGB(200, 200, 200));
    // Drawn at 100, tabs counted from 90: the tab after "a" (at 108) ends at 122.
    CSize extent = c.dc.TabbedTextOut(100, 5, "a\tb", 3, 1, &step, 90);
    EXPECT_EQ(extent.cx, 30);
    const DisplayList& list = c.List();
    ASSERT_EQ(list.size(), 5u);
    EXPECT_EQ(list[0].kind, DrawRecord::Fill);
    EXPECT_EQ(list[1].kind, DrawRecord::Text);
    EXPECT_EQ(list[1].text, "a");
    EXPECT_EQ(list[1].rc, (RECT{100, 5, 108, 21}));
    EXPECT_EQ(list[1].crText, RGB(1, 2, 3));
    EXPECT_EQ(list[2].kind, DrawRecord::Fill);  // the gap of the tab
    EXPECT_EQ(list[2].rc, (RECT{108, 5, 122, 21}));
    EXPECT_EQ(list[2].crFill, RGB(200, 200, 200));
    EXPECT_EQ(list[4].text, "b");
    EXPECT_EQ(list[4].rc.left, 122);

    Canvas t;
    t.dc.SetBkMode(TRANSPARENT);
    t.dc.TabbedTextOut(0, 0, "a\tb", 3, 1, &step, 0);
    ASSERT_EQ(t.List().size(), 2u);
    EXPECT_EQ(t.List()[0].kind, DrawRecord::Text);
    EXPECT_EQ(t.List()[1].rc.left, 32);
}

TEST(DCTest, RectangleWithoutPenStopsShortOfRightAndBottom) {
    Canvas c;
    c.dc.SelectStockObject(NULL_PEN);
    c.dc.SelectStockObject(WHITE_BRUSH);
    c.dc.Rectangle(0, 0, 10, 20);
    ASSERT_EQ(c.List().size(), 1u);
    EXPECT_EQ(c.List()[0].rc, (RECT{0, 0, 9, 19}));

    Canvas outlined;
    CBrush red(RGB(255, 0, 0));
    outlined.dc.SelectObject(&red);
    outlined.dc.SelectStockObject(BLACK_PEN);
    outlined.dc.Rectangle(0, 0, 10, 20);
    long long black = 0, inside = 0;
    for (const DrawRecord& r : outlined.List()) {
        long long area = (r.rc.right - r.rc.left) * (r.rc.bottom - r.rc.top);
        (r.crFill == 0 ? black : inside) += area;
        if (r.crFill != 0) {
            EXPECT_EQ(r.rc, (RECT{1, 1, 9, 19}));
        }
    }
    EXPECT_EQ(black, 10 * 20 - 8 * 18);
    EXPECT_EQ(inside, 8 * 18);
}

TEST(DCTest, ClippingSavingAndRestoring) {
    Canvas c;
    RECT box;
    EXPECT_EQ(c.dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, (RECT{0, 0, 400, 300}));

    int saved = c.dc.SaveDC();
    c.dc.IntersectClipRect(10, 10, 50, 50);
    c.dc.SetTextColor(RGB(9, 9, 9));
    c.dc.GetClipBox(&box);
    EXPECT_EQ(box, (RECT{10, 10, 50, 50}));
    RECT outside{60, 60, 70, 70};
    EXPECT_FALSE(c.dc.RectVisible(&outside));
    c.dc.FillSolidRect(&outside, RGB(1, 1, 1));  // wholly clipped away
    RECT inside{0, 0, 20, 20};
    c.dc.FillSolidRect(&inside, RGB(1, 1, 1));
    ASSERT_EQ(c.List().size(), 1u);
    EXPECT_EQ(c.List()[0].rcClipBox, (RECT{10, 10, 50, 50}));

    ASSERT_TRUE(c.dc.RestoreDC(saved));
    EXPECT_EQ(c.dc.GetTextColor(), RGB(0, 0, 0));
    c.dc.GetClipBox(&box);
    EXPECT_EQ(box, (RECT{0, 0, 400, 300}));
    EXPECT_FALSE(c.dc.RestoreDC(saved));  // that state is used up

    c.dc.IntersectClipRect(0, 0, 100, 100);
    c.dc.ExcludeClipRect(0, 0, 100, 50);
    c.dc.GetClipBox(&box);
    EXPECT_EQ(box, (RECT{0, 50, 100, 100}));
    c.dc.SelectClipRgn(nullptr);
    c.dc.GetClipBox(&box);
    EXPECT_EQ(box, (RECT{0, 0, 400, 300}));
}

TEST(DCTest, SelectingReturnsThePreviousObjectAndSurvivesDeletion) {
    Canvas c;
    HFONT previous;
    {
        CFont temp;
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 16);
        temp.CreateFontIndirect(&lf);
        previous = c.dc.SelectObject(&temp);
        EXPECT_EQ(previous, c.font.GetSafeHandle());
    }  // the selected font is deleted: the context measures on regardless
    EXPECT_EQ(c.dc.GetTextExtent("W", 1).cx, 12);
    c.dc.SelectObject(previous);
    EXPECT_EQ(c.dc.GetTextExtent("W", 1).cx, 8);
    // A new context starts in the system font, black on white, opaque.
    CHeadlessDC fresh(nullptr, CRgn(RECT{0, 0, 10, 10}), false);
    EXPECT_EQ(fresh.GetBkMode(), OPAQUE);
    EXPECT_EQ(fresh.GetBkColor(), RGB(255, 255, 255));
    LOGFONTA lf;
    EXPECT_EQ(GetObjectA(fresh.GetCurrentFont(), sizeof lf, &lf), static_cast<int>(sizeof lf));
    EXPECT_STREQ(lf.lfFaceName, kSystemFontFace);
    EXPECT_FALSE(DeleteObject(GetStockObject(SYSTEM_FONT)));
}
