#include <thread>

#include "platform/Caret.h"
#include "platform/DC.h"
#include "platform/PaintDC.h"
#include "platform/ScrollBar.h"
#include "support/HeadlessTest.h"

namespace {

using WndTest = HeadlessTest;

RECT ClientOf(const CWnd& wnd) {
    RECT rc;
    wnd.GetClientRect(&rc);
    return rc;
}

// A window that paints a marker and remembers the clip box of its paint.
class CPaintingWnd : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT) return CWnd::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        dc->GetClipBox(&m_rcClip);
        dc->TextOut(0, 0, "x", 1);
        ++m_nPaints;
        return 0;
    }
    RECT m_rcClip;
    int m_nPaints = 0;
};

}  // namespace

TEST_F(WndTest, CreationSendsCreateThenSizeAndSizesFollowStyle) {
    ASSERT_GE(m_wnd.Messages().size(), 2u);
    EXPECT_EQ(m_wnd.Messages()[0].message, WM_CREATE);
    EXPECT_EQ(m_wnd.Messages()[1].message, WM_SIZE);
    EXPECT_EQ(m_wnd.Messages()[1].lParam, MAKELPARAM(400, 300));
    EXPECT_EQ(ClientOf(m_wnd), (RECT{0, 0, 400, 300}));

    CRecordingWnd framed;
    ASSERT_TRUE(framed.Create(WS_VISIBLE | WS_BORDER | WS_VSCROLL | WS_HSCROLL,
                              RECT{0, 0, 200, 100}, &m_wnd, 7));
    EXPECT_EQ(ClientOf(framed), (RECT{0, 0, 200 - 2 - 17, 100 - 2 - 17}));
    EXPECT_EQ(framed.GetParent(), &m_wnd);
    EXPECT_EQ(framed.GetDlgCtrlID(), 7u);
    // The child's client origin: parent's client at (10, 20), plus the border.
    POINT pt{0, 0};
    framed.ClientToScreen(&pt);
    EXPECT_EQ(pt, (POINT{11, 21}));
    framed.ScreenToClient(&pt);
    EXPECT_EQ(pt, (POINT{0, 0}));

    // Resizing tells the window once; the same size again tells nothing.
    framed.ClearMessages();
    framed.MoveWindow(0, 0, 300, 100, FALSE);
    framed.MoveWindow(0, 0, 300, 100, FALSE);
    EXPECT_EQ(framed.Count(WM_SIZE), 1);
    framed.DestroyWindow();
    EXPECT_TRUE(m_wnd.GetChildren().empty());
}

TEST_F(WndTest, InvalidRegionIsClippedPaintedOnceAndValidated) {
    CPaintingWnd wnd;
    ASSERT_TRUE(wnd.Create(WS_VISIBLE, RECT{0, 0, 100, 100}, nullptr, 0));
    wnd.ValidateRect(nullptr);
    RECT part{50, 50, 500, 60};
    wnd.InvalidateRect(&part, FALSE);
    RECT pending;
    ASSERT_TRUE(wnd.GetUpdateRect(&pending));
    EXPECT_EQ(pending, (RECT{50, 50, 100, 60}));

    wnd.UpdateWindow();
    EXPECT_EQ(wnd.m_nPaints, 1);
    EXPECT_EQ(wnd.m_rcClip, (RECT{50, 50, 100, 60}));
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
    wnd.UpdateWindow();  // nothing invalid: no paint
    EXPECT_EQ(wnd.m_nPaints, 1);

    // The marker at (0, 0) lay outside the clip and was not drawn.
    auto* peer = CHeadlessPlatform::Peer(&wnd);
    for (const DrawRecord& r : peer->GetDisplayList())
        EXPECT_NE(r.kind, DrawRecord::Text);
    ASSERT_EQ(peer->GetInvalidations().size(), 1u);
    EXPECT_EQ(peer->GetInvalidations()[0].rcBox, (RECT{50, 50, 100, 60}));

    // Validating a part leaves the rest; a region can be read back and offset.
    wnd.InvalidateRect(nullptr, FALSE);
    RECT top{0, 0, 100, 40};
    wnd.ValidateRect(&top);
    CRgn rgn;
    EXPECT_EQ(wnd.GetUpdateRgn(&rgn), SIMPLEREGION);
    rgn.GetRgnBox(&pending);
    EXPECT_EQ(pending, (RECT{0, 40, 100, 100}));
    wnd.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW);
    EXPECT_EQ(wnd.m_nPaints, 2);
}

