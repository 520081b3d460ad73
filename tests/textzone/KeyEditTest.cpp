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
    void SetBookmarks(DWORD dw0, DWORD dw1) {
        Bookmarks(0) = dw0;
        Bookmarks(1) = dw1;
    }
    void ExpectBookmarks(DWORD dw0, DWORD dw1) {
        EXPECT_EQ(Bookmarks(0), dw0);
        EXPECT_EQ(Bookmarks(1), dw1);
    }
};

// A zone whose text stands at the last line an edit may reach.
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
    Type("\x01\x1f\xe9");  // control bytes are not text
    EXPECT_EQ(CrText(), "hell\xe9");
}

TEST_F(KeyEditTest, TypingBehindTheTextEndsTheLastLineOrPadsToTheColumn) {
    m_zone.SetText("ab");
    Caret(0, 2);
    Press(VK_RIGHT);
    Type("c");
    EXPECT_EQ(CrText(), "ab\rc");
    ExpectUndoRedo("ab", "ab\rc");
    // A tab there too: its undo takes the line end out again, not the line.
    m_zone.SetText("ab");
    Caret(0, 2);
    Press(VK_RIGHT);
    Press(VK_TAB);
    ExpectUndoRedo("ab", "ab\r\t");

    m_zone.SetText("abcd\r");
    Caret(0, 3);
    Press(VK_DOWN);
    Type("x");
    EXPECT_EQ(CrText(), "abcd\r   x");

    // A free caret pads in front of the line end; Delete there pulls the next line up.
    m_zone.SetStyle(ZS_FREECARET);
    m_zone.SetText("ab\rcd\r");
    Caret(0, 5);
    Type("x");
    Caret(1, 4);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "ab   x\rcd  \t\r");
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
    for (UINT key : {UINT(VK_RETURN), UINT(VK_BACK), UINT(VK_DELETE), UINT(VK_TAB)})
        Press(key);
    Press(VK_TAB, kShift);
    m_zone.SetSelection(0, 2, 0, 0, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
    m_zone.SetSelection(0, 0, 0, 4, 0, 0);
    Press('U', kCtrl | kShift);
    EXPECT_EQ(CrText(), "  ab\rcd\r");
    EXPECT_EQ(m_zone.GetModify(), 0);
    EXPECT_EQ(m_platform.GetBeepCount(), 0);
    Caret(1, 1);
    Press(VK_LEFT, kNone, 2);
    ExpectCaret(0, 4);
}

TEST_F(KeyEditTest, LimitsRefuseEditsWithOrWithoutABeep) {
    m_zone.SetText("abc\r");
    m_zone.SetMaxLength(5);  // "abc" and the line end count 4
    Caret(0, 3);
    Type("de");
    Press(VK_RETURN);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "abcd\r");
    EXPECT_EQ(m_platform.GetBeepCount(), 3);
    Press(VK_BACK);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "abc\r\r");

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

    // A full line silently takes no more; paragraphs allow longer lines.
    m_zone.SetMaxLength(0);
    std::string full(TZ_MAX_LINE_LENGTH - 1, 'a');
    m_zone.SetText((full + "\r").c_str());
    Caret(0, 10);
    Type("b");
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH);
    ExpectCaret(0, 10);
    m_zone.SetStyle(ZS_PARAGRAPH);
    Type("b");
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH + 1);
    EXPECT_EQ(m_platform.GetBeepCount(), 4);
}

TEST_F(KeyEditTest, TheLastLineLimitStopsTypingAndEnterButTabOneLineLater) {
    CFullZone zone;
    Attach(zone);
    zone.SetText("ab\r");
    zone.m_bFull = true;
    zone.SetSelection(0, 0, 1, 1, 0, 0);
    zone.HandleChar('x', 1, 0);
    zone.HandleKeyDown(VK_RETURN, 1, 0);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
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
    Type("c");
    EXPECT_EQ(CrText(), "  ab\rc");
}

TEST_F(KeyEditTest, EnterLeavesTheBookmarkWithTheText) {
    m_zone.SetText("  abc\rnext\r");
    Bookmarks(0) = 5;
    Caret(0, 0);  // in the leading blanks
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "\r  abc\rnext\r");
    ExpectBookmarks(0, 5);
    m_zone.Undo();
    EXPECT_EQ(Bookmarks(0), 5u);

    Caret(0, 3);
    Press(VK_RETURN);
    EXPECT_EQ(CrText(), "  a\rbc\rnext\r");
    ExpectBookmarks(5, 0);
}

