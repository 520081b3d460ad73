// Qt input reaching windows as messages.
#include <QKeyEvent>
#include <algorithm>
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

// The messages of the given kinds; with bNoModifiers, less the modifier keys
// QTest presses before a key with modifiers.
std::vector<Message> Only(const CRecordingWnd& wnd, std::initializer_list<UINT> kinds,
                          bool bNoModifiers = false) {
    std::vector<Message> out;
    for (const Message& m : wnd.Messages()) {
        bool modifier = m.message != WM_CHAR &&
                        (m.wParam == VK_SHIFT || m.wParam == VK_CONTROL || m.wParam == VK_MENU);
        if (std::find(kinds.begin(), kinds.end(), m.message) != kinds.end() &&
            !(bNoModifiers && modifier))
            out.push_back(m);
    }
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
    auto vk = [](Qt::Key key, Qt::KeyboardModifiers mods = {}, const char* text = "") {
        return CQtEventTranslator::VirtualKey(Key(key, mods, QString::fromUtf8(text)));
    };
    const Qt::KeyboardModifiers pad = Qt::KeypadModifier;
    const std::pair<int, int> cases[] = {
        {vk(Qt::Key_A, {}, "a"), 'A'},        {vk(Qt::Key_7), '7'},
        {vk(Qt::Key_Minus, pad), VK_SUBTRACT}, {vk(Qt::Key_Asterisk, pad), VK_MULTIPLY},
        {vk(Qt::Key_Enter, pad), VK_RETURN},  {vk(Qt::Key_Home, pad), VK_HOME},
        {vk(Qt::Key_Plus), VK_OEM_PLUS},      {vk(Qt::Key_PageUp), VK_PRIOR},
        {vk(Qt::Key_Backtab), VK_TAB},        {vk(Qt::Key_Exclam, Qt::ShiftModifier, "!"), '1'},
        {vk(Qt::Key_Eacute, {}, "\u00e9"), VK_OEM_8}, {vk(Qt::Key_VolumeUp), 0},
    };
    for (size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(cases[i].first, cases[i].second) << "case " << i;

    // The sides of modifiers, by X11 key code where there is one.
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, 105, 0, 0);
    QKeyEvent left(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, 37, 0, 0);
    EXPECT_EQ(CQtEventTranslator::SidedVirtualKey(right), VK_RCONTROL);
    EXPECT_EQ(CQtEventTranslator::SidedVirtualKey(left), VK_LCONTROL);
    EXPECT_EQ(CQtEventTranslator::SidedVirtualKey(Key(Qt::Key_Shift)), VK_LSHIFT);

    // Arrows are extended keys.
    EXPECT_EQ(CQtEventTranslator::KeyFlags(Key(Qt::Key_A), false) & 0xFFFF, 1);
    EXPECT_NE(CQtEventTranslator::KeyFlags(Key(Qt::Key_Left), false) & (KF_EXTENDED << 16), 0);
    // Typed text comes in the code page.
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
    std::vector<std::pair<UINT, WPARAM>> got;
    for (const Message& m : keys)
        got.push_back({m.message, m.wParam});
    EXPECT_EQ(got, (std::vector<std::pair<UINT, WPARAM>>{
                       {WM_KEYDOWN, 'A'}, {WM_CHAR, 'a'}, {WM_KEYUP, 'A'}}));
    EXPECT_LT(keys.back().lParam, 0);

    // Shifted, the state is down while the key is handled.
    QTest::keyClick(widget, Qt::Key_B, Qt::ShiftModifier);
    EXPECT_TRUE(wnd.m_bShift);
    EXPECT_FALSE(wnd.m_bControl);

    // Keys with control characters, keys without, keypad, the code page; Alt
    // makes them system keys.
    struct Case {
        int key;
        Qt::KeyboardModifiers mods;
        UINT message;
        int vk;
        std::string chars;
    };
    const Case cases[] = {
        {Qt::Key_Return, Qt::NoModifier, WM_KEYDOWN, VK_RETURN, "\r"},
        {Qt::Key_Backspace, Qt::NoModifier, WM_KEYDOWN, VK_BACK, "\b"},
        {Qt::Key_Tab, Qt::NoModifier, WM_KEYDOWN, VK_TAB, "\t"},
        {Qt::Key_Escape, Qt::NoModifier, WM_KEYDOWN, VK_ESCAPE, "\x1b"},
        {Qt::Key_Delete, Qt::NoModifier, WM_KEYDOWN, VK_DELETE, ""},
        {Qt::Key_Left, Qt::NoModifier, WM_KEYDOWN, VK_LEFT, ""},
        {Qt::Key_Plus, Qt::KeypadModifier, WM_KEYDOWN, VK_ADD, "+"},
        {Qt::Key_5, Qt::KeypadModifier, WM_KEYDOWN, VK_NUMPAD5, "5"},
        {Qt::Key_A, Qt::ControlModifier, WM_KEYDOWN, 'A', "\x01"},
        {Qt::Key_Backspace, Qt::AltModifier, WM_SYSKEYDOWN, VK_BACK, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        wnd.ClearMessages();
        QString text;
        for (char ch : c.chars)
            text += QChar(ch);
        QTest::sendKeyEvent(QTest::KeyAction::Press, widget, static_cast<Qt::Key>(c.key), text,
                            c.mods);
        keys = Only(wnd, {c.message, WM_CHAR}, true);
        ASSERT_EQ(keys.size(), 1 + c.chars.size());
        EXPECT_EQ(keys[0].message, c.message);
        EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>(c.vk));
        for (size_t i = 0; i < c.chars.size(); ++i)
            EXPECT_EQ(keys[1 + i].wParam, static_cast<unsigned char>(c.chars[i]));
        QTest::sendKeyEvent(QTest::KeyAction::Release, widget, static_cast<Qt::Key>(c.key), text,
                            c.mods);
    }
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
            if (m == WM_KEYDOWN)
                sides = {::GetKeyState(VK_LCONTROL) < 0, ::GetKeyState(VK_RCONTROL) < 0};
            return CRecordingWnd::WindowProc(m, w, l);
        }
        std::pair<bool, bool> sides{true, false};
    } probe;
    ASSERT_TRUE(probe.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    QKeyEvent rightDown(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, 105, 0, 0);
    QKeyEvent ctrlX(QEvent::KeyPress, Qt::Key_X, Qt::ControlModifier, "\x18");
    QKeyEvent rightUp(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier, 105, 0, 0);
    for (QKeyEvent* e : {&rightDown, &ctrlX, &rightUp})
        QApplication::sendEvent(Widget(&probe), e);
    EXPECT_EQ(probe.sides, std::make_pair(false, true));

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
    EXPECT_EQ(clicks[0].wParam, MK_LBUTTON | MK_SHIFT);
    EXPECT_EQ(clicks[0].lParam, MAKELPARAM(20, 30));  // less the border
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

    QTest::mouseMove(widget, QPoint(51, 41));
    EXPECT_EQ(Only(wnd, {WM_MOUSEMOVE}).back().lParam, MAKELPARAM(50, 40));
}

