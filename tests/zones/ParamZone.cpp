#include "ParamZone.h"

#include "support/ZoneTest.h"

void ParamTest::SetUp() {
    HeadlessTest::SetUp();
    CreateFixedFont(m_font);
    AttachZone(m_zone, m_wnd, m_font);
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
