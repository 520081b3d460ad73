// Fixture for the keyword-case zone: a headless window, a fixed-pitch font of
// 16 pixels (8 a byte), T-SQL colouring, and helpers that type as a user does.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Font.h"
#include "platform/Messages.h"
#include "support/HeadlessTest.h"
#include "zones/TextZoneParam.h"

class CTestParamZone : public CTextZoneParam {
public:
    using CTextZoneParam::AnalyzeLine;
    using CTextZoneParam::m_bRescanPending;
    using CTextZoneParam::m_keywordLists;
};

class ParamTest : public HeadlessTest {
protected:
    static constexpr unsigned int kTransactSql = 14;

    void SetUp() override;
    void TearDown() override;

    // Text set without any conversion, the caret placed at (nLine, nChar).
    void Start(const char* pszText, int nLine, int nChar);
    void Type(const std::string& chars);
    void Key(UINT nKey) { m_zone.HandleKeyDown(nKey, 1, 0); }
    // The bytes of a line without its end; "<none>" for no line.
    std::string Line(int n = 0);
    POINT At(int nLine, int nChar);

    CFont m_font;
    CTestParamZone m_zone;
};
