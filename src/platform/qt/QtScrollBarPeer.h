// The peer of a scroll bar control (CScrollBar): a CQtScrollBar showing the
// control's SB_CTL state, whose user actions reach the control's parent as
// WM_HSCROLL or WM_VSCROLL.
#pragma once

#include <QImage>

#include "platform/qt/QtWidgetPeer.h"

class CQtPlatform;
class CQtScrollBar;

class CQtScrollBarPeer : public CQtWidgetPeer {
public:
    CQtScrollBarPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs);
    ~CQtScrollBarPeer() override;

    CQtScrollBar* Bar() const { return m_pBar; }
    QRect ClientArea() const override;

    // Drawing on a bar goes nowhere; the style draws it.
    std::unique_ptr<CDC> CreateDC(const CRgn* pPaintRegion) override;
    void OnInvalidate(const CRgn&, BOOL) override {}
    void OnDrawn() override {}
    void OnScrollBarChanged(int nBar) override;
    void OnStyleChanged() override;
    void OnCaretChanged() override {}

protected:
    void DetachWidget() override;

private:
    CQtPlatform& m_platform;
    CQtScrollBar* m_pBar;
    CWnd* m_pAttached;  // null once the control is gone
};
