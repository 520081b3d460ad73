// Qt input reaching windows as messages.
#include <QKeyEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTest>

#include "QtFixture.h"
#include "platform/qt/QtEventTranslator.h"

namespace {

using InputTest = QtFixture;
using Message = CRecordingWnd::Message;

// Notes the key state each message was handled with.
class CStateWnd : public CRecordingWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_KEYDOWN || message == WM_LBUTTONDOWN) {
            m_bShift = ::GetKeyState(VK_SHIFT) < 0;
            m_bControl = ::GetKeyState(VK_CONTROL) < 0;
            m_bLeft = ::GetKeyState(VK_LBUTTON) < 0;
        }
        if (message == WM_GETDLGCODE) return DLGC_WANTALLKEYS;
        return CRecordingWnd::WindowProc(message, wParam, lParam);
    }
    bool m_bShift = false, m_bControl = false, m_bLeft = false;
};

std::vector<Message> Only(const CRecordingWnd& wnd, std::initializer_list<UINT> kinds) {
    std::vector<Message> out;
    for (const Message& m : wnd.Messages())
        for (UINT k : kinds)
            if (m.message == k) out.push_back(m);
    return out;
}

// The same, less the modifier keys QTest presses before a key with modifiers.
std::vector<Message> OnlyKeys(const CRecordingWnd& wnd, std::initializer_list<UINT> kinds) {
    std::vector<Message> out;
    for (const Message& m : Only(wnd, kinds))
        if (m.message == WM_CHAR || m.message == WM_SYSCHAR ||
            (m.wParam != VK_SHIFT && m.wParam != VK_CONTROL && m.wParam != VK_MENU))
            out.push_back(m);
    return out;
}

int g_nHookCalls = 0;
LRESULT SwallowF2(int, WPARAM wParam, LPARAM) {
    ++g_nHookCalls;
    return wParam == VK_F2 ? 1 : 0;
}

QKeyEvent Key(int key, Qt::KeyboardModifiers mods = Qt::NoModifier, const QString& text = {}) {
    return QKeyEvent(QEvent::KeyPress, key, mods, text);
}

}  // namespace

TEST(EventTranslatorTest, KeysMapToVirtualKeyCodesKeypadIncluded) {
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_A, Qt::NoModifier, "a")), 'A');
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_7)), '7');
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_7, Qt::KeypadModifier)), VK_NUMPAD7);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Plus, Qt::KeypadModifier)), VK_ADD);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Minus, Qt::KeypadModifier)), VK_SUBTRACT);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Asterisk, Qt::KeypadModifier)),
              VK_MULTIPLY);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Enter, Qt::KeypadModifier)), VK_RETURN);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Home, Qt::KeypadModifier)), VK_HOME);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Plus)), VK_OEM_PLUS);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Delete)), VK_DELETE);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_PageUp)), VK_PRIOR);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Backtab)), VK_TAB);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_F2)), VK_F2);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Control)), VK_CONTROL);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Exclam, Qt::ShiftModifier, "!")), '1');
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_Eacute, Qt::NoModifier, "\u00e9")),
              VK_OEM_8);
    EXPECT_EQ(CQtEventTranslator::VirtualKey(Key(Qt::Key_VolumeUp)), 0);

    // The sides of modifiers, by X11 key code where there is one.
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, 105, 0, 0);
    QKeyEvent left(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, 37, 0, 0);
    EXPECT_EQ(CQtEventTranslator::SidedVirtualKey(right), VK_RCONTROL);
    EXPECT_EQ(CQtEventTranslator::SidedVirtualKey(left), VK_LCONTROL);
    EXPECT_EQ(CQtEventTranslator::SidedVirtualKey(Key(Qt::Key_Shift)), VK_LSHIFT);

    // Flags: a release reads negative; Delete types nothing.
    EXPECT_LT(CQtEventTranslator::KeyFlags(Key(Qt::Key_A), true), 0);
    EXPECT_EQ(CQtEventTranslator::KeyFlags(Key(Qt::Key_A), false) & 0xFFFF, 1);
    EXPECT_NE(CQtEventTranslator::KeyFlags(Key(Qt::Key_Left), false) & (KF_EXTENDED << 16), 0);
    EXPECT_EQ(CQtEventTranslator::Characters(Key(Qt::Key_Delete, Qt::NoModifier, "\x7f")), "");
    EXPECT_EQ(
        CQtEventTranslator::Characters(Key(static_cast<Qt::Key>(0x20AC), Qt::NoModifier, "\u20ac")),
        "\x80");
}

