// Caret movement and keyboard selection through HandleKeyDown.
#include <string>

#include "KeyZoneTest.h"

namespace {

class KeyboardTest : public KeyZoneTest {};

}  // namespace

TEST_F(KeyboardTest, ArrowsCrossLineEndsAndReachThePlaceBehindTheText) {
    m_zone.SetText("ab  \rcd\r");
    Caret(1, 0);
    // Left lands on the last non-blank; Right stops behind the last line end.
    ExpectMoves({{VK_LEFT, 0, 0, 2}, {VK_RIGHT, 0, 0, 3}, {VK_RIGHT, 0, 0, 4}, {VK_RIGHT, 0, 1, 0},
                 {VK_RIGHT, 0, 1, 1}, {VK_RIGHT, 0, 1, 2}, {VK_RIGHT, 0, 2, 0}, {VK_RIGHT, 0, 2, 0},
                 {VK_UP, 0, 1, 0}});
    Caret(0, 0);
    ExpectMoves({{VK_LEFT, 0, 0, 0}});

    m_zone.SetText("xy");
    Caret(0, 2);
    ExpectMoves({{VK_RIGHT, 0, 1, 0}, {VK_LEFT, 0, 0, 2}});
}

TEST_F(KeyboardTest, ArrowsSkipHiddenLines) {
    m_zone.SetText("head\rin1\rin2\rtail\r");
    Flags(0) = 2;
    Flags(1) = Flags(2) = 4;
    Caret(0, 4);
    ExpectMoves({{VK_RIGHT, 0, 3, 0}, {VK_LEFT, 0, 0, 4}});
    Caret(0, 1);
    ExpectMoves({{VK_DOWN, 0, 3, 1}, {VK_UP, 0, 0, 1}});
    Flags(3) = 4;
    Caret(0, 4);
    ExpectMoves({{VK_RIGHT, 0, 4, 0}});
}

TEST_F(KeyboardTest, RightDoesNotStopBehindTheBlankThatEndsAWrappedLine) {
    m_zone.SetText("x\rcd\r");
    m_zone.GetLine(0)->assign("ab ", 3);  // wrapped, no line end
    Caret(0, 1);
    ExpectMoves({{VK_RIGHT, 0, 0, 2}, {VK_RIGHT, 0, 1, 0}});
}

TEST_F(KeyboardTest, FreeCaretStaysOnItsLine) {
    m_zone.SetStyle(ZS_FREECARET);
    m_zone.SetText("ab\rcd\r");
    Caret(0, 2);
    Press(VK_RIGHT, kNone, 3);
    ExpectMoves({{VK_DOWN, 0, 1, 5}});
    Caret(1, 0);
    ExpectMoves({{VK_LEFT, 0, 1, 0}});
    Caret(0, TZ_MAX_LINE_LENGTH);
    ExpectMoves({{VK_RIGHT, 0, 0, TZ_MAX_LINE_LENGTH}});
}

TEST_F(KeyboardTest, WordMovesStopAtWordsPunctuationAndLineEnds) {
    m_zone.SetText("foo.bar  #baz_1   \r  qux\r");
    Caret(0, 0);
    ExpectMoves({{VK_RIGHT, kCtrl, 0, 3}, {VK_RIGHT, kCtrl, 0, 4}, {VK_RIGHT, kCtrl, 0, 9},
                 {VK_RIGHT, kCtrl, 0, 15}, {VK_RIGHT, kCtrl, 1, 0}, {VK_RIGHT, kCtrl, 1, 2},
                 {VK_LEFT, kCtrl, 1, 0}, {VK_LEFT, kCtrl, 0, 15}, {VK_LEFT, kCtrl, 0, 9},
                 {VK_LEFT, kCtrl, 0, 4}, {VK_LEFT, kCtrl, 0, 3}, {VK_LEFT, kCtrl, 0, 0}});
    // From beyond the visible end the trailing blanks are passed over.
    Caret(0, 18);
    ExpectMoves({{VK_LEFT, kCtrl, 0, 9}});
}

