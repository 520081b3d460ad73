// Undo all the way gives back the text as it was before the edits, whatever
// road the edit took: padding of a free caret, box text behind the text,
// limits in force, line mode, wrapped paragraphs.
#include <string>

#include "KeyZoneTest.h"

namespace {

class UndoRoundTripTest : public KeyZoneTest {
protected:
    // Undoes everything, checks the text (and more, if asked), redoes
    // everything, checks again; and once more, since a redo records the
    // steps that the second undo replays.
    template <typename Check>
    void ExpectRoundTrip(const std::string& before, Check checkUndone) {
        const std::string after = Text();
        for (int round = 0; round < 2; ++round) {
            int steps = 0;
            for (; m_zone.GetUndoType() != 0 && steps < 200; ++steps)
                m_zone.Undo();
            EXPECT_EQ(Text(), before) << "round " << round;
            checkUndone();
            for (int i = 0; i < steps; ++i)
                m_zone.Redo();
            EXPECT_EQ(Text(), after) << "round " << round;
        }
    }
    void ExpectRoundTrip(const std::string& before) {
        ExpectRoundTrip(before, [] {});
    }
    void Paste(const char* pszText) {
        m_zone.StartRegister(6);
        m_zone.InsertText(pszText, 0, 1, 1);
        m_zone.EndRegister();
    }
};

}  // namespace

TEST_F(UndoRoundTripTest, PaddingOfAFreeCaretGoesWithTheEditThatMadeIt) {
    m_zone.SetStyle(ZS_FREECARET);
    m_zone.SetText("ab\r\ncd");
    const std::string before = Text();
    Caret(0, 6);
    Type("x");
    EXPECT_EQ(Line(0), "ab    x\r");
    Caret(1, 5);
    Press(VK_TAB);
    Caret(1, 12);
    Paste("yz");
    ExpectRoundTrip(before);

    // A deletion that starts behind a line's end pads the line, and its
    // undo takes the padding out.
    m_zone.SetText("ab\r\ncd");
    m_zone.SetSelection(0, 1, 6, 1, 0, 0);
    m_zone.StartRegister(4);
    m_zone.DeleteSelection(0);
    m_zone.EndRegister();
    EXPECT_EQ(Line(0), "ab    d");
    ExpectRoundTrip(before);

    // So does Delete behind a line's end, which joins the next line on.
    m_zone.SetText("ab\r\ncd\r\n");
    Caret(0, 4);
    Press(VK_DELETE);
    EXPECT_EQ(Line(0), "ab  cd\r");
    ExpectRoundTrip("ab\r\ncd\r\n");
}

TEST_F(UndoRoundTripTest, BoxTextBehindTheLastLineGoesOnLinesOfItsOwn) {
    m_zone.SetText("ab");  // an unended last line
    m_zone.SetSelection(1, 1, 0, 0, 2, 0);
    Paste("1\r\n2\r\n3");
    EXPECT_EQ(CrText(), "ab\r1\r2\r3\r");
    ExpectRoundTrip("ab\r\n", [&] {
        EXPECT_EQ(m_zone.GetLineCount(), 1);
        EXPECT_FALSE(m_zone.GetLine(0)->IsEnded());
    });

    m_zone.SetText("ab\r\n");
    m_zone.SetSelection(0, 0, 1, 1, 2, 0);
    Paste("1\r\n2\r\n3\r\n");
    EXPECT_EQ(CrText(), "a1b\r 2    \r 3    \r");  // new lines padded in steps
    ExpectRoundTrip("ab\r\n", [&] { EXPECT_EQ(m_zone.GetLineCount(), 1); });
}

TEST_F(UndoRoundTripTest, TheLimitsDoNotStopAReplay) {
    m_zone.SetText("abcde");
    m_zone.SetMaxLength(4);  // the text is already over it
    Caret(0, 2);
    Press(VK_DELETE);
    Press(VK_BACK);
    EXPECT_EQ(Text(), "ade\r\n");
    ExpectRoundTrip("abcde\r\n");

    // A line filled by an insertion to the full 65500 bytes.
    m_zone.SetMaxLength(0);
    m_zone.SetText((std::string(TZ_MAX_LINE_LENGTH - 1, 'a') + "\r").c_str());
    Caret(0, 3);
    Paste("b");
    ASSERT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH + 1);
    Caret(0, 10);
    Press(VK_DELETE);
    m_zone.Undo();
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH + 1);
    // Deleted whole, such a line comes back whole, not cut at the limit.
    const std::string full = Text();
    m_zone.FreeAllOperations();
    m_zone.SetSelection(0, 1, 0, 0, 0, 0);
    m_zone.StartRegister(4);
    m_zone.DeleteSelection(1);
    m_zone.EndRegister();
    ExpectRoundTrip(full);
}

