// The parameter tooltip on the Qt backend: a top-level tool window that
// leaves the focus with the editor, yellow, with its active parameter bold.
#include <QApplication>
#include <QCoreApplication>
#include <QTest>

#include "QtFixture.h"
#include "colour/TextZoneColor.h"
#include "completion/CompletionTooltip.h"
#include "platform/Font.h"

namespace {

// An editor-like window: it paints its zone and hands it WM_USER.
class CParmWnd : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_USER) return m_zone.HandleUserMessage(wParam, lParam);
        if (message != WM_PAINT) return CWnd::WindowProc(message, wParam, lParam);
        PAINTSTRUCT ps;
        if (CDC* pDC = BeginPaint(&ps)) m_zone.HandlePaint(pDC);
        EndPaint(&ps);
        return 0;
    }
    CTextZoneColor m_zone;
};

class ParmTooltipPixelsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_wnd.Create(WS_VISIBLE, RECT{10, 20, 410, 320}, nullptr, 0));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(CQtPlatform::WidgetOf(&m_wnd)));
        QtFixture::PutZoneInWindow(m_wnd.m_zone, m_wnd, m_font);
        m_wnd.m_zone.SetParmCompletionMode(1);
        m_wnd.SetFocus();
    }
    void TearDown() override {
        m_wnd.m_zone.CloseParmTooltip(1);
        m_wnd.m_zone.HideCaret();
        m_wnd.DestroyWindow();
    }
    void Type(const char* psz) {
        for (; *psz; ++psz)
            m_wnd.m_zone.HandleChar(static_cast<unsigned char>(*psz), 1, 0);
        QtFixture::Pump();
    }
    // Dark pixels in the left and the right half of the tooltip's face.
    static std::pair<int, int> Ink(const QImage& image) {
        int left = 0;
        int right = 0;
        for (int y = 2; y < image.height() - 2; ++y)
            for (int x = 2; x < image.width() - 2; ++x)
                if (qGray(image.pixel(x, y)) < 100) ++(x < image.width() / 2 ? left : right);
        return {left, right};
    }
    CQtPlatform m_platform;
    CParmWnd m_wnd;
    CFont m_font;
};

TEST_F(ParmTooltipPixelsTest, TheActiveParameterIsDrawnBold) {
    m_wnd.m_zone.AddParmCompletionSet(1, "f", "f", "mmmmmm,mmmmmm", nullptr);
    QCoreApplication::processEvents();
    Type("f(");
    CCompletionTooltip* pTip = m_wnd.m_zone.m_pParmTooltip;
    ASSERT_NE(pTip, nullptr);
    auto* pWidget = dynamic_cast<CQtWindowWidget*>(CQtPlatform::WidgetOf(pTip));
    ASSERT_NE(pWidget, nullptr);
    EXPECT_TRUE(pWidget->isWindow());
    EXPECT_TRUE(pWidget->isVisible());
    EXPECT_TRUE(pWidget->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(CWnd::GetFocus(), &m_wnd);

    const QImage first = pWidget->Image().copy();
    ASSERT_GT(first.width(), 20);
    // A black frame round a yellow face.
    EXPECT_EQ(QtFixture::Pixel(first, 0, 0), 0u);
    EXPECT_EQ(QtFixture::Pixel(first, 2, first.height() / 2), 0x70FFFFu);

    Type("1,");
    const QImage second = pWidget->Image().copy();
    ASSERT_EQ(second.width(), first.width()) << "the same text, bold in another place";
    const auto [firstLeft, firstRight] = Ink(first);
    const auto [secondLeft, secondRight] = Ink(second);
    // The bold piece carries more ink: it moved from the left to the right.
    EXPECT_GT(firstLeft, secondLeft);
    EXPECT_LT(firstRight, secondRight);
}

}  // namespace
