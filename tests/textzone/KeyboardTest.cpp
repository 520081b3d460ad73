// Caret movement and keyboard selection through HandleKeyDown.
#include <string>

#include "KeyZoneTest.h"

namespace {

class KeyboardTest : public KeyZoneTest {};

}  // namespace

TEST_F(KeyboardTest, ArrowsCrossLineEndsAndReachThePlaceBehindTheText) {
    m_zone.SetText("ab  \rcd\r");
    Caret(1, 0);
    Press(VK_LEFT);
    ExpectCaret(0, 2);  // the last non-blank, not the real end
    Press(VK_RIGHT, kNone, 2);
    ExpectCaret(0, 4);
    Press(VK_RIGHT);
    ExpectCaret(1, 0);
    Press(VK_RIGHT, kNone, 3);
    ExpectCaret(2, 0);  // behind the last line end
    Press(VK_RIGHT);
    ExpectCaret(2, 0);
    Press(VK_UP);
    ExpectCaret(1, 0);
    Caret(0, 0);
    Press(VK_LEFT);
    ExpectCaret(0, 0);

    // A last line without a line end still leads to the place behind it.
    m_zone.SetText("xy");
    Caret(0, 2);
    Press(VK_RIGHT);
    ExpectCaret(1, 0);
    Press(VK_LEFT);
    ExpectCaret(0, 2);
}

TEST_F(KeyboardTest, ArrowsSkipHiddenLines) {
    m_zone.SetText("head\rin1\rin2\rtail\r");
    Flags(0) = 2;
    Flags(1) = Flags(2) = 4;
    Caret(0, 4);
    Press(VK_RIGHT);
    ExpectCaret(3, 0);
    Press(VK_LEFT);
    ExpectCaret(0, 4);
    Caret(0, 1);
    Press(VK_DOWN);
    ExpectCaret(3, 1);
    Press(VK_UP);
    ExpectCaret(0, 1);

    // Hidden lines down to the end: Right goes past them all.
    Flags(3) = 4;
    Caret(0, 4);
    Press(VK_RIGHT);
    ExpectCaret(4, 0);
}

TEST_F(KeyboardTest, RightDoesNotStopBehindTheBlankThatEndsAWrappedLine) {
    m_zone.SetText("x\rcd\r");
    m_zone.GetLine(0)->assign("ab ", 3);  // wrapped, no line end
    Caret(0, 1);
    Press(VK_RIGHT);
    ExpectCaret(0, 2);
    Press(VK_RIGHT);
    ExpectCaret(1, 0);
}

TEST_F(KeyboardTest, FreeCaretStaysOnItsLine) {
    m_zone.SetStyle(ZS_FREECARET);
    m_zone.SetText("ab\rcd\r");
    Caret(0, 2);
    Press(VK_RIGHT, kNone, 3);
    ExpectCaret(0, 5);
    Press(VK_DOWN);
    ExpectCaret(1, 5);
    Caret(1, 0);
    Press(VK_LEFT);
    ExpectCaret(1, 0);
    Caret(0, TZ_MAX_LINE_LENGTH);
    Press(VK_RIGHT);
    ExpectCaret(0, TZ_MAX_LINE_LENGTH);
}

TEST_F(KeyboardTest, WordMovesStopAtWordsPunctuationAndLineEnds) {
    m_zone.SetText("foo.bar  #baz_1   \r  qux\r");
    Caret(0, 0);
    int stops[] = {3, 4, 9, 15};
    for (int stop : stops) {
        Press(VK_RIGHT, kCtrl);
        ExpectCaret(0, stop);
    }
    Press(VK_RIGHT, kCtrl);
    ExpectCaret(1, 0);
    Press(VK_RIGHT, kCtrl);
    ExpectCaret(1, 2);

    Press(VK_LEFT, kCtrl);
    ExpectCaret(1, 0);
    Press(VK_LEFT, kCtrl);
    ExpectCaret(0, 15);
    int back[] = {9, 4, 3, 0};
    for (int stop : back) {
        Press(VK_LEFT, kCtrl);
        ExpectCaret(0, stop);
    }
    // From beyond the visible end the trailing blanks are passed over.
    Caret(0, 18);
    Press(VK_LEFT, kCtrl);
    ExpectCaret(0, 9);
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
    EXPECT_EQ(m_zone.GetSelRootChar(), 3);

    // A plain arrow first drops the selection onto its mobile end.
    Press(VK_RIGHT);
    ExpectCaret(0, 1);
}

