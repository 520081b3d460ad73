// The extended control in a Qt host's layout: it shows the colours of the
// settings store, tells the host of typed changes, takes a settings
// broadcast, and Alt+drag with the real mouse makes a box.
#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QVBoxLayout>

#include "QtFixture.h"
#include "editor/EditorEx.h"
#include "editor/qt/QtControlWidget.h"
#include "host/AppDataManager.h"
#include "host/MemoryAppDataManager.h"
#include "zones/TextZoneParam.h"

namespace {

void SendMouse(QWidget* pWidget, QEvent::Type type, QPoint pt, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers mods) {
    QMouseEvent event(type, QPointF(pt), QPointF(pWidget->mapToGlobal(pt)), button, buttons, mods);
    QApplication::sendEvent(pWidget, &event);
}

}  // namespace

TEST(EditorExWidgetTest, ALaidOutExtendedEditorShowsItsSettingsAndMakesABoxOnAltDrag) {
    CQtPlatform platform;
    CMemoryAppDataManager store;
    store.WriteInt("Editor", "TabSize", 3);
    store.WriteInt("Editor", "FontNorBkgColor", static_cast<int>(RGB(10, 200, 30)));
    store.WriteInt("Editor", "FontNorFrgColor", static_cast<int>(RGB(0, 0, 0)));
    AppDataManager::InstallAppDataManager(&store);
    {
        QWidget window;
        auto* pLayout = new QVBoxLayout(&window);
        auto* pEditor = new CQtControlWidget<CEditorEx>(&window, WS_VSCROLL | WS_HSCROLL);
        pLayout->addWidget(pEditor);
        window.resize(420, 200);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QtFixture::Pump();

        CEditorEx& editor = pEditor->Control();
        CTextZoneParam& zone = *editor.GetTextZone();
        auto* pWindow = static_cast<CQtWindowWidget*>(CQtPlatform::WidgetOf(&editor));
        ASSERT_NE(pWindow, nullptr);
        EXPECT_EQ(zone.GetTabWidth(), -3);
        // The text area is painted in the background of the settings, and
        // the layout gave the control the widget's size.
        EXPECT_EQ(QtFixture::Pixel(pWindow->Image(), zone.m_rcText.left + 40,
                                   zone.m_rcText.top + 30),
                  RGB(10, 200, 30));
        EXPECT_GT(pWindow->width(), 300);

        int nChanges = 0;
        pEditor->SetChangeHandler([&] { ++nChanges; });
        pWindow->setFocus();
        QTest::keyClicks(pWindow, "abcdefgh");
        QtFixture::Pump();
        EXPECT_STREQ(editor.GetText(2 | 32), "abcdefgh");
        EXPECT_GT(nChanges, 0);
        editor.SendMessage(WM_CHAR, '\r');
        QTest::keyClicks(pWindow, "ijklmnop");
        QtFixture::Pump();

        // A press, a move with the button held, then Alt in the middle of
        // the drag: the selection becomes a box.
        const int nLine = zone.m_nLineHeight;
        const QPoint from(zone.m_rcText.left + 2, zone.m_rcText.top + nLine / 2);
        const QPoint to(zone.m_rcText.left + 40, zone.m_rcText.top + nLine + nLine / 2);
        SendMouse(pWindow, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton,
                  Qt::NoModifier);
        SendMouse(pWindow, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        EXPECT_EQ(zone.GetSelectionMode(), 1);
        SendMouse(pWindow, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::AltModifier);
        EXPECT_EQ(zone.GetSelectionMode(), 2);
        SendMouse(pWindow, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton,
                  Qt::AltModifier);
        QtFixture::Pump();
        EXPECT_TRUE(zone.TestSelection());

        // A new background from the broadcast reaches the screen.
        store.WriteInt("Editor", "FontNorBkgColor", static_cast<int>(RGB(250, 250, 120)));
        editor.GetParent()->SendMessageToDescendants(CEditorEx::GetLoadIniMessage());
        QtFixture::Pump();
        EXPECT_EQ(QtFixture::Pixel(pWindow->Image(), zone.m_rcText.left + 200,
                                   zone.m_rcText.bottom - 5),
                  RGB(250, 250, 120));
    }
    AppDataManager::InstallAppDataManager(nullptr);
}