TEST_F(InputTest, KeysArriveAsKeyDownCharAndKeyUp) {
    CStateWnd wnd;
    ASSERT_TRUE(wnd.Create(WS_VISIBLE, RECT{0, 0, 100, 100}, nullptr, 0));
    QWidget* widget = Widget(&wnd);
    wnd.ClearMessages();

    QTest::keyClick(widget, Qt::Key_A);
    auto keys = Only(wnd, {WM_KEYDOWN, WM_CHAR, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSCHAR});
    ASSERT_EQ(keys.size(), 3u);
    EXPECT_EQ(keys[0].message, WM_KEYDOWN);
    EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>('A'));
    EXPECT_EQ(keys[1].message, WM_CHAR);
    EXPECT_EQ(keys[1].wParam, static_cast<WPARAM>('a'));
    EXPECT_EQ(keys[2].message, WM_KEYUP);
    EXPECT_EQ(keys[2].wParam, static_cast<WPARAM>('A'));
    EXPECT_LT(keys[2].lParam, 0);

    // Shifted, the state is down while the key is handled and up after.
    wnd.ClearMessages();
    QTest::keyClick(widget, Qt::Key_B, Qt::ShiftModifier);  // Shift goes down first
    keys = Only(wnd, {WM_KEYDOWN, WM_CHAR});
    ASSERT_EQ(keys.size(), 3u);
    EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>(VK_SHIFT));
    EXPECT_EQ(keys[1].wParam, static_cast<WPARAM>('B'));
    EXPECT_EQ(keys[2].message, WM_CHAR);
    EXPECT_TRUE(wnd.m_bShift);
    EXPECT_FALSE(wnd.m_bControl);

    // Keys with control characters, keys without, keypad, the code page.
    struct Case {
        int key;
        Qt::KeyboardModifiers mods;
        int vk;
        std::string chars;
    };
    const Case cases[] = {
        {Qt::Key_Return, Qt::NoModifier, VK_RETURN, "\r"},
        {Qt::Key_Backspace, Qt::NoModifier, VK_BACK, "\b"},
        {Qt::Key_Tab, Qt::NoModifier, VK_TAB, "\t"},
        {Qt::Key_Escape, Qt::NoModifier, VK_ESCAPE, "\x1b"},
        {Qt::Key_Delete, Qt::NoModifier, VK_DELETE, ""},
        {Qt::Key_Left, Qt::NoModifier, VK_LEFT, ""},
        {Qt::Key_Plus, Qt::KeypadModifier, VK_ADD, "+"},
        {Qt::Key_5, Qt::KeypadModifier, VK_NUMPAD5, "5"},
        {Qt::Key_A, Qt::ControlModifier, 'A', "\x01"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.vk);
        wnd.ClearMessages();
        QString text;
        for (char ch : c.chars)
            text += QChar(ch);
        QTest::sendKeyEvent(QTest::KeyAction::Press, widget, static_cast<Qt::Key>(c.key), text,
                            c.mods);
        keys = OnlyKeys(wnd, {WM_KEYDOWN, WM_CHAR});
        ASSERT_EQ(keys.size(), 1 + c.chars.size());
        EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>(c.vk));
        for (size_t i = 0; i < c.chars.size(); ++i)
            EXPECT_EQ(keys[1 + i].wParam, static_cast<unsigned char>(c.chars[i]));
        QTest::sendKeyEvent(QTest::KeyAction::Release, widget, static_cast<Qt::Key>(c.key), text,
                            c.mods);
    }

    wnd.ClearMessages();
    QTest::sendKeyEvent(QTest::KeyAction::Click, widget, static_cast<Qt::Key>(0x20AC),
                        QString::fromUtf8("€"), Qt::NoModifier);
    keys = Only(wnd, {WM_CHAR});
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0].wParam, 0x80u);

    // Alt makes them system keys.
    wnd.ClearMessages();
    QTest::sendKeyEvent(QTest::KeyAction::Press, widget, Qt::Key_Backspace, QString(),
                        Qt::AltModifier);
    keys = OnlyKeys(wnd, {WM_KEYDOWN, WM_SYSKEYDOWN});
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0].message, WM_SYSKEYDOWN);
    EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>(VK_BACK));
    QTest::sendKeyEvent(QTest::KeyAction::Release, widget, Qt::Key_Backspace, QString(),
                        Qt::AltModifier);
}

