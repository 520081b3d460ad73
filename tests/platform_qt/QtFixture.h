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

class QtFixture : public ::testing::Test {
public:
    static COLORREF Pixel(const QImage& image, int x, int y);

protected:
    void SetUp() override;
    void TearDown() override;

    // Lets Qt deliver what is pending (posted events, paints).
    static void Pump();
    CQtWindowWidget* Widget(CWnd* pWnd = nullptr);
    // The window's backing image, in client coordinates.
    QImage& Image(CWnd* pWnd = nullptr) { return Widget(pWnd)->Image(); }

    CQtPlatform m_platform;
    CRecordingWnd m_wnd;
};
