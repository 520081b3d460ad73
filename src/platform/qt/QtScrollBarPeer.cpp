#include "platform/qt/QtScrollBarPeer.h"

#include "platform/Messages.h"
#include "platform/ScrollBar.h"
#include "platform/qt/QtDC.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtScrollBar.h"

namespace {

Qt::Orientation OrientationOf(const CREATESTRUCTA& cs) {
    return (static_cast<DWORD>(cs.style) & SBS_VERT) ? Qt::Vertical : Qt::Horizontal;
}

}  // namespace

CQtScrollBarPeer::CQtScrollBarPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs)
    : CQtWidgetPeer(
          pWnd,
          new CQtScrollBar(
              OrientationOf(cs), ParentWidgetFor(cs),
              [this](int nCode, int nPos) {
                  CQtWidgetPeer::Dispatch dispatch;
                  if (auto* bar = dynamic_cast<CScrollBar*>(m_pAttached))
                      bar->NotifyParent(nCode, nPos);
              },
              [pWnd, this] {
                  SCROLLINFO si;
                  si.cbSize = sizeof(si);
                  if (m_pAttached) pWnd->GetScrollInfo(SB_CTL, &si, SIF_ALL);
                  return si;
              },
              [pWnd, this] { return m_pAttached ? pWnd->GetScrollBarArrows(SB_CTL) : 0u; }),
          cs),
      m_platform(platform),
      m_pAttached(pWnd) {
    m_pBar = static_cast<CQtScrollBar*>(GetWidget());
    m_pBar->Reflect();
    SetWindowRect(RECT{cs.x, cs.y, cs.x + cs.cx, cs.y + cs.cy});
    if (cs.style & WS_VISIBLE) m_pBar->show();
}

CQtScrollBarPeer::~CQtScrollBarPeer() {
    DetachWidget();
}

void CQtScrollBarPeer::DetachWidget() {
    m_pAttached = nullptr;
}

QRect CQtScrollBarPeer::ClientArea() const {
    return m_pBar->rect();
}

std::unique_ptr<CDC> CQtScrollBarPeer::CreateDC(const CRgn* pPaintRegion) {
    RECT rc;
    GetClientRect(&rc);
    CRgn surface(rc);
    if (pPaintRegion) surface = CRgn::Intersection(surface, *pPaintRegion);
    return std::make_unique<CQtDC>(m_platform.Fonts(), nullptr, surface, nullptr);
}

void CQtScrollBarPeer::OnScrollBarChanged(int nBar) {
    if (nBar == SB_CTL) m_pBar->Reflect();
}

void CQtScrollBarPeer::OnStyleChanged() {
    m_pBar->setOrientation((GetWnd()->GetStyle() & SBS_VERT) ? Qt::Vertical : Qt::Horizontal);
}