TEST_F(InputTest, KeyStateTracksTheSpaceBarSidesAndToggles) {
    QWidget* widget = Widget();
    EXPECT_GE(::GetKeyState(VK_SPACE), 0);
    QTest::keyPress(widget, Qt::Key_Space);
    EXPECT_LT(::GetKeyState(VK_SPACE), 0);
    QTest::keyRelease(widget, Qt::Key_Space);
    EXPECT_GE(::GetKeyState(VK_SPACE), 0);

    // Inside the message of a key with Ctrl held, the right one is down.
    struct Probe : CRecordingWnd {
        LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
            if (m == WM_KEYDOWN) {
                right = ::GetKeyState(VK_RCONTROL) < 0;
                left = ::GetKeyState(VK_LCONTROL) < 0;
            }
            return CRecordingWnd::WindowProc(m, w, l);
        }
        bool right = false, left = true;
    } probe;
    ASSERT_TRUE(probe.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    QKeyEvent rightDown2(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, 105, 0, 0);
    QApplication::sendEvent(Widget(&probe), &rightDown2);
    QKeyEvent ctrlX(QEvent::KeyPress, Qt::Key_X, Qt::ControlModifier, "\x18");
    QApplication::sendEvent(Widget(&probe), &ctrlX);
    EXPECT_TRUE(probe.right);
    EXPECT_FALSE(probe.left);
    QKeyEvent rightUp(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier, 105, 0, 0);
    QApplication::sendEvent(Widget(&probe), &rightUp);

    // Caps Lock toggles with each press.
    QTest::keyClick(widget, Qt::Key_CapsLock);
    EXPECT_EQ(::GetKeyState(VK_CAPITAL) & 1, 1);
    QTest::keyClick(widget, Qt::Key_CapsLock);
    EXPECT_EQ(::GetKeyState(VK_CAPITAL) & 1, 0);
}

TEST_F(InputTest, MouseArrivesWithFlagsAndClientCoordinates) {
    CStateWnd wnd;
    ASSERT_TRUE(wnd.Create(WS_VISIBLE | WS_BORDER, RECT{0, 0, 100, 100}, nullptr, 0));
    QWidget* widget = Widget(&wnd);
    wnd.ClearMessages();

    QTest::mouseClick(widget, Qt::LeftButton, Qt::ShiftModifier, QPoint(21, 31));
    auto clicks = Only(wnd, {WM_LBUTTONDOWN, WM_LBUTTONUP});
    ASSERT_EQ(clicks.size(), 2u);
    EXPECT_EQ(clicks[0].message, WM_LBUTTONDOWN);
    EXPECT_EQ(clicks[0].wParam, MK_LBUTTON | MK_SHIFT);
    EXPECT_EQ(GET_X_LPARAM(clicks[0].lParam), 20);  // less the border
    EXPECT_EQ(GET_Y_LPARAM(clicks[0].lParam), 30);
    EXPECT_EQ(clicks[1].wParam, MK_SHIFT);
    EXPECT_TRUE(wnd.m_bShift);
    EXPECT_TRUE(wnd.m_bLeft);
    EXPECT_GT(wnd.Count(WM_SETCURSOR), 0);

    wnd.ClearMessages();
    QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(11, 11));
    EXPECT_EQ(wnd.Count(WM_LBUTTONDBLCLK), 1);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(11, 11),
                      widget->mapToGlobal(QPointF(11, 11)), Qt::RightButton, Qt::RightButton,
                      Qt::ControlModifier);
    QApplication::sendEvent(widget, &press);
    auto right = Only(wnd, {WM_RBUTTONDOWN});
    ASSERT_EQ(right.size(), 1u);
    EXPECT_EQ(right[0].wParam, MK_RBUTTON | MK_CONTROL);

    wnd.ClearMessages();
    QTest::mouseMove(widget, QPoint(51, 41));
    auto moves = Only(wnd, {WM_MOUSEMOVE});
    ASSERT_FALSE(moves.empty());
    EXPECT_EQ(GET_X_LPARAM(moves.back().lParam), 50);
    EXPECT_EQ(GET_Y_LPARAM(moves.back().lParam), 40);
}

