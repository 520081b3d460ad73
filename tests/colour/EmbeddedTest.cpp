// Script embedded in markup: the state a piece of it leaves for the next
// line, and its runs, in the Java-like and the VB-like grammar.
#include <gtest/gtest.h>

#include <string>

#include "ColourZone.h"

namespace {

class EmbeddedTest : public ColourTest {
protected:
    unsigned int EndType(const char* pszPiece, unsigned int nType, bool bJava) {
        std::string piece(pszPiece);
        return m_zone.GetEndEmbeddedType(piece.data(), nType, bJava ? 1 : 0);
    }
    // The runs of a piece placed at nOffset in its line.
    std::string Build(const char* pszPiece, unsigned int nType, bool bJava, int nOffset = 0) {
        std::string piece(pszPiece);
        m_zone.BuildEmbeddedColor(piece.data(), nType, bJava ? 1 : 0, nOffset);
        return TakeRuns();
    }
};

TEST_F(EmbeddedTest, JavaLikeEndStates) {
    struct Case {
        const char* piece;
        unsigned int type;
        unsigned int end;
    };
    const Case cases[] = {
        {"x = 1;", 1, 1},
        {"a /* b", 1, 5},
        {"a /* b */ c", 1, 1},
        {"s = \"/*\"; t = '/*';", 1, 1},  // openers inside strings open nothing
        {"s = \"open", 1, 1},             // a string never crosses a line
        {"s = \"a\\\" /*", 1, 1},         // escaped quote: "/*" stays in the string
        {"s = \"a\\\\\" /*", 1, 5},       // escaped backslash: the string closed
        {"// a /* b", 1, 1},
        {"b */ c", 5, 1},
        {"b", 5, 5},
        {"b */ /* c", 5, 5},
        {"\" x /*", 3, 5},  // a string state closes at its quote
        {"x", 3, 1},
        {"rem a _", 1, 1},  // rem means nothing here
    };
    for (const Case& c : cases)
        EXPECT_EQ(EndType(c.piece, c.type, true), c.end) << c.piece;
}

TEST_F(EmbeddedTest, VBLikeEndStates) {
    struct Case {
        const char* piece;
        unsigned int type;
        unsigned int end;
    };
    const Case cases[] = {
        {"rem a _\r", 1, 5}, {"  REM a _ ", 1, 5},
        {"rem a", 1, 1},     {"x = 1 rem a _", 1, 1},        // rem only at the start
        {"' a _", 1, 1},     {"x = \"it's\" ' /* b", 1, 1},  // no ' strings, and no block comments
        {"x /* b", 1, 1},    {"goes on _", 5, 5},
        {"stops", 5, 1},     {"s = \"a", 1, 1},
    };
    for (const Case& c : cases)
        EXPECT_EQ(EndType(c.piece, c.type, false), c.end) << c.piece;
}

TEST_F(EmbeddedTest, RunsAreOffsetIntoTheLine) {
    // Java: keywords as they stand, strings with escapes, both comments.
    EXPECT_EQ(Build("if (s == 'a\\'b') return; // c", 1, true, 10),
              "10 KeyWord1, 13 Text, 19 String, 25 Text, 27 KeyWord1, 33 Text, 35 Comment");
    EXPECT_EQ(Build("IF x", 1, true), "");
    // VB: keywords in any case, a quote is a comment.
    EXPECT_EQ(Build("IF x Then y ' c", 1, false, 3),
              "3 KeyWord1, 6 Text, 8 KeyWord1, 13 Text, 15 Comment");
    EXPECT_EQ(Build("  Rem x", 1, false, 4), "4 Comment");
    // Going on from the line before: to the closer and the blanks behind it.
    EXPECT_EQ(Build("a */  if x", 5, true, 2), "2 Comment, 8 KeyWord1, 11 Text");
    EXPECT_EQ(Build("a */ b", 5, false), "0 Comment, 5 Text");
    EXPECT_EQ(Build("still a comment", 5, false), "0 Comment");
    EXPECT_EQ(Build("a\" if", 3, true), "0 String, 3 KeyWord1, 5 Text");
}

}  // namespace
