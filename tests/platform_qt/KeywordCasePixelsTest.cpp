// Keyword case on the Qt backend: typing "select x" with keyword mode 1 shows
// the very pixels of "SELECT x", and not those of what was typed.
#include <QApplication>
#include <QTest>

#include "QtFixture.h"
#include "editor/qt/QtEditorWidget.h"
#include "zones/TextZoneParam.h"

TEST(KeywordCasePixelsTest, TypedSelectShowsInUpperCase) {
    CQtPlatform platform;
    CTextZoneParam zone;
    {
        CQtEditorWidget editor(nullptr, 0, &zone);
        editor.resize(400, 120);
        editor.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&editor));
        zone.SetSQLSyntaxColor(14);
        zone.SetKeywordMode(KM_UPPER, 0);
        QWidget* pWindow = CQtPlatform::WidgetOf(&editor.Editor());
        const int top = zone.m_rcText.top;
        auto band = [&] {
            QtFixture::Pump();
            return static_cast<CQtWindowWidget*>(pWindow)->Image().copy(
                0, top, pWindow->width(), zone.m_nLineHeight);
        };
        // The same line loaded as text, caret behind it, with no conversion.
        auto loaded = [&](const char* pszText) {
            const unsigned int nMode = zone.GetKeywordMode();
            zone.SetKeywordMode(KM_NONE, 0);
            editor.Editor().SetWindowTextA(pszText);
            editor.Editor().SetSel(8, 8);
            zone.SetKeywordMode(nMode, 0);
            return band();
        };

        editor.Editor().SetWindowTextA("");
        QTest::keyClicks(pWindow, "select x");
        ASSERT_EQ(std::string(zone.GetLine(0)->c_str(), 8), "SELECT x");
        const QImage typed = band();
        EXPECT_EQ(typed, loaded("SELECT x"));
        EXPECT_NE(typed, loaded("select x"));
    }
}
