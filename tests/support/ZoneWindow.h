// A zone in a window for tests: its text rectangle the window's client area,
// in the fixed-pitch test font of 16 pixels (8 pixels a byte).
#pragma once

#include "platform/Font.h"
#include "support/HeadlessTest.h"
#include "textzone/TextZone.h"

// Puts the zone in the window; creates the font first when it has none.
void PutZoneInWindow(CTextZone& zone, CWnd& wnd, CFont& font);

// A zone of the given class in the fixture's window.
template <class Zone>
class ZoneWindowTest : public HeadlessTest {
protected:
    void SetUp() override {
        HeadlessTest::SetUp();
        PutZoneInWindow(m_zone, m_wnd, m_font);
    }
    void TearDown() override {
        m_zone.HideCaret();
        HeadlessTest::TearDown();
    }

    CFont m_font;
    Zone m_zone;
};
