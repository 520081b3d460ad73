// Fixture for engine tests: a headless window with a zone in it, the zone's
// text rectangle covering the client area and a fixed-pitch font of
// 16 pixels (8 pixels a byte) selected.
#pragma once

#include <string>

#include "platform/Font.h"
#include "support/HeadlessTest.h"
#include "textzone/TextZone.h"

// The engine with its protected operations opened for tests.
class CTestZone : public CTextZone {
public:
    using CTextZone::ComputeBlockUnit;
    using CTextZone::ComputeCharIndex;
    using CTextZone::ComputeParagraph;
    using CTextZone::CreateLine;
    using CTextZone::ExtendGranularity;
    using CTextZone::GetCurrentLineWidth;
    using CTextZone::GetHScrollOffset;
    using CTextZone::GetMaxLineWidth;
    using CTextZone::GetSpaceEquivalentLine;
    using CTextZone::GetStandardDC;
    using CTextZone::GetTextWidth;
    using CTextZone::GetVScrollOffset;
    using CTextZone::RebuildAllParagraphs;
    using CTextZone::ReleaseStandardDC;
};

// A fixed-pitch font of 16 pixels, 8 a byte.
void CreateFixedFont(CFont& font);
// Puts a zone in a window: its text rectangle the client area, the font selected.
void AttachZone(CTextZone& zone, CWnd& wnd, CFont& font);
// nLines lines "<prefix>0", "<prefix>1", ... each ended by pszEnd.
std::string Numbered(int nLines, const std::string& prefix = "line ", const char* pszEnd = "\r\n");
// "left,top,right,bottom"
std::string Box(const RECT& rc);

class ZoneTest : public HeadlessTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // The whole text with the given flags (CR LF line ends by default).
    std::string Text(WORD wFlags = TF_CRLF);
    // The raw bytes of a line, terminator included; "<none>" for no line.
    std::string Line(int nLine);
    void ExpectCaret(int nLine, int nChar);
    void ExpectSelection(int nStartLine, int nStartChar, int nEndLine, int nEndChar);
    // Gives another zone the fixture's window, rectangle and font.
    void Attach(CTextZone& zone);
    // One undo step as the editing commands record it: an insertion of the
    // text at the selection, or without a text a deletion of the selection.
    void Edit(short wKind, const char* pszText = nullptr);

    CFont m_font;
    CTestZone m_zone;
};
