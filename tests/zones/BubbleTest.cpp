// The bubble: the hover wait before it opens, what it holds, where it goes,
// and everything that closes it.
#include <string>

#include "ReadOnlyZone.h"
#include "zones/TooltipBubble.h"

namespace {

class BubbleTest : public ReadOnlyTest {
protected:
    void SetUp() override {
        ReadOnlyTest::SetUp();
        m_zone.SetText("see file.c here\r\nno tip on this line\r\nhelp line");
        m_zone.SetHyperlink(0, 0, 4, 10, 0, "Tip", 1, 0, 0);
        m_zone.GetReadOnlyLine(2)->SetHelp("Help\r\nmore");
    }
    // Lets the hover wait see n ticks of 100 ms go by.
    void Timers(int n) {
        for (int i = 0; i < n; ++i)
            m_wnd.PostMessage(WM_TIMER, 1, 0);
    }
    // Rests on a point long enough for a bubble; whether one is open.
    bool Rest(POINT pt) {
        Timers(8);
        Move(pt);
        return m_zone.m_pBubble != nullptr;
    }
    RECT BubbleRect() {
        RECT rc{};
        if (m_zone.m_pBubble) m_zone.m_pBubble->GetWindowRect(&rc);
        return rc;
    }
};

}  // namespace

TEST_F(BubbleTest, OpensAfterTheWaitUnderTheLine) {
    // 700 ms, then a click: not long enough.
    Timers(7);
    m_wnd.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, Lp(At(0, 5)));
    m_platform.SetTickCount(5000);
    Move(At(0, 5));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    m_platform.ClearPostedMessages();
    ASSERT_TRUE(Rest(At(0, 5)));
    EXPECT_EQ(CTooltipBubble::GetCurrent(), m_zone.m_pBubble);
    EXPECT_EQ(CWnd::GetCapture(), m_zone.m_pBubble);
    EXPECT_EQ(m_platform.GetHookCount(), 1);
    EXPECT_EQ(m_zone.m_nBubbleLine, 0);
    // One pixel under line 0, at the mouse's x, in screen coordinates; the
    // Arial of the headless platform is 12 pixels high, "Tip" 15 wide, and
    // 3 pixels of room go round the text.
    const POINT p = At(0, 5);
    EXPECT_EQ(BubbleRect(), (RECT{10 + p.x, 20 + 17, 10 + p.x + 21, 20 + 17 + 18}));
    ASSERT_EQ(m_zone.m_pBubble->GetLines().size(), 1u);

    // Moving within the link's text moves nothing.
    CTooltipBubble* pBubble = m_zone.m_pBubble;
    Move(At(0, 8));
    EXPECT_EQ(m_zone.m_pBubble, pBubble);
    EXPECT_EQ(BubbleRect().left, 10 + p.x);
    EXPECT_EQ(m_zone.m_ptBubble.x, At(0, 8).x);

    // Off the link onto text without a tip: it closes.
    Move(At(0, 1));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(m_platform.GetHookCount(), 0);
}

TEST_F(BubbleTest, InputDuringTheWaitCancelsIt) {
    // A move to another line waiting in the queue ends the wait.
    Timers(3);
    m_wnd.PostMessage(WM_MOUSEMOVE, 0, Lp(At(1, 2)));
    Move(At(0, 5));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    m_platform.ClearPostedMessages();
    // So does a key.
    Timers(2);
    m_wnd.PostMessage(WM_KEYDOWN, 'A', 0);
    Move(At(0, 5));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    m_platform.ClearPostedMessages();
    // Messages to other windows do not matter.
    CWnd other;
    ASSERT_TRUE(other.Create(0, RECT{0, 0, 10, 10}, nullptr, 2));
    other.PostMessage(WM_KEYDOWN, 'A', 0);
    Timers(8);
    Move(At(0, 5));
    EXPECT_NE(m_zone.m_pBubble, nullptr);
    m_zone.CloseBubble();
    other.DestroyWindow();
}

TEST_F(BubbleTest, HelpTextAndSwitchingTips) {
    ASSERT_TRUE(Rest(At(2, 1)));
    EXPECT_STREQ(m_zone.m_pBubble->GetText().c_str(), "Help\r\nmore");
    EXPECT_EQ(m_zone.m_pBubble->GetLines().size(), 2u);
    EXPECT_EQ(m_zone.m_nBubbleLine, 2);
    // Straight onto another tip: the bubble is replaced without a wait.
    Move(At(0, 5));
    ASSERT_NE(m_zone.m_pBubble, nullptr);
    EXPECT_STREQ(m_zone.m_pBubble->GetText().c_str(), "Tip");
    EXPECT_EQ(m_zone.m_nBubbleLine, 0);
}

