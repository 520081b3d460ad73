#include <string>
#include <vector>

#include "platform/DC.h"
#include "platform/ImageList.h"
#include "support/ZoneTest.h"

namespace {

constexpr COLORREF kText = RGB(200, 0, 0);
constexpr COLORREF kBack = RGB(255, 255, 224);
constexpr COLORREF kSelText = RGB(0, 255, 0);
constexpr COLORREF kSelBack = RGB(0, 0, 160);
using Strings = std::vector<std::string>;

class PaintTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        m_zone.SetColors(kText, kBack, kSelText, kSelBack);
    }

    void Paint(bool bWhole = true) {
        if (bWhole) m_wnd.InvalidateRect(nullptr, FALSE);
        Peer().ClearDisplayList();
        PAINTSTRUCT ps;
        m_zone.HandlePaint(m_wnd.BeginPaint(&ps));
        m_wnd.EndPaint(&ps);
    }

    // A row's text runs, "ab|[cd]" with the selected ones bracketed; the
    // others must be in the line colours.
    std::string Row(int nLine, COLORREF crText = kText, COLORREF crBack = kBack) {
        std::string s;
        for (const DrawRecord& r : Peer().GetDisplayList()) {
            if (r.kind != DrawRecord::Text || r.rc.top != nLine * 16) continue;
            bool selected = r.crBk == kSelBack && r.crText == kSelText;
            EXPECT_TRUE(selected || (r.crBk == crBack && r.crText == crText)) << r.text;
            s += (s.empty() ? "" : "|") + (selected ? "[" + r.text + "]" : r.text);
        }
        return s;
    }

    // Fills of a colour in a line's row, less the cells opaque text fills.
    Strings Fills(int nLine, COLORREF cr) {
        Strings fills;
        const DisplayList& list = Peer().GetDisplayList();
        for (size_t i = 0; i < list.size(); ++i) {
            const DrawRecord& r = list[i];
            if (r.kind != DrawRecord::Fill || r.crFill != cr || r.rc.top != nLine * 16) continue;
            if (i + 1 < list.size() && list[i + 1].kind == DrawRecord::Text && list[i + 1].rc == r.rc)
                continue;
            fills.push_back(Box(r.rc));
        }
        return fills;
    }

    int TextLeft(int nLine) {
        for (const DrawRecord& r : Peer().GetDisplayList())
            if (r.kind == DrawRecord::Text && r.rc.top == nLine * 16) return r.rc.left;
        return -1;
    }
};

}  // namespace

TEST_F(PaintTest, LinesGoOutInTheZoneColoursAndFillTheirRows) {
    ASSERT_TRUE(m_zone.SetText("abc\r\n\tx\r\nlast"));
    Paint();
    EXPECT_EQ(Row(0), "abc");
    EXPECT_EQ(TextLeft(1), 20);  // a tab width of 0 steps 20 pixels
    // Rows are wiped to their height, then filled beyond the text; below the text only background.
    EXPECT_EQ(Fills(1, RGB(255, 255, 255)), Strings{"0,16,400,32"});
    EXPECT_EQ(Fills(0, kBack), Strings{"24,0,400,16"});
    EXPECT_EQ(Fills(3, kBack), Strings{"0,48,400,64"});
    EXPECT_EQ(Fills(18, kBack), Strings{"0,288,400,304"});
}

TEST_F(PaintTest, BookmarksColourTheLineAndDarkColoursTurnTheTextWhite) {
    ASSERT_TRUE(m_zone.SetText("one\r\ntwo\r\nthree"));
    m_zone.GetLine(0)->m_dwBookmarks = 0x9;      // kinds 0 and 3: the highest wins
    m_zone.GetLine(1)->m_dwBookmarks = 0x10000;  // beyond the 16 drawn kinds
    m_zone.GetLine(2)->m_dwBookmarks = 0x20;
    m_zone.SetBookmarkColor(RGB(0x80, 0x80, 0x80), 5);
    Paint();
    EXPECT_EQ(Row(0, kText, m_zone.GetBookmarkColor(3)), "one");
    EXPECT_EQ(Fills(0, m_zone.GetBookmarkColor(3)), Strings{"24,0,400,16"});
    EXPECT_EQ(Row(2, RGB(255, 255, 255), RGB(0x80, 0x80, 0x80)), "three");

    m_zone.SetBookmarkColor(RGB(0x81, 0, 0), 5);  // one step lighter is no longer dark
    Paint();
    EXPECT_EQ(Row(2, kText, RGB(0x81, 0, 0)), "three");
    Peer().ClearInvalidations();
    m_zone.SetBookmarkColor(RGB(0x81, 0, 0), 5);  // unchanged: no repaint
    EXPECT_TRUE(Peer().GetInvalidations().empty());
}

