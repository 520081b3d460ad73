#include <initializer_list>
#include <string>
#include <utility>

#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"

namespace {

class SelectionModeTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        m_zone.SetTabWidth(-4);  // four characters: 32 pixels
        ASSERT_TRUE(m_zone.SetText("a\tbcdef\r\n0123456789\r\nxy"));
    }
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
    // The point in the window at the left edge of byte nChar of a line.
    POINT At(int nLine, int nChar) { return POINT{nChar * 8, nLine * 16 + 8}; }
};

}  // namespace

TEST_F(SelectionModeTest, BoxModeIsRefusedForWrappedTextAndProportionalFonts) {
    m_zone.SetSelectionMode(TZ_SEL_BOX);
    m_zone.SetSelectionMode(7);  // not a mode: ignored
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_BOX);
    m_zone.SetSelectionMode(TZ_SEL_STREAM);
    m_zone.SetStyle(ZS_PARAGRAPH);
    m_zone.SetSelectionMode(TZ_SEL_BOX);
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_STREAM);
    m_zone.SetStyle(0);

    CFont prop;
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 16);
    prop.CreateFontIndirect(&lf);
    m_zone.SetFont(prop);
    EXPECT_TRUE(m_zone.IsFontProportionnal());
    m_zone.SetSelectionMode(TZ_SEL_BOX);
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_STREAM);
    m_zone.SetSelectionMode(TZ_SEL_LINES);
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_LINES);
    m_zone.SetFont(m_font);
}

TEST_F(SelectionModeTest, StreamToBoxAndBackConvertsIndexesAndColumns) {
    // From "b" (index 2, behind the tab: column 4) on line 0 to index 3 of line 1.
    Select(0, 2, 1, 3);
    m_zone.SetSelectionMode(TZ_SEL_BOX);
    // Columns are sorted: the end column 3 lies left of the start column 4.
    ExpectSelection(0, 3, 1, 4);
    // The root was at the start, so it takes the new start column, although
    // its own place became the end column.
    EXPECT_EQ(m_zone.GetSelRootChar(), 3);

    m_zone.SetSelectionMode(TZ_SEL_STREAM);
    // Column 3 on line 0 lies inside the tab; column 4 on line 1 is index 4.
    ExpectSelection(0, m_zone.ComputeCharIndex(0, 3), 1, 4);
}

TEST_F(SelectionModeTest, MobileEndMovesAndStreamEndsStayOrdered) {
    Select(0, 1, 1, 2);  // the root is the start
    EXPECT_EQ(std::pair(m_zone.GetSelRootLine(), m_zone.GetSelRootChar()), std::pair(0, 1));
    EXPECT_EQ(std::pair(m_zone.GetSelMobileLine(), m_zone.GetSelMobileChar()), std::pair(1, 2));
    // Moving the mobile end before the root swaps the ends, not the root.
    m_zone.DefineSelectionFromRoot(0, 0);
    ExpectSelection(0, 0, 0, 1);
    EXPECT_EQ(m_zone.GetSelMobileChar(), 0);
    m_zone.DefineSelectionFromRoot(2, 1);
    ExpectSelection(0, 1, 2, 1);
    m_zone.SetSelectionMode(TZ_SEL_LINES);
    m_zone.DefineSelectionFromRoot(0, 0);  // line mode leaves the selection alone
    ExpectSelection(0, 1, 2, 1);
}

TEST_F(SelectionModeTest, BoxGrowsInAllDirectionsAndAPointBecomesAnIndex) {
    m_zone.SetSelection(0, 1, 4, 6, TZ_SEL_BOX, 0);  // lines 0 and 1, columns 4 to 6
    m_zone.DefineSelectionFromRoot(1, 2);  // left of the root: columns 2 to 4
    ExpectSelection(0, 2, 1, 4);
    EXPECT_EQ(m_zone.GetSelMobileChar(), 2);
    // Back onto the root: column 4 of line 0 is the byte behind the tab.
    m_zone.DefineSelectionFromRoot(0, 4);
    EXPECT_EQ(m_zone.TestSelection(), 0);
    ExpectCaret(0, 2);

    // Starting a box selection at a caret turns its index into a column.
    m_zone.SetSelection(0, 0, 2, 2, 0, 0);
    m_zone.StartSelection();
    EXPECT_EQ(std::pair(m_zone.GetSelRootChar(), m_zone.m_nSelEndChar), std::pair(4, 4));
}

TEST_F(SelectionModeTest, CancelCollapsesOntoTheMobileEnd) {
    Select(0, 1, 1, 2);
    m_zone.CancelSelection(0);
    ExpectCaret(1, 2);
    EXPECT_EQ(std::pair(m_zone.GetSelRootLine(), m_zone.GetSelRootChar()), std::pair(1, 2));

    m_zone.SetSelection(0, 1, 4, 6, 2, 0);
    m_zone.m_nSelRootLine = 1;  // grown up and to the left from (1, 6)
    m_zone.m_nSelRootChar = 6;
    m_zone.CancelSelection(1);
    ExpectCaret(0, 2);  // column 4 of line 0 as a byte index
    EXPECT_EQ(m_zone.GetSelRootChar(), 2);
}

TEST_F(SelectionModeTest, PointsInStreamAndBoxSelections) {
    auto in = [&](std::initializer_list<POINT> points) {
        std::string s;
        for (POINT pt : points)
            s += static_cast<char>('0' + m_zone.PtInSelection(&pt));
        return s;
    };
    EXPECT_EQ(in({At(1, 3)}), "0");  // nothing selected
    Select(1, 2, 1, 5);
    EXPECT_EQ(in({At(1, 2), At(1, 4), At(1, 5), At(0, 3)}), "1100");
    // "b" behind the tab, outside, a line between, the last line.
    Select(0, 2, 2, 1);
    EXPECT_EQ(in({POINT{32, 8}, At(0, 0), At(1, 0), At(2, 0), At(2, 1)}), "10110");
    // The last line of a box is outside, whatever the column.
    m_zone.SetSelection(0, 1, 1, 3, TZ_SEL_BOX, 0);
    EXPECT_EQ(in({At(0, 1), At(1, 2)}), "10");
}
