// The find and replace dialog in the demo, driven by real keys and clicks.
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "DemoFixture.h"
#include "editor/EditFindReplace.h"
#include "platform/qt/QtFindReplaceDialog.h"

namespace {

CQtFindReplaceWidget* DialogWidget() {
    CEditFindReplaceDialog* pDlg = CEditFindReplace::Instance().m_pFindReplaceDlg;
    return pDlg ? dynamic_cast<CQtFindReplaceWidget*>(CQtPlatform::WidgetOf(pDlg)) : nullptr;
}

QPushButton* Button(QWidget* pDialog, const QString& text) {
    for (QPushButton* pButton : pDialog->findChildren<QPushButton*>())
        if (pButton->text() == text) return pButton;
    return nullptr;
}

// The closed dialog hands the keyboard back to the main window, as the
// window system does on the desktop.
void BackToEditor(QWidget* pView) {
    pView->window()->activateWindow();
    pView->setFocus();
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

TEST_F(DemoTest, FindAndReplaceThroughTheDialog) {
    ASSERT_TRUE(m_window.OpenFile(Write("select a from t where a = 1;\nselect b where c;\n")));
    QWidget* pView = ViewWidget();
    pView->setFocus();
    Pump();
    // Ctrl+F opens the find dialog; typed text and Enter find the next match.
    QTest::keyClick(pView, Qt::Key_F, Qt::ControlModifier);
    Pump();
    CQtFindReplaceWidget* pFind = DialogWidget();
    ASSERT_NE(pFind, nullptr);
    EXPECT_EQ(pFind->windowTitle(), "Find");
    EXPECT_EQ(pFind->ReplaceEdit(), nullptr);
    pFind->FindEdit()->setFocus();
    QTest::keyClicks(pFind->FindEdit(), "where");
    QTest::keyClick(pFind->FindEdit(), Qt::Key_Return);
    Pump();
    CTextZoneParam& zone = *View()->GetTextZone();
    EXPECT_EQ(zone.GetSelMobileLine(), 0);
    EXPECT_EQ(zone.GetSelMobileChar(), 21);
    // Escape closes it.
    QTest::keyClick(pFind, Qt::Key_Escape);
    Pump();
    EXPECT_EQ(CEditFindReplace::Instance().m_pFindReplaceDlg, nullptr);
    BackToEditor(pView);

    // F3 finds the next one in the text.
    QTest::keyClick(pView, Qt::Key_F3);
    Pump();
    EXPECT_EQ(zone.GetSelMobileLine(), 1);

    // Ctrl+H: replace all, by a click, as one step that Ctrl+Z takes back.
    QTest::keyClick(pView, Qt::Key_H, Qt::ControlModifier);
    Pump();
    CQtFindReplaceWidget* pReplace = DialogWidget();
    ASSERT_NE(pReplace, nullptr);
    ASSERT_NE(pReplace->ReplaceEdit(), nullptr);
    pReplace->FindEdit()->setText("select");
    QTest::keyClicks(pReplace->ReplaceEdit(), "SELECT");
    zone.SetSelection(0, 0, 0, 0, 0, 1);
    QPushButton* pAll = Button(pReplace, "Replace &All");
    ASSERT_NE(pAll, nullptr);
    QTest::mouseClick(pAll, Qt::LeftButton);
    Pump();
    EXPECT_EQ(Text(), "SELECT a from t where a = 1;\nSELECT b where c;\n");
    EXPECT_TRUE(Doc()->IsModified());
    QTest::mouseClick(Button(pReplace, "Cancel"), Qt::LeftButton);
    Pump();
    EXPECT_EQ(CEditFindReplace::Instance().m_pFindReplaceDlg, nullptr);
    BackToEditor(pView);
    QTest::keyClick(pView, Qt::Key_Z, Qt::ControlModifier);
    Pump();
    EXPECT_EQ(Text(), "select a from t where a = 1;\nselect b where c;\n");
}

}  // namespace
