// Line start states: what crosses a line in each family of languages, and
// how the cache of states follows edits.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ColourZone.h"

namespace {

using LineStateTest = ColourTest;

TEST_F(LineStateTest, CFamilyStringsGoOnOnlyBehindABackslash) {
    // One backslash carries the string on, two end it; an empty line keeps it.
    EXPECT_EQ(States("a = \"x\\\nyz\nb = \"x\\\\\nc\n"), (S{1, 3, 1, 1}));
    EXPECT_EQ(States("a = 'x\\\n\nstill\" + 1;\nd\n"), (S{1, 2, 2, 1}));
    // The closing quote behind an escaped backslash stands.
    EXPECT_EQ(States("s = \"a\\\\\" /* c\nx */ y\n"), (S{1, 5}));
    // Unclosed, without a backslash: the string ends with its line.
    EXPECT_EQ(States("s = \"abc\nx\n"), (S{1, 1}));
}

TEST_F(LineStateTest, SqlStringsAndIdentifiersRunAcrossLines) {
    m_zone.SetSQLSyntaxColor(14);
    EXPECT_EQ(States("select 'abc\ndef\nghi' from t\n"), (S{1, 2, 2}));
    EXPECT_EQ(States("select [a\nb]]c\nd] x\n"), (S{1, 4, 4}));
    // A comment line with a quote in it opens nothing.
    EXPECT_EQ(States("-- it's\nselect \"x\nfrom\" t\n"), (S{1, 1, 3}));
    // In a client language the same string ends with its line.
    m_zone.SetClientLanguageSyntaxColor(920);
    EXPECT_EQ(States("s = 'abc\ndef\n"), (S{1, 1}));
}

TEST_F(LineStateTest, NestedComments) {
    m_zone.SetSQLSyntaxColor(3);
    EXPECT_EQ(States("/* /* */ x\n*/ y\nz\n"), (S{1, 5, 1}));
    EXPECT_EQ(States("/* /* /*\n*/\n*/ */\n*/ q\n"), (S{1, 7, 6, 1}));
    // Without nesting the first */ closes.
    m_zone.SetSQLSyntaxColor(181);
    EXPECT_EQ(States("/* /* */ x\n*/ y\n"), (S{1, 1}));
}

TEST_F(LineStateTest, EscapesInTheWalkOnlyInsideStrings) {
    // In a comment a backslash escapes nothing for the walk: "\*/" closes it.
    EXPECT_EQ(States("/* a\nb \\*/ \"s\\\nt\" c\n"), (S{1, 5, 3}));
    // Tildes escape in PowerBuilder strings.
    m_zone.SetClientLanguageSyntaxColor(50);
    EXPECT_EQ(States("s = \"a~\" /* b\nc\n"), (S{1, 1}));
    EXPECT_EQ(States("s = \"a~~\" /* b\nc\n"), (S{1, 5}));
}

TEST_F(LineStateTest, BasicRemCommentsContinueBehindAnUnderscore) {
    m_zone.SetClientLanguageSyntaxColor(70);
    EXPECT_EQ(States("rem x _\ngoes on _\nstill\nx\n"), (S{1, 5, 5, 1}));
    EXPECT_EQ(States("' x _\ny\n"), (S{1, 1}));
    EXPECT_EQ(States("  REM x _\ny\n"), (S{1, 5}));
    EXPECT_EQ(States("xrem y _\nz\n"), (S{1, 1}));
    // No ' strings: a quote is a line comment and opens nothing.
    EXPECT_EQ(States("a = \"it's\" ' c \"\nz\n"), (S{1, 1}));
}

TEST_F(LineStateTest, PascalComments) {
    m_zone.SetClientLanguageSyntaxColor(90);
    EXPECT_EQ(States("(* a\nb *) { c\nd } e\n/* f\n"), (S{1, 5, 6, 1}));
    EXPECT_EQ(States("x // (* no\n{ a (* b } c\n"), (S{1, 1}));
}

TEST_F(LineStateTest, JclNeverCarriesAState) {
    m_zone.SetClientLanguageSyntaxColor(1020);
    m_zone.SetText("//A JOB 'x\n// 'y\n");
    EXPECT_EQ(m_zone.StartWithWhat(1), 1u);
    // Nothing is cached on the way.
    EXPECT_EQ(static_cast<CStringExColor*>(m_zone.GetLine(1))->m_nStartType, 0u);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 0);
}

TEST_F(LineStateTest, CacheFollowsEdits) {
    m_zone.SetText("a\nb\nc\nd\ne\n");
    EXPECT_EQ(m_zone.StartWithWhat(3), 1u);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 3);
    EXPECT_EQ(m_zone.StartWithWhat(99), 1u);  // no such line
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 3);

    // Turning line 1 into a comment opener: inserting text resets from its line.
    m_zone.SetSelection(1, 1, 1, 1, 0, 0);
    m_zone.InsertText(" /*", 0, 0, 0);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 1);
    EXPECT_EQ(m_zone.StartWithWhat(4), 5u);
    EXPECT_EQ(m_zone.StartWithWhat(2), 5u);  // below the mark now: from the cache
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 4);

    // A stale value above the mark does not count.
    m_zone.ResetLastLines(-3);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 0);
    m_zone.ResetLastLines(2);
    EXPECT_EQ(m_zone.m_nFirstDirtyLine, 0);
    EXPECT_EQ(static_cast<CStringExColor*>(m_zone.GetLine(3))->m_nStartType, 5u);
    m_zone.SetSelection(1, 1, 1, 4, 0, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.StartWithWhat(3), 1u);

    // A line below the mark without a state (it came in unseen) is computed.
    m_zone.SetSelection(1, 1, 1, 1, 0, 0);
    m_zone.InsertText(" /*", 0, 0, 0);
    EXPECT_EQ(m_zone.StartWithWhat(4), 5u);
    static_cast<CStringExColor*>(m_zone.GetLine(2))->m_nStartType = 0;
    static_cast<CStringExColor*>(m_zone.GetLine(1))->m_nStartType = 0;
    EXPECT_EQ(m_zone.StartWithWhat(2), 5u);
}

}  // namespace
