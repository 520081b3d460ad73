// Editing through the keyboard: typing, Enter, Backspace, Delete, Tab, the
// tall caret, the limits and refusals, and undo of what the keys did.
#include <string>

#include "KeyZoneTest.h"

namespace {

class KeyEditTest : public KeyZoneTest {
protected:
    void ExpectUndoRedo(const std::string& before, const std::string& after) {
        m_zone.Undo();
        EXPECT_EQ(CrText(), before);
        m_zone.Redo();
        EXPECT_EQ(CrText(), after);
    }
};

// A zone whose text stands at the last line an edit may reach, without
// holding ten million lines.
class CFullZone : public CTestZone {
public:
    int GetLastLineIndex() override {
        return m_bFull ? TZ_MAX_LINES : CTestZone::GetLastLineIndex();
    }
    bool m_bFull = false;
};

}  // namespace

TEST_F(KeyEditTest, TypingInsertsAtTheCaretAndReplacesTheSelection) {
    Type("hello");
    EXPECT_EQ(CrText(), "hello");
    ExpectCaret(0, 5);
    EXPECT_EQ(m_zone.GetModify(), 1);
    m_zone.SetSelection(0, 0, 1, 4, 0, 0);
    Type("a");
    EXPECT_EQ(CrText(), "hao");
    ExpectCaret(0, 2);
    // Each character is one step back.
    m_zone.Undo();
    EXPECT_EQ(CrText(), "hello");
    m_zone.Undo();
    EXPECT_EQ(CrText(), "hell");
    Type("\x01\x1f");  // control bytes are not text
    EXPECT_EQ(CrText(), "hell");
    Type("\xe9");
    EXPECT_EQ(CrText(), "hell\xe9");
}

TEST_F(KeyEditTest, TypingBehindTheTextEndsTheLastLineFirst) {
    m_zone.SetText("ab");
    Caret(0, 2);
    Press(VK_RIGHT);
    ExpectCaret(1, 0);
    Type("c");
    EXPECT_EQ(CrText(), "ab\rc");
    ExpectUndoRedo("ab", "ab\rc");

    // Below the text at a column, the new line is padded out to it.
    m_zone.SetText("abcd\r");
    Caret(0, 3);
    Press(VK_DOWN);
    ExpectCaret(1, 3);
    Type("x");
    EXPECT_EQ(CrText(), "abcd\r   x");
}

TEST_F(KeyEditTest, FreeCaretTypingPadsTheLineInFrontOfItsEnd) {
    m_zone.SetStyle(ZS_FREECARET);
    m_zone.SetText("ab\rcd\r");
    Caret(0, 5);
    Type("x");
    EXPECT_EQ(Line(0), "ab   x\r");
    Caret(1, 4);
    Press(VK_TAB);
    EXPECT_EQ(Line(1), "cd  \t\r");
    // Delete beyond the end pulls the next line up to the caret.
    m_zone.SetText("ab\rcd\r");
    Caret(0, 4);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "ab  cd\r");
}

TEST_F(KeyEditTest, ReadOnlyZoneTakesNoEditButMoves) {
    m_zone.SetText("  ab\rcd\r");
    m_zone.SetReadOnly(1);
    Caret(1, 1);
    Type("x");
    Press(VK_RETURN);
    Press(VK_BACK);
    Press(VK_DELETE);
    Press(VK_TAB);
    Press(VK_TAB, kShift);
    m_zone.SetSelection(0, 2, 0, 0, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
    EXPECT_EQ(CrText(), "  ab\rcd\r");
    EXPECT_EQ(m_zone.GetModify(), 0);
    EXPECT_EQ(m_platform.GetBeepCount(), 0);
    Caret(1, 1);
    Press(VK_LEFT, kNone, 2);
    ExpectCaret(0, 4);
}

TEST_F(KeyEditTest, MaximumLengthRefusesWithABeep) {
    m_zone.SetText("abc\r");
    m_zone.SetMaxLength(5);  // "abc" and the line end count 4
    Caret(0, 3);
    Type("d");
    EXPECT_EQ(CrText(), "abcd\r");
    Type("e");
    Press(VK_RETURN);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "abcd\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 3);
    Press(VK_BACK);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "abc\r\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 3);

    // A tall caret needs room for every line.
    m_zone.SetText("a\rb\rc\r");
    m_zone.SetMaxLength(8);
    m_zone.SetSelection(0, 2, 1, 1, 2, 0);
    Type("x");
    EXPECT_EQ(CrText(), "a\rb\rc\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 4);
    m_zone.SetMaxLength(9);
    Type("x");
    EXPECT_EQ(CrText(), "ax\rbx\rcx\r");
}

TEST_F(KeyEditTest, AFullLineSilentlyTakesNoMoreCharacters) {
    std::string full(TZ_MAX_LINE_LENGTH - 1, 'a');
    m_zone.SetText((full + "\r").c_str());
    Caret(0, 10);
    Type("b");
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH);
    EXPECT_EQ(m_platform.GetBeepCount(), 0);
    ExpectCaret(0, 10);
    // Paragraphs allow longer lines.
    m_zone.SetStyle(ZS_PARAGRAPH);
    Type("b");
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH + 1);
}

