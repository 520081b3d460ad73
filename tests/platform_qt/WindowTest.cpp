// Windows on Qt: geometry, paints, the message queue, caret and bars.
#include <QScrollBar>
#include <QTest>
#include <atomic>
#include <thread>

#include "QtFixture.h"
#include "platform/Caret.h"
#include "platform/PaintDC.h"
#include "platform/ScrollBar.h"
#include "platform/qt/QtScrollBar.h"

namespace {

using WindowTest = QtFixture;

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

// Paints its invalid region red and remembers each paint's clip box.
class CPaintingWnd : public CRecordingWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT) return CRecordingWnd::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        RECT box;
        dc->GetClipBox(&box);
        m_boxes.push_back(box);
        dc->FillSolidRect(&box, kRed);
        return CRecordingWnd::WindowProc(message, wParam, lParam);
    }
    std::vector<RECT> m_boxes;
};

QScrollBar* BarOf(QWidget* widget, Qt::Orientation orientation) {
    for (QScrollBar* bar : widget->findChildren<QScrollBar*>())
        if (bar->orientation() == orientation) return bar;
    return nullptr;
}

}  // namespace

TEST_F(WindowTest, ClientAreaExcludesBorderAndVisibleBarsAndResizingSendsSize) {
    RECT rc;
    m_wnd.GetWindowRect(&rc);
    EXPECT_EQ(rc, (RECT{10, 20, 410, 320}));
    int bar = GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_GT(bar, 0);
    m_wnd.ModifyStyle(0, WS_BORDER | WS_VSCROLL | WS_HSCROLL);
    m_wnd.GetClientRect(&rc);
    EXPECT_EQ(rc, (RECT{0, 0, 400 - 2 - bar, 300 - 2 - bar}));
    EXPECT_EQ(Image().size(), QSize(400 - 2 - bar, 300 - 2 - bar));
    ASSERT_GE(m_wnd.Count(WM_SIZE), 1);
    EXPECT_EQ(m_wnd.Messages().back().lParam, MAKELPARAM(400 - 2 - bar, 300 - 2 - bar));
    POINT pt{0, 0};
    m_wnd.ClientToScreen(&pt);
    EXPECT_EQ(pt, (POINT{11, 21}));

    // Qt resizing the widget reaches the window as WM_SIZE.
    m_wnd.ModifyStyle(WS_BORDER | WS_VSCROLL | WS_HSCROLL, 0);
    m_wnd.ClearMessages();
    Widget()->resize(300, 200);
    Pump();
    ASSERT_EQ(m_wnd.Count(WM_SIZE), 1);
    EXPECT_EQ(m_wnd.Messages().back().lParam, MAKELPARAM(300, 200));

    // A child sits in its parent's client coordinates.
    m_wnd.ModifyStyle(0, WS_BORDER);
    CRecordingWnd child;
    ASSERT_TRUE(child.Create(WS_CHILD | WS_VISIBLE, RECT{5, 6, 55, 46}, &m_wnd, 3));
    EXPECT_EQ(Widget(&child)->parentWidget(), Widget());
    pt = POINT{0, 0};
    child.ClientToScreen(&pt);
    EXPECT_EQ(pt, (POINT{10 + 1 + 5, 20 + 1 + 6}));
}

TEST_F(WindowTest, InvalidationIsPaintedByTheEventLoopWithItsRegionAndShown) {
    CPaintingWnd wnd;
    ASSERT_TRUE(wnd.Create(WS_VISIBLE, RECT{0, 0, 200, 100}, nullptr, 0));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Widget(&wnd)));
    Pump();
    ASSERT_FALSE(wnd.m_boxes.empty());  // the first paint covers the whole client area
    EXPECT_EQ(wnd.m_boxes.front(), (RECT{0, 0, 200, 100}));
    wnd.m_boxes.clear();
    CDC* dc = wnd.GetDC();  // white all over, outside any paint
    dc->FillSolidRect(0, 0, 200, 100, kWhite);
    wnd.ReleaseDC(dc);
    RECT part{20, 30, 60, 40};
    wnd.InvalidateRect(&part, FALSE);
    EXPECT_TRUE(wnd.m_boxes.empty());  // no paint before the loop runs
    Pump();
    ASSERT_EQ(wnd.m_boxes.size(), 1u);
    EXPECT_EQ(wnd.m_boxes[0], part);
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
    // What Qt shows is the image, painted only inside the region.
    QImage shown = Widget(&wnd)->grab().toImage();
    EXPECT_EQ(Pixel(shown, 20, 30), kRed);
    EXPECT_EQ(Pixel(shown, 60, 30), kWhite);

    // UpdateWindow paints at once.
    wnd.InvalidateRect(&part, FALSE);
    wnd.UpdateWindow();
    EXPECT_EQ(wnd.m_boxes.size(), 2u);
    Pump();
    EXPECT_EQ(wnd.m_boxes.size(), 2u);  // nothing left for Qt's paint
}

