#include <string>
#include <vector>

#include "platform/Caret.h"
#include "platform/DC.h"
#include "platform/ScrollBar.h"
#include "support/ZoneTest.h"

namespace {

std::string Box(const RECT& rc) {
    return std::to_string(rc.left) + "," + std::to_string(rc.top) + "," +
           std::to_string(rc.right) + "," + std::to_string(rc.bottom);
}

// A 400 x 300 zone shows 18 whole lines of 16 pixels; a page is 17 lines.
class CaretScrollTest : public ZoneTest {
protected:
    // nLines lines "line N", the last one without a line end.
    void Load(int nLines, const std::string& prefix = "line ") {
        std::string text;
        for (int i = 0; i < nLines; ++i)
            text += prefix + std::to_string(i) + (i + 1 < nLines ? "\r\n" : "");
        ASSERT_TRUE(m_zone.SetText(text.c_str()));
        m_zone.SetFirstVisiblePosition(0, 0);
    }
    void Caret(int nLine, int nChar) { m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 1); }
    int FirstLine() {
        return m_zone.m_nVScrollPos * m_zone.m_nLinesPerUnit + m_zone.m_nUnitRemainder;
    }
    void VScroll(UINT nCode, UINT nPos = 0) { m_zone.HandleVScroll(nCode, nPos, nullptr); }
    std::string CaretAt() {
        const CaretInfo& caret = GetCaretInfo();
        if (!caret.IsVisible()) return "hidden";
        return std::to_string(caret.pt.x) + "," + std::to_string(caret.pt.y);
    }
    std::vector<int> Scrolls(bool bVertical) {
        std::vector<int> moves;
        for (const DrawRecord& r : Peer().GetDisplayList())
            if (r.kind == DrawRecord::Scroll) moves.push_back(bVertical ? r.dy : r.dx);
        return moves;
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
    EXPECT_EQ(GetCaretInfo().pOwner, &m_wnd);
    EXPECT_EQ(GetCaretInfo().nWidth, 0);  // the system's width
    EXPECT_EQ(GetCaretInfo().nHeight, 16);
    EXPECT_TRUE(m_zone.m_bCaretShown);

    // A selection hides it; collapsing it brings it back at the mobile end.
    m_zone.SetSelection(3, 4, 2, 1, 0, 1);
    EXPECT_EQ(CaretAt(), "hidden");
    EXPECT_FALSE(m_zone.m_bCaretShown);
    Caret(4, 1);
    EXPECT_EQ(CaretAt(), "8,64");

    // Losing the focus destroys the caret and keeps the selection.
    m_zone.SetSelection(4, 4, 1, 3, 0, 0);
    m_zone.HandleKillFocus(nullptr);
    EXPECT_EQ(GetCaretInfo().pOwner, nullptr);
    EXPECT_TRUE(m_zone.TestSelection());

    // A caret left of the text, scrolled away, is not shown.
    Caret(4, 1);
    m_zone.HandleHScroll(SB_THUMBTRACK, 2, nullptr);
    EXPECT_EQ(m_zone.GetHScrollOffset(), 32);
    m_zone.DrawCaret(0, 1);
    EXPECT_EQ(CaretAt(), "hidden");

    // A caret another window left behind is replaced by ours.
    CWnd other;
    ASSERT_TRUE(other.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 2));
    CreateCaret(&other, nullptr, 3, 3);
    m_zone.HandleHScroll(SB_LEFT, 0, nullptr);
    m_zone.DrawCaret(0, 1);
    EXPECT_EQ(GetCaretInfo().pOwner, &m_wnd);
    EXPECT_EQ(CaretAt(), "8,64");

    // Painting hides the caret and puts it back.
    m_wnd.InvalidateRect(nullptr, FALSE);
    PAINTSTRUCT ps;
    CDC* pDC = m_wnd.BeginPaint(&ps);
    m_zone.HandlePaint(pDC);
    m_wnd.EndPaint(&ps);
    EXPECT_EQ(CaretAt(), "8,64");
}

