#include "QtFixture.h"

#include <QCoreApplication>
#include <QTest>

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
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents);
}

CQtWindowWidget* QtFixture::Widget(CWnd* pWnd) {
    return dynamic_cast<CQtWindowWidget*>(CQtPlatform::WidgetOf(pWnd ? pWnd : &m_wnd));
}

COLORREF QtFixture::Pixel(const QImage& image, int x, int y) {
    QRgb rgb = image.pixel(x, y);
    return RGB(qRed(rgb), qGreen(rgb), qBlue(rgb));
}
