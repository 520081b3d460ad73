// The copy of a line without comments and strings: same length, same
// columns, masks where the language says a comment or a string stands.
#include <string>

#include "support/ParmZoneTest.h"

namespace {

class FreeLineTest : public ParmZoneTest {
protected:
    std::string Free(int nLine, int bKeep) {
        CStringEx out("left over");
        m_zone.GetCommentAndStringFreeLine(&out, nLine, bKeep);
        return std::string(out.c_str(), static_cast<size_t>(out.GetLength()));
    }
};

TEST_F(FreeLineTest, StringsAndCommentsAreMaskedColumnForColumn) {
    UseSql();
    m_zone.SetText("select 'a' /* b */ c");
    // The blank behind each closer goes with its part.
    EXPECT_EQ(Free(0, 0),
              std::string("select ") + std::string(4, '\r') + std::string(8, '\n') + "c");
    EXPECT_EQ(Free(0, 1), Free(0, 0));

    // A -- comment runs to the line's end; a missing line gives nothing.
    m_zone.SetText("a -- b, c\r\nx");
    EXPECT_EQ(Free(0, 0), std::string("a ") + std::string(8, '\n'));  // with its line end
    EXPECT_EQ(Free(5, 0), "");
}

TEST_F(FreeLineTest, ALineInsideACommentIsMaskedWhole) {
    UseC();
    m_zone.SetText("a /* one\r\ntwo, three\r\nend */ b");
    EXPECT_EQ(Free(1, 0), std::string(11, '\n'));  // its line end included
    EXPECT_EQ(Free(2, 0), std::string(7, '\n') + "b");
    // Nothing inside a comment opens a string.
    m_zone.SetText("/* 'x */ y 'z'");
    EXPECT_EQ(Free(0, 0), std::string(9, '\n') + "y " + std::string(3, '\r'));
}

TEST_F(FreeLineTest, BracketedNamesStayOnlyWhenAsked) {
    UseSql();
    m_zone.SetText("[a b], \"a b\"");
    EXPECT_EQ(Free(0, 1), "[a b], " + std::string(5, '\r'));
    EXPECT_EQ(Free(0, 0), std::string(5, '\n') + ", " + std::string(5, '\r'));
    // A quoted name is kept like a bracketed one where quotes name things.
    m_zone.SetQuotedId(1);
    m_zone.SetText("[a b], \"a b\"");
    EXPECT_EQ(Free(0, 1), "[a b], \"a b\"");
    EXPECT_EQ(Free(0, 0), std::string(5, '\n') + ", " + std::string(5, '\r'));
}

}  // namespace
