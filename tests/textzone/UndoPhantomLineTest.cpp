// The place behind the text (the line after the last one) holds no line:
// typing or inserting there makes one, and undo takes it away again, or a
// later undo that restores whole lines leaves the line above unended inside
// the text; a block indent whose selection ends there takes in no line more.
#include <string>

#include "KeyZoneTest.h"

namespace {

using UndoPhantomLineTest = KeyZoneTest;

TEST_F(UndoPhantomLineTest, TypingBehindABoxPasteUndoesToTheTypedText) {
    Type("ab");
    m_zone.SetSelection(1, 1, 40, 40, TZ_SEL_BOX, 0);
    m_platform.SetClipboardText("\r\n");
    m_zone.Paste();
    const std::string afterPaste = Text();
    const int lastAfterPaste = m_zone.GetLastLineIndex();
    m_zone.SetSelection(2, 2, 0, 0, TZ_SEL_BOX, 0);
    Press(VK_TAB);

    m_zone.Undo();
    EXPECT_EQ(Text(), afterPaste);
    EXPECT_EQ(m_zone.GetLastLineIndex(), lastAfterPaste);
    m_zone.Undo();
    EXPECT_EQ(Line(0), "ab");
    EXPECT_EQ(Line(1), "<none>");
}

TEST_F(UndoPhantomLineTest, UndoLeavesNoLineWhereNoneWas) {
    for (short mode : {TZ_SEL_LINES, TZ_SEL_STREAM, TZ_SEL_BOX}) {
        for (int how = 0; how < 4; ++how) {
            SCOPED_TRACE("mode " + std::to_string(mode) + " edit " + std::to_string(how));
            m_zone.SetText("ab\r\n");
            m_zone.SetSelection(1, 1, 0, 0, mode, 0);
            if (how == 0) Press(VK_TAB);
            if (how == 1) Type("x");
            if (how == 2) Type("xy");
            if (how == 3) {
                m_zone.StartRegister(TZ_EDIT_PASTE);
                m_zone.InsertText("xyz", 0, 1, 1);
                m_zone.EndRegister();
            }
            const std::string after = Text();
            while (m_zone.GetUndoType() != 0)
                m_zone.Undo();
            EXPECT_EQ(Text(), "ab\r\n");
            EXPECT_EQ(Line(1), "<none>");
            while (m_zone.GetRedoType() != 0)
                m_zone.Redo();
            EXPECT_EQ(Text(), after);
        }
    }
}

TEST_F(UndoPhantomLineTest, ABlockIndentEndingBehindTheTextStaysInIt) {
    m_zone.SetStyle(ZS_AUTOINDENT);
    m_zone.SetTabWidth(-4);
    for (int mods : {kNone, kShift}) {
        SCOPED_TRACE(mods == kShift ? "unindent" : "indent");
        m_zone.SetText("    ab\r\n    cd\r\n");
        Caret(0, 6);
        Press(VK_NEXT, kShift);
        ASSERT_EQ(m_zone.m_nSelEndLine, 2);  // the place behind the text
        Press(VK_TAB, mods);
        EXPECT_EQ(Text(), mods == kShift ? "ab\r\ncd\r\n" : "        ab\r\n        cd\r\n");
        EXPECT_EQ(m_zone.m_nSelEndLine, 2);
        EXPECT_EQ(m_zone.m_nSelEndChar, 0);
        m_zone.Undo();
        EXPECT_EQ(Text(), "    ab\r\n    cd\r\n");
        EXPECT_LE(m_zone.m_nSelEndLine, 2);
    }
}

}  // namespace
