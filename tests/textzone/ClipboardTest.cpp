#include <string>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class ClipboardTest : public ZoneTest {
protected:
    std::string Selected() {
        LONG size = m_zone.GetSelectedTextLength(TF_CRLF) + 10;
        std::vector<char> buffer(static_cast<size_t>(size), 0);
        m_zone.GetSelectedText(buffer.data(), size, TF_CRLF);
        return buffer.data();
    }
};

}  // namespace

TEST_F(ClipboardTest, CopyPutsTheSelectionOutWithCrLf) {
    ASSERT_TRUE(m_zone.SetText("alpha\rbeta\rgamma\r"));
    m_platform.SetClipboardText("before");
    EXPECT_EQ(m_zone.Copy(), 0);  // nothing selected
    EXPECT_EQ(m_platform.GetClipboardText(), "before");

    m_zone.SetSelection(0, 2, 2, 3, 0, 0);
    EXPECT_EQ(m_zone.Copy(), 1);
    EXPECT_EQ(m_platform.GetClipboardText(), "pha\r\nbeta\r\ngam");
    EXPECT_EQ(m_platform.GetWaitCursorDepth(), 0);
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\ngamma\r\n");

    // A box goes out as plain lines, padded to its width.
    m_zone.SetSelection(0, 2, 1, 3, 2, 0);
    EXPECT_EQ(m_zone.Copy(), 1);
    EXPECT_EQ(m_platform.GetClipboardText(), "lp\r\net\r\nam\r\n");
    m_zone.SetSelection(0, 1, 3, 6, 2, 0);
    m_zone.Copy();
    EXPECT_EQ(m_platform.GetClipboardText(), "ha \r\na  \r\n");

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
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\n");
    EXPECT_FALSE(m_zone.GetModify());
    m_platform.SetClipboardFails(false);

    m_zone.SetReadOnly(1);
    EXPECT_EQ(m_zone.Cut(), 1);
    EXPECT_EQ(m_platform.GetClipboardText(), "pha\r\nbe");
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\n");
    m_zone.SetReadOnly(0);

    m_platform.SetClipboardText("");
    EXPECT_EQ(m_zone.Cut(), 1);
    EXPECT_EQ(m_platform.GetClipboardText(), "pha\r\nbe");
    EXPECT_EQ(Text(), "alta\r\n");
    ExpectCaret(0, 2);
    EXPECT_TRUE(m_zone.GetModify());
    EXPECT_EQ(m_zone.GetUndoType(), 5);
    m_zone.Undo();
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\n");
}

TEST_F(ClipboardTest, PasteReplacesTheSelectionAsOneUndoStep) {
    ASSERT_TRUE(m_zone.SetText("one two three\r"));
    m_zone.SetSelection(0, 0, 4, 7, 0, 0);
    m_platform.SetClipboardText("2\r\nand a half");
    EXPECT_EQ(m_zone.Paste(), 1);
    EXPECT_EQ(Text(), "one 2\r\nand a half three\r\n");
    ExpectCaret(1, 10);
    EXPECT_TRUE(m_zone.GetModify());
    EXPECT_EQ(m_platform.GetWaitCursorDepth(), 0);
    EXPECT_EQ(m_zone.GetUndoType(), 6);

    m_zone.Undo();
    EXPECT_EQ(Text(), "one two three\r\n");
    m_zone.Redo();
    EXPECT_EQ(Text(), "one 2\r\nand a half three\r\n");

    // Copied out and pasted back in, a text comes back the same.
    m_zone.SetSelection(0, -1, 0, 0, 1, 0);
    m_zone.Copy();
    m_zone.Paste();
    EXPECT_EQ(Text(), "one 2\r\nand a half three\r\n");
}