TEST_F(KeyboardTest, BoxSelectionKeepsItsColumnOnShortLines) {
    m_zone.SetText("abcdef\rab\rabcdef\r");
    m_zone.SetSelectionMode(2);
    Caret(0, 4);
    Press(VK_DOWN, kShift, 2);
    ExpectSelection(0, 4, 2, 4);  // a tall caret
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
    Press(VK_DOWN);
    ExpectCaret(1, 2);
    Press(VK_DOWN);
    ExpectCaret(2, 5);  // the goal outlives the short line
    Press(VK_UP, kNone, 5);
    ExpectCaret(0, 5);

    // After the tab of 20 pixels, 20 lies between bytes 2 and 3 of 8 pixels:
    // a tie goes right.
    Caret(3, 1);
    Press(VK_DOWN);
    ExpectCaret(4, 3);

    // Below the text the caret keeps its column, and comes back from there.
    Caret(4, 6);
    Press(VK_DOWN);
    ExpectCaret(5, 6);
    Press(VK_UP);
    ExpectCaret(4, 6);

    // A horizontal move forgets the goal.
    Caret(0, 5);
    Press(VK_DOWN);
    Press(VK_LEFT);
    Press(VK_UP);
    ExpectCaret(0, 1);
}

TEST_F(KeyboardTest, CtrlUpAndDownScrollTheWindowAndMoveToo) {
    m_zone.SetText("a\rb\rc\r");
    Caret(1, 0);
    m_wnd.ClearMessages();
    Press(VK_UP, kCtrl);
    ExpectCaret(0, 0);
    Press(VK_DOWN, kCtrl);
    ExpectCaret(1, 0);
    ASSERT_EQ(m_wnd.Count(WM_VSCROLL), 2);
    std::vector<WPARAM> codes;
    for (const auto& m : m_wnd.Messages())
        if (m.message == WM_VSCROLL) codes.push_back(m.wParam);
    EXPECT_EQ(codes, (std::vector<WPARAM>{SB_LINEUP, SB_LINEDOWN}));
}

TEST_F(KeyboardTest, HomeIsSmartAndEndTakesTwoSteps) {
    m_zone.SetText("   abc  \r    \rxyz");
    Caret(0, 5);
    Press(VK_HOME);
    ExpectCaret(0, 3);
    Press(VK_HOME);
    ExpectCaret(0, 0);
    Press(VK_HOME);
    ExpectCaret(0, 3);
    Press(VK_END);
    ExpectCaret(0, 6);
    Press(VK_END);
    ExpectCaret(0, 8);
    Press(VK_END);
    ExpectCaret(0, 6);

    // A line of blanks: between its real end and 0.
    Caret(1, 2);
    Press(VK_HOME);
    ExpectCaret(1, 4);
    Press(VK_HOME);
    ExpectCaret(1, 0);

    Press(VK_END, kCtrl);
    ExpectCaret(2, 3);  // an unended last line: its end
    Press(VK_HOME, kCtrl);
    ExpectCaret(0, 0);
    m_zone.SetText("abc  \r");
    Press(VK_END, kCtrl);
    ExpectCaret(1, 0);  // behind the last line end
    Caret(0, 0);
    Press(VK_END, kShift);
    ExpectSelection(0, 0, 0, 3);
}

TEST_F(KeyboardTest, PagesCountStoredLinesAndStopBehindTheText) {
    // 300 pixels of 16: 18 lines, a page of 17.
    std::string text;
    for (int i = 0; i < 40; ++i)
        text += "line " + std::to_string(i) + "\r";
    m_zone.SetText(text.c_str());
    Caret(0, 4);
    Press(VK_NEXT);
    ExpectCaret(17, 4);
    EXPECT_EQ(m_zone.GetVScrollOffset(), 17 * 16);  // the view went a page down too
    // Hidden lines are counted, not skipped.
    Flags(20) = 4;
    Press(VK_NEXT);
    ExpectCaret(34, 4);
    Press(VK_NEXT);
    ExpectCaret(40, 4);
    Press(VK_PRIOR);
    ExpectCaret(23, 4);
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
    Press(VK_INSERT);
    Press('U');
    Press(VK_MULTIPLY);
    Press(VK_F3, kCtrl);
    Press(VK_SHIFT);
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

    // Shift during a text drag shows the copy cursor over a drop place,
    // but not over the selection itself.
    m_zone.m_nDragState = 2;
    POINT inside{10 + 2 * 8 + 2, 20 + 4};  // screen point over byte 2
    m_platform.SetCursorPos(inside);
    Press(VK_SHIFT);
    EXPECT_NE(m_platform.GetCurrentCursorId(), 31);
    POINT after{10 + 5 * 8 + 2, 20 + 4};
    m_platform.SetCursorPos(after);
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
    EXPECT_EQ(Flags(1), 4u);
    EXPECT_EQ(Flags(2), 4u);
    Press(VK_DOWN);
    ExpectCaret(3, 2);
    Press(VK_UP);
    Press(VK_ADD, kCtrl);
    EXPECT_EQ(Flags(1), 0u);
    Press(VK_DOWN);
    ExpectCaret(1, 2);
}