TEST_F(CaretScrollTest, CaretMovesScrollByLinesOrJumpWithThreeLinesOrMore) {
    Load(100);
    Focus();
    Caret(17, 0);
    EXPECT_EQ(FirstLine(), 0);
    EXPECT_EQ(CaretAt(), "0,272");

    // Two lines below: two line scrolls that blit.
    Peer().ClearLogs();
    Caret(19, 0);
    EXPECT_EQ(FirstLine(), 2);
    EXPECT_EQ(Scrolls(true), (std::vector<int>{-16, -16}));
    EXPECT_EQ(CaretAt(), "0,272");

    // Far below: one jump and a full repaint, the caret on the last whole row.
    Peer().ClearLogs();
    Caret(60, 3);
    EXPECT_EQ(FirstLine(), 43);
    EXPECT_TRUE(Scrolls(true).empty());
    ASSERT_FALSE(Peer().GetInvalidations().empty());
    EXPECT_EQ(Box(Peer().GetInvalidations().back().rcBox), "0,0,400,300");
    EXPECT_EQ(CaretAt(), "24,272");
    EXPECT_EQ(m_zone.GetVScrollOffset(), 43 * 16);

    // Above: the caret's line becomes the first.
    Caret(10, 0);
    EXPECT_EQ(FirstLine(), 10);
    EXPECT_EQ(CaretAt(), "0,0");
    Caret(9, 0);
    EXPECT_EQ(FirstLine(), 9);

    // Without scrolling the caret just hides while out of view.
    m_zone.SetSelection(50, 50, 0, 0, 0, 0);
    m_zone.DrawCaret(0, 1);
    EXPECT_EQ(CaretAt(), "hidden");
    EXPECT_EQ(FirstLine(), 9);
    m_zone.DrawCaret(1, 0);
    EXPECT_EQ(FirstLine(), 33);
}

