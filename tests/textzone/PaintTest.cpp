#include <string>
#include <vector>

#include "platform/DC.h"
#include "platform/ImageList.h"
#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"

namespace {

constexpr COLORREF kText = RGB(200, 0, 0);
constexpr COLORREF kBack = RGB(255, 255, 224);
constexpr COLORREF kSelText = RGB(0, 255, 0);
constexpr COLORREF kSelBack = RGB(0, 0, 160);

std::string Box(const RECT& rc) {
    return std::to_string(rc.left) + "," + std::to_string(rc.top) + "," +
           std::to_string(rc.right) + "," + std::to_string(rc.bottom);
}

// One run of text as the headless context recorded it.
struct TextRun {
    std::string text;
    int x;
    bool selected;
};

class PaintTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        m_zone.SetColors(kText, kBack, kSelText, kSelBack);
    }

    // Paints the whole zone, or what is pending, and keeps what was drawn.
    const DisplayList& Paint(bool bWhole = true) {
        if (bWhole) m_wnd.InvalidateRect(nullptr, FALSE);
        Peer().ClearDisplayList();
        PAINTSTRUCT ps;
        CDC* pDC = m_wnd.BeginPaint(&ps);
        m_zone.HandlePaint(pDC);
        m_wnd.EndPaint(&ps);
        return Peer().GetDisplayList();
    }

    // The text runs of the row of a line (16 pixels a line, no scrolling).
    std::vector<TextRun> Runs(int nLine) {
        std::vector<TextRun> runs;
        for (const DrawRecord& r : Peer().GetDisplayList()) {
            if (r.kind != DrawRecord::Text || r.rc.top != nLine * 16) continue;
            runs.push_back(TextRun{r.text, r.rc.left, r.crBk == kSelBack});
            if (!runs.back().selected) {
                EXPECT_EQ(r.crBk, kBack) << r.text;
                EXPECT_EQ(r.crText, kText) << r.text;
            } else {
                EXPECT_EQ(r.crText, kSelText) << r.text;
            }
        }
        return runs;
    }

    // "[sel]" marks selected runs: "ab|[cd]" is "ab" then selected "cd".
    std::string Describe(int nLine) {
        std::string s;
        for (const TextRun& run : Runs(nLine)) {
            if (!s.empty()) s += "|";
            s += run.selected ? "[" + run.text + "]" : run.text;
        }
        return s;
    }

    // Fills of a colour in the row of a line, as rectangles, leaving out
    // the cells that opaque text fills under itself.
    std::vector<std::string> Fills(int nLine, COLORREF cr) {
        std::vector<std::string> fills;
        const DisplayList& list = Peer().GetDisplayList();
        for (size_t i = 0; i < list.size(); ++i) {
            const DrawRecord& r = list[i];
            if (r.kind != DrawRecord::Fill || r.crFill != cr || r.rc.top != nLine * 16) continue;
            bool cell = i + 1 < list.size() && list[i + 1].kind == DrawRecord::Text &&
                        list[i + 1].rc == r.rc;
            if (!cell) fills.push_back(Box(r.rc));
        }
        return fills;
    }

    void SetBookmarks(int nLine, DWORD dwBits) { m_zone.GetLine(nLine)->m_dwBookmarks = dwBits; }
};

}  // namespace

