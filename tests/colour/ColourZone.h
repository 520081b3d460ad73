// A coloured zone with its protected operations opened for tests, each syntax
// class in a colour of its own, and the runs of a line written out by class
// name ("0 KeyWord1, 7 Text").
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "support/ZoneWindow.h"

class CTestColorZone : public CTextZoneColor {
public:
    using CTextZoneColor::AddColorDef;
    using CTextZoneColor::AddTokenRuns;
    using CTextZoneColor::BuildEmbeddedColor;
    using CTextZoneColor::CloseColorDef;
    using CTextZoneColor::ContinuationPass;
    using CTextZoneColor::CreateLine;
    using CTextZoneColor::DefineColors;
    using CTextZoneColor::FindOpener;
    using CTextZoneColor::GetEndEmbeddedType;
    using CTextZoneColor::GetHScrollOffset;
    using CTextZoneColor::ResetLastLines;
    using CTextZoneColor::StartWithWhat;
    using CTextZoneColor::TokenPass;
    using CTextZoneColor::TokenRun;
};

// The colour a test gives class c (1 to 9), and the zone's text colour.
constexpr COLORREF TestClassColor(unsigned int c) {
    return 0x100000 + c;
}
constexpr COLORREF kTestTextColor = 0x000042;

// The class name of a colour as the tests give them.
std::string ClassName(COLORREF cr);

// A coloured zone in a headless window (the engine loads text only into a
// zone that has one), with the test colours.
class ColourTest : public ZoneWindowTest<CTestColorZone> {
protected:
    void SetUp() override;
    // Puts another zone in the same window, as SetUp does with m_zone.
    void Attach(CTextZoneColor& zone);

    // The runs of a line: "pos Class" joined by ", "; empty for no runs.
    std::string Runs(int nLine);
    // Sets the text and gives the runs of one of its lines.
    std::string RunsOf(const char* pszText, int nLine = 0);
    // The runs the zone holds now, in the form of Runs, and frees them.
    std::string TakeRuns();
    // Sets the text and gives the start state of each of its lines.
    std::vector<unsigned int> States(const char* pszText);
    using S = std::vector<unsigned int>;
    // The runs of every line with the text each run covers, one run a line:
    // the form of the golden files.
    std::string Dump();
};
