#include <string>
#include <utility>
#include <vector>

#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"

namespace {

using Scrolls = std::vector<std::pair<char, UINT>>;

// A zone that notes the scroll steps the mouse asks for.
class CMouseZone : public CTestZone {
public:
    void HandleVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) override {
        m_scrolls.push_back({'V', nSBCode});
        CTestZone::HandleVScroll(nSBCode, nPos, pScrollBar);
    }
    void HandleHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) override {
        m_scrolls.push_back({'H', nSBCode});
        CTestZone::HandleHScroll(nSBCode, nPos, pScrollBar);
    }
    Scrolls m_scrolls;
};

class MouseTest : public HeadlessTest {
protected:
    void SetUp() override {
        HeadlessTest::SetUp();
        CreateFixedFont(m_font);
        AttachZone(m_zone, m_wnd, m_font);
        m_platform.SetTickCount(1000);
    }
    void TearDown() override {
        m_zone.HideCaret();
        HeadlessTest::TearDown();
    }

    // The middle of a line's height, at the left edge of a byte.
    static POINT At(int nLine, int nChar) { return POINT{nChar * 8, nLine * 16 + 8}; }
    void Down(POINT pt, UINT nFlags = 0) { m_zone.HandleLButtonDown(nFlags | MK_LBUTTON, &pt); }
    void Move(POINT pt, UINT nFlags = 0) { m_zone.HandleMouseMove(nFlags | MK_LBUTTON, &pt); }
    void Up(POINT pt, UINT nFlags = 0) { m_zone.HandleLButtonUp(nFlags, &pt); }
    void Click(POINT pt, UINT nFlags = 0) { Down(pt, nFlags), Up(pt, nFlags); }
    void Drag(POINT from, POINT to) { Down(from), Move(to), Up(to); }
    void DblClk(POINT pt) { m_zone.HandleLButtonDblClk(MK_LBUTTON, &pt); }

    // Delivers the moves that auto-scroll posted, as the message loop would.
    int DeliverPostedMoves() {
        std::vector<MSG> posted = m_platform.GetPostedMessages();
        m_platform.ClearPostedMessages();
        for (const MSG& msg : posted) {
            POINT pt{GET_X_LPARAM(msg.lParam), GET_Y_LPARAM(msg.lParam)};
            m_zone.HandleMouseMove(static_cast<UINT>(msg.wParam), &pt);
        }
        return static_cast<int>(posted.size());
    }

    std::string Text(bool bSelected = false) {
        if (bSelected) return m_zone.GetSelectedTextString(TF_CRLF);
        std::vector<char> buffer(static_cast<size_t>(m_zone.GetTextLength(TF_CRLF)) + 8, 0);
        m_zone.GetText(buffer.data(), static_cast<LONG>(buffer.size()), TF_CRLF);
        return buffer.data();
    }
    // "startLine,startChar-endLine,endChar"
    std::string Sel() {
        return std::to_string(m_zone.m_nSelStartLine) + "," + std::to_string(m_zone.m_nSelStartChar) + "-" +
               std::to_string(m_zone.m_nSelEndLine) + "," + std::to_string(m_zone.m_nSelEndChar);
    }
    void LoadNumberedLines(int nLines) {
        ASSERT_TRUE(m_zone.SetText(Numbered(nLines).c_str()));
        m_zone.SetSelection(0, 0, 0, 0, 0, 1);  // loading left the view at the end
        m_zone.m_scrolls.clear();
    }
    int Cursor() const { return m_platform.GetCurrentCursorId(); }

    CFont m_font;
    CMouseZone m_zone;
};

}  // namespace

TEST_F(MouseTest, PressMoveAndReleaseSelectFromThePressPoint) {
    ASSERT_TRUE(m_zone.SetText("hello world\r\nsecond line\r\nthird\r\n"));
    Down(At(0, 2));
    EXPECT_EQ(CWnd::GetCapture(), &m_wnd);
    Move(At(0, 0));  // above the press point, which stays the fixed end
    EXPECT_EQ(Sel(), "0,0-0,2");
    Move(At(2, 3));
    Up(At(2, 3));
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_FALSE(m_zone.m_bMouseSelecting);
    EXPECT_EQ(Text(true), "llo world\r\nsecond line\r\nthi");

    Click(At(0, 1), MK_SHIFT);  // extends from the root
    EXPECT_EQ(Sel(), "0,1-0,2");

    // The nearer byte boundary wins, a tie going right; right of a line's
    // end is its end, below the text the place behind it.
    const std::pair<POINT, const char*> places[] = {
        {{27, 8}, "0,3-0,3"}, {{28, 8}, "0,4-0,4"}, {{390, 40}, "2,5-2,5"}, {{100, 250}, "3,0-3,0"}};
    for (const auto& [pt, sel] : places) {
        Click(pt);
        EXPECT_EQ(Sel(), sel) << pt.x << "," << pt.y;
    }

    // Moves after the capture was lost, or without the button, select nothing.
    Down(At(0, 2));
    m_platform.StealCapture();
    Move(At(1, 4));
    EXPECT_FALSE(m_zone.m_bMouseSelecting);
    Down(At(0, 2));
    POINT pt = At(1, 4);
    m_zone.HandleMouseMove(0, &pt);
    Move(At(1, 6));
    Up(At(1, 6));
    EXPECT_EQ(Sel(), "0,2-0,2");
}