TEST_F(KeyEditTest, TheLastLineLimitStopsTypingAndEnterButTabOneLineLater) {
    CFullZone zone;
    zone.SetWindow(&m_wnd);
    RECT client;
    m_wnd.GetClientRect(&client);
    zone.SetRect(&client);
    zone.SetFont(m_font);
    zone.SetText("ab\r");
    zone.m_bFull = true;
    zone.SetSelection(0, 0, 1, 1, 0, 0);
    zone.HandleChar('x', 1, 0);
    zone.HandleKeyDown(VK_RETURN, 1, 0);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
    EXPECT_EQ(m_platform.GetBeepCount(), 2);
    zone.HandleKeyDown(VK_TAB, 1, 0);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("a\tb\r"));
    EXPECT_EQ(m_platform.GetBeepCount(), 2);
    zone.HideCaret();
}

TEST_F(KeyEditTest, EnterSplitsTheLineAndIndentsInOneUndoStep) {
    m_zone.SetStyle(ZS_AUTOINDENT);
    m_zone.SetText("  \tabc def\r");
    Caret(0, 7);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "  \tabc \r  \tdef\r");
    ExpectCaret(1, 3);
    ExpectUndoRedo("  \tabc def\r", "  \tabc \r  \tdef\r");

    // Only the blanks left of the caret are copied.
    m_zone.SetText("    x\r");
    Caret(0, 2);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "  \r    x\r");
    ExpectCaret(1, 2);

    // At the end of the text the new line has no line end of its own.
    m_zone.SetStyle(0);
    m_zone.SetText("  ab");
    Caret(0, 4);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "  ab\r");
    ExpectCaret(1, 0);
    Type("c");
    EXPECT_EQ(CrText(), "  ab\rc");
}

TEST_F(KeyEditTest, EnterInTheLeadingBlanksLeavesTheBookmarkWithTheText) {
    m_zone.SetText("  abc\rnext\r");
    Bookmarks(0) = 5;
    Caret(0, 0);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "\r  abc\rnext\r");
    EXPECT_EQ(Bookmarks(0), 0u);
    EXPECT_EQ(Bookmarks(1), 5u);
    m_zone.Undo();
    EXPECT_EQ(CrText(), "  abc\rnext\r");
    EXPECT_EQ(Bookmarks(0), 5u);

    // Behind text the old line keeps its place and its bookmark.
    Caret(0, 3);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "  a\rbc\rnext\r");
    EXPECT_EQ(Bookmarks(0), 5u);
    EXPECT_EQ(Bookmarks(1), 0u);
}

TEST_F(KeyEditTest, ALineOfABlockIsNotJoinedWithItsNeighbour) {
    m_zone.SetText("before\rhead\rhidden\rafter\r");
    Flags(1) = 2;
    Flags(2) = 4;
    // Joining with a flagged line is dropped without a sound.
    Caret(2, 0);
    Press(VK_BACK);
    Caret(0, 6);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "before\rhead\rhidden\rafter\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 0);
    // Within a line nothing stops them.
    Caret(1, 2);
    Press(VK_BACK);
    Press(VK_DELETE);
    EXPECT_EQ(Line(1), "hd\r");
}

TEST_F(KeyEditTest, EnterOnTheHeadOfAClosedBlockIsRefused) {
    m_zone.SetStyle(ZS_VARHEIGHT);
    m_zone.SetText("head\rin1\rtail\r");
    ASSERT_EQ(m_zone.SetEditBlock(0, 2), 1);
    ASSERT_EQ(m_zone.CloseBlock(0, 1), 1);
    Caret(0, 4);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "head\rin1\rtail\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
    m_zone.OpenBlock(0, 1);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "head\r\rin1\rtail\r");
}

TEST_F(KeyEditTest, CtrlUChangesCaseUnlessReadOnly) {
    m_zone.SetText("Mixed Case\r");
    m_zone.SetSelection(0, 0, 0, 5, 0, 0);
    Press('U', kCtrl);
    EXPECT_EQ(CrText(), "mixed Case\r");
    m_zone.SetSelection(0, 0, 0, 10, 0, 0);
    Press('U', kCtrl | kShift);
    EXPECT_EQ(CrText(), "MIXED CASE\r");
    m_zone.SetReadOnly(1);
    Press('U', kCtrl);
    EXPECT_EQ(CrText(), "MIXED CASE\r");
}

