// The demo as a user drives it: several texts, menus and keys that reach the
// text with the focus, colours by language, settings every editor takes at
// once, and a report whose links lead back into the text.
#include <QAction>
#include <QClipboard>
#include <QImage>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>

#include "DemoFixture.h"
#include "apps/demo/DemoCommands.h"
#include "platform/MDIChildWnd.h"
#include "resources/EditorResources.h"
#include "zones/TextZoneReadOnly.h"

namespace {

TEST_F(DemoTest, TypingInOneWindowMarksOnlyItsText) {
    ASSERT_TRUE(m_window.OpenFile(Write("a\n", "a.sql")));
    CDemoDocument* pFirst = Doc();
    ASSERT_TRUE(m_window.OpenFile(Write("b\n", "b.sql")));
    CDemoDocument* pSecond = Doc();
    ASSERT_NE(pFirst, pSecond);
    QTest::keyClicks(ViewWidget(), "x");
    Pump();
    EXPECT_TRUE(pSecond->IsModified());
    EXPECT_FALSE(pFirst->IsModified());
    char title[64];
    m_window.Frame().MDIGetActive()->GetWindowText(title, sizeof title);
    EXPECT_STREQ(title, "b.sql *");
    EXPECT_EQ(m_window.SubWindowOf(m_window.Frame().MDIGetActive())->windowTitle(), "b.sql *");

    // A click in the other window makes it the one keys and menus reach.
    CMDIChildWnd* pOther = m_window.Frame().GetChildFrames().front();
    QWidget* pOtherView = CQtPlatform::WidgetOf(pOther->GetPaneView());
    QTest::mouseClick(pOtherView, Qt::LeftButton, Qt::NoModifier, QPoint(40, 10));
    Pump();
    EXPECT_EQ(m_window.Frame().MDIGetActive(), pOther);
    EXPECT_EQ(Doc(), pFirst);
}

TEST_F(DemoTest, MenuActionsAndTheirKeysReachTheFocusedText) {
    ASSERT_TRUE(m_window.OpenFile(Write("first\n", "a.sql")));
    ASSERT_TRUE(m_window.OpenFile(Write("alpha beta\n", "b.sql")));
    QWidget* pView = ViewWidget();
    pView->setFocus();
    Pump();
    m_window.ActionOf(ID_EDIT_SELECT_ALL)->trigger();
    m_window.ActionOf(ID_EDIT_COPY)->trigger();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "alpha beta\n");
    // The keys after the tab of the menu texts work as shortcuts.
    QTest::keyClick(pView, Qt::Key_End);
    QTest::keyClick(pView, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(pView, Qt::Key_X, Qt::ControlModifier);
    Pump();
    EXPECT_EQ(Text(), "");
    QTest::keyClick(pView, Qt::Key_Z, Qt::ControlModifier);
    Pump();
    EXPECT_EQ(Text(), "alpha beta\n");
    // The other text saw none of it.
    CMDIChildWnd* pOther = m_window.Frame().GetChildFrames().front();
    auto* pOtherView = dynamic_cast<CDemoView*>(pOther->GetPaneView());
    EXPECT_EQ(pOtherView->GetTextZone()->GetLine(0)->c_str(), std::string("first\r"));
}

TEST_F(DemoTest, MenusShowWhatTheirCommandsCanDoNow) {
    ASSERT_TRUE(m_window.OpenFile(Write("one\ntwo\n")));
    QAction* pCut = m_window.ActionOf(ID_EDIT_CUT);
    QAction* pBox = m_window.ActionOf(ID_EDIT_BOXMODE);
    QMenu* pEdit = qobject_cast<QMenu*>(pCut->parent());
    ASSERT_NE(pEdit, nullptr);
    emit pEdit->aboutToShow();
    EXPECT_FALSE(pCut->isEnabled());  // nothing selected
    EXPECT_FALSE(pBox->isChecked());
    EXPECT_FALSE(m_window.ActionOf(ID_EDIT_ERASEBUFFER)->isEnabled());  // the host's command
    m_window.ActionOf(ID_EDIT_SELECT_ALL)->trigger();
    m_window.ActionOf(ID_EDIT_BOXMODE)->trigger();
    emit pEdit->aboutToShow();
    EXPECT_TRUE(pCut->isEnabled());
    EXPECT_TRUE(pBox->isChecked());
    EXPECT_FALSE(m_window.ActionOf(ID_EDIT_STREAMMODE)->isChecked());
    EXPECT_EQ(View()->GetTextZone()->GetSelectionMode(), 2);
    m_window.ActionOf(ID_EDIT_STREAMMODE)->trigger();
    emit pEdit->aboutToShow();
    EXPECT_FALSE(pBox->isChecked());
    EXPECT_EQ(View()->GetTextZone()->GetSelectionMode(), 1);
    // Closed again, a shortcut asks its command's state when it comes.
    emit pEdit->aboutToHide();
    EXPECT_TRUE(m_window.ActionOf(ID_EDIT_REDO)->isEnabled());
    EXPECT_FALSE(m_window.RunCommand(ID_EDIT_REDO));
}

TEST_F(DemoTest, TabIndentsTheSelectedLinesAndAltDragSelectsABox) {
    ASSERT_TRUE(m_window.OpenFile(Write("one\ntwo\nthree\n")));
    QWidget* pView = ViewWidget();
    pView->setFocus();
    Pump();
    QTest::keyClick(pView, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(pView, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(pView, Qt::Key_Tab);
    Pump();
    // A tab of four blanks before each selected line.
    EXPECT_EQ(Text(), "    one\n    two\nthree\n");
    EXPECT_EQ(QApplication::focusWidget(), pView);

    CTextZoneParam& zone = *View()->GetTextZone();
    const int h = zone.GetLineHeight(0);
    const QPoint from(zone.m_rcText.left + 2, zone.m_rcText.top + h / 2);
    const QPoint to(from.x() + 40, from.y() + 2 * h);
    QMouseEvent press(QEvent::MouseButtonPress, from, pView->mapToGlobal(from), Qt::LeftButton,
                      Qt::LeftButton, Qt::AltModifier);
    QApplication::sendEvent(pView, &press);
    QMouseEvent move(QEvent::MouseMove, to, pView->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::AltModifier);
    QApplication::sendEvent(pView, &move);
    QMouseEvent release(QEvent::MouseButtonRelease, to, pView->mapToGlobal(to), Qt::LeftButton,
                        Qt::NoButton, Qt::AltModifier);
    QApplication::sendEvent(pView, &release);
    Pump();
    EXPECT_EQ(zone.GetSelectionMode(), 2);
}

TEST_F(DemoTest, TextsAreColouredByTheirLanguage) {
    auto count = [&](QRgb color) { return CountPixels(ViewWidget(), color); };
    const QRgb keyword = qRgb(0, 0, 255);
    ASSERT_TRUE(m_window.OpenFile(Write("SELECT 1\n")));
    Pump();
    EXPECT_EQ(Doc()->GetLanguage().m_kind, CLanguageChoice::Sql);
    EXPECT_GT(count(keyword), 20);

    // The Language menu colours the active text otherwise, and a settings
    // reload keeps that language.
    const auto& languages = CDemoMainFrame::Languages();
    UINT nJava = 0;
    for (size_t i = 0; i < languages.size(); ++i)
        if (languages[i].strName == "Java") nJava = ID_LANGUAGE_FIRST + 1 + static_cast<UINT>(i);
    ASSERT_TRUE(m_window.RunCommand(nJava));
    m_window.Frame().SendMessageToDescendants(RegisterWindowMessageA("EditExLoadIniMessage"));
    Pump();
    EXPECT_EQ(Doc()->GetLanguage().m_nId, 210u);
    EXPECT_EQ(count(keyword), 0);
}

TEST_F(DemoTest, KeywordCaseFromTheMenuReachesEveryOpenText) {
    ASSERT_TRUE(m_window.OpenFile(Write("", "a.sql")));
    ASSERT_TRUE(m_window.OpenFile(Write("", "b.sql")));
    ASSERT_TRUE(m_window.RunCommand(ID_KEYWORDCASE_FIRST + 1));
    EXPECT_EQ(m_store.ReadInt("Editor", "KeywordMode", 0, 0), 1);
    for (CMDIChildWnd* pChild : m_window.Frame().GetChildFrames()) {
        m_window.Frame().MDIActivate(pChild);
        Pump();
        QTest::keyClicks(ViewWidget(), "select x ");
        Pump();
        EXPECT_EQ(Text(), "SELECT x ");
    }
}

TEST_F(DemoTest, TheReportListsMatchesWhoseLinksOpenTheirLine) {
    ASSERT_TRUE(m_window.OpenFile(Write("select a\r\nfrom t\r\n  select b\r\n")));
    CTextZoneReadOnly& report = m_window.Report().Zone();
    auto line = [&](int n) {
        CStringEx* p = report.GetLine(n);
        return p ? std::string(p->c_str()) : std::string("<none>");
    };
    EXPECT_EQ(line(0).rfind("in.sql: 2 lines with \"select\"", 0), 0u) << line(0);
    EXPECT_EQ(line(1), "  line 1: select a\r");
    EXPECT_EQ(line(2), "  line 3:   select b\r");

    // A click on "line 3" puts the caret of the text on the word there.
    QWidget* pReport = CQtPlatform::WidgetOf(&m_window.Report().View().Editor());
    ASSERT_NE(pReport, nullptr);
    const int x = report.m_rcText.left + report.m_nCharWidth * 4 + 2;
    const int y = report.m_rcText.top + report.GetLineHeight(0) * 2 + 3;
    QTest::mouseClick(pReport, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
    Pump();
    CTextZone& editor = *View()->GetTextZone();
    EXPECT_EQ(editor.GetSelMobileLine(), 2);
    EXPECT_EQ(editor.GetSelMobileChar(), 2);
}

}  // namespace