TEST_F(PaintTest, LinesGoOutInTheZoneColoursWithTabsAndTheRowFilled) {
    ASSERT_TRUE(m_zone.SetText("abc\r\n\tx\r\nlast"));
    Paint();

    ASSERT_EQ(Runs(0).size(), 1u);
    EXPECT_EQ(Runs(0)[0].text, "abc");
    EXPECT_EQ(Runs(0)[0].x, 0);
    // A tab width of 0 steps 20 pixels.
    ASSERT_EQ(Runs(1).size(), 1u);
    EXPECT_EQ(Runs(1)[0].text, "x");
    EXPECT_EQ(Runs(1)[0].x, 20);
    EXPECT_EQ(Describe(2), "last");
    // Each row's rest is the background, to the right edge and beyond.
    EXPECT_EQ(Fills(0, kBack).back(), "24,0,400,16");
    EXPECT_EQ(Fills(2, kBack).back(), "32,32,400,48");
    // The phantom line and the empty places below are background only.
    EXPECT_TRUE(Runs(3).empty());
    EXPECT_EQ(Fills(3, kBack).back(), "0,48,400,64");
    EXPECT_EQ(Fills(18, kBack).back(), "0,288,400,304");  // clipped at 300
    // Every row is wiped first, a pixel taller because the pen is null.
    EXPECT_EQ(Fills(1, RGB(255, 255, 255)).front(), "0,16,400,32");

    // A tab step in characters counts average character widths.
    m_zone.SetTabWidth(-4);
    Paint();
    EXPECT_EQ(Runs(1)[0].x, 32);
}

TEST_F(PaintTest, BookmarksColourTheLineAndDarkColoursTurnTheTextWhite) {
    ASSERT_TRUE(m_zone.SetText("one\r\ntwo\r\nthree"));
    // Kinds 0 and 3: the highest kind wins.
    SetBookmarks(0, 0x9);
    SetBookmarks(1, 0x10000);  // beyond the 16 drawn kinds
    m_zone.SetBookmarkColor(RGB(0x80, 0x80, 0x80), 5);
    SetBookmarks(2, 0x20);
    Paint();

    auto textOf = [&](int nLine) {
        for (const DrawRecord& r : Peer().GetDisplayList())
            if (r.kind == DrawRecord::Text && r.rc.top == nLine * 16) return r;
        return DrawRecord{};
    };
    EXPECT_EQ(textOf(0).crBk, m_zone.GetBookmarkColor(3));
    EXPECT_EQ(textOf(0).crText, kText);
    EXPECT_EQ(Fills(0, m_zone.GetBookmarkColor(3)).back(), "24,0,400,16");
    EXPECT_EQ(textOf(1).crBk, kBack);
    EXPECT_EQ(textOf(2).crBk, RGB(0x80, 0x80, 0x80));
    EXPECT_EQ(textOf(2).crText, RGB(255, 255, 255));

    // 0x80 in every byte is dark; one step lighter in one byte is not.
    m_zone.SetBookmarkColor(RGB(0x81, 0, 0), 5);
    Paint();
    EXPECT_EQ(textOf(2).crText, kText);

    // Changing a bookmark colour repaints everything; the same colour nothing.
    Peer().ClearInvalidations();
    m_zone.SetBookmarkColor(RGB(0x81, 0, 0), 5);
    EXPECT_TRUE(Peer().GetInvalidations().empty());
    m_zone.SetBookmarkColor(RGB(0x82, 0, 0), 5);
    ASSERT_EQ(Peer().GetInvalidations().size(), 1u);
    EXPECT_EQ(Box(Peer().GetInvalidations()[0].rcBox), "0,0,400,300");
}