TEST_F(MouseTest, AltDragSelectsABoxUnlessBlocksAreOffOrTheFontIsProportional) {
    ASSERT_TRUE(m_zone.SetText("abcdefgh\r\nab\r\nabcdefgh\r\n"));
    m_platform.SetKeyState(VK_MENU, true);
    Drag(At(0, 2), At(2, 5));
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
    EXPECT_EQ(Text(true), "cde\r\n   \r\ncde\r\n");

    // Pressed beyond a short line's end, the box starts at that column, and
    // back at no width the caret returns to a byte of its line.
    Down(At(1, 6));
    Move(At(2, 8));
    EXPECT_EQ(Sel(), "1,6-2,8");
    Move(At(1, 6));
    Up(At(1, 6));
    EXPECT_EQ(Sel(), "1,2-1,2");

    m_zone.SetSelectionMode(1);
    m_zone.SetNoBlockFlag(1);
    Drag(At(0, 2), At(1, 1));
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    EXPECT_EQ(Sel(), "0,2-1,1");
    m_zone.SetNoBlockFlag(0);
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 16);
    CFont proportional;
    proportional.CreateFontIndirect(&lf);
    m_zone.SetFont(proportional);
    Drag(POINT{4, 8}, POINT{60, 24});
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    m_zone.SetFont(m_font);
    m_platform.SetKeyState(VK_MENU, false);
}

TEST_F(MouseTest, DoubleClickSelectsAWordOrOneOtherByte) {
    ASSERT_TRUE(m_zone.SetText("int #x_1 = a+b;  \r\nabc def\r\ncaf\xC3\xA9 x\r\n"));
    m_zone.SetSelectionMode(2);
    // Punctuation or a blank with no word before: that byte; at a word's end
    // the word; beyond a line's end its last word.
    const std::pair<POINT, const char*> cases[] = {
        {At(0, 6), "0,4-0,8"},  {At(0, 9), "0,9-0,10"}, {At(0, 16), "0,16-0,17"}, {At(0, 14), "0,13-0,14"},
        {At(1, 20), "1,4-1,7"}, {At(2, 1), "2,0-2,5"}};
    for (const auto& [pt, sel] : cases) {
        DblClk(pt);
        EXPECT_EQ(Sel(), sel) << pt.x << "," << pt.y;
    }
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    DblClk(At(3, 2));  // on the place behind the text: nothing
    EXPECT_FALSE(m_zone.TestSelection());
}

TEST_F(MouseTest, APressOnABlockMarkInTheMarginTogglesTheBlock) {
    ASSERT_TRUE(m_zone.SetText("0\r\n1\r\n2\r\n3\r\n4\r\n"));
    m_zone.SetMarginMode(1);
    ASSERT_EQ(m_zone.SetEditBlock(1, 3), 1);
    // The mark spans the right three quarters of the 16-pixel margin.
    Click(POINT{3, 24});
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBlockFlags, 2u);
    EXPECT_EQ(m_zone.GetLineHeight(2), 0);
    EXPECT_EQ(Sel(), "1,0-1,0");
    Click(POINT{2, 24});
    m_platform.SetKeyState(VK_CONTROL, true);
    Click(POINT{12, 24});
    m_platform.SetKeyState(VK_CONTROL, false);
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBlockFlags, 2u);
    Click(POINT{15, 24});
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBlockFlags, 1u);
}

