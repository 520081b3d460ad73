#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "DemoFixture.h"
#include "colour/TextZoneColor.h"
#include "pages/EditorOptionPage.h"

namespace {

TEST_F(DemoTest, ToolsOptionsChangesTheOpenEditorOnApply) {
    ASSERT_TRUE(m_window.OpenFile(Write("-- a comment line\nSELECT 1\n\tx\n")));
    Pump();
    CTextZoneParam& zone = *View()->GetTextZone();
    const QRgb red = qRgb(255, 0, 0);
    EXPECT_EQ(CountPixels(ViewWidget(), red), 0);
    const int nTabBefore = zone.GetTabWidth();

    CQtPropertySheet* pDialog = m_window.OpenOptions();
    ASSERT_NE(pDialog, nullptr);
    Pump();
    ASSERT_EQ(pDialog->Tabs()->count(), 3);
    EXPECT_EQ(pDialog->Tabs()->tabText(0), "Editor Options");
    EXPECT_EQ(pDialog->Tabs()->tabText(1), "Editor Font");
    EXPECT_EQ(pDialog->Tabs()->tabText(2), "Editor Shortcuts");
    EXPECT_FALSE(pDialog->ApplyButton()->isEnabled());

    // The tab size, typed over.
    auto* pTabSize = qobject_cast<QLineEdit*>(pDialog->ControlWidget(0, 1017));
    ASSERT_NE(pTabSize, nullptr);
    EXPECT_EQ(pTabSize->text(), "4");
    pTabSize->setFocus();
    QTest::keyClick(pTabSize, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(pTabSize, "6");
    EXPECT_TRUE(pDialog->ApplyButton()->isEnabled());
    // The arrow keys step it as the spin's arrows do.
    QTest::keyClick(pTabSize, Qt::Key_Up);
    QTest::keyClick(pTabSize, Qt::Key_Up);
    EXPECT_EQ(pTabSize->text(), "8");

    // The comment colour (the list's first item, selected) made red.
    auto* pList = qobject_cast<QListWidget*>(pDialog->ControlWidget(0, 1005));
    ASSERT_NE(pList, nullptr);
    EXPECT_EQ(pList->count(), 9);
    EXPECT_EQ(pList->currentRow(), 0);
    auto* pCombo = qobject_cast<QComboBox*>(pDialog->ControlWidget(0, 1006));
    ASSERT_NE(pCombo, nullptr);
    auto& page = *static_cast<CEditorOptionPage*>(pDialog->Sheet().GetPage(0));
    int nRed = -1;
    for (int i = 0; i < page.m_comboColor.GetCount(); ++i)
        if (page.m_comboColor.GetItemData(i) == 13) nRed = i;
    ASSERT_EQ(pCombo->count(), page.m_comboColor.GetCount());
    pCombo->setCurrentIndex(nRed);
    emit pCombo->activated(nRed);
    EXPECT_EQ(page.m_crSyntax[0], RGB(255, 0, 0));
    // The sample shows the colour at once.
    EXPECT_GT(CountPixels(pDialog->ControlWidget(0, 1041), red), 0);

    QTest::mouseClick(pDialog->ApplyButton(), Qt::LeftButton);
    Pump();
    EXPECT_EQ(m_store.ReadInt("Editor", "TabSize", 0, 0), 8);
    EXPECT_EQ(zone.GetTabWidth(), nTabBefore * 2);
    EXPECT_EQ(zone.GetSyntaxColor(SC_COMMENT), RGB(255, 0, 0));
    EXPECT_GT(CountPixels(ViewWidget(), red), 20);
    EXPECT_FALSE(pDialog->ApplyButton()->isEnabled());
    EXPECT_EQ(pDialog->OKButton()->text(), "Close");

    // The other pages come up when their tabs are chosen, and OK closes.
    pDialog->Tabs()->setCurrentIndex(1);
    pDialog->Tabs()->setCurrentIndex(2);
    EXPECT_NE(pDialog->ControlWidget(1, 1001), nullptr);
    EXPECT_NE(pDialog->ControlWidget(2, 1010), nullptr);
    CPropertySheet& sheet = pDialog->Sheet();
    QTest::mouseClick(pDialog->OKButton(), Qt::LeftButton);
    Pump();
    EXPECT_EQ(sheet.GetResult(), IDOK);

    // Opened again at once: a new sheet that reads what was saved.
    CQtPropertySheet* pAgain = m_window.OpenOptions();
    ASSERT_NE(pAgain, nullptr);
    EXPECT_TRUE(pAgain->isVisible());
    EXPECT_EQ(qobject_cast<QLineEdit*>(pAgain->ControlWidget(0, 1017))->text(), "8");
    pAgain->reject();
    Pump();
}

}  // namespace
