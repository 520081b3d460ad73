// The Qt peer of a window: a CQtWindowWidget, with the window's drawing
// contexts painting into its backing image and the window's invalid region,
// scroll bars and caret echoed to it.
#pragma once

#include "platform/qt/QtWidgetPeer.h"

class CQtPlatform;
class CQtWindowWidget;

class CQtWindowPeer : public CQtWidgetPeer {
public:
    CQtWindowPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs);
    ~CQtWindowPeer() override;

    CQtWindowWidget* Widget() const { return m_pWindowWidget; }
    QRect ClientArea() const override;

    std::unique_ptr<CDC> CreateDC(const CRgn* pPaintRegion) override;
    void OnInvalidate(const CRgn& rgn, BOOL bErase) override;
    void OnDrawn() override;
    void OnScrollBarChanged(int nBar) override;
    void OnStyleChanged() override;
    void OnCaretChanged() override;

protected:
    void DetachWidget() override;

private:
    CQtPlatform& m_platform;
    CQtWindowWidget* m_pWindowWidget;
};
