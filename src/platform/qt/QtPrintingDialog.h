// The printing window on Qt: what prints where, the page, and Cancel.
#pragma once

#include <QDialog>

#include "platform/qt/QtDialogPeer.h"

class CPrintingDialog;
class CQtPlatform;
class QLabel;

class CQtPrintingPeer : public CQtDialogPeer {
public:
    CQtPrintingPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs);
    ~CQtPrintingPeer() override;

protected:
    void DetachWidget() override;

private:
    CPrintingDialog* m_pDialog;
    QDialog* m_pWidget;
    QLabel* m_pLabels[4];
};
