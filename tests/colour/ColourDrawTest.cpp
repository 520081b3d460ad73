// Coloured drawing, read from the headless display list: the colour of each
// run, the selection laid over runs, the box selection, bookmarked and dark
// lines.
#include "ColourPaint.h"

namespace {

const DrawRecord* FindText(const DisplayList& list, const std::string& text) {
    for (const DrawRecord& r : list)
        if (r.kind == DrawRecord::Text && r.text == text) return &r;
    return nullptr;
}

}  // namespace

TEST_F(ColourPaintTest, RunsGoOutInTheirColoursAndTabsKeepTheirStops) {
    m_zone.SetSQLSyntaxColor(5);
    ASSERT_TRUE(m_zone.SetText("select 'x' -- note\r\nset @a = [t]\r\n/* open\r\nstill */ go"));
    Paint();
    EXPECT_EQ(Row(0), "select :KeyWord1 'x' :String -- note:Comment");
    EXPECT_EQ(Row(1), "set :KeyWord1 @a :Variable = :Text [t]:Text");
    EXPECT_EQ(Row(2), "/* open:Comment");
    EXPECT_EQ(Row(3), "still */ :Comment go:Text");

    // A tab inside a run and one between runs: every piece starts where the
    // whole line measured from its start puts it (tab stops every 20 pixels,
    // 8 pixels a byte).
    m_zone.SetClientLanguageSyntaxColor(1300);
    ASSERT_TRUE(m_zone.SetText("x\t/*a\tb*/\tint"));
    Paint();
    const DisplayList& list = Peer().GetDisplayList();
    const DrawRecord* pComment = FindText(list, "/*a");
    const DrawRecord* pTabbed = FindText(list, "b*/");
    const DrawRecord* pKeyword = FindText(list, "int");
    ASSERT_TRUE(pComment && pTabbed && pKeyword);
    EXPECT_EQ(pComment->rc.left, 20);
    EXPECT_EQ(pComment->crText, TestClassColor(SC_COMMENT));
    EXPECT_EQ(pTabbed->rc.left, 60);
    EXPECT_EQ(pKeyword->rc.left, 100);
    EXPECT_EQ(pKeyword->crText, TestClassColor(SC_KEYWORD1));
}

TEST_F(ColourPaintTest, SelectionsTakeTheirColoursAndGiveBackTheRunInForce) {
    // Part of a keyword selected: both sides keep the keyword's colour.
    ASSERT_TRUE(m_zone.SetText("return x;\r\nint a /* comment */ b;\r\nchar c;\r\n"));
    m_zone.SetSelection(0, 0, 2, 4, 0, 0);
    Paint();
    EXPECT_EQ(Row(0), "re:KeyWord1 [tu] rn :KeyWord1 x;:Text");

    // A selection that ends inside a comment goes on in the comment's colour.
    m_zone.SetSelection(1, 1, 4, 11, 0, 0);
    Paint();
    EXPECT_EQ(Row(1), "int :KeyWord1 [a /* co] mment */ :Comment b;:Text");

    // Over two lines: the first from a column to its end, the second from its
    // start into a keyword; the line end is selected too.
    m_zone.SetSelection(1, 2, 20, 2, 0, 0);
    Paint();
    EXPECT_EQ(Row(1), "int :KeyWord1 a :Text /* comment */ :Comment [b;]");
    EXPECT_EQ(Row(2), "[ch] ar :KeyWord1 c;:Text");
    EXPECT_EQ(SelectionFills(1), "176-184") << "the selected line end shows";

    // A selection that stops at the end of a line's text leaves its line end out.
    m_zone.SetSelection(2, 2, 5, 7, 0, 0);
    Paint();
    EXPECT_EQ(Row(2), "char :KeyWord1 [c;]");
    EXPECT_EQ(SelectionFills(2), "");
}

TEST_F(ColourPaintTest, BoxSelectionsColourTheSpacedLineAndShowTheEmptyBoxAsABar) {
    // The box works on the tab-expanded line (tabs of 4 characters here), so
    // the runs are those of the expanded text.
    m_zone.SetTabWidth(-4);
    ASSERT_TRUE(m_zone.SetText("\tint a;\r\nx /* y */\r\nshort"));
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 2, 2, 6, 2, 0);
    Paint();
    EXPECT_EQ(Row(0), "  :Text [  in] t :KeyWord1 a;:Text");
    EXPECT_EQ(Row(1), "x :Text [/* y]  */:Comment");
    EXPECT_EQ(Row(2), "sh:KeyWord1 [ort ]  :KeyWord1");

    // Without width: no text is selected and a 2-pixel bar stands at column 3.
    m_zone.SetSelection(0, 2, 3, 3, 2, 0);
    Paint();
    EXPECT_EQ(Row(1), "x :Text /* y */:Comment");
    for (int n = 0; n < 3; ++n)
        EXPECT_EQ(SelectionFills(n), "23-25") << n;
}

TEST_F(ColourPaintTest, BookmarkedLinesWithoutMarginAreDrawnPlainAndDarkBacksTurnTextWhite) {
    ASSERT_TRUE(m_zone.SetText("int a;\r\nint b;\r\nint c;"));
    m_zone.SetBookmarkColor(RGB(0x80, 0x80, 0x80), 2);
    m_zone.GetLine(0)->m_dwBookmarks = 0x1;
    m_zone.GetLine(1)->m_dwBookmarks = 0x4;
    Paint();
    // Kind 0 is light green: the zone's text colour on it, no syntax colours.
    EXPECT_EQ(Row(0), "int a;:Text/#00FF00");
    EXPECT_EQ(Row(1), "int b;:#FFFFFF/#808080");
    EXPECT_EQ(Row(2), "int :KeyWord1 c;:Text");

    // With a margin the marks go there and the lines keep their colours.
    m_zone.SetMarginMode(1);
    Paint();
    EXPECT_EQ(Row(0), "int :KeyWord1 a;:Text");

    // A dark zone background: white text, and the runs still override it.
    m_zone.SetColors(kTestTextColor, RGB(0x20, 0x20, 0x20), kSelText, kSelBack);
    m_zone.SetMarginMode(0);
    m_zone.GetLine(0)->m_dwBookmarks = 0;
    m_zone.GetLine(1)->m_dwBookmarks = 0;
    Paint();
    EXPECT_EQ(Row(0), "int :KeyWord1/#202020 a;:Text/#202020");
    ASSERT_TRUE(m_zone.SetText("plain"));
    Paint();
    EXPECT_EQ(Row(0), "plain:#FFFFFF/#202020");
}
