#include "platform/qt/QtWidgetPeer.h"

#include "platform/Messages.h"
#include "platform/qt/Windows1252.h"

int CQtWidgetPeer::s_nDispatching = 0;

CQtWidgetPeer::CQtWidgetPeer(CWnd* pWnd, QWidget* pWidget, const CREATESTRUCTA& cs)
    : m_pWnd(pWnd), m_pWidget(pWidget) {
    if (!(cs.style & WS_VISIBLE)) m_pWidget->hide();
}

CQtWidgetPeer::~CQtWidgetPeer() {
    // The derived peer has detached the widget already; nothing reaches the
    // window from it any more.
    m_pWidget->hide();
    if (s_nDispatching > 0)
        m_pWidget->deleteLater();
    else
        delete m_pWidget;
}

CQtWidgetPeer* CQtWidgetPeer::Of(const CWnd* pWnd) {
    return pWnd ? dynamic_cast<CQtWidgetPeer*>(pWnd->GetPeer()) : nullptr;
}

bool CQtWidgetPeer::IsTopLevel(const CREATESTRUCTA& cs) {
    return !cs.hwndParent || (static_cast<DWORD>(cs.style) & (WS_CHILD | WS_POPUP)) != WS_CHILD;
}

QWidget* CQtWidgetPeer::ParentWidgetFor(const CREATESTRUCTA& cs) {
    CQtWidgetPeer* parent = Of(cs.hwndParent);
    return parent ? parent->GetWidget() : nullptr;
}

QPoint CQtWidgetPeer::ParentClientOrigin() const {
    CQtWidgetPeer* parent = Of(m_pWnd->GetParent());
    if (!parent) return QPoint(0, 0);
    QPoint origin = parent->ClientArea().topLeft();
    // A pop-up with an owner is placed like a child, in the owner's client
    // coordinates, but its widget lives on the screen.
    return m_pWidget->isWindow() ? parent->GetWidget()->mapToGlobal(origin) : origin;
}

void CQtWidgetPeer::GetClientRect(RECT* prc) {
    QRect area = ClientArea();
    *prc = RECT{0, 0, std::max(area.width(), 0), std::max(area.height(), 0)};
}

void CQtWidgetPeer::GetWindowRect(RECT* prc) {
    QPoint origin = m_pWidget->mapToGlobal(QPoint(0, 0));
    *prc = RECT{origin.x(), origin.y(), origin.x() + m_pWidget->width(),
                origin.y() + m_pWidget->height()};
}

void CQtWidgetPeer::SetWindowRect(const RECT& rc) {
    QPoint origin = ParentClientOrigin();
    m_pWidget->setGeometry(rc.left + origin.x(), rc.top + origin.y(),
                           std::max(0, rc.right - rc.left), std::max(0, rc.bottom - rc.top));
}

void CQtWidgetPeer::ClientToScreen(POINT* ppt) {
    QPoint pt = m_pWidget->mapToGlobal(ClientArea().topLeft() + QPoint(ppt->x, ppt->y));
    *ppt = POINT{pt.x(), pt.y()};
}

void CQtWidgetPeer::ScreenToClient(POINT* ppt) {
    QPoint pt = m_pWidget->mapFromGlobal(QPoint(ppt->x, ppt->y)) - ClientArea().topLeft();
    *ppt = POINT{pt.x(), pt.y()};
}

void CQtWidgetPeer::Show(int nCmdShow) {
    m_pWidget->setVisible(nCmdShow != SW_HIDE);
}

bool CQtWidgetPeer::IsVisible() {
    return m_pWidget->isVisible();
}

void CQtWidgetPeer::Enable(bool bEnable) {
    m_pWidget->setEnabled(bEnable);
}

void CQtWidgetPeer::OnTextChanged() {
    char szTitle[1024];
    int n = m_pWnd->GetWindowText(szTitle, sizeof szTitle);
    m_pWidget->setWindowTitle(CWindows1252::ToQString(szTitle, n));
}

void CQtWidgetPeer::Activate() {
    QWidget* pWindow = m_pWidget->window();
    pWindow->raise();
    pWindow->activateWindow();
}