TEST_F(InputTest, WheelSendsOneMessagePerNotch) {
    QWidget* widget = Widget();
    auto wheel = [&](int dy) {
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, dy), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(widget, &event);
    };
    auto deltas = [&] {
        std::vector<int> out;
        for (const Message& m : Only(m_wnd, {WM_MOUSEWHEEL}))
            out.push_back(GET_WHEEL_DELTA_WPARAM(m.wParam));
        return out;
    };
    wheel(240);
    EXPECT_EQ(deltas(), (std::vector<int>{120, 120}));
    EXPECT_EQ(LOWORD(Only(m_wnd, {WM_MOUSEWHEEL})[0].wParam), MK_CONTROL);
    EXPECT_EQ(GET_X_LPARAM(Only(m_wnd, {WM_MOUSEWHEEL})[0].lParam), 15);  // on the screen
    m_wnd.ClearMessages();
    wheel(-60);  // half a notch: nothing yet
    EXPECT_TRUE(deltas().empty());
    wheel(-60);
    EXPECT_EQ(deltas(), (std::vector<int>{-120}));

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
    m_wnd.ClearMessages();
    EXPECT_EQ(other.SetFocus(), &m_wnd);
    EXPECT_EQ(CWnd::GetFocus(), &other);
    Pump();  // Qt's own focus events find the move made: no second message
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
    QTest::keyClick(Widget(&wnd), Qt::Key_F3);  // press and release
    QTest::keyClick(Widget(&wnd), Qt::Key_F2);  // kept from the window
    EXPECT_EQ(g_nHookCalls, 4);
    EXPECT_EQ(wnd.Count(WM_KEYDOWN), 1);
    QTest::keyPress(Widget(&child), Qt::Key_F4);  // a child's key is heard once too
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
    m_wnd.EndWaitCursor();
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    m_wnd.EndWaitCursor();
    m_wnd.EndWaitCursor();  // one too many is harmless
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(InputTest, CaptureGrabsTheMouseAndTellsTheWindowThatLosesIt) {
    CRecordingWnd other;
    ASSERT_TRUE(other.Create(WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    m_wnd.SetCapture();
    EXPECT_EQ(QWidget::mouseGrabber(), Widget());
    other.SetCapture();
    EXPECT_EQ(m_wnd.Count(WM_CAPTURECHANGED), 1);
    EXPECT_EQ(QWidget::mouseGrabber(), Widget(&other));
    ReleaseCapture();
    EXPECT_EQ(other.Count(WM_CAPTURECHANGED), 1);
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
