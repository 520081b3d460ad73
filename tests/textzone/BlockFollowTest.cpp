// Collapsible blocks through edits of their lines: they keep their extent
// and what they hide, and nothing stays hidden outside a closed block.
#include <string>

#include "support/ZoneTest.h"

namespace {

class BlockFollowTest : public ZoneTest {
protected:
    void SetLines(int n) { ASSERT_TRUE(m_zone.SetText(Numbered(n).c_str())); }
    // One letter a line: h hidden, c head of a closed block, o of an open one.
    std::string Shape() {
        std::string s;
        for (int n = 0; n < m_zone.GetLineCount(); ++n) {
            DWORD f = m_zone.GetLine(n)->m_dwBlockFlags;
            s += (f & 4) ? 'h' : (f & 2) ? 'c' : (f & 1) ? 'o' : '.';
        }
        return s;
    }
    std::string Extent() {
        std::string s;
        for (auto& pBlk : m_zone.m_editBlocks)
            s +=
                std::to_string(pBlk->m_nFirstLine) + "+" + std::to_string(pBlk->m_nLineCount) + " ";
        return s;
    }
};

}  // namespace

TEST_F(BlockFollowTest, TextPastedIntoABlockLineGrowsTheBlock) {
    SetLines(8);
    m_zone.SetEditBlock(1, 5);
    m_zone.SetSelection(3, 3, 2, 2, 0, 0);
    m_zone.InsertText("X\r\nY", 0, 1, 1);
    EXPECT_EQ(Extent(), "1+6 ");
    m_zone.SetSelection(2, 2, 1, 1, 0, 0);
    m_zone.InsertText("Z", 0, 1, 1);  // one line: the extent stays
    EXPECT_EQ(Extent(), "1+6 ");
}

TEST_F(BlockFollowTest, LinesRemovedInsideAClosedBlockLeaveTheRestHiddenInIt) {
    SetLines(10);
    m_zone.SetEditBlock(1, 6);
    m_zone.CloseBlock(1, 0);
    ASSERT_EQ(Shape(), ".chhhhh...");
    m_zone.RemoveLines(3, 2);
    EXPECT_EQ(Extent(), "1+4 ");
    EXPECT_EQ(Shape(), ".chhh...");
    m_zone.OpenBlock(1, 0);
    EXPECT_EQ(Shape(), ".o......");
}

TEST_F(BlockFollowTest, ABlockRightBehindRemovedLinesMovesUp) {
    SetLines(10);
    m_zone.SetEditBlock(5, 2);
    m_zone.RemoveLines(3, 2);
    EXPECT_EQ(Extent(), "3+2 ");
    EXPECT_EQ(Shape(), "...o....");
}
