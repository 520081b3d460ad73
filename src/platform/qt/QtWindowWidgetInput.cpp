// Qt input as the window's messages.
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "platform/qt/QtDragDrop.h"
#include "platform/qt/QtEventTranslator.h"
#include "platform/qt/QtKeyState.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtWidgetPeer.h"
#include "platform/qt/QtWindowWidget.h"

bool CQtWindowWidget::Send(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_pWnd) return false;
    m_pWnd->SendMessage(message, wParam, lParam);
    return m_pWnd != nullptr;
}

QPoint CQtWindowWidget::ToClient(QPointF pt) const {
    return pt.toPoint() - ClientArea().topLeft();
}

void CQtWindowWidget::keyPressEvent(QKeyEvent* event) {
    Key(event, false);
}

void CQtWindowWidget::keyReleaseEvent(QKeyEvent* event) {
    Key(event, true);
}

void CQtWindowWidget::Key(QKeyEvent* event, bool bRelease) {
    if (!m_pWnd) return event->ignore();
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.KeyState().OnKey(*event, bRelease);
    CQtKeyState::Scope scope(m_platform.KeyState(), event->modifiers(),
                             QGuiApplication::mouseButtons());
    int vk = CQtEventTranslator::VirtualKey(*event);
    bool sys = CQtEventTranslator::IsSystemKey(*event);
    LPARAM flags = CQtEventTranslator::KeyFlags(*event, bRelease);
    event->accept();
    if (vk) {
        UINT message =
            bRelease ? (sys ? WM_SYSKEYUP : WM_KEYUP) : (sys ? WM_SYSKEYDOWN : WM_KEYDOWN);
        if (!Send(message, static_cast<WPARAM>(vk), flags)) return;
    }
    if (bRelease) return;
    // One character message per byte the key types.
    for (char c : CQtEventTranslator::Characters(*event))
        if (!Send(sys ? WM_SYSCHAR : WM_CHAR, static_cast<unsigned char>(c), flags)) return;
}

void CQtWindowWidget::mousePressEvent(QMouseEvent* event) {
    Mouse(event, 0);
}

void CQtWindowWidget::mouseReleaseEvent(QMouseEvent* event) {
    Mouse(event, 1);
}

void CQtWindowWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    Mouse(event, 2);
}

void CQtWindowWidget::mouseMoveEvent(QMouseEvent* event) {
    Mouse(event, 3);
}

void CQtWindowWidget::Mouse(QMouseEvent* event, int nKind) {
    if (!m_pWnd) return event->ignore();
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.SetCursorWidget(this);
    CQtKeyState::Scope scope(m_platform.KeyState(), event->modifiers(), event->buttons());
    event->accept();
    UINT message =
        nKind == 3 ? WM_MOUSEMOVE : CQtEventTranslator::ButtonMessage(event->button(), nKind);
    if (message == 0) return;
    QPoint pt = ToClient(event->position());
    if (nKind == 0 && !MouseActivate(HTCLIENT, message)) return;
    // The window chooses the cursor before each move and press, as on the
    // desktop; a window that does not gets the arrow.
    if (nKind == 0 || nKind == 3) {
        CWnd* wnd = m_pWnd;
        LRESULT set = wnd->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(wnd),
                                       MAKELPARAM(HTCLIENT, static_cast<int>(message)));
        if (!m_pWnd) return;
        if (!set) ::SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    }
    UINT flags = CQtEventTranslator::MouseFlags(event->buttons(), event->modifiers());
    Send(message, flags, CQtEventTranslator::PointParam(pt));
}

void CQtWindowWidget::wheelEvent(QWheelEvent* event) {
    if (!m_pWnd) return event->ignore();
    CQtWidgetPeer::Dispatch dispatch;
    CQtKeyState::Scope scope(m_platform.KeyState(), event->modifiers(), event->buttons());
    event->accept();
    // One message per notch; finer wheels add up to notches first. The
    // desktop's horizontal wheel counts to the right.
    m_wheelRest += QPoint(-event->angleDelta().x(), event->angleDelta().y());
    UINT flags = CQtEventTranslator::MouseFlags(event->buttons(), event->modifiers());
    QPoint screen = event->globalPosition().toPoint();
    LPARAM where = CQtEventTranslator::PointParam(screen);
    while (m_pWnd && (m_wheelRest.y() >= WHEEL_DELTA || m_wheelRest.y() <= -WHEEL_DELTA)) {
        int delta = m_wheelRest.y() > 0 ? WHEEL_DELTA : -WHEEL_DELTA;
        m_wheelRest.ry() -= delta;
        Send(WM_MOUSEWHEEL, MAKEWPARAM(static_cast<int>(flags), delta), where);
    }
    while (m_pWnd && (m_wheelRest.x() >= WHEEL_DELTA || m_wheelRest.x() <= -WHEEL_DELTA)) {
        int delta = m_wheelRest.x() > 0 ? WHEEL_DELTA : -WHEEL_DELTA;
        m_wheelRest.rx() -= delta;
        Send(WM_MOUSEHWHEEL, MAKEWPARAM(static_cast<int>(flags), delta), where);
    }
}

void CQtWindowWidget::focusInEvent(QFocusEvent*) {
    if (!m_pWnd) return;
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.OnQtFocusIn(m_pWnd);
}

void CQtWindowWidget::focusOutEvent(QFocusEvent*) {
    if (!m_pWnd) return;
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.OnQtFocusOut(m_pWnd);
}

void CQtWindowWidget::dragEnterEvent(QDragEnterEvent* event) {
    if (!m_pWnd) return event->ignore();
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.DragDrop().OnEnter(m_pWnd, event, ToClient(event->position()));
}

void CQtWindowWidget::dragMoveEvent(QDragMoveEvent* event) {
    if (!m_pWnd) return event->ignore();
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.DragDrop().OnMove(m_pWnd, event, ToClient(event->position()));
}

void CQtWindowWidget::dragLeaveEvent(QDragLeaveEvent*) {
    if (!m_pWnd) return;
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.DragDrop().OnLeave(m_pWnd);
}

void CQtWindowWidget::dropEvent(QDropEvent* event) {
    if (!m_pWnd) return event->ignore();
    CQtWidgetPeer::Dispatch dispatch;
    m_platform.DragDrop().OnDrop(m_pWnd, event, ToClient(event->position()));
}

bool CQtWindowWidget::focusNextPrevChild(bool bNext) {
    // A window that wants Tab (WM_GETDLGCODE) gets it as a key.
    if (m_pWnd) {
        LRESULT code = m_pWnd->SendMessage(WM_GETDLGCODE, 0, 0);
        if (code & (DLGC_WANTTAB | DLGC_WANTALLKEYS)) return false;
    }
    return QWidget::focusNextPrevChild(bNext);
}

void CQtWindowWidget::closeEvent(QCloseEvent* event) {
    // The window decides: by default WM_CLOSE destroys it, and the widget with it.
    event->ignore();
    if (!m_pWnd) return;
    CQtWidgetPeer::Dispatch dispatch;
    Send(WM_CLOSE, 0, 0);
}
