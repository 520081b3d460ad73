#include <string>
#include <vector>

#include "platform/Caret.h"
#include "platform/DC.h"
#include "platform/ScrollBar.h"
#include "support/ZoneTest.h"

namespace {

using Ints = std::vector<int>;
using Strings = std::vector<std::string>;

struct ScrollStep {
    UINT nCode;
    UINT nPos;
    int nExpected;
};

// A 400 x 300 zone shows 18 whole lines of 16 pixels; a page is 17 lines.
class CaretScrollTest : public ZoneTest {
protected:
    // nLines lines "line N", the last one without a line end, seen from the top.
    void Load(int nLines, const std::string& prefix = "line ") {
        const std::string text = Numbered(nLines, prefix);
        ASSERT_TRUE(m_zone.SetText(text.substr(0, text.size() - 2).c_str()));
        m_zone.SetFirstVisiblePosition(0, 0);
    }
    void Caret(int nLine, int nChar) { m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 1); }
    int First() { return m_zone.m_nVScrollPos * m_zone.m_nLinesPerUnit + m_zone.m_nUnitRemainder; }
    int VScroll(UINT nCode, UINT nPos = 0) {
        m_zone.HandleVScroll(nCode, nPos, nullptr);
        return First();
    }
    int HScroll(UINT nCode, UINT nPos = 0) {
        m_zone.HandleHScroll(nCode, nPos, nullptr);
        return m_zone.m_nHScrollPos;
    }
    void ExpectScrolls(std::initializer_list<ScrollStep> steps, bool bVertical = true) {
        for (const ScrollStep& s : steps)
            EXPECT_EQ(bVertical ? VScroll(s.nCode, s.nPos) : HScroll(s.nCode, s.nPos), s.nExpected)
                << s.nCode << " " << s.nPos;
    }
    std::string CaretAt() {
        const CaretInfo& caret = GetCaretInfo();
        if (!caret.IsVisible()) return "hidden";
        return std::to_string(caret.pt.x) + "," + std::to_string(caret.pt.y);
    }
    // The blits of the display list, by their vertical or horizontal move.
    Ints Scrolls(bool bVertical) {
        Ints moves;
        for (const DrawRecord& r : Peer().GetDisplayList())
            if (r.kind == DrawRecord::Scroll) moves.push_back(bVertical ? r.dy : r.dx);
        return moves;
    }
    // Paints everything; returns "text@top" of the runs above nBottom.
    Strings Paint(int nBottom) {
        m_wnd.InvalidateRect(nullptr, FALSE);
        Peer().ClearDisplayList();
        PAINTSTRUCT ps;
        m_zone.HandlePaint(m_wnd.BeginPaint(&ps));
        m_wnd.EndPaint(&ps);
        Strings rows;
        for (const DrawRecord& r : Peer().GetDisplayList())
            if (r.kind == DrawRecord::Text && r.rc.top < nBottom)
                rows.push_back(r.text + "@" + std::to_string(r.rc.top));
        return rows;
    }
    void Focus() { m_platform.SetFocus(&m_wnd); }
};

}  // namespace

TEST_F(CaretScrollTest, CaretShowsOnlyWithFocusNoSelectionAndInsideTheText) {
    Load(30);
    Caret(3, 2);
    EXPECT_EQ(CaretAt(), "hidden");  // no focus yet
    Focus();
    m_zone.HandleSetFocus(nullptr);
    EXPECT_EQ(CaretAt(), "16,48");
    EXPECT_EQ(GetCaretInfo().nHeight, 16);
    m_zone.SetSelection(3, 4, 2, 1, 0, 1);
    EXPECT_EQ(CaretAt(), "hidden");
    m_zone.HandleKillFocus(nullptr);
    EXPECT_EQ(GetCaretInfo().pOwner, nullptr);

    // A caret another window left behind is replaced by ours; a paint puts it back.
    CWnd other;
    ASSERT_TRUE(other.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 2));
    CreateCaret(&other, nullptr, 3, 3);
    Caret(4, 1);
    EXPECT_EQ(GetCaretInfo().pOwner, &m_wnd);
    Paint(0);
    EXPECT_EQ(CaretAt(), "8,64");
}