TEST_F(InputTest, WheelSendsOneMessagePerNotch) {
    QWidget* widget = Widget();
    auto wheel = [&](int dy) {
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, dy), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(widget, &event);
    };
    wheel(240);
    auto notches = Only(m_wnd, {WM_MOUSEWHEEL});
    ASSERT_EQ(notches.size(), 2u);
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(notches[0].wParam), 120);
    EXPECT_EQ(LOWORD(notches[0].wParam), MK_CONTROL);
    EXPECT_EQ(GET_X_LPARAM(notches[0].lParam), 15);  // on the screen
    m_wnd.ClearMessages();
    wheel(-60);
    EXPECT_EQ(m_wnd.Count(WM_MOUSEWHEEL), 0);  // half a notch
    wheel(-60);
    notches = Only(m_wnd, {WM_MOUSEWHEEL});
    ASSERT_EQ(notches.size(), 1u);
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(notches[0].wParam), -120);

    // Over the window's own bar the wheel is still the window's.
    m_wnd.SetScrollRange(SB_VERT, 0, 500);
    QWidget* bar = widget->childAt(widget->width() - 2, 10);
    ASSERT_NE(bar, nullptr);
    m_wnd.ClearMessages();
    QWheelEvent overBar(QPointF(2, 10), bar->mapToGlobal(QPointF(2, 10)), QPoint(), QPoint(0, -120),
                        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(bar, &overBar);
    EXPECT_EQ(m_wnd.Count(WM_MOUSEWHEEL), 1);
    EXPECT_EQ(m_wnd.Count(WM_VSCROLL), 0);
}

TEST_F(InputTest, FocusMovesWithMessagesToBothWindows) {
    CRecordingWnd other;
    ASSERT_TRUE(other.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    m_wnd.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &m_wnd);
    m_wnd.ClearMessages();
    CWnd* old = other.SetFocus();
    EXPECT_EQ(old, &m_wnd);
    EXPECT_EQ(CWnd::GetFocus(), &other);
    ASSERT_EQ(m_wnd.Count(WM_KILLFOCUS), 1);
    EXPECT_EQ(other.Count(WM_SETFOCUS), 1);
    Pump();
    // Qt's own focus events find the move made.
    EXPECT_EQ(m_wnd.Count(WM_KILLFOCUS), 1);
    EXPECT_EQ(other.Count(WM_SETFOCUS), 1);
    other.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(InputTest, KeyboardHooksHearEveryKeyOnceAndMayKeepIt) {
    CStateWnd wnd;
    ASSERT_TRUE(wnd.Create(WS_VISIBLE, RECT{0, 0, 100, 100}, nullptr, 0));
    CRecordingWnd child;
    ASSERT_TRUE(child.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 50, 50}, &wnd, 1));
    g_nHookCalls = 0;
    HHOOK hook = SetWindowsHookExA(WH_KEYBOARD, SwallowF2, nullptr, 0);
    ASSERT_NE(hook, nullptr);
    wnd.ClearMessages();
    QTest::keyClick(Widget(&wnd), Qt::Key_F3);
    EXPECT_EQ(g_nHookCalls, 2);  // press and release
    EXPECT_EQ(wnd.Count(WM_KEYDOWN), 1);
    QTest::keyClick(Widget(&wnd), Qt::Key_F2);
    EXPECT_EQ(g_nHookCalls, 4);
    EXPECT_EQ(wnd.Count(WM_KEYDOWN), 1);  // kept from the window
    // A child's key is heard once too.
    QTest::keyPress(Widget(&child), Qt::Key_F4);
    EXPECT_EQ(g_nHookCalls, 5);
    ASSERT_TRUE(UnhookWindowsHookEx(hook));
    QTest::keyClick(Widget(&wnd), Qt::Key_F2);
    EXPECT_EQ(g_nHookCalls, 5);
    EXPECT_EQ(wnd.Count(WM_KEYDOWN), 2);
}