TEST_F(KeyEditTest, BlocksRefuseJoinsSilentlyAndEnterOnAClosedHeadWithABeep) {
    m_zone.SetText("before\rhead\rhidden\rafter\r");
    Flags(1) = 2;
    Flags(2) = 4;
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

TEST_F(KeyEditTest, CtrlUChangesCase) {
    m_zone.SetText("Mixed Case\r");
    m_zone.SetSelection(0, 0, 0, 5, 0, 0);
    Press('U', kCtrl);
    EXPECT_EQ(CrText(), "mixed Case\r");
    m_zone.SetSelection(0, 0, 0, 10, 0, 0);
    Press('U', kCtrl | kShift);
    EXPECT_EQ(CrText(), "MIXED CASE\r");
}

TEST_F(KeyEditTest, BackspaceAndDeleteJoinLinesAndUndoBringsBackTheBookmarks) {
    // Joined behind text the line keeps its bookmarks; behind blanks it takes
    // the text line's.
    struct Case {
        const char* pszText;
        int nLine, nChar;
        UINT key;
        const char* pszJoined;
        DWORD dwJoined;
        short wUndo;
    };
    const Case cases[] = {
        {"ab\rcd\r", 1, 0, VK_BACK, "abcd\r", 1, 3},
        {"ab\rcd\r", 0, 2, VK_DELETE, "abcd\r", 1, 2},
        {"  \rcd\r", 1, 0, VK_BACK, "  cd\r", 2, 0},
        {"  \rcd\r", 0, 2, VK_DELETE, "  cd\r", 2, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszText + std::string(c.key == VK_BACK ? " back" : " delete"));
        m_zone.SetText(c.pszText);
        SetBookmarks(1, 2);
        Caret(c.nLine, c.nChar);
        Press(c.key);
        EXPECT_EQ(CrText(), c.pszJoined);
        EXPECT_EQ(Bookmarks(0), c.dwJoined);
        if (c.wUndo) {  // behind text the caret stays at the join
            ExpectCaret(0, 2);
            EXPECT_EQ(m_zone.GetUndoType(), c.wUndo);
        }
        m_zone.Undo();
        EXPECT_EQ(CrText(), c.pszText);
        ExpectBookmarks(1, 2);
        m_zone.Redo();
        EXPECT_EQ(CrText(), c.pszJoined);
    }
}

TEST_F(KeyEditTest, BackspaceAndDeleteWithinAndAtTheEdgesOfTheText) {
    m_zone.SetText("abc");
    Caret(0, 2);
    Press(VK_BACK);
    m_zone.Undo();
    ExpectSelection(0, 1, 0, 2);  // the byte comes back selected
    m_zone.Redo();
    ExpectUndoRedo("abc", "ac");
    Caret(0, 0);
    Press(VK_DELETE);
    Press(VK_BACK);  // at the start of the text
    Caret(0, 1);
    Press(VK_DELETE);  // at the end of an unended last line
    EXPECT_EQ(CrText(), "c");
    // Neither took anything, so neither gives anything back.
    while (m_zone.GetUndoType() != 0)
        m_zone.Undo();
    EXPECT_EQ(CrText(), "abc");
    m_zone.SetText("c");
    Caret(0, 0);
    Press(VK_DELETE);
    EXPECT_EQ(m_zone.GetLineCount(), 0);  // an empty text has no line

    // Behind the last line end, Delete has nothing to take and Backspace
    // takes that line end.
    m_zone.SetText("ab\r");
    Caret(1, 0);
    Press(VK_DELETE);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    Press(VK_BACK);
    ExpectCaret(0, 2);
    ExpectUndoRedo("ab\r", "ab");

    // Further right on the place behind the text (where a box caret may
    // stand) it only moves back: no line is made there, behind an unended
    // line or an ended one.
    for (const char* text : {"ab", "ab\r"}) {
        m_zone.SetStyle(ZS_FREECARET);
        m_zone.SetText(text);
        m_zone.SetSelection(1, 1, 4, 4, TZ_SEL_BOX, 0);
        Press(VK_BACK);
        ExpectCaret(1, 3);
        EXPECT_EQ(m_zone.GetLineCount(), 1);
        EXPECT_EQ(CrText(), text);
        EXPECT_EQ(m_zone.GetUndoType(), 0);
        m_zone.SetStyle(0);
    }

    // Behind a wrapped line, Delete takes the next line's first byte.
    m_zone.SetText("x\rcd\r");
    m_zone.GetLine(0)->assign("ab", 2);
    Caret(0, 2);
    Press(VK_DELETE);
    EXPECT_EQ(Line(1), "d\r");
    ExpectCaret(1, 0);

    // A control byte of the host's text cannot be typed, but comes back.
    m_zone.SetText("a\x0b");
    Caret(0, 2);
    Press(VK_BACK);
    ExpectUndoRedo("a\x0b", "a");
    Caret(0, 0);
    Type("\x0b");
    EXPECT_EQ(CrText(), "a");
}

TEST_F(KeyEditTest, TabTypesATabOrSpacesToTheNextStop) {
    m_zone.SetText("ab\r");
    Caret(0, 1);
    Press(VK_TAB, kShift);  // no block: Shift does not matter
    ExpectCaret(0, 2);
    ExpectUndoRedo("ab\r", "a\tb\r");

    // Converted, to the next stop; a step of no whole character still types a space.
    for (int nWidth : {-4, 4}) {
        m_zone.SetTabWidth(nWidth);
        m_zone.SetTabConvert(1);
        m_zone.SetText("abc\r");
        Caret(0, 3);
        Press(VK_TAB);
        EXPECT_EQ(CrText(), "abc \r");
    }
    m_zone.SetTabWidth(-4);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "abc     \r");
    ExpectCaret(0, 8);
}