TEST_F(KeyEditTest, BackspaceAndDeleteJoinLinesAndUndoBringsBackTheBookmarks) {
    m_zone.SetText("ab\rcd\r");
    Bookmarks(0) = 1;
    Bookmarks(1) = 2;
    Caret(1, 0);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), "abcd\r");
    ExpectCaret(0, 2);
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(m_zone.GetUndoType(), 3);
    m_zone.Undo();
    ASSERT_EQ(CrText(), "ab\rcd\r");
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(Bookmarks(1), 2u);
    m_zone.Redo();
    EXPECT_EQ(CrText(), "abcd\r");
    m_zone.Undo();

    Caret(0, 2);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "abcd\r");
    ExpectCaret(0, 2);
    EXPECT_EQ(m_zone.GetUndoType(), 2);
    m_zone.Undo();
    ASSERT_EQ(CrText(), "ab\rcd\r");
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(Bookmarks(1), 2u);

    // Behind a line of blanks the joined line is the text line's.
    m_zone.SetText("  \rcd\r");
    Bookmarks(0) = 1;
    Bookmarks(1) = 2;
    Caret(1, 0);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), "  cd\r");
    EXPECT_EQ(Bookmarks(0), 2u);
    m_zone.Undo();
    ASSERT_EQ(CrText(), "  \rcd\r");
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(Bookmarks(1), 2u);
    Caret(0, 2);
    Press(VK_DELETE);
    EXPECT_EQ(Bookmarks(0), 2u);
    m_zone.Undo();
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(Bookmarks(1), 2u);
}

TEST_F(KeyEditTest, BackspaceAndDeleteWithinAndAtTheEdgesOfTheText) {
    m_zone.SetText("abc");
    Caret(0, 2);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), "ac");
    ExpectUndoRedo("abc", "ac");
    Caret(0, 0);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "c");
    Press(VK_BACK);  // at the start of the text
    EXPECT_EQ(CrText(), "c");
    Press(VK_DELETE);
    EXPECT_EQ(m_zone.GetLineCount(), 0);  // an empty text has no line

    // Behind the last line end, Backspace takes that line end.
    m_zone.SetText("ab\r");
    Caret(1, 0);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "ab\r");
    Press(VK_BACK);
    EXPECT_EQ(CrText(), "ab");
    ExpectCaret(0, 2);
    ExpectUndoRedo("ab\r", "ab");

    // Behind a wrapped line, Delete takes the next line's first byte.
    m_zone.SetText("x\rcd\r");
    m_zone.GetLine(0)->assign("ab", 2);
    Caret(0, 2);
    Press(VK_DELETE);
    EXPECT_EQ(Line(1), "d\r");
    ExpectCaret(1, 0);
}

TEST_F(KeyEditTest, TabTypesATabOrSpacesToTheNextStop) {
    m_zone.SetText("ab\r");
    Caret(0, 1);
    Press(VK_TAB, kShift);  // no block: Shift does not matter
    EXPECT_EQ(CrText(), "a\tb\r");
    ExpectCaret(0, 2);
    ExpectUndoRedo("ab\r", "a\tb\r");

    m_zone.SetTabWidth(-4);
    m_zone.SetTabConvert(1);
    m_zone.SetText("abc\r");
    Caret(0, 3);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "abc \r");
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "abc     \r");
    ExpectCaret(0, 8);
    m_zone.Undo();
    EXPECT_EQ(CrText(), "abc \r");

    // A tab step of no whole character still types a space.
    m_zone.SetTabWidth(4);
    m_zone.SetTabConvert(1);
    m_zone.SetText("abc\r");
    Caret(0, 3);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "abc \r");
}

TEST_F(KeyEditTest, TabIndentsAndShiftTabOutdentsABlockOfLines) {
    m_zone.SetStyle(ZS_AUTOINDENT);
    m_zone.SetTabWidth(-4);
    m_zone.SetText("a\r  b\r\tc\rd\r");
    m_zone.SetSelection(0, 2, 1, 1, 0, 0);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "    a\r      b\r    \tc\rd\r");
    ExpectSelection(0, 0, 3, 0);
    EXPECT_EQ(m_zone.GetUndoType(), 9);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);

    Press(VK_TAB, kShift);
    EXPECT_EQ(CrText(), "a\r  b\r\tc\rd\r");
    ExpectSelection(0, 0, 3, 0);
    EXPECT_EQ(m_zone.GetUndoType(), 10);
    // Line 0 has nothing left to give.
    Press(VK_TAB, kShift);
    EXPECT_EQ(CrText(), "a\r  b\r\tc\rd\r");

    m_zone.Undo();
    EXPECT_EQ(CrText(), "    a\r      b\r    \tc\rd\r");
    ExpectSelection(0, 0, 3, 0);
    m_zone.Undo();
    EXPECT_EQ(CrText(), "a\r  b\r\tc\rd\r");
    m_zone.Redo();
    EXPECT_EQ(CrText(), "    a\r      b\r    \tc\rd\r");

    // Outdent takes the least indentation of the block, a tab counting as its width.
    m_zone.SetText("      a\r\tb\r");
    m_zone.SetSelection(0, 1, 0, 2, 0, 0);
    Press(VK_TAB, kShift);
    EXPECT_EQ(CrText(), "  a\rb\r");

    // With converted tabs the indent is spaces; without the style a tab replaces.
    m_zone.SetStyle(0);
    m_zone.SetText("a\rb\r");
    m_zone.SetSelection(0, 1, 0, 0, 0, 0);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "\tb\r");
}

