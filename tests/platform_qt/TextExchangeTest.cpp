// 8-bit text crossing into Qt: the code page, the clipboard, drag and drop.
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

#include "QtFixture.h"
#include "platform/OleDataObject.h"
#include "platform/OleDataSource.h"
#include "platform/OleDropTarget.h"
#include "platform/qt/Windows1252.h"

namespace {

using TextExchangeTest = QtFixture;

// A drop target that notes what it heard and accepts as asked.
class CNotingTarget : public COleDropTarget {
public:
    DWORD OnDragEnter(CWnd*, COleDataObject* pData, DWORD dwKeyState, CPoint pt) override {
        m_events += "enter;";
        m_text = pData->GetGlobalData(CF_TEXT);
        m_dwKeyState = dwKeyState;
        m_pt = pt;
        return m_dwAnswer;
    }
    DWORD OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint pt) override {
        m_events += "over;";
        m_pt = pt;
        return m_dwAnswer;
    }
    void OnDragLeave(CWnd*) override { m_events += "leave;"; }
    BOOL OnDrop(CWnd*, COleDataObject* pData, DWORD dwEffect, CPoint pt) override {
        m_events += "drop;";
        m_text = pData->GetGlobalData(CF_TEXT);
        m_dwDropEffect = dwEffect;
        m_pt = pt;
        return TRUE;
    }
    std::string m_events, m_text;
    DWORD m_dwKeyState = 0, m_dwDropEffect = 0, m_dwAnswer = DROPEFFECT_COPY;
    CPoint m_pt;
};

}  // namespace

TEST(Windows1252Test, EveryByteRoundTripsAndTheHighControlsAreTheCodePages) {
    std::string bytes;
    for (int i = 1; i < 256; ++i)
        bytes.push_back(static_cast<char>(i));
    QString text = CWindows1252::ToQString(bytes);
    EXPECT_EQ(CWindows1252::FromQString(text), bytes);
    // Euro, S caron, trade mark, Y diaeresis; 0x81 is undefined: Latin-1.
    const std::pair<int, int> pairs[] = {{0x80, 0x20AC}, {0x8A, 0x0160}, {0x99, 0x2122},
                                         {0x9F, 0x0178}, {0x81, 0x0081}, {0xE9, 0x00E9}};
    for (auto [byte, unicode] : pairs)
        EXPECT_EQ(text[byte - 1], QChar(unicode)) << byte;
    // Characters the code page lacks narrow to '?', the replaced Latin-1 controls too.
    EXPECT_EQ(CWindows1252::FromQString(QString::fromUtf8("a\xE2\x82\xAC\xE4\xB8\x80")),
              std::string("a\x80?"));
    EXPECT_EQ(CWindows1252::FromUnicode(0x80), -1);
}

TEST_F(TextExchangeTest, ClipboardCarriesBytesAsWindows1252WithCrLfLineEnds) {
    ASSERT_TRUE(OpenClipboard(&m_wnd));
    EXPECT_FALSE(OpenClipboard(&m_wnd));  // open once at a time
    ASSERT_TRUE(EmptyClipboard());
    ASSERT_TRUE(SetClipboardData(CF_TEXT, std::string("\x80 caf\xE9\r\nline 2\r\n\0junk", 21)));
    ASSERT_TRUE(CloseClipboard());
    // Other programs see Unicode with the system's line ends; the 0 ends it.
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("€ café\nline 2\n"));

    // Text from elsewhere reads with CR LF whatever its line ends were.
    QGuiApplication::clipboard()->setText(QString::fromUtf8("a\nb\rc\r\nd\xE2\x80\x94"));
    ASSERT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    std::string back;
    ASSERT_TRUE(OpenClipboard(&m_wnd));
    ASSERT_TRUE(GetClipboardData(CF_TEXT, &back));
    EXPECT_FALSE(GetClipboardData(CF_TEXT + 1, &back));
    CloseClipboard();
    EXPECT_EQ(back, "a\r\nb\r\nc\r\nd\x97");

    EXPECT_FALSE(SetClipboardData(CF_TEXT, "x"));  // closed: nothing goes in or out
    EXPECT_FALSE(GetClipboardData(CF_TEXT, &back));
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
}

TEST_F(TextExchangeTest, DropTargetHearsQtDragsWithBytesKeyStateAndClientPoint) {
    m_wnd.ModifyStyle(0, WS_BORDER);  // client (0, 0) is widget (1, 1)
    CNotingTarget target;
    ASSERT_TRUE(target.Register(&m_wnd));
    QMimeData mime;
    mime.setText(QString::fromUtf8("€uro"));
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;

    QDragEnterEvent enter(QPoint(11, 21), both, &mime, Qt::LeftButton, Qt::ControlModifier);
    QApplication::sendEvent(Widget(), &enter);
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    target.m_dwAnswer = DROPEFFECT_NONE;  // a refusal tells Qt so
    QDragMoveEvent refused(QPoint(32, 41), Qt::CopyAction, &mime, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(Widget(), &refused);
    EXPECT_FALSE(refused.isAccepted());
    target.m_dwAnswer = DROPEFFECT_COPY;
    QDropEvent drop(QPointF(31, 41), both, &mime, Qt::LeftButton, Qt::ControlModifier);
    drop.setDropAction(Qt::CopyAction);
    QApplication::sendEvent(Widget(), &drop);
    EXPECT_TRUE(drop.isAccepted());

    EXPECT_EQ(target.m_events, "enter;over;drop;");
    EXPECT_EQ(target.m_text, "\x80uro");
    EXPECT_EQ(target.m_dwKeyState, MK_LBUTTON | MK_CONTROL);
    EXPECT_EQ(target.m_pt, (POINT{30, 40}));
    EXPECT_EQ(target.m_dwDropEffect, DROPEFFECT_COPY);

    target.m_events.clear();
    QApplication::sendEvent(Widget(), &enter);
    QDragLeaveEvent leave;
    QApplication::sendEvent(Widget(), &leave);
    target.Revoke();
    QApplication::sendEvent(Widget(), &enter);
    EXPECT_EQ(target.m_events, "enter;leave;");
}

TEST_F(TextExchangeTest, DragWithoutTheSystemsDragSupportEndsAsCancelled) {
    // The offscreen platform cannot drag: the drag must end at once, not hang.
    COleDataSource source;
    source.CacheGlobalData(CF_TEXT, "text");
    EXPECT_EQ(source.DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE, &m_wnd), DROPEFFECT_NONE);
}
