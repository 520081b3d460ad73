// The printing window on Qt: what prints where, the page, and Cancel.
#pragma once

#include <QDialog>

#include "platform/qt/QtWidgetPeer.h"

class CPrintingDialog;
class CQtPlatform;
class QLabel;

class CQtPrintingPeer : public CQtWidgetPeer {
public:
    CQtPrintingPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs);
    ~CQtPrintingPeer() override;

    QRect ClientArea() const override;
    std::unique_ptr<CDC> CreateDC(const CRgn* pPaintRegion) override;
    void OnInvalidate(const CRgn&, BOOL) override {}
    void OnDrawn() override {}
    void OnScrollBarChanged(int) override {}
    void OnStyleChanged() override {}
    void OnCaretChanged() override {}

protected:
    void DetachWidget() override;

private:
    CQtPlatform& m_platform;
    CPrintingDialog* m_pDialog;
    QDialog* m_pWidget;
    QLabel* m_pLabels[4];
};
