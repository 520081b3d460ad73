// A Qt platform with a shown top-level window of 400 x 300 pixels whose
// messages tests can watch, and helpers to let Qt run and read pixels.
#pragma once

#include <gtest/gtest.h>

#include <QImage>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtWindowWidget.h"
#include "support/HeadlessTest.h"

class CFont;
class CTextZone;

class QtFixture : public ::testing::Test {
public:
    static COLORREF Pixel(const QImage& image, int x, int y);
    // Lets Qt deliver what is pending (posted events, paints).
    static void Pump();
    // Puts the zone in the window's client area, in a fixed-pitch font of
    // 14 pixels that the function creates, tabs of 4 characters.
    static void PutZoneInWindow(CTextZone& zone, CWnd& wnd, CFont& font);

protected:
    void SetUp() override;
    void TearDown() override;

    CQtWindowWidget* Widget(CWnd* pWnd = nullptr);
    // The window's backing image, in client coordinates.
    QImage& Image(CWnd* pWnd = nullptr) { return Widget(pWnd)->Image(); }

    CQtPlatform m_platform;
    CRecordingWnd m_wnd;
};
