#include "platform/qt/QtWindowPeer.h"

#include <cstring>

#include "platform/Messages.h"
#include "platform/qt/QtDC.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtWindowWidget.h"
#include "platform/qt/Windows1252.h"

namespace {

// A pop-up is a frameless top-level window; a tool pop-up never takes the
// activation, as the desktop's tooltips and bubbles do not.
Qt::WindowFlags FlagsFor(const CREATESTRUCTA& cs) {
    if (!CQtWidgetPeer::IsTopLevel(cs)) return Qt::Widget;
    Qt::WindowFlags flags = Qt::Window;
    if (static_cast<DWORD>(cs.style) & WS_POPUP) {
        flags =
            (cs.dwExStyle & WS_EX_TOOLWINDOW) ? Qt::ToolTip : (Qt::Tool | Qt::FramelessWindowHint);
    }
    if (cs.dwExStyle & WS_EX_TOPMOST) flags |= Qt::WindowStaysOnTopHint;
    return flags;
}

}  // namespace

CQtWindowPeer::CQtWindowPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs)
    : CQtWidgetPeer(pWnd, new CQtWindowWidget(platform, pWnd, ParentWidgetFor(cs), FlagsFor(cs)),
                    cs),
      m_platform(platform) {
    m_pWindowWidget = static_cast<CQtWindowWidget*>(GetWidget());
    if (cs.dwExStyle & (WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE))
        m_pWindowWidget->setAttribute(Qt::WA_ShowWithoutActivating);
    if (cs.lpszName)
        m_pWindowWidget->setWindowTitle(
            CWindows1252::ToQString(cs.lpszName, static_cast<int>(std::strlen(cs.lpszName))));
    SetWindowRect(RECT{cs.x, cs.y, cs.x + cs.cx, cs.y + cs.cy});
    if (cs.style & WS_VISIBLE) m_pWindowWidget->show();
}

CQtWindowPeer::~CQtWindowPeer() {
    DetachWidget();
}

void CQtWindowPeer::DetachWidget() {
    m_pWindowWidget->Detach();
}

QRect CQtWindowPeer::ClientArea() const {
    return m_pWindowWidget->ClientArea();
}

std::unique_ptr<CDC> CQtWindowPeer::CreateDC(const CRgn* pPaintRegion) {
    QImage& image = m_pWindowWidget->Image();
    CRgn surface(RECT{0, 0, image.width(), image.height()});
    if (pPaintRegion) surface = CRgn::Intersection(surface, *pPaintRegion);
    return std::make_unique<CQtDC>(m_platform.Fonts(), &image, surface, &m_pWindowWidget->Dirty());
}

void CQtWindowPeer::OnInvalidate(const CRgn& rgn, BOOL) {
    QRegion region;
    for (const RECT& rc : rgn.Rects())
        region += QRect(rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top);
    m_pWindowWidget->InvalidateClient(region);
}

void CQtWindowPeer::OnDrawn() {
    m_pWindowWidget->ShowDirty();
}

void CQtWindowPeer::OnScrollBarChanged(int nBar) {
    m_pWindowWidget->ReflectScrollBar(nBar);
}

void CQtWindowPeer::OnStyleChanged() {
    m_pWindowWidget->Relayout();
}

void CQtWindowPeer::OnCaretChanged() {
    m_pWindowWidget->CaretChanged();
}
