#include "support/ZoneTest.h"

#include <vector>

#include "platform/headless/HeadlessFonts.h"

void ZoneTest::SetUp() {
    HeadlessTest::SetUp();
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
    m_font.CreateFontIndirect(&lf);
    m_zone.SetWindow(&m_wnd);
    RECT client;
    m_wnd.GetClientRect(&client);
    m_zone.SetRect(&client);
    m_zone.SetFont(m_font);
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