TEST_F(KeyEditTest, TabIndentsAndShiftTabOutdentsABlockOfLines) {
    const std::string plain = "a\r  b\r\tc\rd\r", indented = "    a\r      b\r    \tc\rd\r";
    m_zone.SetStyle(ZS_AUTOINDENT);
    m_zone.SetTabWidth(-4);
    m_zone.SetText(plain.c_str());
    m_zone.SetSelection(0, 2, 1, 1, 0, 0);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), indented);
    ExpectSelection(0, 0, 3, 0);
    Press(VK_TAB, kShift);
    EXPECT_EQ(CrText(), plain);
    Press(VK_TAB, kShift);  // line 0 has nothing left to give
    EXPECT_EQ(CrText(), plain);

    m_zone.Undo();
    EXPECT_EQ(CrText(), indented);
    ExpectSelection(0, 0, 3, 0);
    ExpectUndoRedo(plain, indented);

    // Outdent takes the least indentation, a tab counting as its width.
    m_zone.SetText("      a\r\tb\r");
    m_zone.SetSelection(0, 1, 0, 2, 0, 0);
    Press(VK_TAB, kShift);
    EXPECT_EQ(CrText(), "  a\rb\r");

    // Without the style a tab replaces the selection.
    m_zone.SetStyle(0);
    m_zone.SetText("a\rb\r");
    m_zone.SetSelection(0, 1, 0, 0, 0, 0);
    Press(VK_TAB);
    EXPECT_EQ(CrText(), "\tb\r");
}

TEST_F(KeyEditTest, ATallCaretTypesAndDeletesOnEveryLine) {
    const std::string abc = "abc\rabc\rabc\rabc\rabc\r", axbc = "axbc\raxbc\raxbc\raxbc\raxbc\r";
    m_zone.SetText(abc.c_str());
    m_zone.SetSelection(0, 4, 1, 1, 2, 0);
    Type("x");
    EXPECT_EQ(CrText(), axbc);
    ExpectSelection(0, 2, 4, 2);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), abc);
    ExpectSelection(0, 1, 4, 1);
    Press(VK_DELETE);
    EXPECT_EQ(CrText(), "ac\rac\rac\rac\rac\r");
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
    for (const std::string& text : {abc, axbc, abc}) {
        m_zone.Undo();
        EXPECT_EQ(CrText(), text);
    }

    // Backspace at column 0 does nothing; Tab goes to the next tab column.
    m_zone.SetTabWidth(-4);
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 1, 0, 0, 2, 0);
    Press(VK_BACK);
    EXPECT_EQ(CrText(), abc);
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
    EXPECT_EQ(Line(2), "3x\r");

    // Without a tall caret, or without room, nothing happens.
    m_zone.SetText(text.c_str());
    m_zone.SetSelection(0, 2, 0, 1, 2, 0);
    Press(VK_MULTIPLY, kCtrl);
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
    EXPECT_EQ(CrText(), words);  // wrapped without line ends
    EXPECT_GT(m_zone.GetLineCount(), 2);
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
