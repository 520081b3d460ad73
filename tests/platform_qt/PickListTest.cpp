// The word-completion list on Qt, driven by real key events on an editor
// control with a coloured zone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "completion/CompletionList.h"
#include "editor/qt/QtEditorWidget.h"
#include "QtFixture.h"
#include "platform/qt/QtPlatform.h"

namespace {

class CHostWordsZone : public CTextZoneColor {
public:
    void AddExtraCandidateKeyword(const char* pPrefix, int) override {
        for (const char* w : {"qqc", "qqa", "qqb"})
            if (std::string(w).rfind(pPrefix, 0) == 0) m_candidates.emplace_back(w);
    }
};

class PickListTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_editor.resize(400, 200);
        m_editor.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_editor));
        m_editor.activateWindow();
        m_zone.SetSQLSyntaxColor(14);
        m_zone.SetWordCompletion(1);
        m_editor.Editor().SetWindowTextA("x qq");
        m_editor.Editor().SetSel(4, 4);
        m_editor.Editor().SetFocus();
        m_pWindow = CQtPlatform::WidgetOf(&m_editor.Editor());
        Pump();
    }
    static void Pump() { QtFixture::Pump(); }

    // Ctrl+Space with the Ctrl key of the native code (37 left, 105 right);
    // keys are typed into the list once it is up, and what was seen of it
    // meanwhile is noted.
    void CompleteTyping(std::vector<Qt::Key> keys, quint32 nCtrlCode = 37) {
        CompleteThen(
            [keys](QWidget* target) {
                for (Qt::Key key : keys)
                    QTest::keyClick(target, key);
            },
            nCtrlCode);
    }
    // The same with any action on the widget that has the keyboard.
    void CompleteThen(std::function<void(QWidget*)> action, quint32 nCtrlCode = 37) {
        QTimer::singleShot(0, [this, action] {
            m_pList = m_pWindow->findChild<QListWidget*>();
            m_bShown = IsCompletionListShown();
            QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : m_pWindow;
            m_bListHasKeyboard = m_pList && (target == m_pList || m_pList->isAncestorOf(target));
            if (m_pList) m_nRows = m_pList->count();
            m_nMode = m_zone.m_nCompletionMode;
            action(target);
        });
        QKeyEvent ctrl(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, nCtrlCode, 0, 0);
        QApplication::sendEvent(m_pWindow, &ctrl);
        QTest::keyClick(m_pWindow, Qt::Key_Space, Qt::ControlModifier);
        QKeyEvent ctrlUp(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier, nCtrlCode, 0, 0);
        QApplication::sendEvent(m_pWindow, &ctrlUp);
        Pump();
    }

    // The text as the control gives it, with its line end.
    std::string Text() {
        char buffer[64] = {};
        m_editor.Editor().GetWindowTextA(buffer, sizeof buffer);
        return buffer;
    }

    CQtPlatform m_platform;
    CHostWordsZone m_zone;
    CQtEditorWidget m_editor{nullptr, 0, &m_zone};
    QWidget* m_pWindow = nullptr;
    QListWidget* m_pList = nullptr;
    bool m_bShown = false;
    bool m_bListHasKeyboard = false;
    int m_nRows = 0;
    int m_nMode = -1;
};

TEST_F(PickListTest, DownAndReturnInsertTheSecondCandidate) {
    CompleteTyping({Qt::Key_Down, Qt::Key_Return});
    ASSERT_NE(m_pList, nullptr) << "no list came up";
    EXPECT_TRUE(m_bShown);
    EXPECT_TRUE(m_bListHasKeyboard);
    EXPECT_EQ(m_nRows, 3);
    EXPECT_EQ(m_nMode, 0) << "left Ctrl: the keyword tables too";
    EXPECT_EQ(Text(), "x qqb \r\n");
    EXPECT_FALSE(IsCompletionListShown());
    EXPECT_EQ(m_pWindow->findChild<QListWidget*>(), nullptr) << "the list is gone";
    EXPECT_EQ(m_zone.m_bCompleting, 0);
    // Typing goes on in the text.
    QTest::keyClicks(m_pWindow, "z");
    Pump();
    EXPECT_EQ(Text(), "x qqb z\r\n");
}

TEST_F(PickListTest, EscapeLeavesTheTextAsItWas) {
    CompleteTyping({Qt::Key_Down, Qt::Key_Escape});
    ASSERT_NE(m_pList, nullptr) << "no list came up";
    EXPECT_EQ(Text(), "x qq\r\n");
    EXPECT_EQ(m_pWindow->findChild<QListWidget*>(), nullptr);
    EXPECT_EQ(m_zone.GetUndoType(), 0) << "nothing was inserted";
}

TEST_F(PickListTest, ADoubleClickAcceptsAndAClickElsewhereCancels) {
    CompleteThen([this](QWidget*) {
        if (!m_pList) return;
        const QPoint second = m_pList->visualItemRect(m_pList->item(1)).center();
        QTest::mouseDClick(m_pList->viewport(), Qt::LeftButton, {}, second);
    });
    ASSERT_NE(m_pList, nullptr) << "no list came up";
    EXPECT_EQ(Text(), "x qqb \r\n");

    m_editor.Editor().SetWindowTextA("x qq");
    m_editor.Editor().SetSel(4, 4);
    m_pList = nullptr;
    // The click goes where it was meant: it also puts the caret at the start.
    CompleteThen([this](QWidget*) { QTest::mouseClick(m_pWindow, Qt::LeftButton, {}, {2, 2}); });
    ASSERT_NE(m_pList, nullptr) << "no list came up";
    EXPECT_EQ(Text(), "x qq\r\n");
    EXPECT_EQ(m_pWindow->findChild<QListWidget*>(), nullptr);
    EXPECT_EQ(m_zone.m_nSelStartChar, 0);
}

}  // namespace
