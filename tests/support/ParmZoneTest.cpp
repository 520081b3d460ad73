#include "support/ParmZoneTest.h"

#include "platform/Messages.h"
#include "support/ZoneWindow.h"

void CParmTestZone::OnNewParmCompletionRequest(int nKind, char const* pName) {
    m_requests.push_back(std::to_string(nKind) + " " + pName);
    if (m_onRequest) m_onRequest(nKind, pName);
}

LONG CParmTestZone::HandleUserMessage(std::uint64_t wParam, std::int64_t lParam) {
    ++m_deliveries[lParam];
    return CTextZoneColor::HandleUserMessage(wParam, lParam);
}

LRESULT CParmZoneWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_USER && m_pZone)
        return m_pZone->HandleUserMessage(wParam, static_cast<std::int64_t>(lParam));
    return CWnd::WindowProc(message, wParam, lParam);
}

void ParmZoneTest::SetUp() {
    ASSERT_TRUE(m_wnd.Create(WS_VISIBLE, RECT{10, 20, 410, 320}, nullptr, 1));
    m_wnd.m_pZone = &m_zone;
    PutZoneInWindow(m_zone, m_wnd, m_font);
    UseC();
}

void ParmZoneTest::TearDown() {
    m_zone.CloseParmTooltip(1);
    m_zone.HideCaret();
    m_wnd.m_pZone = nullptr;
    m_wnd.DestroyWindow();
}

void ParmZoneTest::UseSql() {
    m_zone.EnableSyntaxColor(1, 0, 1, 0, 1, 1, 4);
}

void ParmZoneTest::UseC() {
    m_zone.EnableSyntaxColor(1, 1, 0, 1, 0, 0, 0);
}

void ParmZoneTest::Type(const char* psz) {
    for (; *psz; ++psz) {
        if (*psz == '\n')
            m_zone.HandleKeyDown(VK_RETURN, 1, 0);
        else
            m_zone.HandleChar(static_cast<unsigned char>(*psz), 1, 0);
        // The window's loop runs between two key presses.
        m_platform.PumpMessages();
    }
}

void ParmZoneTest::Key(UINT nVirtKey) {
    m_zone.HandleKeyDown(nVirtKey, 1, 0);
    m_platform.PumpMessages();
}

void ParmZoneTest::Caret(int nLine, int nChar) {
    m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 0);
}

std::string ParmZoneTest::Line(int nLine) {
    CStringEx* pLine = m_zone.GetLine(nLine);
    if (!pLine) return "<none>";
    return std::string(pLine->c_str(), static_cast<size_t>(pLine->GetLength() - pLine->IsEnded()));
}

std::string ParmZoneTest::Shown() {
    CCompletionTooltip* pTip = m_zone.m_pParmTooltip;
    if (!pTip) return "";
    return std::string(pTip->GetBefore().c_str()) + "|" + pTip->GetActive().c_str() + "|" +
           pTip->GetAfter().c_str();
}

void ParmZoneTest::Answer(int nKind, const char* pName, const char* pParms, const char* pNames) {
    m_zone.AddParmCompletionSet(nKind, pName, pName, pParms, pNames);
}
