// Bookmarks: toggling, host bits, colours and the walk from mark to mark.
#include <string>
#include <utility>
#include <vector>

#include "KeyZoneTest.h"

namespace {

class BookmarkTest : public KeyZoneTest {
protected:
    void SetUp() override {
        KeyZoneTest::SetUp();
        m_zone.SetText("l0\rl1\rl2\rl3 long line\rl4\rl5\rl6\rl7\rl8\r");
    }
};

// Notes the lines that are asked to be redrawn.
class CRedrawZone : public CTestZone {
public:
    void RedrawLines(int nFirst, int nLast, int bUpdate) override {
        m_redraws.emplace_back(nFirst, nLast);
        CTestZone::RedrawLines(nFirst, nLast, bUpdate);
    }
    std::vector<std::pair<int, int>> m_redraws;
};

}  // namespace

TEST_F(BookmarkTest, CtrlF2TogglesTheUserBitOnTheCaretLine) {
    m_zone.SetLineBookmark(2, 4, 1);
    Caret(2, 1);
    Press(VK_F2, kCtrl);
    EXPECT_EQ(Bookmarks(2), 0x11u);
    Press(VK_F2, kCtrl);
    EXPECT_EQ(Bookmarks(2), 0x10u);

    // With a selection, the mobile end's line.
    m_zone.SetSelection(4, 6, 0, 1, 0, 0);
    Press(VK_F2, kCtrl);
    EXPECT_EQ(Bookmarks(6), 1u);
    EXPECT_EQ(Bookmarks(4), 0u);

    EXPECT_EQ(m_platform.GetBeepCount(), 0);
    Caret(9, 0);  // behind the last line end
    Press(VK_F2, kCtrl);
    EXPECT_EQ(m_platform.GetBeepCount(), 1);
}

TEST_F(BookmarkTest, F2WalksToTheNextAndShiftF2ToThePreviousWithWrap) {
    m_zone.SetLineBookmark(3, 0, 1);
    m_zone.SetLineBookmark(7, 0, 1);
    m_zone.SetLineBookmark(5, 1, 1);  // a host bit is no stop
    Caret(5, 2);
    Press(VK_F2);
    ExpectCaret(7, 2);
    Press(VK_F2);
    ExpectCaret(3, 2);
    Press(VK_F2, kShift);
    ExpectCaret(7, 2);
    Press(VK_F2, kShift);
    ExpectCaret(3, 2);

    // The index goes along, beyond the end of a shorter line too, and a
    // selection becomes a caret.
    m_zone.SetSelection(3, 3, 5, 12, 0, 0);
    Press(VK_F2);
    ExpectCaret(7, 12);
    EXPECT_EQ(m_platform.GetBeepCount(), 0);

    // From behind the text, both ways.
    Caret(9, 0);
    Press(VK_F2);
    ExpectCaret(3, 0);
    Caret(9, 0);
    Press(VK_F2, kShift);
    ExpectCaret(7, 0);
}

TEST_F(BookmarkTest, AWalkWithoutStopsBeepsAndALoneMarkUnderTheCaretIsFound) {
    m_zone.SetLineBookmark(4, 2, 1);
    Caret(4, 1);
    Press(VK_F2);
    Press(VK_F2, kShift);
    ExpectCaret(4, 1);
    EXPECT_EQ(m_platform.GetBeepCount(), 2);

    Bookmarks(4) |= 1;
    Press(VK_F2);
    Press(VK_F2, kShift);
    ExpectCaret(4, 1);
    EXPECT_EQ(m_platform.GetBeepCount(), 2);

    m_zone.SetText("");
    Press(VK_F2);
    EXPECT_EQ(m_platform.GetBeepCount(), 3);
}

TEST_F(BookmarkTest, HostBitsColoursAndImages) {
    CRedrawZone zone;
    zone.SetWindow(&m_wnd);
    zone.SetText("a\rb\r");
    zone.SetLineBookmark(1, 35, 1);  // bit numbers wrap at 32
    EXPECT_EQ(zone.GetLine(1)->m_dwBookmarks, 8u);
    zone.SetLineBookmark(1, 31, 1);
    EXPECT_EQ(zone.GetLine(1)->m_dwBookmarks, 0x80000008u);
    zone.m_redraws.clear();
    zone.SetLineBookmark(1, 3, 1);  // no change, no redraw
    zone.SetLineBookmark(5, 3, 1);  // no line
    EXPECT_TRUE(zone.m_redraws.empty());
    zone.SetLineBookmark(1, 3, 0);
    EXPECT_EQ(zone.GetLine(1)->m_dwBookmarks, 0x80000000u);
    EXPECT_EQ(zone.m_redraws, (std::vector<std::pair<int, int>>{{1, 1}}));

    zone.m_redraws.clear();
    zone.SetBookmarkColor(RGB(1, 2, 3), 15);
    EXPECT_EQ(zone.GetBookmarkColor(15), RGB(1, 2, 3));
    zone.SetBookmarkColor(RGB(1, 2, 3), 15);  // the same again: no repaint
    EXPECT_EQ(zone.m_redraws, (std::vector<std::pair<int, int>>{{0, TZ_TO_END}}));
    COLORREF before = zone.GetBookmarkColor(0);
    zone.SetBookmarkColor(RGB(9, 9, 9), 16);
    zone.SetBookmarkColor(RGB(9, 9, 9), -1);
    EXPECT_EQ(zone.GetBookmarkColor(0), before);
    EXPECT_EQ(zone.GetBookmarkColor(16), 0u);

    EXPECT_EQ(zone.GetBookmarkImageIndex(15), 15);
    EXPECT_EQ(zone.GetBookmarkImageIndex(16), 0);
}