TEST_F(KeyboardTest, ShiftArrowsGrowAndShrinkFromTheRoot) {
    m_zone.SetText("abcdef\rghijkl\r");
    Caret(0, 3);
    Press(VK_RIGHT, kShift, 2);
    ExpectSelection(0, 3, 0, 5);
    Press(VK_LEFT, kShift, 3);
    ExpectSelection(0, 2, 0, 3);
    Press(VK_DOWN, kShift);
    ExpectSelection(0, 3, 1, 2);
    Press(VK_RIGHT, kShift | kCtrl);
    ExpectSelection(0, 3, 1, 6);
    Press(VK_END, kShift | kCtrl);
    ExpectSelection(0, 3, 2, 0);
    Press(VK_HOME, kShift | kCtrl);
    ExpectSelection(0, 0, 0, 3);
    // A plain arrow first drops the selection onto its mobile end.
    ExpectMoves({{VK_RIGHT, 0, 0, 1}});
}

TEST_F(KeyboardTest, BoxSelectionKeepsItsColumnOnShortLines) {
    m_zone.SetText("abcdef\rab\rabcdef\r");
    m_zone.SetSelectionMode(2);
    Caret(0, 4);
    Press(VK_DOWN, kShift, 2);
    ExpectSelection(0, 4, 2, 4);
    Press(VK_RIGHT, kShift | kCtrl);
    ExpectSelection(0, 4, 2, 5);  // Ctrl makes no word step in a box
    Press(VK_LEFT, kShift, 3);
    ExpectSelection(0, 2, 2, 4);
    Press(VK_HOME, kShift);
    ExpectSelection(0, 0, 2, 4);
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
    Press(VK_ESCAPE);
    EXPECT_FALSE(m_zone.TestSelection());
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
}

TEST_F(KeyboardTest, TallCaretMovesAsOneColumn) {
    m_zone.SetText("abc\rabc\rabc\r");
    m_zone.SetSelection(0, 2, 1, 1, 2, 0);
    Press(VK_RIGHT);
    ExpectSelection(0, 2, 2, 2);
    Press(VK_LEFT, kNone, 5);
    ExpectSelection(0, 0, 2, 0);
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
}

TEST_F(KeyboardTest, UpAndDownFollowTheGoalInPixels) {
    m_zone.SetText("abcdef\rab\rabcdef\r\tx\r12345678\r");
    Caret(0, 5);
    ExpectMoves({{VK_DOWN, 0, 1, 2}, {VK_DOWN, 0, 2, 5}});
    Press(VK_UP, kNone, 5);
    ExpectCaret(0, 5);
    // Behind the 20-pixel tab: a tie between bytes 2 and 3 goes right.
    Caret(3, 1);
    ExpectMoves({{VK_DOWN, 0, 4, 3}});
    // Below the text the caret keeps its column.
    Caret(4, 6);
    ExpectMoves({{VK_DOWN, 0, 5, 6}, {VK_UP, 0, 4, 6}});
    // A horizontal move forgets the goal.
    Caret(0, 5);
    ExpectMoves({{VK_DOWN, 0, 1, 2}, {VK_LEFT, 0, 1, 1}, {VK_UP, 0, 0, 1}});
}

TEST_F(KeyboardTest, CtrlUpAndDownScrollTheWindowAndMoveToo) {
    m_zone.SetText("a\rb\rc\r");
    Caret(1, 0);
    m_wnd.ClearMessages();
    ExpectMoves({{VK_UP, kCtrl, 0, 0}, {VK_DOWN, kCtrl, 1, 0}});
    std::vector<WPARAM> codes;
    for (const auto& m : m_wnd.Messages())
        if (m.message == WM_VSCROLL) codes.push_back(m.wParam);
    EXPECT_EQ(codes, (std::vector<WPARAM>{SB_LINEUP, SB_LINEDOWN}));
}

