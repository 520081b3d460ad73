// The peer of a window that Qt draws itself, a dialog: geometry and
// showing go to its widget, and drawing contexts on it only measure.
#pragma once

#include "platform/qt/QtWidgetPeer.h"

class CQtPlatform;

class CQtDialogPeer : public CQtWidgetPeer {
public:
    QRect ClientArea() const override;
    std::unique_ptr<CDC> CreateDC(const CRgn* pPaintRegion) override;
    void OnInvalidate(const CRgn&, BOOL) override {}
    void OnDrawn() override {}
    void OnScrollBarChanged(int) override {}
    void OnStyleChanged() override {}
    void OnCaretChanged() override {}

protected:
    CQtDialogPeer(CQtPlatform& platform, CWnd* pWnd, QWidget* pWidget, const CREATESTRUCTA& cs);
    CQtPlatform& Platform() { return m_platform; }

private:
    CQtPlatform& m_platform;
};
