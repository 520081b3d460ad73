// Fixture for the read-only zone: a headless window that hands mouse and
// key messages to a zone in it (as an editor window does), a fixed-pitch
// font of 16 pixels (8 a byte), colouring off so that the runs are the
// marks', and readers for runs and what a paint drew.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessPlatform.h"
#include "support/HeadlessTest.h"
#include "zones/TextZoneReadOnly.h"

class CTestReadOnlyZone : public CTextZoneReadOnly {
public:
    using CTextZoneReadOnly::BuildHilighFont;
    using CTextZoneReadOnly::DefineColors;
    using CTextZoneReadOnly::GetReadOnlyLine;

    struct Opened {
        POINT point;
        int nLine1, nLine2, nChar1, nChar2;
        std::string text;
        LinkIdList ids;
        LinkDataList data;
        LinkKindList kinds;
    };
    std::vector<Opened> m_opened;

    void OpenHyperlinks(POINT point, int nLine1, int nLine2, int nChar1, int nChar2,
                        char const* pText, LinkIdList const& ids, LinkDataList const& data,
                        LinkKindList const& kinds) override {
        m_opened.push_back(Opened{point, nLine1, nLine2, nChar1, nChar2, pText, ids, data, kinds});
    }
};

// The zone's window. Each WM_TIMER moves the headless clock on by 100 ms:
// the hover wait dispatches timers while it polls, so a test scripts the
// passing of time by posting them.
class CZoneWnd : public CRecordingWnd {
public:
    CTextZoneReadOnly* m_pZone = nullptr;
    CHeadlessPlatform* m_pPlatform = nullptr;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class ReadOnlyTest : public ::testing::Test {
protected:
    static constexpr COLORREF kText = 0x000042;
    static constexpr COLORREF kBack = 0xFFFFFF;
    static constexpr COLORREF kSelText = 0xFFFFFF;
    static constexpr COLORREF kSelBack = 0x800000;

    void SetUp() override;
    void TearDown() override;

    // The runs of a line: "pos colour+marks" joined by ", ", the colour
    // "Text" for the zone's text colour, marks H(ighlight) L(ink) Y(ellow)
    // P(ink) S (pastel).
    std::string Runs(int nLine);
    // Paints the whole window and gives the text records of a row:
    // "text:#RRGGBB/#RRGGBB" (text on background), with "!b" for a bold
    // font and "!u" for an underlined one.
    std::string Row(int nLine);
    // The client point on column c of line l.
    static POINT At(int nLine, int nChar) { return POINT{nChar * 8 + 2, nLine * 16 + 5}; }
    static LPARAM Lp(POINT pt) { return MAKELPARAM(pt.x, pt.y); }
    void Press(POINT pt);
    void Release(POINT pt);
    void Move(POINT pt, UINT nFlags = 0);

    CHeadlessPlatform m_platform;
    CZoneWnd m_wnd;
    CFont m_font;
    CTestReadOnlyZone m_zone;
};