TEST_F(CaretScrollTest, CaretMovesScrollByLinesOrJumpFromThreeLinesOn) {
    Load(100);
    Focus();
    Peer().ClearLogs();
    Caret(19, 0);  // two lines below the view: two blits of a line
    EXPECT_EQ(First(), 2);
    EXPECT_EQ(Scrolls(true), (Ints{-16, -16}));
    EXPECT_EQ(CaretAt(), "0,272");

    // Far below: one jump and a repaint, the caret on the last whole row.
    Peer().ClearLogs();
    Caret(60, 3);
    EXPECT_EQ(First(), 43);
    EXPECT_TRUE(Scrolls(true).empty());
    EXPECT_EQ(Box(Peer().GetInvalidations().back().rcBox), "0,0,400,300");
    EXPECT_EQ(CaretAt(), "24,272");
    Caret(10, 0);  // above the view the caret's line becomes the first
    EXPECT_EQ(First(), 10);

    // Without scrolling the caret only hides; bHorizontal 0 still scrolls down.
    m_zone.SetSelection(50, 50, 0, 0, 0, 0);
    m_zone.DrawCaret(0, 1);
    EXPECT_EQ(CaretAt(), "hidden");
    EXPECT_EQ(First(), 10);
    m_zone.DrawCaret(1, 0);
    EXPECT_EQ(First(), 33);
}