TEST_F(WndTest, OwnScrollBarsClampShowAndHide) {
    EXPECT_FALSE(m_wnd.IsScrollBarVisible(SB_VERT));
    m_wnd.ClearMessages();
    m_wnd.SetScrollRange(SB_VERT, 0, 10);
    EXPECT_TRUE(m_wnd.IsScrollBarVisible(SB_VERT));
    EXPECT_EQ(ClientOf(m_wnd).right, 400 - 17);  // the bar takes room
    EXPECT_EQ(m_wnd.Count(WM_SIZE), 1);

    EXPECT_EQ(m_wnd.SetScrollPos(SB_VERT, 50), 0);
    EXPECT_EQ(m_wnd.GetScrollPos(SB_VERT), 10);
    EXPECT_EQ(m_wnd.SetScrollPos(SB_VERT, -3), 10);
    EXPECT_EQ(m_wnd.GetScrollPos(SB_VERT), 0);

    SCROLLINFO si;
    si.fMask = SIF_PAGE | SIF_POS;
    si.nPage = 4;
    si.nPos = 10;
    m_wnd.SetScrollInfo(SB_VERT, &si);
    EXPECT_EQ(m_wnd.GetScrollPos(SB_VERT), 7);  // the page ends at the maximum
    EXPECT_EQ(m_wnd.GetScrollLimit(SB_VERT), 7);

    m_wnd.SetScrollRange(SB_VERT, 0, 0);  // nothing to scroll: the bar goes
    EXPECT_FALSE(m_wnd.IsScrollBarVisible(SB_VERT));
    EXPECT_EQ(ClientOf(m_wnd).right, 400);

    // A bar control reports to its parent with itself in lParam.
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE | SBS_VERT, RECT{0, 0, 17, 100}, &m_wnd, 5));
    bar.SetScrollRange(0, 100);
    bar.SetScrollPos(30);
    EXPECT_EQ(bar.GetScrollPos(), 30);
    m_wnd.ClearMessages();
    bar.NotifyParent(SB_THUMBTRACK, 42);
    ASSERT_EQ(m_wnd.Count(WM_VSCROLL), 1);
    EXPECT_EQ(LOWORD(m_wnd.Messages().back().wParam), SB_THUMBTRACK);
    EXPECT_EQ(HIWORD(m_wnd.Messages().back().wParam), 42);
    EXPECT_EQ(m_wnd.Messages().back().lParam, reinterpret_cast<LPARAM>(&bar));
}

TEST_F(WndTest, PostedMessagesWaitForThePumpAndCanBePeeked) {
    m_wnd.ClearMessages();
    m_wnd.PostMessage(WM_USER, 1, 2);
    m_wnd.PostMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 4));
    std::thread other([&] { PostMessageA(&m_wnd, WM_USER + 1, 0, 0); });
    other.join();
    EXPECT_EQ(m_wnd.Count(WM_USER), 0);

    MSG msg;
    EXPECT_TRUE(PeekMessageA(&msg, &m_wnd, WM_MOUSEMOVE, WM_MOUSELAST, PM_NOREMOVE));
    EXPECT_EQ(msg.message, WM_MOUSEMOVE);
    EXPECT_FALSE(PeekMessageA(&msg, &m_wnd, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE));

    EXPECT_EQ(m_platform.PumpMessages(), 3);
    ASSERT_EQ(m_wnd.Messages().size(), 3u);
    EXPECT_EQ(m_wnd.Messages()[0].message, WM_USER);
    EXPECT_EQ(m_wnd.Messages()[0].lParam, 2);
    EXPECT_EQ(m_wnd.Messages()[1].message, WM_MOUSEMOVE);
    EXPECT_EQ(m_wnd.Messages()[2].message, WM_USER + 1u);

    // Messages for a window that is gone are dropped.
    CRecordingWnd gone;
    ASSERT_TRUE(gone.Create(0, RECT{0, 0, 10, 10}, nullptr, 0));
    gone.PostMessage(WM_USER);
    gone.DestroyWindow();
    EXPECT_EQ(m_platform.PumpMessages(), 0);
}