TEST_F(InputTest, WindowsChooseTheirCursorOnEachMoveAndWaitCursorsNest) {
    struct CIBeamWnd : CRecordingWnd {
        LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
            if (m == WM_SETCURSOR) {
                ::SetCursor(LoadCursorA(nullptr, m_nCursor));
                return TRUE;
            }
            return CRecordingWnd::WindowProc(m, w, l);
        }
        int m_nCursor = IDC_IBEAM;
    } wnd;
    ASSERT_TRUE(wnd.Create(WS_VISIBLE, RECT{0, 0, 100, 100}, nullptr, 0));
    QTest::mouseMove(Widget(&wnd), QPoint(10, 10));
    EXPECT_EQ(Widget(&wnd)->cursor().shape(), Qt::IBeamCursor);
    wnd.m_nCursor = 32;  // the library's move-drag cursor
    QTest::mouseMove(Widget(&wnd), QPoint(11, 10));
    EXPECT_EQ(Widget(&wnd)->cursor().shape(), Qt::DragMoveCursor);
    // A window that leaves the cursor alone gets the arrow.
    QTest::mouseMove(Widget(), QPoint(20, 20));
    EXPECT_EQ(Widget()->cursor().shape(), Qt::ArrowCursor);

    m_wnd.BeginWaitCursor();
    m_wnd.BeginWaitCursor();
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    m_wnd.EndWaitCursor();
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    m_wnd.EndWaitCursor();
    m_wnd.EndWaitCursor();  // one too many is harmless
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(InputTest, CaptureGrabsTheMouseAndTellsTheWindowThatLosesIt) {
    CRecordingWnd other;
    ASSERT_TRUE(other.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    m_wnd.SetCapture();
    EXPECT_EQ(CWnd::GetCapture(), &m_wnd);
    EXPECT_EQ(QWidget::mouseGrabber(), Widget());
    other.SetCapture();
    EXPECT_EQ(m_wnd.Count(WM_CAPTURECHANGED), 1);
    EXPECT_EQ(QWidget::mouseGrabber(), Widget(&other));
    ReleaseCapture();
    EXPECT_EQ(other.Count(WM_CAPTURECHANGED), 1);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);

    // A window going away lets the mouse go.
    other.SetCapture();
    other.DestroyWindow();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

TEST_F(InputTest, WindowDestroyedByItsOwnInputIsLetGoSafely) {
    struct CSelfClosingWnd : CRecordingWnd {
        LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
            LRESULT r = CRecordingWnd::WindowProc(m, w, l);
            if (m == m_nCloseOn) DestroyWindow();
            return r;
        }
        UINT m_nCloseOn = 0;
    };
    for (UINT closeOn :
         {UINT(WM_KEYDOWN), UINT(WM_LBUTTONDOWN), UINT(WM_VSCROLL), UINT(WM_PAINT)}) {
        SCOPED_TRACE(closeOn);
        CSelfClosingWnd wnd;
        ASSERT_TRUE(wnd.Create(WS_VISIBLE | WS_VSCROLL, RECT{0, 0, 100, 100}, nullptr, 0));
        wnd.SetScrollRange(SB_VERT, 0, 100);
        Pump();
        wnd.m_nCloseOn = closeOn;
        QPointer<QWidget> widget = Widget(&wnd);
        QScrollBar* bar = nullptr;
        for (QScrollBar* b : widget->findChildren<QScrollBar*>())
            if (b->orientation() == Qt::Vertical) bar = b;
        if (closeOn == WM_KEYDOWN) QTest::keyClick(widget, Qt::Key_A);
        if (closeOn == WM_LBUTTONDOWN) QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(5, 5));
        if (closeOn == WM_VSCROLL) bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        if (closeOn == WM_PAINT) {
            wnd.InvalidateRect(nullptr, FALSE);
            Pump();
        }
        EXPECT_EQ(wnd.GetSafeHwnd(), nullptr);
        // Nothing more reached it (no WM_CHAR, no button up, no end of scroll).
        EXPECT_EQ(wnd.Messages().back().message, WM_NCDESTROY);
        Pump();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(widget.isNull());
    }
}
