#include "QtFixture.h"

#include <QCoreApplication>
#include <QTest>

#include "platform/Font.h"
#include "textzone/TextZone.h"

void QtFixture::SetUp() {
    ASSERT_TRUE(m_wnd.Create(WS_VISIBLE, RECT{10, 20, 410, 320}, nullptr, 0));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Widget()));
    Pump();
    m_wnd.ClearMessages();
}

void QtFixture::TearDown() {
    m_wnd.DestroyWindow();
    Pump();
}

void QtFixture::Pump() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void QtFixture::PutZoneInWindow(CTextZone& zone, CWnd& wnd, CFont& font) {
    LOGFONTA lf{};
    lf.lfHeight = -14;
    lf.lfPitchAndFamily = FIXED_PITCH;
    font.CreateFontIndirect(&lf);
    zone.SetWindow(&wnd);
    RECT rc;
    wnd.GetClientRect(&rc);
    zone.SetRect(&rc);
    zone.SetFont(font);
    zone.SetTabWidth(-4);
}

CQtWindowWidget* QtFixture::Widget(CWnd* pWnd) {
    return dynamic_cast<CQtWindowWidget*>(CQtPlatform::WidgetOf(pWnd ? pWnd : &m_wnd));
}

COLORREF QtFixture::Pixel(const QImage& image, int x, int y) {
    QRgb rgb = image.pixel(x, y);
    return RGB(qRed(rgb), qGreen(rgb), qBlue(rgb));
}
