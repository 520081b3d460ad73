#include "platform/qt/QtPrintingDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/Messages.h"
#include "platform/PrintingDialog.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/Windows1252.h"

namespace {

QDialog* MakeDialog() {
    auto* pWidget = new QDialog(QApplication::activeWindow());
    pWidget->setWindowTitle(QApplication::applicationName());
    pWidget->setModal(false);
    return pWidget;
}

}  // namespace

CQtPrintingPeer::CQtPrintingPeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs)
    : CQtDialogPeer(platform, pWnd, MakeDialog(), cs),
      m_pDialog(static_cast<CPrintingDialog*>(pWnd)),
      m_pWidget(static_cast<QDialog*>(GetWidget())) {
    auto* pLayout = new QVBoxLayout(m_pWidget);
    pLayout->addWidget(new QLabel("Printing"));
    for (QLabel*& pLabel : m_pLabels)
        pLabel = new QLabel;
    pLayout->addWidget(m_pLabels[0]);
    pLayout->addWidget(new QLabel("on the"));
    for (int i = 1; i < 4; ++i)
        pLayout->addWidget(m_pLabels[i]);
    auto* pCancel = new QPushButton("Cancel");
    pLayout->addWidget(pCancel, 0, Qt::AlignHCenter);
    QObject::connect(pCancel, &QPushButton::clicked, m_pWidget, [this] {
        if (m_pDialog) m_pDialog->OnCancel();
    });
    m_pDialog->m_onTextChanged = [this](int nID) {
        int i = nID - CPrintingDialog::IDC_DOCUMENT;
        if (i >= 0 && i < 4 && m_pDialog)
            m_pLabels[i]->setText(CWindows1252::ToQString(m_pDialog->GetDlgItemText(nID)));
    };
    if (cs.style & WS_VISIBLE) m_pWidget->show();
}

CQtPrintingPeer::~CQtPrintingPeer() {
    DetachWidget();
}

void CQtPrintingPeer::DetachWidget() {
    if (m_pDialog) m_pDialog->m_onTextChanged = nullptr;
    m_pDialog = nullptr;
}