TEST_F(WndTest, FocusCaptureAndCaret) {
    CRecordingWnd other;
    ASSERT_TRUE(other.Create(WS_VISIBLE, RECT{0, 0, 10, 10}, nullptr, 0));
    m_wnd.SetFocus();
    m_wnd.ClearMessages();
    EXPECT_EQ(other.SetFocus(), &m_wnd);
    EXPECT_EQ(m_wnd.Count(WM_KILLFOCUS), 1);
    EXPECT_EQ(other.Count(WM_SETFOCUS), 1);
    EXPECT_EQ(CWnd::GetFocus(), &other);

    other.SetCapture();
    EXPECT_EQ(CWnd::GetCapture(), &other);
    m_platform.StealCapture();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);

    POINT pt;
    EXPECT_FALSE(GetCaretPos(&pt));
    m_wnd.CreateSolidCaret(0, 16);
    EXPECT_FALSE(GetCaretInfo().IsVisible());  // made hidden
    m_wnd.ShowCaret();
    EXPECT_TRUE(GetCaretInfo().IsVisible());
    m_wnd.HideCaret();
    m_wnd.HideCaret();
    m_wnd.ShowCaret();
    EXPECT_FALSE(GetCaretInfo().IsVisible());  // hides nest
    m_wnd.ShowCaret();
    CWnd::SetCaretPos(POINT{5, 6});
    EXPECT_EQ(CWnd::GetCaretPos(), CPoint(5, 6));
    EXPECT_FALSE(ShowCaret(&other));  // not its caret
    m_wnd.DestroyWindow();            // the caret goes with its window
    EXPECT_EQ(GetCaretInfo().pOwner, nullptr);
    EXPECT_EQ(CWnd::GetFocus(), &other);
}

TEST_F(WndTest, WindowTextAndDefaultHandling) {
    m_wnd.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("hello"));
    EXPECT_EQ(m_wnd.SendMessage(WM_GETTEXTLENGTH), 5);
    char buffer[4];
    EXPECT_EQ(m_wnd.SendMessage(WM_GETTEXT, sizeof buffer, reinterpret_cast<LPARAM>(buffer)), 3);
    EXPECT_STREQ(buffer, "hel");
    // A window context is released once.
    CDC* dc = m_wnd.GetDC();
    EXPECT_EQ(m_wnd.ReleaseDC(dc), 1);
    EXPECT_EQ(m_wnd.ReleaseDC(dc), 0);
    // An unhandled wheel goes up to the parent.
    CRecordingWnd child;
    ASSERT_TRUE(child.Create(WS_VISIBLE, RECT{0, 0, 10, 10}, &m_wnd, 0));
    m_wnd.ClearMessages();
    child.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(m_wnd.Count(WM_MOUSEWHEEL), 1);
    // Closing destroys.
    child.SendMessage(WM_CLOSE);
    EXPECT_EQ(child.GetSafeHwnd(), nullptr);
    EXPECT_EQ(child.Count(WM_DESTROY), 1);
    EXPECT_EQ(RegisterWindowMessageA("EditExLoadIniMessage"),
              RegisterWindowMessageA("EditExLoadIniMessage"));
    EXPECT_GE(RegisterWindowMessageA("commdlg_FindReplace"), 0xC000u);
}