TEST_F(WindowTest, PostedMessagesArriveFromTheEventLoopInOrderFromAnyThread) {
    m_wnd.PostMessage(WM_USER, 1, 10);
    EXPECT_EQ(m_wnd.Count(WM_USER), 0);
    std::thread other([&] { ::PostMessageA(&m_wnd, WM_USER, 2, 20); });
    other.join();
    m_wnd.PostMessage(WM_USER + 1, 3, 30);
    // PeekMessage looks without taking, or takes a message out of turn.
    MSG msg;
    ASSERT_TRUE(PeekMessageA(&msg, &m_wnd, WM_USER + 1, WM_USER + 1, PM_NOREMOVE));
    EXPECT_EQ(msg.wParam, 3u);
    ASSERT_TRUE(PeekMessageA(&msg, &m_wnd, WM_USER, WM_USER, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 1u);
    EXPECT_FALSE(PeekMessageA(&msg, &m_wnd, WM_MOUSEFIRST, WM_MOUSELAST, PM_NOREMOVE));
    Pump();
    std::vector<WPARAM> order;
    for (const auto& m : m_wnd.Messages())
        if (m.message >= WM_USER) order.push_back(m.wParam);
    EXPECT_EQ(order, (std::vector<WPARAM>{2, 3}));

    // A window destroyed with messages waiting never hears them.
    CRecordingWnd gone;
    ASSERT_TRUE(gone.Create(0, RECT{0, 0, 10, 10}, nullptr, 0));
    gone.PostMessage(WM_USER);
    gone.DestroyWindow();
    EXPECT_FALSE(PeekMessageA(&msg, nullptr, WM_USER, WM_USER, PM_NOREMOVE));
    Pump();
}

TEST_F(WindowTest, CaretIsAnInvertingBarOverTheImageWhileShown) {
    CDC* dc = m_wnd.GetDC();
    dc->FillSolidRect(0, 0, 400, 300, kWhite);
    m_wnd.ReleaseDC(dc);
    auto shownAt = [&](int x, int y) { return Pixel(Widget()->grab().toImage(), x, y); };
    m_wnd.CreateSolidCaret(2, 16);
    CWnd::SetCaretPos(POINT{50, 60});
    Pump();
    EXPECT_EQ(shownAt(50, 60), kWhite);  // made hidden
    m_wnd.ShowCaret();
    const std::pair<POINT, COLORREF> probes[] = {
        {{50, 60}, kBlack}, {{51, 75}, kBlack}, {{52, 60}, kWhite}, {{50, 76}, kWhite}};
    for (const auto& [pt, cr] : probes)
        EXPECT_EQ(shownAt(pt.x, pt.y), cr) << pt.x << ',' << pt.y;
    EXPECT_EQ(Pixel(Image(), 50, 60), kWhite);  // never in the image
    QTest::qWait(CQtWindowWidget::kCaretBlinkMs + 100);  // it blinks
    EXPECT_EQ(shownAt(50, 60), kWhite);
    DestroyCaret();  // and once gone, does not come back
    QTest::qWait(CQtWindowWidget::kCaretBlinkMs + 100);
    EXPECT_EQ(shownAt(50, 60), kWhite);
}

TEST_F(WindowTest, OwnScrollBarsFollowTheWindowAndReportAsScrollMessages) {
    SCROLLINFO si;
    si.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    si.nMin = 0;
    si.nMax = 99;
    si.nPage = 10;
    si.nPos = 20;
    m_wnd.SetScrollInfo(SB_VERT, &si);
    QScrollBar* bar = BarOf(Widget(), Qt::Vertical);
    ASSERT_NE(bar, nullptr);
    Pump();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(std::vector<int>({bar->maximum(), bar->pageStep(), bar->value()}),
              std::vector<int>({90, 10, 20}));
    // A click on the lower arrow activates the window on its bar, then asks
    // it to scroll; the bar stays where the window keeps it.
    m_wnd.ClearMessages();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                      QPoint(bar->width() / 2, bar->height() - 3));
    ASSERT_GE(m_wnd.Count(WM_VSCROLL), 2);
    ASSERT_EQ(m_wnd.Messages()[0].message, WM_MOUSEACTIVATE);
    EXPECT_EQ(LOWORD(m_wnd.Messages()[0].lParam), HTVSCROLL);
    EXPECT_EQ(LOWORD(m_wnd.Messages()[1].wParam), SB_LINEDOWN);
    EXPECT_EQ(LOWORD(m_wnd.Messages()[2].wParam), SB_ENDSCROLL);
    EXPECT_EQ(bar->value(), 20);
    m_wnd.SetScrollPos(SB_VERT, 21);
    EXPECT_EQ(bar->value(), 21);

    m_wnd.ClearMessages();  // paging below the thumb
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    ASSERT_GE(m_wnd.Count(WM_VSCROLL), 1);
    EXPECT_EQ(LOWORD(m_wnd.Messages()[0].wParam), SB_PAGEDOWN);

    // Without a range the bar goes.
    m_wnd.SetScrollRange(SB_VERT, 0, 0);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(WindowTest, ScrollBarControlReportsToItsParentWithItsHandle) {
    CScrollBar sb;
    ASSERT_TRUE(sb.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, RECT{380, 0, 400, 300}, &m_wnd, 9));
    auto* bar = dynamic_cast<CQtScrollBar*>(CQtPlatform::WidgetOf(&sb));
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->orientation(), Qt::Vertical);
    EXPECT_EQ(bar->geometry(), QRect(380, 0, 20, 300));
    sb.SetScrollRange(0, 50);
    sb.SetScrollPos(7);
    EXPECT_EQ(bar->maximum(), 50);

    m_wnd.ClearMessages();
    bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    ASSERT_GE(m_wnd.Count(WM_VSCROLL), 1);
    EXPECT_EQ(LOWORD(m_wnd.Messages()[0].wParam), SB_LINEUP);
    EXPECT_EQ(m_wnd.Messages()[0].lParam, reinterpret_cast<LPARAM>(&sb));
    EXPECT_EQ(bar->value(), 7);
}

TEST_F(WindowTest, PopUpsAreTopLevelButPlacedLikeChildrenAndClosingAsksTheWindow) {
    CRecordingWnd popup;
    ASSERT_TRUE(popup.CreateEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, nullptr, nullptr,
                               WS_POPUP | WS_VISIBLE, RECT{5, 5, 105, 55}, &m_wnd, 0));
    QWidget* widget = Widget(&popup);
    EXPECT_TRUE(widget->isWindow());
    EXPECT_TRUE(widget->testAttribute(Qt::WA_ShowWithoutActivating));
    RECT rc;
    popup.GetWindowRect(&rc);
    EXPECT_EQ(rc, (RECT{15, 25, 115, 75}));
    popup.SetWindowPos(nullptr, 0, 0, 60, 30, SWP_NOMOVE);
    popup.GetWindowRect(&rc);
    EXPECT_EQ(rc, (RECT{15, 25, 75, 55}));

    // Qt's close goes to the window as WM_CLOSE, which destroys it by default.
    CRecordingWnd top;
    ASSERT_TRUE(top.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    Widget(&top)->close();
    EXPECT_EQ(top.Count(WM_CLOSE), 1);
    EXPECT_EQ(top.GetSafeHwnd(), nullptr);
    Pump();
}