TEST_F(CaretScrollTest, HorizontalScrollShowsTenCharactersMoreExceptInADrag) {
    ASSERT_TRUE(m_zone.SetText((std::string(100, 'x') + "\r\nshort").c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);
    EXPECT_EQ(m_zone.m_nHScrollMax, 50);  // two characters a position
    Focus();

    // Beyond the right edge by 11 characters: 21 characters, 10 positions.
    Caret(0, 60);
    EXPECT_EQ(m_zone.m_nHScrollPos, 10);
    EXPECT_EQ(m_zone.GetHScrollOffset(), 160);
    EXPECT_EQ(CaretAt(), "320,0");
    // Back to the start, not past the minimum.
    Caret(1, 0);
    EXPECT_EQ(m_zone.m_nHScrollPos, 0);
    EXPECT_EQ(CaretAt(), "0,16");

    // A move of one position blits instead of repainting.
    m_zone.HandleHScroll(SB_LINERIGHT, 0, nullptr);
    Peer().ClearLogs();
    Caret(1, 0);
    EXPECT_EQ(m_zone.m_nHScrollPos, 0);
    EXPECT_EQ(Scrolls(false), (std::vector<int>{16}));

    // The same selection end dragged with the button down stops at the edge.
    m_zone.SetSelection(0, 0, 0, 60, 0, 1);
    EXPECT_EQ(m_zone.m_nHScrollPos, 10);
    m_zone.SetSelection(0, 0, 0, 0, 0, 1);
    m_platform.SetKeyState(VK_LBUTTON, true);
    m_zone.SetSelection(0, 0, 0, 60, 0, 1);
    EXPECT_EQ(m_zone.m_nHScrollPos, 5);
    m_platform.SetKeyState(VK_LBUTTON, false);

    // A free caret beyond every line widens the range.
    m_zone.SetStyle(ZS_FREECARET);
    Caret(1, 200);
    EXPECT_EQ(m_zone.m_nHScrollPos, 80);
    EXPECT_EQ(m_zone.m_nHScrollMax, 80);
}

TEST_F(CaretScrollTest, VerticalScrollCodesMoveAndClampThePosition) {
    Load(100);
    Focus();
    Caret(0, 0);
    auto after = [&](UINT nCode, UINT nPos = 0) {
        VScroll(nCode, nPos);
        return FirstLine();
    };
    EXPECT_EQ(after(SB_LINEUP), 0);
    EXPECT_EQ(after(SB_LINEDOWN), 1);
    EXPECT_EQ(after(SB_PAGEDOWN), 18);
    EXPECT_EQ(after(SB_PAGEUP), 1);
    EXPECT_EQ(after(SB_PAGEUP), 0);
    EXPECT_EQ(after(SB_BOTTOM), 99);
    EXPECT_EQ(after(SB_LINEDOWN), 99);
    EXPECT_EQ(after(SB_PAGEDOWN), 99);
    EXPECT_EQ(after(SB_THUMBTRACK, 40), 40);
    EXPECT_EQ(after(SB_THUMBPOSITION, 500), 99);
    EXPECT_EQ(after(SB_TOP), 0);

    // The caret follows the text, and hides when it leaves the view.
    Caret(5, 0);
    VScroll(SB_LINEDOWN);
    EXPECT_EQ(CaretAt(), "0,64");
    VScroll(SB_THUMBTRACK, 10);
    EXPECT_EQ(CaretAt(), "hidden");
    VScroll(SB_TOP);
    EXPECT_EQ(CaretAt(), "hidden");  // not shown before, not brought back

    // A single line has nothing to scroll.
    Load(1);
    VScroll(SB_LINEDOWN);
    EXPECT_EQ(FirstLine(), 0);
}

TEST_F(CaretScrollTest, HorizontalScrollCodesMoveByTwoCharacters) {
    ASSERT_TRUE(m_zone.SetText(std::string(200, 'x').c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);
    ASSERT_EQ(m_zone.m_nHScrollMax, 100);
    Peer().ClearLogs();
    m_zone.HandleHScroll(SB_LINERIGHT, 0, nullptr);
    EXPECT_EQ(m_zone.m_nHScrollPos, 1);
    EXPECT_EQ(Scrolls(false), (std::vector<int>{-16}));
    // A page is the width in positions less one: 400 / 16 - 1.
    m_zone.HandleHScroll(SB_PAGERIGHT, 0, nullptr);
    EXPECT_EQ(m_zone.m_nHScrollPos, 25);
    m_zone.HandleHScroll(SB_PAGELEFT, 0, nullptr);
    m_zone.HandleHScroll(SB_LINELEFT, 0, nullptr);
    m_zone.HandleHScroll(SB_LINELEFT, 0, nullptr);
    EXPECT_EQ(m_zone.m_nHScrollPos, 0);
    m_zone.HandleHScroll(SB_RIGHT, 0, nullptr);
    EXPECT_EQ(m_zone.m_nHScrollPos, 100);
    m_zone.HandleHScroll(SB_THUMBTRACK, 30, nullptr);
    EXPECT_EQ(m_zone.GetHScrollOffset(), 30 * 16);
}

TEST_F(CaretScrollTest, PendingPaintsMoveWithTheText) {
    Load(100);
    m_wnd.ValidateRect(nullptr);
    RECT row{0, 80, 400, 96};
    m_wnd.InvalidateRect(&row, FALSE);
    Peer().ClearLogs();
    VScroll(SB_LINEDOWN);

    // The text moved a line up: the pending row with it, and the new bottom row.
    ASSERT_EQ(Scrolls(true), (std::vector<int>{-16}));
    CRgn pending;
    m_wnd.GetUpdateRgn(&pending);
    CRgn expected;
    expected.SetRectRgn(0, 64, 400, 80);
    CRgn bottom;
    bottom.SetRectRgn(0, 284, 400, 300);
    expected.CombineRgn(&expected, &bottom, RGN_OR);
    EXPECT_TRUE(pending.EqualRgn(&expected));
    for (const auto& inv : Peer().GetInvalidations())
        EXPECT_FALSE(inv.bErase);

    // A host that asked for it gets what is pending painted before scrolling.
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
        text.resize(text.size() - 2);
        return text;
    };
    ASSERT_TRUE(m_zone.SetText(lines(20000).c_str()));
    EXPECT_EQ(m_zone.m_nLinesPerUnit, 1);
    m_zone.SetFirstVisiblePosition(1001, 0);
    // Growing past 32768 lines changes the unit and keeps the first line.
    m_zone.SetSelection(-1, -1, 0, 0, 1, 0);
    m_zone.InsertText(("\r\n" + lines(80000)).c_str(), 0, 0, 0);
    ASSERT_EQ(m_zone.GetLastLineIndex(), 99999);
    EXPECT_EQ(m_zone.m_nLinesPerUnit, 4);
    EXPECT_EQ(m_zone.m_nVScrollMax, 24999);
    EXPECT_EQ(m_zone.m_nVScrollPos, 250);
    EXPECT_EQ(m_zone.m_nUnitRemainder, 1);

    m_zone.SetFirstVisiblePosition(0, 0);
    VScroll(SB_BOTTOM);
    EXPECT_EQ(m_zone.m_nVScrollPos, 24999);
    EXPECT_EQ(m_zone.m_nUnitRemainder, 3);
    EXPECT_EQ(FirstLine(), 99999);
    VScroll(SB_LINEUP);
    EXPECT_EQ(m_zone.m_nVScrollPos, 24999);
    EXPECT_EQ(m_zone.m_nUnitRemainder, 2);
    VScroll(SB_THUMBTRACK, 100);
    EXPECT_EQ(FirstLine(), 400);
    VScroll(SB_LINEUP);
    EXPECT_EQ(m_zone.m_nVScrollPos, 99);
    EXPECT_EQ(m_zone.m_nUnitRemainder, 3);
    VScroll(SB_PAGEDOWN);
    EXPECT_EQ(FirstLine(), 399 + 17);
    EXPECT_EQ(m_zone.GetVScrollOffset(), 416 * 16);

    // The caret carries the remainder into the position.
    Focus();
    Caret(50001, 0);
    EXPECT_EQ(FirstLine(), 50001 - 17);
    EXPECT_EQ(CaretAt(), "0,272");

    // Shrinking the text converts the position back, keeping the first line.
    m_zone.SetFirstVisiblePosition(1001, 0);
    EXPECT_EQ(m_zone.m_nVScrollPos, 250);
    EXPECT_EQ(m_zone.m_nUnitRemainder, 1);
    m_zone.RemoveLines(20000, 80000);
    m_zone.UpdateVScrollBar();
    EXPECT_EQ(m_zone.m_nLinesPerUnit, 1);
    EXPECT_EQ(m_zone.m_nVScrollPos, 1001);
    EXPECT_EQ(m_zone.m_nUnitRemainder, 0);
    EXPECT_EQ(m_zone.m_nVScrollMax, 19999);
}

TEST_F(CaretScrollTest, WindowBarsAndBarControlsHoldThePosition) {
    // The window's own bars, when its style has them.
    m_wnd.ModifyStyle(0, WS_VSCROLL | WS_HSCROLL);
    RECT client;
    m_wnd.GetClientRect(&client);
    m_zone.SetRect(&client);
    Load(100);
    int nMin = 0, nMax = 0;
    m_wnd.GetScrollRange(SB_VERT, &nMin, &nMax);
    EXPECT_EQ(nMax, 99);
    VScroll(SB_PAGEDOWN);
    EXPECT_EQ(m_wnd.GetScrollPos(SB_VERT), 283 / 16 - 1);
    EXPECT_EQ(m_zone.m_nVScrollPos, 0);  // the private field is not used
    // An empty text keeps a bar that can move, so it stays on show.
    ASSERT_TRUE(m_zone.SetText(""));
    m_wnd.GetScrollRange(SB_VERT, &nMin, &nMax);
    EXPECT_EQ(nMin, 0);
    EXPECT_EQ(nMax, 1);
    EXPECT_TRUE(m_wnd.IsScrollBarVisible(SB_VERT));
    m_wnd.GetScrollRange(SB_HORZ, &nMin, &nMax);
    EXPECT_EQ(nMax, 1);
    EXPECT_TRUE(m_wnd.IsScrollBarVisible(SB_HORZ));

    // Bar controls given to the zone come before the window's bars.
    CScrollBar vbar, hbar;
    ASSERT_TRUE(vbar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, RECT{0, 0, 17, 100}, &m_wnd, 7));
    ASSERT_TRUE(hbar.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 100, 17}, &m_wnd, 8));
    m_zone.SetScrollbars(&vbar, &hbar);
    m_zone.SetReservedTopLines(2);
    Load(50, std::string(60, 'y'));
    vbar.GetScrollRange(&nMin, &nMax);
    EXPECT_EQ(nMin, -2);
    EXPECT_EQ(nMax, 49);
    hbar.GetScrollRange(&nMin, &nMax);
    EXPECT_EQ(nMax, 31);  // 62 characters
    VScroll(SB_TOP);
    EXPECT_EQ(vbar.GetScrollPos(), -2);
    EXPECT_EQ(m_zone.GetVScrollOffset(), -32);
    m_zone.HandleHScroll(SB_PAGERIGHT, 0, nullptr);
    EXPECT_EQ(hbar.GetScrollPos(), 383 / 16 - 1);
    m_zone.SetScrollbars(nullptr, nullptr);
}

