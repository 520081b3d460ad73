// What each kind of keystroke repaints and from which line it drops the
// cached start states: an ordinary byte repaints its own line only, a byte
// that can make or break a delimiter repaints down to the end.
#include "ColourPaint.h"

namespace {

// Forty lines of C, line 3 replaced by the line of a case.
std::string Lines(const std::string& line3) {
    std::string text;
    for (int n = 0; n < 40; ++n)
        text += (n == 3 ? line3 : "int v" + std::to_string(n) + ";") + "\r\n";
    return text;
}

class InvalidationTest : public ColourPaintTest {
protected:
    // Loads the text, paints it (which caches the states of the screen) and
    // puts the caret on line 3 at nChar.
    void Load(const std::string& line3, int nChar) {
        ASSERT_TRUE(m_zone.SetText(Lines(line3).c_str()));
        m_zone.SetSelection(3, 3, nChar, nChar, 0, 0);
        m_zone.SetFirstVisiblePosition(0, 0);
        Paint();
    }
    void Press(UINT nKey) {
        m_zone.HandleKeyDown(nKey, 1, 0);
        m_platform.PumpMessages();
    }
    std::string Line3() {
        std::string s = m_zone.GetLine(3)->c_str();
        return s.substr(0, s.size() - 1);
    }
    // Before a keystroke every state of the screen is known.
    static constexpr int kClean = 18;
};

}  // namespace

TEST_F(InvalidationTest, TypedBytesRepaintTheirLineUnlessTheyCanMakeOrBreakADelimiter) {
    struct Case {
        const char* line;
        int caret;
        char typed;
        const char* rows;
        int dirty;  // m_nFirstDirtyLine afterwards
    } cases[] = {
        {"int a;", 3, 'x', "3-3", kClean},
        {"int a;", 3, '[', "3-3", kClean},  // no bracket names in C
        {"a /", 3, '*', "3-18", 3},         // opens a comment
        {"a / b", 2, '/', "3-18", 3},       // behind a slash
        {"a * b", 3, '/', "3-18", 3},       // could close one
        {"a /* b", 3, 'x', "3-18", 3},      // breaks the opener apart
        {"s = 1;", 4, '"', "3-18", 3},      // quotes and escapes
        {"s = 1;", 4, '\'', "3-18", 3},
        {"s = 1; \\", 8, 'x', "3-18", 3},      // behind a final backslash
        {"s = 1; \\", 3, 'x', "3-3", kClean},  // before it
    };
    for (const Case& c : cases) {
        Load(c.line, c.caret);
        m_zone.HandleChar(static_cast<unsigned char>(c.typed), 1, 0);
        EXPECT_EQ(InvalidRows(), c.rows) << c.line << " + " << c.typed;
        EXPECT_EQ(m_zone.m_nFirstDirtyLine, c.dirty) << c.line << " + " << c.typed;
    }

    // The comment opened by a typed '*' shows down to the end at once.
    Load("a /", 3);
    m_zone.HandleChar('*', 1, 0);
    Paint();
    EXPECT_EQ(Row(3), "a :Text /*:Comment");
    EXPECT_EQ(Row(18), "int v18;:Comment");

    // In SQL the brackets and dashes count; a letter still does not.
    m_zone.SetSQLSyntaxColor(5);
    for (char typed : {'[', '-'}) {
        Load("select -", 8);
        m_zone.HandleChar(static_cast<unsigned char>(typed), 1, 0);
        EXPECT_EQ(InvalidRows(), "3-18") << typed;
    }
    Load("select -", 8);
    m_zone.HandleChar('a', 1, 0);
    EXPECT_EQ(InvalidRows(), "3-3");

    // An insertion by a host is not so careful: any text invalidates.
    Load("select", 6);
    m_zone.InsertText("a", 0, 1, 1);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 3);
}