TEST_F(KeyEditTest, ATallCaretTypesAndDeletesOnEveryLine) {
    m_zone.SetText("abc\rabc\rabc\rabc\rabc\r");
    m_zone.SetSelection(0, 4, 1, 1, 2, 0);
    Type("x");
    EXPECT_EQ(CrText(), "axbc\raxbc\raxbc\raxbc\raxbc\r");
    ExpectSelection(0, 2, 4, 2);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), "abc\rabc\rabc\rabc\rabc\r");
    ExpectSelection(0, 1, 4, 1);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "ac\rac\rac\rac\rac\r");
    ExpectSelection(0, 1, 4, 1);
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);

    m_zone.Undo();
    EXPECT_EQ(CrText(), "abc\rabc\rabc\rabc\rabc\r");
    m_zone.Undo();
    EXPECT_EQ(CrText(), "axbc\raxbc\raxbc\raxbc\raxbc\r");
    m_zone.Undo();
    EXPECT_EQ(CrText(), "abc\rabc\rabc\rabc\rabc\r");

    // Backspace at column 0 does nothing; Tab goes to the next tab column.
    m_zone.SetTabWidth(-4);
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 1, 0, 0, 2, 0);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), "abc\rabc\rabc\rabc\rabc\r");
    m_zone.SetSelection(0, 1, 1, 1, 2, 0);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "a   bc\ra   bc\rabc\rabc\rabc\r");
    ExpectSelection(0, 4, 1, 4);
}

TEST_F(KeyEditTest, CtrlNumStarNumbersTheLinesOfATallCaret) {
    std::string text;
    for (int i = 0; i < 25; ++i)
        text += "x\r";
    m_zone.SetText(text.c_str());
    m_zone.SetSelection(10, 19, 1, 1, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
    EXPECT_EQ(Line(10), "x01\r");
    EXPECT_EQ(Line(19), "x10\r");
    EXPECT_EQ(Line(20), "x\r");
    ExpectSelection(10, 3, 19, 3);
    m_zone.Undo();
    EXPECT_EQ(Line(10), "x\r");

    m_zone.SetSelection(0, 2, 0, 0, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
    EXPECT_EQ(Line(0), "1x\r");
    EXPECT_EQ(Line(2), "3x\r");

    // Without a tall caret, or over a thousand lines, nothing happens.
    m_zone.SetText(text.c_str());
    m_zone.SetSelection(0, 2, 0, 1, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
    EXPECT_EQ(Line(0), "x\r");
    m_zone.SetMaxLength(51);  // the text is 50, and two digits would pass
    m_zone.SetSelection(0, 2, 0, 0, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
    EXPECT_EQ(Line(0), "x\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
}

TEST_F(KeyEditTest, TypingInAParagraphRewrapsItAndUndoesByOffsets) {
    m_zone.SetStyle(ZS_PARAGRAPH | ZS_WORDBREAK);
    m_zone.SetMaxWidth(10 * 8);  // ten bytes a line
    const std::string words = "the quick brown fox jumps";
    Type(words);
    EXPECT_EQ(CrText(), words);
    EXPECT_GT(m_zone.GetLineCount(), 2);
    for (int n = 0; n + 1 < m_zone.GetLineCount(); ++n)
        EXPECT_FALSE(m_zone.GetLine(n)->IsEnded());
    // The caret ends behind the text, whichever line that is on.
    LONG caret = 0;
    m_zone.GetSelection(&caret, nullptr, nullptr, nullptr, 1);
    EXPECT_EQ(caret, static_cast<LONG>(words.size()));

    Press(VK_RETURN);
    Type("x");
    EXPECT_EQ(CrText(), words + "\rx");
    for (size_t i = 0; i < words.size() + 2; ++i)
        Press(VK_BACK);
    EXPECT_EQ(CrText(), "");
    for (int i = 0; i < 10; ++i)
        m_zone.Undo();
    EXPECT_EQ(CrText(), "the quick ");
    while (m_zone.GetUndoType() == 3)
        m_zone.Undo();
    EXPECT_EQ(CrText(), words + "\rx");
}