TEST_F(CaretScrollTest, ReservedTopLinesShowEmptyPlacesAboveTheText) {
    Load(30);
    m_zone.SetReservedTopLines(2);
    VScroll(SB_TOP);
    EXPECT_EQ(m_zone.m_nVScrollPos, -2);
    EXPECT_EQ(m_zone.GetLineTopPos(0), 32);
    POINT pt{5, 40};
    EXPECT_EQ(m_zone.GetLineFromPoint(&pt), 0);

    m_wnd.InvalidateRect(nullptr, FALSE);
    Peer().ClearDisplayList();
    PAINTSTRUCT ps;
    CDC* pDC = m_wnd.BeginPaint(&ps);
    m_zone.HandlePaint(pDC);
    m_wnd.EndPaint(&ps);
    bool aboveFilled = false;
    for (const DrawRecord& r : Peer().GetDisplayList()) {
        if (r.kind == DrawRecord::Text && r.text == "line 0") {
            EXPECT_EQ(r.rc.top, 32);
        }
        if (r.kind == DrawRecord::Fill && Box(r.rc) == "0,0,400,32") aboveFilled = true;
    }
    EXPECT_TRUE(aboveFilled);

    // The caret on line 0 keeps the reserved places in view.
    Focus();
    Caret(0, 0);
    EXPECT_EQ(m_zone.m_nVScrollPos, -2);
    EXPECT_EQ(CaretAt(), "0,32");
}