TEST_F(InvalidationTest, KeysResetStatesFromWhereTheirChangeCanReach) {
    struct Case {
        const char* line;
        int caret;
        UINT key;
        const char* rows;
        int dirty;
    } cases[] = {
        {"int a;", 3, VK_BACK, "3-3", kClean},  // a letter goes
        {"int a;", 3, VK_DELETE, "3-3", kClean},
        {"a */ b", 4, VK_BACK, "3-18", 3},    // the '/' of "*/" goes
        {"a */ b", 2, VK_DELETE, "3-18", 3},  // its '*'
        {"a /x* b", 4, VK_BACK, "3-18", 3},   // '/' and '*' come together
        {"int a;", 0, VK_BACK, "2-18", 2},    // joins the line above
        {"int a;", 6, VK_DELETE, "3-18", 3},  // joins the line below
        {"a /* b", 3, VK_TAB, "3-18", 3},     // splits an opener
        {"int a;", 3, VK_TAB, "3-3", kClean},
    };
    for (const Case& c : cases) {
        Load(c.line, c.caret);
        Press(c.key);
        EXPECT_EQ(InvalidRows(), c.rows) << c.line << " key " << c.key;
        EXPECT_EQ(m_zone.m_nFirstDirtyLine, c.dirty) << c.line << " key " << c.key;
    }

    // Enter drops the states below the caret line only.
    Load("int a;", 3);
    Press(VK_RETURN);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 4);

    // Backspacing the '/' of "*/" leaves the comment open to the end.
    ASSERT_TRUE(m_zone.SetText(Lines("a */ b").insert(0, "/*\r\n").c_str()));
    m_zone.SetFirstVisiblePosition(0, 0);
    Paint();
    EXPECT_EQ(Row(10), "int :KeyWord1 v9;:Text");
    m_zone.SetSelection(4, 4, 4, 4, 0, 0);
    Press(VK_BACK);
    Paint();
    EXPECT_EQ(Row(4), "a * b:Comment");
    EXPECT_EQ(Row(10), "int v9;:Comment");
}

TEST_F(InvalidationTest, ContinuedVisualBasicLinesAndBackslashEndingsCarryOn) {
    // " _" behind a "rem" line makes the next line a comment too.
    m_zone.SetClientLanguageSyntaxColor(70);
    Load("rem note", 8);
    m_zone.HandleChar(' ', 1, 0);
    EXPECT_EQ(InvalidRows(), "3-3");
    m_zone.HandleChar('_', 1, 0);
    EXPECT_EQ(InvalidRows(), "3-18");
    Paint();
    EXPECT_EQ(Row(4), "int v4;:Comment");
    Press(VK_BACK);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 3);
    Paint();
    EXPECT_EQ(Row(4), "int :KeyWord1 v4;:Text");

    // In C a string goes on behind a final backslash: deleting it ends the string.
    m_zone.SetClientLanguageSyntaxColor(1300);
    Load("s = \"a\\", 7);
    EXPECT_EQ(Row(4), "int v4;:String");
    Press(VK_BACK);
    Paint();
    EXPECT_EQ(Row(4), "int :KeyWord1 v4;:Text");
}

TEST_F(InvalidationTest, CtrlSpaceNeverTypesABlankAndFullZonesRefuseTabAndEnter) {
    Load("ab", 2);
    m_platform.SetKeyState(VK_CONTROL, true);
    m_platform.SetKeyState(VK_SPACE, true);
    m_zone.HandleKeyDown(VK_SPACE, 1, 0);
    m_zone.HandleChar(' ', 1, 0);
    m_platform.SetKeyState(VK_SHIFT, true);  // Ctrl+Shift+Space cycles backwards
    m_zone.HandleKeyDown(VK_SPACE, 1, 0);
    m_zone.HandleChar(' ', 1, 0);
    m_platform.SetKeyState(VK_SHIFT, false);
    m_platform.SetKeyState(VK_CONTROL, false);
    EXPECT_EQ(Line3(), "ab");
    m_zone.HandleChar(' ', 1, 0);
    m_platform.SetKeyState(VK_SPACE, false);
    EXPECT_EQ(Line3(), "ab ");

    // With the text at its maximum length Tab and Enter only beep.
    m_zone.SetMaxLength(m_zone.GetTextLength(0));
    const int beeps = m_platform.GetBeepCount();
    Press(VK_TAB);
    Press(VK_RETURN);
    EXPECT_EQ(m_platform.GetBeepCount(), beeps + 2);
    EXPECT_EQ(Line3(), "ab ");
    EXPECT_EQ(m_zone.GetLine(4)->c_str(), std::string("int v4;\r"));
}

TEST_F(InvalidationTest, UndoingABoxEditDropsTheStatesOfTheLinesItRestores) {
    // Box edits are undone by giving lines their old bytes back in place;
    // the comment typed on a tall caret must go from the lines below too.
    Load("int a;", 0);
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(3, 4, 0, 0, 2, 0);
    m_zone.HandleChar('/', 1, 0);
    m_zone.HandleChar('*', 1, 0);
    Paint();
    ASSERT_EQ(Row(10), "int v10;:Comment");
    m_zone.Undo();
    m_zone.Undo();
    EXPECT_EQ(Line3(), "int a;");
    Paint();
    EXPECT_EQ(Row(10), "int :KeyWord1 v10;:Text");
    m_zone.Redo();
    m_zone.Redo();
    Paint();
    EXPECT_EQ(Row(10), "int v10;:Comment");
}