TEST_F(PaintTest, SelectionsSwapColoursOverTheirBytesColumnsOrPadding) {
    // A selected line end shows as one character's block, to the edge under
    // ZS_SELTOEDGE, which a free caret brings along; a box pads short lines
    // and tabs, and without width is a 2-pixel bar over its column.
    const char* stream = "abcdef\r\nghij\r\nklm\r\nnop\r\nqrs";
    const char* box = "abcdef\r\nab\r\na\tb\r\nxyz";
    struct Case {
        const char* text;
        int sel[5];
        DWORD style;
        const char* rows;
        int fillLine;
        Strings fill;
    } cases[] = {
        {stream, {1, 4, 2, 0, 0}, 0, "abcdef gh|[ij] [klm] [nop] qrs", 1, {"32,16,40,32"}},
        {stream, {1, 4, 2, 0, 0}, ZS_SELTOEDGE, "abcdef gh|[ij] [klm] [nop] qrs", 2, {"24,32,400,48"}},
        {stream, {1, 1, 1, 3, 0}, 0, "abcdef g|[hi]|j klm nop qrs", 1, {}},
        {stream, {0, 1, 6, 1, 0}, 0, "abcdef [g]|hij klm nop qrs", 0, {"48,0,56,16"}},
        {stream, {3, 4, 5, 6, 0}, ZS_FREECARET, "abcdef ghij klm nop  |[  ] [qrs   ]| ", 3, {"56,48,400,64"}},
        {box, {0, 2, 1, 4, 2}, 0, "a|[bcd]|ef a|[b  ]|  a|[   ]|b xyz ", 1, {}},
        {box, {0, 2, 2, 2, 2}, 0, "ab|cdef ab|  a |  b xyz ", 2, {"15,32,17,48"}},
    };
    m_zone.SetTabWidth(-4);
    for (const Case& c : cases) {
        ASSERT_TRUE(m_zone.SetText(c.text));
        m_zone.SetStyle(c.style);
        m_zone.SetSelection(c.sel[0], c.sel[1], c.sel[2], c.sel[3], c.sel[4], 0);
        Paint();
        EXPECT_EQ(Row(0) + " " + Row(1) + " " + Row(2) + " " + Row(3) + " " + Row(4), c.rows);
        EXPECT_EQ(Fills(c.fillLine, kSelBack), c.fill) << c.rows;
    }
}

TEST_F(PaintTest, LongLineGoesOutInPiecesWithoutAGap) {
    // 1500 bytes with tabs before and after the first 1024.
    std::string line = "ab\t";
    while (line.size() < 1500)
        line += static_cast<char>('a' + line.size() % 26);
    line[1030] = '\t';
    ASSERT_TRUE(m_zone.SetText(line.c_str()));
    CDC* pDC = m_zone.GetStandardDC();
    auto at = [&](int n) { return m_zone.GetTextWidth(pDC, line.c_str(), n) - 505 * 16; };
    // Scrolled so that byte 1024 is on screen; a selection cuts the second piece.
    m_zone.SetFirstVisiblePosition(0, 505);
    m_zone.SetSelection(0, 0, 1060, 1400, 0, 0);
    Paint();
    std::vector<const DrawRecord*> runs;
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::Text) runs.push_back(&r);
    ASSERT_EQ(runs.size(), 4u);
    EXPECT_EQ(runs[0]->rc.right, runs[1]->rc.left);
    EXPECT_EQ(runs[1]->rc.left, at(1024));
    EXPECT_EQ(runs[1]->text, line.substr(1024, 6));
    // The tab in the second piece steps from the line's start.
    EXPECT_EQ(runs[2]->rc.left, at(1031));
    EXPECT_EQ(runs[3]->rc.left, at(1060));
    EXPECT_EQ(runs[3]->crBk, kSelBack);
    m_zone.ReleaseStandardDC(pDC);
}

