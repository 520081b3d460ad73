#include <string>

#include "support/ZoneTest.h"

namespace {

class ClipboardTest : public ZoneTest {
protected:
    // Copies a selection and returns what reached the clipboard.
    std::string CopyOf(int nStartLine, int nEndLine, int nStartChar, int nEndChar, int nMode) {
        m_zone.SetSelection(nStartLine, nEndLine, nStartChar, nEndChar, nMode, 0);
        EXPECT_EQ(m_zone.Copy(), 1);
        return m_platform.GetClipboardText();
    }
};

}  // namespace

TEST_F(ClipboardTest, CopyPutsTheSelectionOutWithCrLfAndABoxPadded) {
    ASSERT_TRUE(m_zone.SetText("alpha\rbeta\rgamma\r"));
    m_platform.SetClipboardText("before");
    EXPECT_EQ(m_zone.Copy(), 0);  // nothing selected
    EXPECT_EQ(m_platform.GetClipboardText(), "before");
    EXPECT_EQ(CopyOf(0, 2, 2, 3, 0), "pha\r\nbeta\r\ngam");
    EXPECT_EQ(CopyOf(0, 2, 1, 3, 2), "lp\r\net\r\nam\r\n");
    EXPECT_EQ(CopyOf(0, 1, 3, 6, 2), "ha \r\na  \r\n");
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\ngamma\r\n");
    m_platform.SetClipboardFails(true);
    EXPECT_EQ(m_zone.Copy(), 0);
    EXPECT_EQ(m_platform.GetWaitCursorDepth(), 0);
}

TEST_F(ClipboardTest, CutDeletesOnlyWhatTheClipboardTook) {
    ASSERT_TRUE(m_zone.SetText("alpha\rbeta\r"));
    m_platform.SetClipboardText("before");
    EXPECT_EQ(m_zone.Cut(), 1);  // nothing selected: nothing to do
    EXPECT_EQ(m_platform.GetClipboardText(), "before");

    m_zone.SetSelection(0, 1, 2, 2, 0, 0);
    m_platform.SetClipboardFails(true);
    EXPECT_EQ(m_zone.Cut(), 0);
    m_platform.SetClipboardFails(false);
    m_zone.SetReadOnly(1);  // read-only: a copy only
    EXPECT_EQ(m_zone.Cut(), 1);
    EXPECT_EQ(m_platform.GetClipboardText(), "pha\r\nbe");
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\n");
    EXPECT_FALSE(m_zone.GetModify());
    m_zone.SetReadOnly(0);

    m_platform.SetClipboardText("");
    EXPECT_EQ(m_zone.Cut(), 1);
    EXPECT_TRUE(m_zone.GetModify());
    EXPECT_EQ(m_platform.GetClipboardText(), "pha\r\nbe");
    EXPECT_EQ(Text(), "alta\r\n");
    ExpectCaret(0, 2);
    EXPECT_EQ(m_zone.GetUndoType(), 5);
    m_zone.Undo();
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\n");
}

TEST_F(ClipboardTest, PasteReplacesTheSelectionAsOneUndoStep) {
    ASSERT_TRUE(m_zone.SetText("one two three\r"));
    m_zone.SetSelection(0, 0, 4, 7, 0, 0);
    m_platform.SetClipboardText("2\r\nand a half");
    EXPECT_EQ(m_zone.Paste(), 1);
    const std::string pasted = "one 2\r\nand a half three\r\n";
    EXPECT_EQ(Text(), pasted);
    ExpectCaret(1, 10);
    EXPECT_EQ(m_platform.GetWaitCursorDepth(), 0);
    EXPECT_EQ(m_zone.GetUndoType(), 6);
    m_zone.Undo();
    EXPECT_EQ(Text(), "one two three\r\n");
    m_zone.Redo();

    // Copied out and pasted back in, a text comes back the same.
    m_zone.SetSelection(0, -1, 0, 0, 1, 0);
    m_zone.Copy();
    m_zone.Paste();
    EXPECT_EQ(Text(), pasted);
}

