// The engine painting on the Qt backend: real pixels of a zone.
#include <QCoreApplication>
#include <QTest>
#include <string>

#include "QtFixture.h"
#include "platform/Caret.h"
#include "platform/Font.h"
#include "support/ZoneTest.h"
#include "textzone/TextZone.h"

namespace {

// A window that paints its zone, as the editor windows do.
class CZoneWnd : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT) return CWnd::WindowProc(message, wParam, lParam);
        PAINTSTRUCT ps;
        if (CDC* pDC = BeginPaint(&ps)) m_zone.HandlePaint(pDC);
        EndPaint(&ps);
        return 0;
    }
    CTestZone m_zone;
};

class ZonePaintTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_wnd.Create(WS_VISIBLE | WS_HSCROLL | WS_VSCROLL, RECT{10, 20, 410, 320},
                                 nullptr, 0));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Widget()));
        QtFixture::PutZoneInWindow(Zone(), m_wnd, m_font);
    }
    void TearDown() override {
        Zone().HideCaret();
        m_wnd.DestroyWindow();
    }
    CTestZone& Zone() { return m_wnd.m_zone; }
    CQtWindowWidget* Widget() {
        return dynamic_cast<CQtWindowWidget*>(CQtPlatform::WidgetOf(&m_wnd));
    }
    // Paints what is pending and gives the window's image.
    QImage Painted() {
        m_wnd.UpdateWindow();
        QtFixture::Pump();
        return Widget()->Image().copy();
    }
    QImage Repainted() {
        m_wnd.Invalidate(FALSE);
        return Painted();
    }
    int CharWidth() { return Zone().m_nCharWidth; }
    int LineHeight() { return Zone().m_nLineHeight; }
    // Pixels of a line's row, between two x, that have the colour.
    static int Count(const QImage& image, int y0, int y1, int x0, int x1, COLORREF cr) {
        int n = 0;
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x)
                if (QtFixture::Pixel(image, x, y) == cr) ++n;
        return n;
    }

    CQtPlatform m_platform;
    CZoneWnd m_wnd;
    CFont m_font;
};

}  // namespace

TEST_F(ZonePaintTest, SelectedTextStandsInTheSelectionColours) {
    ASSERT_TRUE(Zone().SetText("SELECT name FROM t\r\n"));
    Zone().SetSelection(0, 0, 7, 11, 0, 1);
    QImage image = Painted();
    const int h = LineHeight(), w = CharWidth();
    const COLORREF selBack = GetSysColor(COLOR_HIGHLIGHT);
    // The selected cells are mostly the highlight; the cells before are not.
    const int cells = 4 * w * h;
    EXPECT_GT(Count(image, 0, h, 7 * w, 11 * w, selBack), cells / 3);
    EXPECT_EQ(Count(image, 0, h, 0, 6 * w, selBack), 0);
    // The selection's text is drawn in the highlighted text colour.
    EXPECT_GT(Count(image, 0, h, 7 * w, 11 * w, GetSysColor(COLOR_HIGHLIGHTTEXT)), 0);
}

TEST_F(ZonePaintTest, ALineOfOverAThousandBytesHasNoGapWherePiecesMeet) {
    ASSERT_TRUE(Zone().SetText((std::string(1100, 'M') + "\r\n").c_str()));
    Zone().SetSelection(0, 0, 0, 0, 0, 0);
    // Scroll so that bytes 1000 to about 1040 are in view.
    Zone().SetFirstVisiblePosition(0, 500);
    QImage image = Painted();
    const int h = LineHeight(), w = CharWidth();
    const int offset = Zone().GetHScrollOffset();
    ASSERT_EQ(offset, 1000 * w);
    RECT rc;
    Zone().GetRect(&rc);
    // Every whole cell in view holds ink of its "M".
    for (int x = 0; x + w <= rc.right - rc.left; x += w)
        EXPECT_GT(Count(image, 0, h, x, x + w, RGB(0, 0, 0)), 0) << "cell at x " << x;
}

TEST_F(ZonePaintTest, ScrollingALineMatchesAFullRepaint) {
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "line " + std::to_string(i) + " of the text\r\n";
    ASSERT_TRUE(Zone().SetText(text.c_str()));
    Zone().SetSelection(0, 0, 0, 0, 0, 1);
    Painted();
    Zone().HandleVScroll(SB_LINEDOWN, 0, nullptr);
    QImage scrolled = Painted();
    QImage repainted = Repainted();
    EXPECT_EQ(scrolled, repainted);
    EXPECT_EQ(Zone().GetVScrollOffset(), LineHeight());
}

TEST_F(ZonePaintTest, TheCaretStandsAtItsCharacter) {
    ASSERT_TRUE(Zone().SetText("abc\r\ndefgh\r\n"));
    m_wnd.SetFocus();
    Zone().HandleSetFocus(nullptr);
    Zone().SetSelection(1, 1, 3, 3, 0, 1);
    Painted();
    POINT pt{};
    ASSERT_TRUE(GetCaretPos(&pt));
    EXPECT_EQ(pt.x, 3 * CharWidth());
    EXPECT_EQ(pt.y, LineHeight());
    EXPECT_EQ(GetCaretInfo().pOwner, &m_wnd);
}
