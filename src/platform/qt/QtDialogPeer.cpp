#include "platform/qt/QtDialogPeer.h"

#include "platform/DC.h"
#include "platform/qt/QtDC.h"
#include "platform/qt/QtPlatform.h"

CQtDialogPeer::CQtDialogPeer(CQtPlatform& platform, CWnd* pWnd, QWidget* pWidget,
                             const CREATESTRUCTA& cs)
    : CQtWidgetPeer(pWnd, pWidget, cs), m_platform(platform) {}

QRect CQtDialogPeer::ClientArea() const {
    return GetWidget()->rect();
}

std::unique_ptr<CDC> CQtDialogPeer::CreateDC(const CRgn* pPaintRegion) {
    CRgn surface(RECT{0, 0, GetWidget()->width(), GetWidget()->height()});
    if (pPaintRegion) surface = CRgn::Intersection(surface, *pPaintRegion);
    return std::make_unique<CQtDC>(m_platform.Fonts(), nullptr, surface, nullptr);
}