TEST_F(CaretScrollTest, HorizontalScrollShowsTenCharactersMoreExceptInADrag) {
    ASSERT_TRUE(m_zone.SetText((std::string(100, 'x') + "\r\nshort").c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);
    EXPECT_EQ(m_zone.m_nHScrollMax, 50);  // two characters a position
    Focus();
    Caret(0, 60);  // beyond the right edge by 11 characters: 21 characters, 10 positions
    EXPECT_EQ(m_zone.m_nHScrollPos, 10);
    EXPECT_EQ(CaretAt(), "320,0");
    HScroll(SB_PAGELEFT);
    HScroll(SB_LINERIGHT);
    Peer().ClearLogs();
    Caret(1, 0);  // a move of one position blits
    EXPECT_EQ(m_zone.m_nHScrollPos, 0);
    EXPECT_EQ(Scrolls(false), (Ints{16}));

    // The same selection end dragged with the button down stops at the edge.
    m_platform.SetKeyState(VK_LBUTTON, true);
    m_zone.SetSelection(0, 0, 0, 60, 0, 1);
    EXPECT_EQ(m_zone.m_nHScrollPos, 5);
    m_platform.SetKeyState(VK_LBUTTON, false);

    m_zone.SetStyle(ZS_FREECARET);  // a free caret beyond every line widens the range
    Caret(1, 200);
    EXPECT_EQ(m_zone.m_nHScrollPos, 80);
    EXPECT_EQ(m_zone.m_nHScrollMax, 80);
}

TEST_F(CaretScrollTest, ScrollCodesMoveAndClampThePosition) {
    Load(100);
    Focus();
    Caret(5, 0);
    ExpectScrolls({{SB_LINEUP, 0, 0}, {SB_LINEDOWN, 0, 1}});
    EXPECT_EQ(CaretAt(), "0,64");  // the caret moves with the text
    ExpectScrolls({{SB_PAGEDOWN, 0, 18}, {SB_PAGEUP, 0, 1}});
    EXPECT_EQ(CaretAt(), "hidden");  // hidden before the scroll: not brought back
    ExpectScrolls({{SB_PAGEUP, 0, 0},
                   {SB_BOTTOM, 0, 99},
                   {SB_LINEDOWN, 0, 99},
                   {SB_THUMBTRACK, 40, 40},
                   {SB_THUMBPOSITION, 500, 99},
                   {SB_TOP, 0, 0}});
    Load(1);
    EXPECT_EQ(VScroll(SB_LINEDOWN), 0);  // line 1 is needed to scroll at all

    // Horizontally a position is two characters; a page is 400 / 16 - 1.
    ASSERT_TRUE(m_zone.SetText(std::string(200, 'x').c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);
    Peer().ClearLogs();
    ExpectScrolls({{SB_LINERIGHT, 0, 1}, {SB_PAGERIGHT, 0, 25}, {SB_PAGELEFT, 0, 1}, {SB_PAGELEFT, 0, 0},
                   {SB_RIGHT, 0, 100}}, false);
    EXPECT_EQ(Scrolls(false).at(0), -16);
    EXPECT_EQ(m_zone.GetHScrollOffset(), 100 * 16);
}

TEST_F(CaretScrollTest, PendingPaintsMoveWithTheText) {
    Load(100);
    m_wnd.ValidateRect(nullptr);
    RECT row{0, 80, 400, 96};
    m_wnd.InvalidateRect(&row, FALSE);
    Peer().ClearLogs();
    VScroll(SB_LINEDOWN);
    // A line up: the pending row goes with the text, the bottom row is new.
    CRgn pending, expected, bottom;
    m_wnd.GetUpdateRgn(&pending);
    expected.SetRectRgn(0, 64, 400, 80);
    bottom.SetRectRgn(0, 284, 400, 300);
    expected.CombineRgn(&expected, &bottom, RGN_OR);
    EXPECT_TRUE(pending.EqualRgn(&expected));
    for (const auto& inv : Peer().GetInvalidations())
        EXPECT_FALSE(inv.bErase);

    // A host that asked for it gets what is pending painted first.
    m_zone.m_bRepaintBeforeScroll = 1;
    int paints = Peer().GetPaintCount();
    VScroll(SB_LINEDOWN);
    EXPECT_EQ(Peer().GetPaintCount(), paints + 1);
    EXPECT_EQ(m_zone.m_bRepaintBeforeScroll, 0);
    m_wnd.GetUpdateRgn(&pending);
    EXPECT_TRUE(pending.EqualRgn(&bottom));
}

TEST_F(CaretScrollTest, LongTextsCountSeveralLinesAPosition) {
    auto lines = [](int n) {
        std::string text;
        for (int i = 0; i < n; ++i)
            text += "x\r\n";
        return text.substr(0, text.size() - 2);
    };
    ASSERT_TRUE(m_zone.SetText(lines(20000).c_str()));
    m_zone.SetFirstVisiblePosition(1001, 0);
    // Growing to 100000 lines makes 4 lines a position and keeps the first line.
    m_zone.SetSelection(-1, -1, 0, 0, 1, 0);
    m_zone.InsertText(("\r\n" + lines(80000)).c_str(), 0, 0, 0);
    EXPECT_EQ(m_zone.m_nLinesPerUnit, 4);
    EXPECT_EQ(m_zone.m_nVScrollMax, 24999);
    EXPECT_EQ(First(), 1001);

    // The remainder carries the lines within a position.
    ExpectScrolls({{SB_BOTTOM, 0, 99999}, {SB_LINEUP, 0, 99998}, {SB_THUMBTRACK, 100, 400},
                   {SB_LINEUP, 0, 399}, {SB_PAGEDOWN, 0, 416}});
    EXPECT_EQ(m_zone.GetVScrollOffset(), 416 * 16);
    Focus();
    Caret(50001, 0);
    EXPECT_EQ(First(), 50001 - 17);

    // Shrinking converts back, keeping the first line.
    m_zone.SetFirstVisiblePosition(1001, 0);
    m_zone.RemoveLines(20000, 80000);
    m_zone.UpdateVScrollBar();
    EXPECT_EQ(m_zone.m_nLinesPerUnit, 1);
    EXPECT_EQ(m_zone.m_nVScrollPos, 1001);
}

TEST_F(CaretScrollTest, WindowBarsAndBarControlsHoldThePosition) {
    m_wnd.ModifyStyle(0, WS_VSCROLL | WS_HSCROLL);
    RECT client;
    m_wnd.GetClientRect(&client);
    m_zone.SetRect(&client);
    Load(100);
    int nMin = 0, nMax = 0;
    VScroll(SB_PAGEDOWN);
    EXPECT_EQ(m_wnd.GetScrollPos(SB_VERT), 283 / 16 - 1);
    EXPECT_EQ(m_zone.m_nVScrollPos, 0);  // the private field is not used
    // An empty text keeps bars that can move, so they stay on show.
    ASSERT_TRUE(m_zone.SetText(""));
    m_wnd.GetScrollRange(SB_HORZ, &nMin, &nMax);
    EXPECT_EQ(nMax, 1);
    EXPECT_TRUE(m_wnd.IsScrollBarVisible(SB_VERT) && m_wnd.IsScrollBarVisible(SB_HORZ));

    // Bar controls given to the zone come before the window's bars.
    CScrollBar vbar, hbar;
    ASSERT_TRUE(vbar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, RECT{0, 0, 17, 100}, &m_wnd, 7));
    ASSERT_TRUE(hbar.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 100, 17}, &m_wnd, 8));
    m_zone.SetScrollbars(&vbar, &hbar);
    m_zone.SetReservedTopLines(2);
    Load(50, std::string(60, 'y'));
    vbar.GetScrollRange(&nMin, &nMax);
    EXPECT_EQ(nMin, -2);
    hbar.GetScrollRange(&nMin, &nMax);
    EXPECT_EQ(nMax, 31);  // 62 characters
    HScroll(SB_PAGERIGHT);
    EXPECT_EQ(hbar.GetScrollPos(), 383 / 16 - 1);
    m_zone.SetScrollbars(nullptr, nullptr);
}