TEST_F(BubbleTest, KeysCloseItButReleasingShiftOrF2DoesNot) {
    ASSERT_TRUE(Rest(At(0, 5)));
    m_platform.InjectHookKey(VK_SHIFT, true);
    m_platform.InjectHookKey(VK_F2, true);
    EXPECT_NE(m_zone.m_pBubble, nullptr);
    m_platform.InjectHookKey(VK_SHIFT, false);
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    EXPECT_EQ(m_platform.GetHookCount(), 0);

    // The mouse that has not moved does not bring it back, though the wait
    // runs out again.
    EXPECT_FALSE(Rest(At(0, 5)));
    ASSERT_TRUE(Rest(At(0, 6)));
    m_platform.InjectHookKey('X', true);  // any other release
    EXPECT_EQ(m_zone.m_pBubble, nullptr);

    // A key that reaches the zone closes it too.
    ASSERT_TRUE(Rest(At(0, 7)));
    m_wnd.SendMessage(WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
}

TEST_F(BubbleTest, AClickClosesItAndReachesTheTextUnderIt) {
    ASSERT_TRUE(Rest(At(0, 5)));
    m_platform.ClearPostedMessages();
    // A click at the bubble's (2, 2) lies on the zone's line 2.
    CWnd* pBubble = m_zone.m_pBubble;
    pBubble->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    auto posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    const MSG& msg = posted[0];
    EXPECT_TRUE(msg.hwnd == &m_wnd && msg.message == WM_LBUTTONDOWN && msg.wParam == MK_LBUTTON);
    EXPECT_EQ(msg.lParam, MAKELPARAM(At(0, 5).x + 2, 17 + 2));
    m_platform.PumpMessages();
    EXPECT_EQ(m_wnd.Count(WM_LBUTTONDOWN), 1);

    // Moves over the bubble always go on to the zone's window.
    m_platform.ClearPostedMessages();
    ASSERT_TRUE(Rest(At(0, 6)));
    m_platform.ClearPostedMessages();
    m_zone.m_pBubble->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].message, WM_MOUSEMOVE);
    // A cancel goes on as well, and closes.
    m_platform.ClearPostedMessages();
    m_zone.m_pBubble->SendMessage(WM_CANCELMODE, 0, 0);
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].message, WM_CANCELMODE);
}

TEST_F(BubbleTest, FocusLossAndTheLeftButtonCloseIt) {
    ASSERT_TRUE(Rest(At(0, 5)));
    Move(At(0, 6), MK_LBUTTON);
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    ASSERT_TRUE(Rest(At(0, 7)));
    m_platform.SetFocus(nullptr);
    Move(At(0, 8));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    // Without the focus the wait does not even start.
    Move(At(0, 4));
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
}

TEST_F(BubbleTest, LayoutOfLinesAndWrapping) {
    POINT pt{0, 0};
    auto open = [&](const char* pText) {
        m_zone.CloseBubble();
        pt.x += 1;  // a new point each time
        m_zone.OpenBubble(0, &pt, pText);
        return m_zone.m_pBubble ? m_zone.m_pBubble->GetLines() : std::vector<VESK::String>{};
    };
    auto joined = [](const std::vector<VESK::String>& lines) {
        std::string all;
        for (const auto& l : lines)
            all += std::string(l.c_str()) + "|";
        return all;
    };
    EXPECT_EQ(joined(open("a\r\nb")), "a|b|");
    EXPECT_EQ(joined(open("a\r\n\r\nb\n")), "a||b|");
    EXPECT_EQ(joined(open("a\n\n")), "a|");
    EXPECT_EQ(joined(open("\r\n")), "|");

    // Wider than 4/5 of the screen (1024 of 1280 pixels), at 6 pixels a
    // byte: wrapped at blanks and hyphens, which stay on the head.
    std::string words;
    for (int i = 0; i < 60; ++i)
        words += (i % 3 == 2) ? "well-made " : "word ";
    auto lines = open(words.c_str());
    ASSERT_GT(lines.size(), 1u);
    std::string back;
    for (const auto& l : lines) {
        std::string s = l.c_str();
        EXPECT_LE(static_cast<int>(s.size()) * 6, 1024) << s;
        EXPECT_TRUE(s.back() == ' ' || s.back() == '-' || &l == &lines.back()) << s;
        back += s;
    }
    EXPECT_EQ(back, words);
    // One long word is cut where it stops fitting.
    lines = open(std::string(200, 'x').c_str());
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].GetLength(), 170);
    EXPECT_EQ(lines[1].GetLength(), 30);
}

TEST_F(BubbleTest, KeptOnTheScreen) {
    // Near the bottom (the full screen is 1005 pixels high) the bubble is
    // pushed up; near the right edge it is pushed left.
    POINT pt{1265, 0};
    m_zone.OpenBubble(60, &pt, "Tip");
    ASSERT_NE(m_zone.m_pBubble, nullptr);
    EXPECT_EQ(BubbleRect(), (RECT{1280 - 21, 1005 - 18, 1280, 1005}));
    m_zone.CloseBubble();
    // A mouse that has not moved opens nothing.
    m_zone.OpenBubble(60, &pt, "Tip");
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
}
