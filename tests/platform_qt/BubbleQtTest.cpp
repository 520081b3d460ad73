// The read-only zone's bubble on Qt: it appears once the mouse has rested
// for the hover delay, shows its text on the yellow face, and input during
// the wait keeps it from appearing.
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "QtFixture.h"
#include "editor/Editor.h"
#include "zones/TextZoneReadOnly.h"
#include "zones/TooltipBubble.h"
#include "zones/qt/QtHoverWait.h"

namespace {

class BubbleQtTest : public QtFixture {
protected:
    void SetUp() override {
        QtFixture::SetUp();
        CQtHoverWait::Install();
        ASSERT_TRUE(m_editor.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 400, 300}, &m_wnd, 1));
        m_zone.SetText("see the linked text here\r\nplain line");
        m_zone.SetHyperlink(0, 0, 0, 24, 0, "Bubble text", 1, 0, 0);
        m_editor.SetFocus();
        Pump();
    }
    void TearDown() override {
        m_zone.CloseBubble();
        m_editor.DestroyWindow();
        CTextZoneReadOnly::SetHoverWait(nullptr);
        QtFixture::TearDown();
    }
    // A point on the link, in the editor widget's coordinates.
    QPoint OnLink() { return QPoint(30, m_zone.GetLineHeight(0) / 2 + 3); }

    CTextZoneReadOnly m_zone;
    CEditor m_editor{&m_zone};
};

}  // namespace

TEST_F(BubbleQtTest, AppearsAfterTheDelayAndShowsItsText) {
    QTest::mouseMove(Widget(&m_editor), QPoint(30, m_zone.GetLineHeight(0) * 3 / 2));
    QElapsedTimer clock;
    clock.start();
    QTest::mouseMove(Widget(&m_editor), OnLink());
    ASSERT_NE(m_zone.m_pBubble, nullptr);
    EXPECT_GE(clock.elapsed(), 700);  // the wait, not a measure of speed
    QWidget* pBubble = Widget(m_zone.m_pBubble);
    ASSERT_NE(pBubble, nullptr);
    EXPECT_TRUE(pBubble->isVisible());
    EXPECT_FALSE(pBubble->isActiveWindow());
    Pump();

    const QImage& image = Image(m_zone.m_pBubble);
    ASSERT_GT(image.width(), 20);
    ASSERT_GT(image.height(), 8);
    int face = 0;
    int ink = 0;
    for (int y = 3; y < image.height() - 3; ++y)
        for (int x = 3; x < image.width() - 3; ++x) {
            const COLORREF cr = Pixel(image, x, y);
            if (cr == CTooltipBubble::kFace) ++face;
            if (GetRValue(cr) + GetGValue(cr) + GetBValue(cr) < 500) ++ink;
        }
    EXPECT_GT(face, image.width() * image.height() / 3);
    EXPECT_GT(ink, 40);  // the text, antialiased
    // The rounded corner leaves the corner pixel off the face.
    EXPECT_NE(Pixel(image, 0, 0), CTooltipBubble::kFace);

    // A key closes it.
    QTest::keyClick(Widget(&m_editor), Qt::Key_Down);
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
}

TEST_F(BubbleQtTest, AKeyDuringTheWaitKeepsItAway) {
    // Qt sends no move to where the mouse already is: it starts elsewhere.
    QTest::mouseMove(Widget(&m_editor), QPoint(30, m_zone.GetLineHeight(0) * 3 / 2));
    QObject context;  // the key goes with the test if the wait never ran
    QTimer::singleShot(100, &context,
                       [this] { QTest::keyClick(Widget(&m_editor), Qt::Key_Right); });
    QTest::mouseMove(Widget(&m_editor), OnLink());
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
    Pump();
    EXPECT_EQ(m_zone.m_pBubble, nullptr);
}
