#include "ParamZone.h"

#include "platform/headless/HeadlessFonts.h"

void ParamTest::SetUp() {
    HeadlessTest::SetUp();
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
    m_font.CreateFontIndirect(&lf);
    m_zone.SetWindow(&m_wnd);
    RECT client;
    m_wnd.GetClientRect(&client);
    m_zone.SetRect(&client);
    m_zone.SetFont(m_font);
    m_zone.SetSQLSyntaxColor(kTransactSql);
    m_wnd.SetFocus();
}

void ParamTest::TearDown() {
    m_zone.HideCaret();
    HeadlessTest::TearDown();
}

void ParamTest::Start(const char* pszText, int nLine, int nChar) {
    m_zone.SetText(pszText);
    m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 1);
}

void ParamTest::Type(const std::string& chars) {
    for (char c : chars)
        m_zone.HandleChar(static_cast<unsigned char>(c), 1, 0);
}

std::string ParamTest::Line(int n) {
    CStringEx* p = m_zone.GetLine(n);
    return p ? std::string(p->c_str(), static_cast<size_t>(p->GetLength() - p->IsEnded()))
             : "<none>";
}

POINT ParamTest::At(int nLine, int nChar) {
    // Fixed pitch: 8 pixels a byte, 16 a line, from the text rectangle's origin.
    return POINT{m_zone.m_rcText.left + nChar * 8 + 1, m_zone.m_rcText.top + nLine * 16 + 4};
}