TEST_F(PaintTest, MarginShowsBookmarksAsMarksOrImages) {
    ASSERT_TRUE(m_zone.SetText("one\r\ntwo"));
    m_zone.GetLine(0)->m_dwBookmarks = 0x9;
    m_zone.SetMarginMode(1);
    Paint();
    // The text moves right of the margin; the line keeps its background.
    EXPECT_EQ(TextLeft(0), 16);
    EXPECT_EQ(Row(0), "one");
    EXPECT_EQ(Fills(0, 0xC0C0C0), Strings{"0,0,16,16"});
    Strings marks;
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::RoundRect && r.bHasPen && r.crPen == 0)
            marks.push_back(Box(r.rc) + (r.crFill == m_zone.GetBookmarkColor(3) ? " 3" : " 0"));
    EXPECT_EQ(marks, (Strings{"0,3,16,15 0", "0,3,16,15 3"}));
    // The marks' brush does not leak into the wiping of the next row.
    EXPECT_EQ(Fills(1, RGB(255, 255, 255)), Strings{"0,16,400,32"});

    CImageList images;
    images.Create(16, 16, 0, 4, 0);
    for (int i = 0; i < 4; ++i)
        images.Add(std::vector<DWORD>(256, 0xFF000000u + i));
    m_zone.SetMarginModeImageList(&images);
    Paint();
    marks.clear();
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::Image) marks.push_back(std::to_string(r.nImage) + "@" + Box(r.rc));
    EXPECT_EQ(marks, (Strings{"0@0,4,16,20", "3@0,4,16,20"}));
    m_zone.SetMarginModeImageList(nullptr);
}

TEST_F(PaintTest, RedrawLinesInvalidatesTheirRowsAndAPaintDrawsOnlyThose) {
    ASSERT_TRUE(m_zone.SetText(Numbered(50).c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);  // loading left the view at the end
    m_wnd.ValidateRect(nullptr);
    auto redraw = [&](int nFirst, int nLast) {
        Peer().ClearInvalidations();
        m_zone.RedrawLines(nFirst, nLast, 0);
        if (Peer().GetInvalidations().empty()) return std::string("none");
        EXPECT_FALSE(Peer().GetInvalidations()[0].bErase);  // the paint wipes rows itself
        return Box(Peer().GetInvalidations()[0].rcBox);
    };
    EXPECT_EQ(redraw(2, 3), "0,32,400,64");
    EXPECT_EQ(redraw(5, TZ_TO_END), "0,80,400,300");
    EXPECT_EQ(redraw(30, 40), "none");
    // Rows follow the scroll position; a paint of one row draws that line only.
    m_zone.SetFirstVisiblePosition(10, 0);
    m_wnd.ValidateRect(nullptr);
    EXPECT_EQ(redraw(2, 5), "none");
    EXPECT_EQ(redraw(12, 12), "0,32,400,48");
    Paint(false);
    for (const DrawRecord& r : Peer().GetDisplayList())
        EXPECT_EQ(Box(r.rcClipBox), "0,32,400,48");
    EXPECT_EQ(Row(2), "line 12");

    int paints = Peer().GetPaintCount();  // redraw off stops both requests until it is on
    m_zone.SetRedraw(0);
    EXPECT_EQ(redraw(10, 12), "none");
    m_zone.RedrawTextZone();
    EXPECT_TRUE(Peer().GetInvalidations().empty());
    m_zone.SetRedraw(1);
    m_zone.RedrawTextZone();
    EXPECT_EQ(Box(Peer().GetInvalidations().at(0).rcBox), "0,0,400,300");
    EXPECT_EQ(Peer().GetPaintCount(), paints + 1);
}

TEST_F(PaintTest, OnlyAnEndedLineShowsItsSelectedLineEnd) {
    m_zone.SetStyle(ZS_PARAGRAPH | ZS_WORDBREAK);
    m_zone.SetMaxWidth(80);
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc\r\nx"));  // [aaa bbb ][ccc\r][x]
    m_zone.SetSelection(0, -1, 0, 0, 1, 0);           // all of it
    Paint();
    EXPECT_EQ(Fills(0, kSelBack), Strings{});              // a wrapped line has no end
    EXPECT_EQ(Fills(1, kSelBack), Strings{"24,16,32,32"});  // one cell for the line end
}

TEST_F(PaintTest, RedrawLinesPaintsAtOnceOnlyWhenAsked) {
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd\r\n"));
    m_wnd.UpdateWindow();
    const int before = Peer().GetPaintCount();
    m_zone.RedrawLines(0, 1, 0);
    EXPECT_EQ(Peer().GetPaintCount(), before);
    m_zone.RedrawLines(0, 1, 1);
    EXPECT_EQ(Peer().GetPaintCount(), before + 1);
}