TEST_F(PaintTest, StreamSelectionSwapsColoursAtItsEnds) {
    ASSERT_TRUE(m_zone.SetText("abcdef\r\nghij\r\nklm\r\nnop\r\nqrs"));

    // From line 1 index 2 to line 4 index 0: nothing of line 4 is selected.
    m_zone.SetSelection(1, 4, 2, 0, 0, 0);
    Paint();
    EXPECT_EQ(Describe(0), "abcdef");
    EXPECT_EQ(Describe(1), "gh|[ij]");
    EXPECT_EQ(Describe(2), "[klm]");
    EXPECT_EQ(Describe(3), "[nop]");
    EXPECT_EQ(Describe(4), "qrs");
    // The selected line end shows as one character's block.
    EXPECT_EQ(Fills(1, kSelBack), std::vector<std::string>{"32,16,40,32"});
    EXPECT_EQ(Fills(3, kSelBack), std::vector<std::string>{"24,48,32,64"});
    EXPECT_TRUE(Fills(4, kSelBack).empty());

    // With ZS_SELTOEDGE the block runs to the right edge.
    m_zone.SetStyle(ZS_SELTOEDGE);
    Paint();
    EXPECT_EQ(Fills(2, kSelBack), std::vector<std::string>{"24,32,400,48"});

    // Within one line, and from a line's start.
    m_zone.SetStyle(0);
    m_zone.SetSelection(1, 1, 1, 3, 0, 0);
    Paint();
    EXPECT_EQ(Describe(1), "g|[hi]|j");
    EXPECT_TRUE(Fills(1, kSelBack).empty());
    m_zone.SetSelection(0, 0, 0, 2, 0, 0);
    Paint();
    EXPECT_EQ(Describe(0), "[ab]|cdef");
    // A selection starting at a line's end selects only its line end.
    m_zone.SetSelection(0, 1, 6, 1, 0, 0);
    Paint();
    EXPECT_EQ(Describe(0), "abcdef");
    EXPECT_EQ(Fills(0, kSelBack), std::vector<std::string>{"48,0,56,16"});
    EXPECT_EQ(Describe(1), "[g]|hij");
}

TEST_F(PaintTest, BoxSelectionSelectsColumnsAndWithoutWidthShowsABar) {
    ASSERT_TRUE(m_zone.SetText("abcdef\r\nab\r\na\tb\r\nxyz"));
    m_zone.SetTabWidth(-4);
    // Columns 1 to 4 of lines 0 to 2; tabs count as the spaces they make.
    m_zone.SetSelection(0, 2, 1, 4, 2, 0);
    Paint();
    EXPECT_EQ(Describe(0), "a|[bcd]|ef");
    EXPECT_EQ(Describe(1), "a|[b  ]| ");
    EXPECT_EQ(Describe(2), "a|[   ]|b");
    EXPECT_EQ(Describe(3), "xyz");
    EXPECT_TRUE(Fills(1, kSelBack).empty());

    // From column 0 the line starts selected.
    m_zone.SetSelection(0, 1, 0, 2, 2, 0);
    Paint();
    EXPECT_EQ(Describe(0), "[ab]|cdef");
    EXPECT_EQ(Describe(1), "[ab]| ");

    // A box of no width is the box caret: a 2-pixel bar over its column.
    m_zone.SetSelection(0, 2, 2, 2, 2, 0);
    Paint();
    EXPECT_EQ(Describe(0), "ab|cdef");
    for (int n = 0; n <= 2; ++n)
        EXPECT_EQ(Fills(n, kSelBack),
                  std::vector<std::string>{"15," + std::to_string(n * 16) + ",17," +
                                           std::to_string(n * 16 + 16)});
    m_zone.SetSelection(0, 1, 0, 0, 2, 0);
    Paint();
    EXPECT_EQ(Fills(1, kSelBack), std::vector<std::string>{"-1,16,1,32"});
}

TEST_F(PaintTest, FreeCaretSelectionReachesBeyondTheText) {
    m_zone.SetStyle(ZS_FREECARET);  // brings ZS_SELTOEDGE along
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd"));
    m_zone.SetSelection(0, 1, 4, 1, 0, 0);
    Paint();
    EXPECT_EQ(Describe(0), "ab  |[ ]");
    EXPECT_EQ(Fills(0, kSelBack), std::vector<std::string>{"40,0,400,16"});
    EXPECT_EQ(Describe(1), "[c]|d   ");
}

