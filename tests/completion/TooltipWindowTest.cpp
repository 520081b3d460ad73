// The tooltip as a window: where it hangs, how big it is, what it paints.
#include <string>

#include "platform/Messages.h"
#include "platform/Platform.h"
#include "support/ParmZoneTest.h"

namespace {

class TooltipWindowTest : public ParmZoneTest {
protected:
    CCompletionTooltip* Tip() { return m_zone.m_pParmTooltip; }
    RECT TipRect() {
        RECT rc{};
        if (Tip()) Tip()->GetWindowRect(&rc);
        return rc;
    }
};

TEST_F(TooltipWindowTest, ItHangsBelowTheCaretLineUnderTheTrigger) {
    m_zone.m_onRequest = [this](int, const char* pName) { Answer(1, pName, "int a,int b"); };
    Type("\n  foo(");
    ASSERT_NE(Tip(), nullptr);
    EXPECT_EQ(CCompletionTooltip::GetOpenTooltip(), Tip());
    EXPECT_TRUE(Tip()->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_TRUE(Tip()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), nullptr) << "the tooltip never takes the focus";

    // Client point (width of "  foo(", top of line 2) on the screen.
    CDC* pDC = m_zone.GetStandardDC();
    POINT pt{m_zone.m_rcText.left + m_zone.GetTextWidth(pDC, "  foo(", 6),
             m_zone.m_rcText.top + m_zone.GetLinePosition(2)};
    m_zone.ReleaseStandardDC(pDC);
    m_wnd.ClientToScreen(&pt);
    RECT rc = TipRect();
    EXPECT_EQ(rc.left, pt.x);
    EXPECT_EQ(rc.top, pt.y);
    EXPECT_GT(rc.right - rc.left, 0);
    EXPECT_GT(rc.bottom - rc.top, 0);

    // It follows the caret down a line, keeping its size.
    const int width = rc.right - rc.left;
    Type("1,\n");
    rc = TipRect();
    EXPECT_EQ(rc.top, pt.y + m_zone.GetLinePosition(3) - m_zone.GetLinePosition(2));
    EXPECT_EQ(rc.right - rc.left, width);
}

TEST_F(TooltipWindowTest, ItPaintsTheActiveParameterBoldOnYellow) {
    m_zone.m_onRequest = [this](int, const char* pName) { Answer(1, pName, "int a,int b"); };
    Type("foo(1,");
    ASSERT_NE(Tip(), nullptr);
    auto* pPeer = CHeadlessPlatform::Peer(Tip());
    pPeer->ClearDisplayList();
    Tip()->RedrawWindow();

    std::string plain;
    std::string bold;
    bool bYellow = false;
    for (const DrawRecord& r : pPeer->GetDisplayList()) {
        if (r.kind != DrawRecord::Text && r.crFill == 0x70FFFF) bYellow = true;
        if (r.kind != DrawRecord::Text) continue;
        EXPECT_EQ(r.crText, 0u);
        (r.font.lfWeight >= 700 ? bold : plain) += r.text;
    }
    EXPECT_TRUE(bYellow);
    EXPECT_EQ(bold, "int b");
    EXPECT_EQ(plain, "foo ( int a, )");
}

TEST_F(TooltipWindowTest, AWideTooltipShiftsLeftButNotPastTheScreen) {
    std::string parms(60, 'w');
    m_zone.m_onRequest = [&](int, const char* pName) { Answer(1, pName, parms.c_str()); };
    m_wnd.MoveWindow(900, 20, 370, 300);
    Type("foo(");
    ASSERT_NE(Tip(), nullptr);
    RECT rc = TipRect();
    EXPECT_EQ(rc.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LT(rc.left, 900);

    // Wider than the screen: it starts at 0.
    m_zone.CloseParmTooltip(1);
    parms.assign(2000, 'w');
    Type(")\nbar(");
    ASSERT_NE(Tip(), nullptr);
    EXPECT_EQ(TipRect().left, 0);
}

TEST_F(TooltipWindowTest, CancelModeClosesItAndTellsTheEditor) {
    m_zone.m_onRequest = [this](int, const char* pName) { Answer(1, pName, "a"); };
    Type("foo(");
    ASSERT_NE(Tip(), nullptr);
    Tip()->SendMessage(WM_CANCELMODE);
    EXPECT_EQ(Tip(), nullptr);
    EXPECT_TRUE(m_zone.m_openParmComps.empty());
    std::vector<MSG> posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].message, WM_CANCELMODE);
    // A new call opens a new one, and the closed one is freed on the way.
    Type("foo(");
    EXPECT_NE(Tip(), nullptr);
}

}  // namespace
