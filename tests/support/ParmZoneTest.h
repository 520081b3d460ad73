// Fixture for parameter tooltips: a coloured zone in a headless window that
// hands WM_USER to the zone, as the editor windows do, and a host that
// notes every question and may answer at once.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "completion/CompletionTooltip.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessPlatform.h"

class CParmTestZone : public CTextZoneColor {
public:
    void OnNewParmCompletionRequest(int nKind, char const* pName) override;
    LONG HandleUserMessage(std::uint64_t wParam, std::int64_t lParam) override;
    using CTextZoneColor::GetStandardDC;
    using CTextZoneColor::GetTextWidth;
    using CTextZoneColor::ReleaseStandardDC;

    // "kind name" of each question, in order.
    std::vector<std::string> m_requests;
    // Called on each question; may answer at once.
    std::function<void(int, const char*)> m_onRequest;
    // How often each answer reached the window's thread.
    std::map<std::int64_t, int> m_deliveries;
};

class CParmZoneWnd : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    CTextZoneColor* m_pZone = nullptr;
};

class ParmZoneTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // A T-SQL-like language (calls without parentheses, [ ] names, -- and
    // nested /* */ comments), or a C-like one.
    void UseSql();
    void UseC();
    // Types bytes one by one; "\n" is the Enter key.
    void Type(const char* psz);
    void Key(UINT nVirtKey);
    void Caret(int nLine, int nChar);
    int Pump() { return m_platform.PumpMessages(); }
    std::string Line(int nLine);
    // The tooltip's three pieces as "before|bold|after"; "" when none shows.
    std::string Shown();
    // The answer of the host in the form the zone keeps.
    void Answer(int nKind, const char* pName, const char* pParms, const char* pNames = nullptr);

    CHeadlessPlatform m_platform;
    CParmZoneWnd m_wnd;
    CFont m_font;
    CParmTestZone m_zone;
};