TEST_F(PaintTest, LongLineGoesOutInPiecesWithoutAGap) {
    // 1500 bytes with tabs before and after the first 1024.
    std::string line = "ab\t";
    while (line.size() < 1500)
        line += static_cast<char>('a' + line.size() % 26);
    line[1030] = '\t';
    ASSERT_TRUE(m_zone.SetText(line.c_str()));
    CDC* pDC = m_zone.GetStandardDC();
    const int at1024 = m_zone.GetTextWidth(pDC, line.c_str(), 1024);
    const int at1031 = m_zone.GetTextWidth(pDC, line.c_str(), 1031);
    const int at1060 = m_zone.GetTextWidth(pDC, line.c_str(), 1060);
    m_zone.ReleaseStandardDC(pDC);

    // Scrolled so that the place of byte 1024 is on screen.
    m_zone.SetFirstVisiblePosition(0, 505);
    const int offset = 505 * 16;
    ASSERT_EQ(m_zone.GetHScrollOffset(), offset);
    // A selection from byte 1060 on cuts the second piece.
    m_zone.SetSelection(0, 0, 1060, 1400, 0, 0);
    Paint();
    std::vector<const DrawRecord*> runs;
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::Text) runs.push_back(&r);
    ASSERT_GE(runs.size(), 3u);
    // The first piece ends where the second starts.
    EXPECT_EQ(runs[0]->rc.right, at1024 - offset);
    EXPECT_EQ(runs[1]->rc.left, at1024 - offset);
    EXPECT_EQ(runs[1]->text, line.substr(1024, 6));
    // The tab in the second piece steps from the line's start.
    EXPECT_EQ(runs[2]->rc.left, at1031 - offset);
    EXPECT_EQ(runs[2]->text, line.substr(1031, 29));
    ASSERT_GE(runs.size(), 4u);
    EXPECT_EQ(runs[3]->rc.left, at1060 - offset);
    EXPECT_EQ(runs[3]->crBk, kSelBack);
}

TEST_F(PaintTest, MarginShowsBookmarksAsMarksOrImages) {
    ASSERT_TRUE(m_zone.SetText("one\r\ntwo"));
    EXPECT_EQ(m_zone.GetMarginWidth(), 0);  // whatever the width, without margin mode
    SetBookmarks(0, 0x9);
    Peer().ClearInvalidations();
    m_zone.SetMarginMode(1);
    EXPECT_EQ(Peer().GetInvalidations().size(), 1u);
    EXPECT_EQ(m_zone.GetMarginWidth(), 16);
    Paint();

    // The text moves right of the margin, its background stays.
    EXPECT_EQ(Runs(0)[0].x, 16);
    EXPECT_EQ(Fills(0, 0xC0C0C0), std::vector<std::string>{"0,0,16,16"});
    std::vector<const DrawRecord*> marks;
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::RoundRect) marks.push_back(&r);
    ASSERT_EQ(marks.size(), 2u);
    EXPECT_EQ(Box(marks[0]->rc), "0,3,16,15");
    EXPECT_EQ(marks[0]->crFill, m_zone.GetBookmarkColor(0));
    EXPECT_EQ(marks[1]->crFill, m_zone.GetBookmarkColor(3));
    EXPECT_TRUE(marks[1]->bHasPen);
    EXPECT_EQ(marks[1]->crPen, RGB(0, 0, 0));
    EXPECT_EQ(marks[1]->nEllipseW, 4);
    // The mark's brush does not leak into the wiping of the next row.
    EXPECT_EQ(Fills(1, RGB(255, 255, 255)).front(), "0,16,400,32");

    // With an image list the marks are its images.
    CImageList images;
    images.Create(16, 16, 0, 4, 0);
    for (int i = 0; i < 4; ++i)
        images.Add(std::vector<DWORD>(256, 0xFF000000u + i));
    m_zone.SetMarginModeImageList(&images);
    Paint();
    std::vector<int> drawn;
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::Image) {
            drawn.push_back(r.nImage);
            EXPECT_EQ(r.rc.top, 4);
            EXPECT_EQ(r.rc.left, 0);
        }
    EXPECT_EQ(drawn, (std::vector<int>{0, 3}));
    m_zone.SetMarginModeImageList(nullptr);
}