TEST_F(CaretScrollTest, HiddenLinesTakeNoRoom) {
    m_zone.SetStyle(ZS_VARHEIGHT);
    Load(40);
    for (int n = 2; n <= 4; ++n)
        m_zone.GetLine(n)->m_dwBlockFlags |= 4;
    EXPECT_EQ(m_zone.GetLineHeight(3), 0);
    EXPECT_EQ(m_zone.GetLinePosition(5), 32);
    EXPECT_EQ(m_zone.GetLineTopPos(6), 48);
    POINT pt{0, 40};
    EXPECT_EQ(m_zone.GetLineFromPoint(&pt), 5);
    // Below the text every place is a line high.
    pt.y = 40 * 16;
    EXPECT_EQ(m_zone.GetLineFromPoint(&pt), 43);

    m_wnd.InvalidateRect(nullptr, FALSE);
    Peer().ClearDisplayList();
    PAINTSTRUCT ps;
    CDC* pDC = m_wnd.BeginPaint(&ps);
    m_zone.HandlePaint(pDC);
    m_wnd.EndPaint(&ps);
    std::vector<std::string> rows;
    for (const DrawRecord& r : Peer().GetDisplayList())
        if (r.kind == DrawRecord::Text && r.rc.top < 64)
            rows.push_back(r.text + "@" + std::to_string(r.rc.top));
    EXPECT_EQ(rows, (std::vector<std::string>{"line 0@0", "line 1@16", "line 5@32", "line 6@48"}));

    Peer().ClearInvalidations();
    m_zone.RedrawLines(5, 5, 0);
    m_zone.RedrawLines(6, 0x7FFFFFF0, 0);  // far below the text, without a walk there
    ASSERT_EQ(Peer().GetInvalidations().size(), 2u);
    EXPECT_EQ(Box(Peer().GetInvalidations()[0].rcBox), "0,32,400,48");
    EXPECT_EQ(Box(Peer().GetInvalidations()[1].rcBox), "0,48,400,300");
    EXPECT_EQ(m_zone.GetLinePosition(45), (37 + 5) * 16);

    // Line scrolls pass over hidden lines, both ways, moving only real rows.
    VScroll(SB_LINEDOWN);
    EXPECT_EQ(FirstLine(), 1);
    Peer().ClearLogs();
    VScroll(SB_LINEDOWN);
    EXPECT_EQ(FirstLine(), 5);
    EXPECT_EQ(Scrolls(true), (std::vector<int>{-16}));
    EXPECT_EQ(m_zone.GetVScrollOffset(), 32);
    VScroll(SB_LINEUP);
    EXPECT_EQ(FirstLine(), 1);

    // The caret below the view scrolls by rows, hidden lines counting none.
    VScroll(SB_TOP);
    Focus();
    Caret(20, 0);
    EXPECT_EQ(FirstLine(), 0);
    EXPECT_EQ(CaretAt(), "0,272");
    Caret(21, 0);
    EXPECT_EQ(FirstLine(), 1);
    EXPECT_EQ(CaretAt(), "0,272");
    Caret(22, 0);
    EXPECT_EQ(FirstLine(), 5);
    EXPECT_EQ(CaretAt(), "0,272");
}