TEST_F(ClipboardTest, PasteDoesNothingWithoutTextOrWhenReadOnlyAndStopsAtAZero) {
    ASSERT_TRUE(m_zone.SetText("abc\r"));
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    m_platform.SetClipboardText("x");
    m_zone.SetReadOnly(1);
    EXPECT_EQ(m_zone.Paste(), 0);
    m_zone.SetReadOnly(0);
    m_platform.SetClipboardFails(true);
    EXPECT_EQ(m_zone.Paste(), 1);
    m_platform.SetClipboardFails(false);
    for (const std::string& clip : {std::string(), std::string("\0tail", 5)}) {
        m_platform.SetClipboardText(clip);
        EXPECT_EQ(m_zone.Paste(), 1);
    }
    EXPECT_FALSE(m_zone.GetModify());
    m_platform.SetClipboardText(std::string("xy\0z", 4));
    m_zone.Paste();
    EXPECT_EQ(Text(), "axybc\r\n");
}

TEST_F(ClipboardTest, PasteOnABoxCaretGoesOnEveryLineUnlessItIsABoxItself) {
    ASSERT_TRUE(m_zone.SetText("abcd\rab\rabcd\rabcd\r"));
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 2, 3, 3, 2, 0);
    m_platform.SetClipboardText("XY");
    EXPECT_EQ(m_zone.Paste(), 1);
    // The short line is padded; the caret stays a box caret behind what went in.
    EXPECT_EQ(Text(), "abcXYd\r\nab XY    \r\nabcXYd\r\nabcd\r\n");
    ExpectSelection(0, 5, 2, 5);
    EXPECT_EQ(m_zone.GetUndoType(), 1);
    m_zone.Undo();

    m_zone.SetSelection(0, 2, 3, 3, 2, 0);
    m_platform.SetClipboardText("1\r\n2");
    m_zone.Paste();
    EXPECT_EQ(Text(), "abc1d\r\nab 2    \r\nabcd\r\nabcd\r\n");
    m_zone.Undo();

    // Cut box text pastes back as the same box.
    m_zone.SetSelection(0, 1, 1, 3, 2, 0);
    m_zone.Cut();
    EXPECT_EQ(Text(), "ad\r\na\r\nabcd\r\nabcd\r\n");
    m_zone.Paste();
    EXPECT_EQ(Text(), "abcd\r\nab \r\nabcd\r\nabcd\r\n");
}

TEST_F(ClipboardTest, PasteBeyondTheMaximumLengthBeeps) {
    ASSERT_TRUE(m_zone.SetText("abcd\rabcd\r"));
    m_zone.SetMaxLength(14);
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    m_platform.SetClipboardText("12345");
    EXPECT_EQ(m_zone.Paste(), 1);
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
    EXPECT_EQ(Text(), "abcd\r\nabcd\r\n");
    m_zone.SetSelection(0, 0, 1, 2, 0, 0);  // what the paste replaces makes room
    m_zone.Paste();
    EXPECT_EQ(Text(), "a12345cd\r\nabcd\r\n");

    // Too long for every line of a box caret, it may still fit once.
    ASSERT_TRUE(m_zone.SetText("abcd\rabcd\r"));
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 1, 2, 2, 2, 0);
    m_platform.SetClipboardText("123");
    m_zone.Paste();
    EXPECT_EQ(Text(), "ab123cd\r\nabcd\r\n");
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
}

TEST_F(ClipboardTest, ACopyOfManyLinesTakesEveryLineEndWhole) {
    const std::string expected = Numbered(20);
    ASSERT_TRUE(m_zone.SetText(Numbered(20, "line ", "\r").c_str()));
    EXPECT_EQ(CopyOf(0, 20, 0, 0, 0), expected);  // line mode: the last line end too
    EXPECT_EQ(CopyOf(0, 19, 0, 7, 0), expected.substr(0, expected.size() - 2));
}
