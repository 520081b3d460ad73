// What a host may hand the engine that no user would: places far out of
// range, tab steps that are no whole number of byte widths, bookmark bits
// beyond the drawn ones. Nothing may hang, overflow or lose text.
#include <climits>
#include <cstring>
#include <memory>
#include <string>

#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"

namespace {

class HostileInputTest : public ZoneTest {
protected:
    void Box(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 2, 0); }
};

}  // namespace

TEST_F(HostileInputTest, BoxEditsEndWhereNoByteBoundaryMeetsTheEdge) {
    // 30-pixel tab steps with 8-pixel bytes, then 3-pixel bytes with the
    // 20-pixel default step: after a tab no byte starts on a column edge.
    for (int variant = 0; variant < 2; ++variant) {
        SCOPED_TRACE(variant);
        CFont small;
        if (variant == 0) {
            m_zone.SetTabWidth(30);
        } else {
            LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 7);
            small.CreateFontIndirect(&lf);
            m_zone.SetFont(small);
            m_zone.SetTabWidth(0);
        }
        ASSERT_TRUE(m_zone.SetText("a\tbcdefgh\r\nab\tcdefgh\r\nabc\r\n"));
        Box(0, 3, 2, 9);
        m_zone.DeleteSelection(0);
        for (int n = 0; n < 2; ++n) {
            const std::string line = Line(n);
            EXPECT_EQ(line.substr(0, 1), "a");
            EXPECT_EQ(line.substr(line.size() - 2), "h\r");
        }
        Box(0, 2, 2, 2);
        m_zone.InsertText("1\r\n2\r\n3\r\n", 0, 1, 1);
        EXPECT_EQ(m_zone.GetLineCount(), 3);
        EXPECT_NE(Line(2).find('3'), std::string::npos);
        m_zone.SetFont(m_font);
    }
}

TEST_F(HostileInputTest, FarOutPlacesAreHeldWhereTheyComeIn) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef\r\n"));
    m_zone.SetSelection(0, 1, INT_MIN, INT_MAX, 0, 0);
    ExpectSelection(0, 0, 1, TZ_MAX_PLACE);
    m_zone.DeleteSelection(1);  // a stream ending far out
    EXPECT_EQ(Text(), "\r\n");

    ASSERT_TRUE(m_zone.SetText("abc\r\ndef\r\n"));
    Box(0, INT_MIN + 5, 1, INT_MAX);
    EXPECT_EQ(m_zone.m_nSelStartChar, 0);
    EXPECT_GT(m_zone.GetSelectedTextLength(0), 0);
    m_zone.RedrawTextZone();
    m_wnd.UpdateWindow();  // paints the box to its last column
    m_zone.SetSelectionMode(1);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);

    EXPECT_EQ(m_zone.GetLineTopPos(INT_MAX), INT_MAX);
    EXPECT_EQ(m_zone.GetLineTopPos(INT_MIN), INT_MIN);
    POINT far{INT_MAX, INT_MAX};
    m_zone.HandleLButtonDblClk(0, &far);  // behind the text: no word, and at once
    EXPECT_FALSE(m_zone.TestSelection());

    m_zone.BeginEditBlockInput();
    EXPECT_EQ(m_zone.AddEditBlockInput(INT_MIN, 5), 0);
    EXPECT_EQ(m_zone.AddEditBlockInput(-3, -1), 0);
    m_zone.EndEditBlockInput();
    EXPECT_TRUE(m_zone.m_editBlocks.empty());

    m_zone.SetTabWidth(INT_MIN);
    EXPECT_GT(m_zone.GetTextLength(TF_LEADING_TABS), 0);
}

TEST_F(HostileInputTest, EveryBookmarkBitSurvivesTheLineInfoCarrier) {
    for (int bit : {0, 15, 29, 30, 31}) {
        CStringEx from, to;
        from.m_dwBookmarks = (DWORD{1} << bit) | 1;
        std::unique_ptr<char[]> info(from.GetSpecificInfo());
        to.SetSpecificInfo(info.get());
        EXPECT_EQ(to.m_dwBookmarks, from.m_dwBookmarks) << "bit " << bit;
        to.SetSpecificInfo(nullptr);
        EXPECT_EQ(to.m_dwBookmarks, 0u);
    }
    // And through an edit and its undo, which keep the lines' info as text.
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd\r\n"));
    m_zone.SetLineBookmark(1, 31, 1);
    m_zone.SetLineBookmark(1, 30, 1);
    m_zone.SetSelection(0, 1, 1, 1, 0, 0);
    Edit(TZ_EDIT_DELETE_SELECTION);
    m_zone.Undo();
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBookmarks, 0xC0000000u);
}

TEST_F(HostileInputTest, BoxTextAtTheLineLimitLeavesTheLinesTheirEnds) {
    ASSERT_TRUE(m_zone.SetText("\r\nabc\r\n"));
    Box(0, INT_MAX, 1, INT_MAX);  // held at the longest line there can be
    m_zone.InsertText("xy\r\nxy\r\n", 0, 1, 1);
    ASSERT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_TRUE(m_zone.GetLine(0)->IsEnded());
    EXPECT_TRUE(m_zone.GetLine(1)->IsEnded());
    EXPECT_EQ(Line(1).substr(0, 3), "abc");
}