TEST_F(CaretScrollTest, ReservedTopLinesShowEmptyPlacesAboveTheText) {
    Load(30);
    m_zone.SetReservedTopLines(2);
    EXPECT_EQ(VScroll(SB_TOP), -2);
    POINT pt{5, 40};
    EXPECT_EQ(m_zone.GetLineFromPoint(&pt), 0);
    EXPECT_EQ(Paint(40), (Strings{"line 0@32"}));
    EXPECT_EQ(Box(Peer().GetDisplayList().at(0).rc), "0,0,400,32");  // the places, filled
    Focus();
    Caret(0, 0);
    EXPECT_EQ(CaretAt(), "0,32");
}

TEST_F(CaretScrollTest, HiddenLinesTakeNoRoom) {
    m_zone.SetStyle(ZS_VARHEIGHT);
    Load(40);
    for (int n = 2; n <= 4; ++n)
        m_zone.GetLine(n)->m_dwBlockFlags |= 4;
    EXPECT_EQ(m_zone.GetLinePosition(45), (37 + 5) * 16);  // a line high below the text
    POINT pt{0, 40};
    EXPECT_EQ(m_zone.GetLineFromPoint(&pt), 5);
    EXPECT_EQ(Paint(64), (Strings{"line 0@0", "line 1@16", "line 5@32", "line 6@48"}));
    Peer().ClearInvalidations();
    m_zone.RedrawLines(5, 5, 0);
    EXPECT_EQ(Box(Peer().GetInvalidations().at(0).rcBox), "0,32,400,48");

    // Line scrolls pass over hidden lines both ways, moving only real rows;
    // so does the caret below the view.
    VScroll(SB_LINEDOWN);
    Peer().ClearLogs();
    ExpectScrolls({{SB_LINEDOWN, 0, 5}});
    EXPECT_EQ(Scrolls(true), (Ints{-16}));
    EXPECT_EQ(m_zone.GetVScrollOffset(), 32);
    ExpectScrolls({{SB_LINEUP, 0, 1}, {SB_TOP, 0, 0}});
    Focus();
    Caret(21, 0);
    EXPECT_EQ(First(), 1);
    Caret(22, 0);
    EXPECT_EQ(First(), 5);
}

TEST_F(CaretScrollTest, AnEditOfAShortLineKeepsTheRangeOfTheLongOne) {
    ASSERT_TRUE(m_zone.SetText((std::string(100, 'x') + "\r\nshort").c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);
    ASSERT_EQ(m_zone.m_nHScrollMax, 50);
    m_zone.SetSelection(1, 1, 2, 2, 0, 0);
    m_zone.HandleChar('y', 1, 0);  // updates the range from line 1 alone
    EXPECT_EQ(m_zone.m_nHScrollMax, 50);
}

TEST_F(CaretScrollTest, ASelectionEndingAtALineStartScrollsToTheLineAbove) {
    Load(100);
    m_zone.SetSelection(0, 40, 0, 0, 0, 1);
    EXPECT_EQ(First(), 22);  // line 39 at the bottom; line 40 holds nothing selected
}