TEST_F(ClipboardTest, PasteDoesNothingWithoutTextOrWhenReadOnly) {
    ASSERT_TRUE(m_zone.SetText("abc\r"));
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    m_platform.SetClipboardText("x");
    m_zone.SetReadOnly(1);
    EXPECT_EQ(m_zone.Paste(), 0);
    m_zone.SetReadOnly(0);

    m_platform.SetClipboardFails(true);
    EXPECT_EQ(m_zone.Paste(), 1);
    m_platform.SetClipboardFails(false);
    m_platform.SetClipboardText("");
    EXPECT_EQ(m_zone.Paste(), 1);
    m_platform.SetClipboardText(std::string("\0tail", 5));
    EXPECT_EQ(m_zone.Paste(), 1);
    EXPECT_EQ(Text(), "abc\r\n");
    EXPECT_FALSE(m_zone.GetModify());

    // The text stops at its first 0.
    m_platform.SetClipboardText(std::string("xy\0z", 4));
    m_zone.Paste();
    EXPECT_EQ(Text(), "axybc\r\n");
}

TEST_F(ClipboardTest, PasteOnABoxCaretGoesOnEveryLine) {
    ASSERT_TRUE(m_zone.SetText("abcd\rab\rabcd\rabcd\r"));
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 2, 3, 3, 2, 0);
    m_platform.SetClipboardText("XY");
    EXPECT_EQ(m_zone.Paste(), 1);
    // The short line is padded to the column the way every box insertion pads.
    EXPECT_EQ(Text(), "abcXYd\r\nab XY    \r\nabcXYd\r\nabcd\r\n");
    // The caret stays a box caret, behind what went in.
    EXPECT_EQ(m_zone.m_nSelStartLine, 0);
    EXPECT_EQ(m_zone.m_nSelEndLine, 2);
    EXPECT_EQ(m_zone.m_nSelStartChar, 5);
    EXPECT_EQ(m_zone.m_nSelEndChar, 5);
    EXPECT_EQ(m_zone.GetUndoType(), 1);
    m_zone.Undo();
    EXPECT_EQ(Text(), "abcd\r\nab\r\nabcd\r\nabcd\r\n");

    // Two lines are a box of their own: they go in once, at the caret.
    m_zone.SetSelection(0, 2, 3, 3, 2, 0);
    m_platform.SetClipboardText("1\r\n2");
    m_zone.Paste();
    EXPECT_EQ(Text(), "abc1d\r\nab 2    \r\nabcd\r\nabcd\r\n");

    // Copied box text pastes back as the same box.
    m_zone.Undo();
    m_zone.SetSelection(0, 1, 1, 3, 2, 0);
    m_zone.Cut();
    EXPECT_EQ(Text(), "ad\r\na\r\nabcd\r\nabcd\r\n");
    m_zone.Paste();
    EXPECT_EQ(Text(), "abcd\r\nab \r\nabcd\r\nabcd\r\n");
}

TEST_F(ClipboardTest, PasteBeyondTheMaximumLengthBeeps) {
    ASSERT_TRUE(m_zone.SetText("abcd\rabcd\r"));
    m_zone.SetMaxLength(14);
    ASSERT_EQ(m_zone.m_nCurrentLength, 10);
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    m_platform.SetClipboardText("12345");
    EXPECT_EQ(m_zone.Paste(), 1);
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
    EXPECT_EQ(Text(), "abcd\r\nabcd\r\n");
    EXPECT_FALSE(m_zone.GetModify());

    // What the paste replaces makes room.
    m_zone.SetSelection(0, 0, 1, 2, 0, 0);
    EXPECT_EQ(m_zone.Paste(), 1);
    EXPECT_EQ(Text(), "a12345cd\r\nabcd\r\n");
    EXPECT_EQ(m_platform.GetBeepCount(), 1);

    // Too long for every line of a box caret, it may still fit once.
    ASSERT_TRUE(m_zone.SetText("abcd\rabcd\r"));
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 1, 2, 2, 2, 0);
    m_platform.SetClipboardText("123");
    m_zone.Paste();
    EXPECT_EQ(Text(), "ab123cd\r\nabcd\r\n");
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
}
