#include "support/ZoneTest.h"

#include <vector>

#include "platform/headless/HeadlessFonts.h"

void CreateFixedFont(CFont& font) {
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
    font.CreateFontIndirect(&lf);
}

void AttachZone(CTextZone& zone, CWnd& wnd, CFont& font) {
    zone.SetWindow(&wnd);
    RECT client;
    wnd.GetClientRect(&client);
    zone.SetRect(&client);
    zone.SetFont(font);
}

void ZoneTest::SetUp() {
    HeadlessTest::SetUp();
    CreateFixedFont(m_font);
    Attach(m_zone);
}

void ZoneTest::Attach(CTextZone& zone) { AttachZone(zone, m_wnd, m_font); }

void ZoneTest::Edit(short wKind, const char* pszText) {
    m_zone.SetModify(1);
    m_zone.StartRegister(wKind);
    if (pszText)
        m_zone.InsertText(pszText, 0, 1, 1);
    else
        m_zone.DeleteSelection(1);
    m_zone.EndRegister();
}

std::string Numbered(int nLines, const std::string& prefix, const char* pszEnd) {
    std::string text;
    for (int i = 0; i < nLines; ++i)
        text += prefix + std::to_string(i) + pszEnd;
    return text;
}

std::string Box(const RECT& rc) {
    return std::to_string(rc.left) + "," + std::to_string(rc.top) + "," +
           std::to_string(rc.right) + "," + std::to_string(rc.bottom);
}

void ZoneTest::TearDown() {
    m_zone.HideCaret();
    HeadlessTest::TearDown();
}

std::string ZoneTest::Text(WORD wFlags) {
    // One byte more than the length and the 0: a one-byte line end is only
    // written with two bytes of room left.
    LONG size = m_zone.GetTextLength(wFlags) + 2;
    std::vector<char> buffer(static_cast<size_t>(size) + 8, '#');
    m_zone.GetText(buffer.data(), size, wFlags);
    return std::string(buffer.data());
}

std::string ZoneTest::Line(int nLine) {
    CStringEx* line = m_zone.GetLine(nLine);
    return line ? std::string(line->c_str(), static_cast<size_t>(line->GetLength())) : "<none>";
}

void ZoneTest::ExpectCaret(int nLine, int nChar) {
    EXPECT_EQ(m_zone.m_nSelStartLine, nLine);
    EXPECT_EQ(m_zone.m_nSelEndLine, nLine);
    EXPECT_EQ(m_zone.m_nSelStartChar, nChar);
    EXPECT_EQ(m_zone.m_nSelEndChar, nChar);
}

void ZoneTest::ExpectSelection(int nStartLine, int nStartChar, int nEndLine, int nEndChar) {
    EXPECT_EQ(m_zone.m_nSelStartLine, nStartLine);
    EXPECT_EQ(m_zone.m_nSelStartChar, nStartChar);
    EXPECT_EQ(m_zone.m_nSelEndLine, nEndLine);
    EXPECT_EQ(m_zone.m_nSelEndChar, nEndChar);
}
