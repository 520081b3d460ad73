#include "support/ZoneTest.h"

namespace {

// Column editing with tabs four characters (32 pixels) wide.
class BoxEditTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        m_zone.SetTabWidth(-4);
    }
    void Load(const char* pszText) {
        ASSERT_TRUE(m_zone.SetText(pszText));
        m_zone.SetSelectionMode(2);
    }
    // A box of no width over the lines, at a column: the tall caret.
    void TallCaret(int nFirst, int nLast, int nColumn) {
        m_zone.SetSelection(nFirst, nLast, nColumn, nColumn, 2, 0);
    }
};

}  // namespace

TEST_F(BoxEditTest, InsertionPadsShortLinesAndKeepsTheColumn) {
    Load("abcdefghij\r\nab\r\na\r\n");
    m_zone.SetSelection(0, 0, 6, 6, 0, 0);
    EXPECT_EQ(m_zone.InsertText("XY\r\nZ\r\nW", 0, 1, 1), 1);
    EXPECT_EQ(Line(0), "abcdefXYghij\r");
    // Padding goes in steps of four bytes, then the piece, as wide as the first.
    EXPECT_EQ(Line(1), "ab    Z  \r");
    EXPECT_EQ(Line(2), "a     W \r");
    ExpectCaret(2, 8);
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);

    // Lines that do not exist yet are made.
    Load("abc\r\n");
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    m_zone.InsertText("1\r\n2\r\n3", 0, 1, 1);
    EXPECT_EQ(Text(), "a1bc\r\n 2    \r\n 3    \r\n");
}

TEST_F(BoxEditTest, PiecesHaveTheFirstPiecesWidthAndTabsExpandFromTheColumn) {
    Load("abcdef\r\nabcdef\r\nabcdef\r\n");
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    // The first line's tab reaches the next tab column: three columns, then Z.
    m_zone.InsertText("\tZ\r\n\tQ\r\nlonger than four", 0, 1, 1);
    EXPECT_EQ(Line(0), "a   Zbcdef\r");
    EXPECT_EQ(Line(1), "a   Qbcdef\r");
    EXPECT_EQ(Line(2), "alongbcdef\r");

    // A tab straddling the column stays; spaces go in front of the column.
    Load("a\tb\r\nabcdef\r\n");
    TallCaret(0, 1, 2);
    m_zone.InsertText("X\r\nY", 0, 1, 1);
    EXPECT_EQ(Line(0), "a X\tb\r");
    EXPECT_EQ(Line(1), "abYcdef\r");
    ExpectCaret(1, 3);
}

TEST_F(BoxEditTest, InsertionDropsTheBookmarksAndBlockFlagsOfTheLinesItTouches) {
    Load("abcdef\r\nabcdef\r\nabcdef\r\n");
    for (int n = 0; n < 3; ++n) {
        m_zone.GetLine(n)->m_dwBookmarks = 1;
        m_zone.GetLine(n)->m_dwBlockFlags = 1;
    }
    m_zone.SetSelection(0, 0, 2, 2, 0, 0);
    m_zone.InsertText("x\r\ny", 0, 1, 1);
    EXPECT_EQ(m_zone.GetLine(0)->m_dwBookmarks, 0u);
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBlockFlags, 0u);
    EXPECT_EQ(m_zone.GetLine(2)->m_dwBookmarks, 1u);
}

TEST_F(BoxEditTest, DeletionRemovesTheColumnsAndSplitsTabsInTheWay) {
    Load("abcdefgh\r\n0123456789\r\nxyz\r\n");
    m_zone.SetSelection(0, 2, 2, 5, 2, 0);
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Text(), "abfgh\r\n0156789\r\nxy\r\n");
    ExpectCaret(0, 2);

    // The tab from column 2 to 4 is cut at column 3: what is left of it
    // becomes a space, so "cd" stays right behind the box's left edge.
    Load("ab\tcd\r\n");
    m_zone.SetSelection(0, 0, 1, 3, 2, 0);
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Line(0), "a cd\r");

    // A box wholly inside a tab takes a part of it.
    Load("a\tb\r\n");
    m_zone.SetSelection(0, 0, 2, 3, 2, 0);
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Line(0), "a  b\r");

    // A box of no width deletes nothing.
    Load("abc\r\nabc\r\n");
    TallCaret(0, 1, 1);
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Text(), "abc\r\nabc\r\n");
}

TEST_F(BoxEditTest, InsertedBoxReadsBackAndDeletesToTheSameText) {
    const char* original = "SELECT a,\r\n       bb,\r\n       ccc\r\nFROM t\r\n";
    Load(original);
    m_zone.SetSelection(0, 0, 7, 7, 0, 0);
    m_zone.InsertText("x1\r\nx2\r\nx3\r\n", 1, 1, 1);
    EXPECT_EQ(Text(), "SELECT x1a,\r\n       x2bb,\r\n       x3ccc\r\nFROM t\r\n");
    // Kept selected: the box reads back as the text that went in.
    ExpectSelection(0, 7, 2, 9);
    EXPECT_EQ(m_zone.GetSelectedTextString(TF_CRLF), "x1\r\nx2\r\nx3\r\n");
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Text(), original);
}

TEST_F(BoxEditTest, BoxEditsUndoAndRedoAsOneStepEach) {
    const char* original = "abcdef\r\na\tb\r\nxy\r\n";
    Load(original);
    m_zone.SetSelection(0, 0, 2, 2, 0, 0);
    Edit(TZ_EDIT_PASTE, "12\r\n34\r\n56");
    const std::string inserted = Text();
    EXPECT_EQ(inserted, "ab12cdef\r\na 34\tb\r\nxy56\r\n");

    m_zone.Undo();
    EXPECT_EQ(Text(), original);
    ExpectCaret(0, 2);
    m_zone.Redo();
    EXPECT_EQ(Text(), inserted);

    // A box deletion through a tab comes back with the tab, the line's
    // bookmarks and the box, its root where it was.
    Load(original);
    m_zone.GetLine(1)->m_dwBookmarks = 8;
    m_zone.SetSelection(0, 1, 1, 3, TZ_SEL_BOX, 0);
    Edit(TZ_EDIT_DELETE_SELECTION);
    EXPECT_EQ(Text(), "adef\r\na b\r\nxy\r\n");
    m_zone.Undo();
    EXPECT_EQ(Text(), original);
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_BOX);
    ExpectSelection(0, 1, 1, 3);
    EXPECT_EQ(m_zone.GetSelRootChar(), 1);
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBookmarks, 8u);
    m_zone.Redo();
    EXPECT_EQ(Text(), "adef\r\na b\r\nxy\r\n");
    ExpectCaret(0, 1);
}

TEST_F(BoxEditTest, ATabAcrossTheColumnStaysWholeAndBlanksGoInFrontOfIt) {
    Load("a\tb\r\nabcdefgh\r\n");
    // Column 3 lies inside the tab of line 0 (columns 1 to 3), nearer to
    // its end than to its start.
    TallCaret(0, 1, 3);
    m_zone.InsertText("X\r\nY\r\n", 0, 1, 1);
    EXPECT_EQ(Text(), "a  X\tb\r\nabcYdefgh\r\n");
}

TEST_F(BoxEditTest, TheCaretAfterABoxDeletionIsAByteIndex) {
    Load("\tabcdef\r\n\tabcdef\r\n");
    m_zone.SetSelection(0, 1, 5, 7, 2, 0);  // columns 5 and 6: "bc" behind the tab
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Text(), "\tadef\r\n\tadef\r\n");
    ExpectCaret(0, 2);
}