TEST_F(KeyboardTest, HomeIsSmartAndEndTakesTwoSteps) {
    m_zone.SetText("   abc  \r    \rxyz");
    Caret(0, 5);
    ExpectMoves({{VK_HOME, 0, 0, 3}, {VK_HOME, 0, 0, 0}, {VK_HOME, 0, 0, 3}, {VK_END, 0, 0, 6},
                 {VK_END, 0, 0, 8}, {VK_END, 0, 0, 6}});
    // A line of blanks: between its real end and 0.
    Caret(1, 2);
    ExpectMoves({{VK_HOME, 0, 1, 4}, {VK_HOME, 0, 1, 0}, {VK_END, kCtrl, 2, 3},
                 {VK_HOME, kCtrl, 0, 0}});
    m_zone.SetText("abc  \r");
    ExpectMoves({{VK_END, kCtrl, 1, 0}});
    Caret(0, 0);
    Press(VK_END, kShift);
    ExpectSelection(0, 0, 0, 3);
}

TEST_F(KeyboardTest, PagesCountStoredLinesAndStopBehindTheText) {
    // 300 pixels of 16: 18 lines, a page of 17.
    m_zone.SetText(Numbered(40, "line ", "\r").c_str());
    Caret(0, 4);
    ExpectMoves({{VK_NEXT, 0, 17, 4}});
    EXPECT_EQ(m_zone.GetVScrollOffset(), 17 * 16);
    Flags(20) = 4;  // hidden lines are counted, not skipped
    ExpectMoves({{VK_NEXT, 0, 34, 4}, {VK_NEXT, 0, 40, 4}, {VK_PRIOR, 0, 23, 4}});
    EXPECT_EQ(m_zone.GetVScrollOffset(), 22 * 16);

    Caret(5, 2);
    Press(VK_PRIOR, kShift);
    ExpectSelection(0, 2, 5, 2);
    Press(VK_NEXT, kShift);
    ExpectSelection(5, 2, 17, 2);
}

TEST_F(KeyboardTest, KeysOutsideTheTableDoNothing) {
    m_zone.SetText("abc\r");
    Caret(0, 1);
    for (UINT key : {UINT(VK_INSERT), UINT('U'), UINT(VK_MULTIPLY), UINT(VK_SHIFT)})
        Press(key);
    Press(VK_F3, kCtrl);
    EXPECT_EQ(CrText(), "abc\r");
    ExpectCaret(0, 1);
    EXPECT_EQ(m_zone.GetModify(), 0);
}

TEST_F(KeyboardTest, KeysWaitWhileTheLeftButtonIsDown) {
    m_zone.SetText("abcdef\r");
    m_zone.SetSelection(0, 0, 1, 3, 0, 0);
    m_platform.SetKeyState(VK_LBUTTON, true);
    Press(VK_RIGHT);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "abcdef\r");
    ExpectSelection(0, 1, 0, 3);

    // Shift during a text drag shows the copy cursor, but not over the selection.
    m_zone.m_nDragState = 2;
    m_platform.SetCursorPos(POINT{10 + 2 * 8 + 2, 20 + 4});  // over byte 2
    Press(VK_SHIFT);
    EXPECT_NE(m_platform.GetCurrentCursorId(), 31);
    m_platform.SetCursorPos(POINT{10 + 5 * 8 + 2, 20 + 4});
    Press(VK_SHIFT);
    EXPECT_EQ(m_platform.GetCurrentCursorId(), 31);
    m_platform.SetKeyState(VK_LBUTTON, false);
    m_zone.m_nDragState = 0;
}

TEST_F(KeyboardTest, CtrlNumMinusAndPlusCloseAndOpenTheBlockUnderTheCaret) {
    m_zone.SetStyle(ZS_VARHEIGHT);
    m_zone.SetText("head\rin1\rin2\rtail\r");
    m_zone.SetBlockMode(1);
    ASSERT_EQ(m_zone.SetEditBlock(0, 3), 1);
    Caret(0, 2);
    Press(VK_SUBTRACT);  // without Ctrl it is only a character
    EXPECT_EQ(Flags(1), 0u);
    Press(VK_SUBTRACT, kCtrl);
    EXPECT_EQ(Flags(2), 4u);
    ExpectMoves({{VK_DOWN, 0, 3, 2}, {VK_UP, 0, 0, 2}});
    Press(VK_ADD, kCtrl);
    EXPECT_EQ(Flags(1), 0u);
    ExpectMoves({{VK_DOWN, 0, 1, 2}});
}
