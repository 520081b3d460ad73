// Typing or inserting on the place behind the text makes a line there; undo
// takes that line away again, or a later undo that restores whole lines
// leaves the line above unended inside the text.
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

}  // namespace