TEST_F(UndoRoundTripTest, LineModeAndTheLineBehindTheTextRecordOnlyWhatChanged) {
    m_zone.SetText("one\r\ntwo\r\nthree");
    const std::string before = Text();
    m_zone.SetSelectionMode(0);
    m_zone.SetSelection(0, 2, 0, 0, 0, 0);
    Type("x");  // line mode deletes nothing
    EXPECT_EQ(Text(), "xone\r\ntwo\r\nthree\r\n");
    ExpectRoundTrip(before);
    // A tab likewise, also where wrap records by text offsets.
    for (DWORD style : {DWORD{0}, ZS_PARAGRAPH}) {
        m_zone.SetStyle(style);
        m_zone.SetText(before.c_str());
        m_zone.SetSelectionMode(0);
        m_zone.SetSelection(0, 2, 1, 1, 0, 0);
        Press(VK_TAB);
        EXPECT_EQ(Text(), "o\tne\r\ntwo\r\nthree\r\n");
        ExpectRoundTrip(before);
    }
    m_zone.SetStyle(0);

    // Shift+Down on the last line reaches the line behind the text at the
    // goal column; what replaces the selection took no blanks from there.
    m_zone.SetText(before.c_str());
    m_zone.SetSelectionMode(1);
    Caret(2, 2);
    Press(VK_DOWN, kShift);
    Type("y");
    EXPECT_EQ(Text(), "one\r\ntwo\r\nthy\r\n");
    ExpectRoundTrip(before);
}

TEST_F(UndoRoundTripTest, WrappedTypingInLineModeUndoesByOffsets) {
    m_zone.SetStyle(ZS_PARAGRAPH | ZS_WORDBREAK);
    m_zone.SetMaxWidth(48);
    m_zone.SetText("aaaa bb bb cccc\r\n");
    const std::string before = Text();
    m_zone.SetSelectionMode(0);
    Caret(1, 1);
    Type("Q");
    EXPECT_EQ(Text(), "aaaa bQb bb cccc\r\n");
    ExpectRoundTrip(before);
}

TEST_F(UndoRoundTripTest, FreeCaretPaddingCountsAgainstTheMaximum) {
    m_zone.SetStyle(ZS_FREECARET);
    m_zone.SetText("ab");
    m_zone.SetMaxLength(10);
    Caret(0, 12);
    Type("x");  // ten blanks would pass the maximum
    EXPECT_EQ(Text(), "ab\r\n");
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
    Caret(0, 6);
    Type("x");
    EXPECT_EQ(Text(), "ab    x\r\n");
    // Kept up by typing or counted afresh, the length is the same.
    const LONG kept = m_zone.m_nCurrentLength;
    m_zone.RebuildCurrentLength();
    EXPECT_EQ(m_zone.m_nCurrentLength, kept);
}

TEST_F(UndoRoundTripTest, AWrappedDeletionFromBehindALineEndLeavesNoBlanks) {
    m_zone.SetText("ab\r\ncd\r\n\r\n");
    m_zone.SetStyle(ZS_PARAGRAPH);
    const std::string before = Text();
    // Raw places are not held to the lines, so the start lies behind "ab".
    m_zone.SetSelection(0, 1, 3, 1, 0, 0);
    Paste("xy\r\n");
    EXPECT_EQ(CrText(), "abxy\rd\r\r");
    ExpectRoundTrip(before);
}

TEST_F(UndoRoundTripTest, BlanksUpToAPlaceFarBehindTheLineStopAtTheLineLimit) {
    // A host may place the selection far behind a line's end; the blanks
    // that fill the gap would otherwise make a line that a redo, putting
    // them back as text, has to cut.
    const std::string before = "ab\r\ncd\r\n";
    m_zone.SetText(before.c_str());
    m_zone.SetSelection(0, 0, 70000, 70000, 0, 0);
    Paste("\r\nx");
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH);
    EXPECT_EQ(Line(1), "x\r");
    ExpectRoundTrip(before);

    m_zone.SetText(before.c_str());
    m_zone.SetSelection(0, 1, 70000, 1, 0, 0);
    m_zone.StartRegister(4);
    m_zone.DeleteSelection(1);
    m_zone.EndRegister();
    // Blanks to the limit, then what stood behind the selection.
    EXPECT_EQ(Line(0), "ab" + std::string(TZ_MAX_LINE_LENGTH - 3, ' ') + "d\r");
    ExpectRoundTrip(before);
}

TEST_F(UndoRoundTripTest, AByteTypedPastTheLineLimitBehindTheTextChangesNothing) {
    // The place behind an unended (here empty) last line, far right: the
    // byte is refused, and neither is that line ended nor a line made.
    m_zone.SetText("\r");
    m_zone.InsertLine(1);
    m_zone.FreeAllOperations();
    const std::string before = CrText();
    m_zone.SetSelection(2, 2, TZ_MAX_PLACE, TZ_MAX_PLACE, 2, 0);
    Type("a");
    EXPECT_EQ(CrText(), before);
    EXPECT_EQ(m_zone.GetLineCount(), 2);
}