TEST_F(PaintTest, PaintCoversOnlyTheInvalidLines) {
    ASSERT_TRUE(m_zone.SetText("zero\r\none\r\ntwo\r\nthree"));
    Paint();
    m_wnd.InvalidateRect(nullptr, FALSE);
    m_wnd.ValidateRect(nullptr);
    Peer().ClearInvalidations();
    m_zone.RedrawLines(2, 2, 0);
    ASSERT_EQ(Peer().GetInvalidations().size(), 1u);
    EXPECT_EQ(Box(Peer().GetInvalidations()[0].rcBox), "0,32,400,48");
    EXPECT_FALSE(Peer().GetInvalidations()[0].bErase);
    Paint(false);
    for (const DrawRecord& r : Peer().GetDisplayList()) {
        EXPECT_EQ(Box(r.rcClipBox), "0,32,400,48");
        if (r.kind == DrawRecord::Text) {
            EXPECT_EQ(r.text, "two");
        }
    }
}

TEST_F(PaintTest, RedrawLinesInvalidatesTheirRowsUnlessRedrawIsOff) {
    std::string text;
    for (int i = 0; i < 50; ++i)
        text += "line\r\n";
    ASSERT_TRUE(m_zone.SetText(text.c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);  // loading left the view at the end
    auto redraw = [&](int nFirst, int nLast) {
        Peer().ClearInvalidations();
        m_zone.RedrawLines(nFirst, nLast, 0);
        return Peer().GetInvalidations().empty() ? std::string("none")
                                                 : Box(Peer().GetInvalidations()[0].rcBox);
    };
    EXPECT_EQ(redraw(2, 3), "0,32,400,64");
    EXPECT_EQ(redraw(0, 0), "0,0,400,16");
    EXPECT_EQ(redraw(5, TZ_TO_END), "0,80,400,300");
    EXPECT_EQ(redraw(30, 40), "none");  // below the rectangle
    // Rows follow the scroll position.
    m_zone.SetFirstVisiblePosition(10, 0);
    EXPECT_EQ(redraw(12, 12), "0,32,400,48");
    EXPECT_EQ(redraw(2, 5), "none");

    // Updating paints at once.
    int paints = Peer().GetPaintCount();
    m_zone.RedrawLines(12, 12, 1);
    EXPECT_EQ(Peer().GetPaintCount(), paints + 1);

    m_zone.SetRedraw(0);
    EXPECT_EQ(redraw(10, 12), "none");
    Peer().ClearInvalidations();
    m_zone.RedrawTextZone();
    EXPECT_TRUE(Peer().GetInvalidations().empty());
    m_zone.SetRedraw(1);
    m_zone.RedrawTextZone();
    ASSERT_EQ(Peer().GetInvalidations().size(), 1u);
    EXPECT_EQ(Box(Peer().GetInvalidations()[0].rcBox), "0,0,400,300");
    EXPECT_EQ(Peer().GetPaintCount(), paints + 2);
}

TEST_F(PaintTest, FontsAndColoursSetTheMeasures) {
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 20);
    CFont big;
    big.CreateFontIndirect(&lf);
    m_zone.SetFont(big);
    EXPECT_EQ(m_zone.m_nLineHeight, 20);
    EXPECT_EQ(m_zone.m_nCharWidth, 10);
    EXPECT_FALSE(m_zone.IsFontProportionnal());

    // A proportional font ends box mode: columns need equal widths.
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.SetSelection(0, 1, 1, 2, 2, 0);
    ASSERT_EQ(m_zone.GetSelectionMode(), 2);
    lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 16);
    CFont prop;
    prop.CreateFontIndirect(&lf);
    m_zone.SetFont(prop);
    EXPECT_TRUE(m_zone.IsFontProportionnal());
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    m_zone.SetFont(m_font);

    // -1 stands for the system colour of each role.
    m_zone.SetColors(static_cast<COLORREF>(-1), kBack, static_cast<COLORREF>(-1),
                     static_cast<COLORREF>(-1));
    COLORREF text, back, selText, selBack;
    m_zone.GetColors(&text, &back, &selText, &selBack);
    EXPECT_EQ(text, RGB(0, 0, 0));
    EXPECT_EQ(back, kBack);
    EXPECT_EQ(selText, RGB(255, 255, 255));
    EXPECT_EQ(selBack, RGB(0, 0, 128));
}