TEST_F(MouseTest, DraggingSelectedTextMovesItOrWithShiftCopiesIt) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    Down(At(0, 5));
    Move(At(0, 6));
    EXPECT_EQ(Cursor(), IDC_NO);  // over the selection itself
    Move(At(0, 13));
    EXPECT_EQ(Cursor(), 32);
    // Behind the selection on its line the place is taken as it will be
    // once the text has gone.
    Up(At(0, 13));
    EXPECT_EQ(Text(), "one threetwo \r\n");
    EXPECT_EQ(Text(true), "two ");
    EXPECT_EQ(Cursor(), IDC_IBEAM);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    m_zone.Undo();

    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    Down(At(0, 5));
    Move(At(0, 1), MK_SHIFT);
    EXPECT_EQ(Cursor(), 31);
    Up(At(0, 0), MK_SHIFT);
    EXPECT_EQ(Text(), "two one two three\r\n");

    // Let go on the selection or outside the text: nothing changes.
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    Down(At(0, 5));
    Move(At(0, 6));
    Up(At(0, 7));
    Down(At(0, 5));
    Move(POINT{100, 320});
    EXPECT_EQ(Cursor(), IDC_NO);
    EXPECT_EQ(m_zone.m_scrolls, (Scrolls{{'V', SB_LINEDOWN}}));
    Up(POINT{100, 320});
    EXPECT_EQ(Text(), "two one two three\r\n");
    EXPECT_EQ(Sel(), "0,4-0,8");
    Click(At(0, 6));  // a click that never moved places the caret
    EXPECT_EQ(Sel(), "0,6-0,6");

    // Moved down across lines, it lands where the pointer was.
    ASSERT_TRUE(m_zone.SetText("aa\r\nbb\r\ncc\r\ndd\r\n"));
    m_zone.SetSelection(0, 1, 1, 1, 0, 0);
    Drag(At(0, 1), At(3, 1));
    EXPECT_EQ(Text(), "ab\r\ncc\r\nda\r\nbd\r\n");
    EXPECT_EQ(Sel(), "2,1-3,1");

    // Read-only, or with dragging off, a press on the selection selects.
    m_zone.SetReadOnly(1);
    Drag(At(3, 0), At(2, 0));
    EXPECT_EQ(Sel(), "2,0-3,0");
    m_zone.SetReadOnly(0);
    m_zone.SetDragDropFlag(0);
    m_zone.SetSelection(2, 3, 1, 1, 0, 0);
    Down(At(3, 0));
    EXPECT_EQ(m_zone.m_nDragState, 0);
    Up(At(3, 0));
    EXPECT_EQ(Text(), "ab\r\ncc\r\nda\r\nbd\r\n");
}

TEST_F(MouseTest, AutoScrollStepsAtMostEvery50MillisecondsWhileThePointerIsOutside) {
    LoadNumberedLines(40);
    Down(At(0, 1));
    Move(POINT{40, 310});
    EXPECT_EQ(m_zone.m_scrolls, (Scrolls{{'V', SB_LINEDOWN}}));
    // The move comes back with the same flags and point.
    std::vector<MSG> posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_TRUE(posted[0].message == WM_MOUSEMOVE && posted[0].wParam == static_cast<WPARAM>(MK_LBUTTON) &&
                posted[0].lParam == MAKELPARAM(40, 310));

    m_zone.m_scrolls.clear();
    EXPECT_EQ(DeliverPostedMoves(), 1);
    m_platform.AdvanceTickCount(50);
    EXPECT_EQ(DeliverPostedMoves(), 1);
    EXPECT_TRUE(m_zone.m_scrolls.empty());
    for (int ms : {1, 51, 51}) {
        m_platform.AdvanceTickCount(ms);
        EXPECT_EQ(DeliverPostedMoves(), 1);
    }
    // One line a step, the selection on the last whole line in view.
    EXPECT_EQ(m_zone.m_scrolls.size(), 3u);
    EXPECT_EQ(m_zone.GetVScrollOffset(), 4 * 16);
    EXPECT_EQ(m_zone.GetSelMobileLine(), 21);

    // Sideways two steps, above one; a waiting mouse message is not doubled.
    m_zone.m_scrolls.clear();
    m_platform.ClearPostedMessages();
    m_platform.AdvanceTickCount(51);
    Move(POINT{-5, 100});
    m_platform.AdvanceTickCount(51);
    Move(POINT{400, -1});
    EXPECT_EQ(m_zone.m_scrolls, (Scrolls{{'H', SB_LINELEFT},
                                         {'H', SB_LINELEFT},
                                         {'H', SB_LINERIGHT},
                                         {'H', SB_LINERIGHT},
                                         {'V', SB_LINEUP}}));
    EXPECT_EQ(m_platform.GetPostedMessages().size(), 1u);

    // Back inside nothing is posted; after the release a stray move ends the loop.
    m_platform.ClearPostedMessages();
    m_platform.AdvanceTickCount(100);
    Move(At(3, 2));
    EXPECT_TRUE(m_platform.GetPostedMessages().empty());
    Move(POINT{40, 310});
    Up(POINT{40, 310});
    m_zone.m_scrolls.clear();
    m_platform.AdvanceTickCount(100);
    EXPECT_EQ(DeliverPostedMoves(), 1);
    EXPECT_TRUE(m_zone.m_scrolls.empty() && m_platform.GetPostedMessages().empty());
}
