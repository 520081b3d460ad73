#include "platform/qt/QtFindReplaceDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/FindReplaceDialog.h"
#include "platform/Messages.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/Windows1252.h"

CQtFindReplaceWidget::CQtFindReplaceWidget(CFindReplaceDialog* pDialog, QWidget* pParent)
    : QDialog(pParent), m_pDialog(pDialog) {
    const bool bFindOnly = pDialog->IsFindOnly();
    const DWORD dwFlags = pDialog->m_fr.Flags;
    setWindowTitle(bFindOnly ? "Find" : "Replace");
    setModal(false);

    auto* pFields = new QGridLayout;
    m_pFind = new QLineEdit(CWindows1252::ToQString(pDialog->GetFindString()));
    m_pFind->setMaxLength(CFindReplaceDialog::kMaxText);
    auto* pFindLabel = new QLabel("Fi&nd what:");
    pFindLabel->setBuddy(m_pFind);
    pFields->addWidget(pFindLabel, 0, 0);
    pFields->addWidget(m_pFind, 0, 1);
    if (!bFindOnly) {
        m_pReplace = new QLineEdit(CWindows1252::ToQString(pDialog->GetReplaceString()));
        m_pReplace->setMaxLength(CFindReplaceDialog::kMaxText);
        auto* pReplaceLabel = new QLabel("Re&place with:");
        pReplaceLabel->setBuddy(m_pReplace);
        pFields->addWidget(pReplaceLabel, 1, 0);
        pFields->addWidget(m_pReplace, 1, 1);
    }
    m_pCase = new QCheckBox("Match &case");
    m_pCase->setChecked(dwFlags & FR_MATCHCASE);
    auto* pOptions = new QHBoxLayout;
    pOptions->addWidget(m_pCase);
    // The replace dialog always searches down, as the desktop's does.
    if (bFindOnly && !(dwFlags & FR_HIDEUPDOWN)) {
        auto* pDirection = new QGroupBox("Direction");
        auto* pUp = new QRadioButton("&Up");
        m_pDown = new QRadioButton("&Down");
        (dwFlags & FR_DOWN ? m_pDown : pUp)->setChecked(true);
        auto* pRadios = new QHBoxLayout(pDirection);
        pRadios->addWidget(pUp);
        pRadios->addWidget(m_pDown);
        pOptions->addWidget(pDirection);
    }
    auto* pLeft = new QVBoxLayout;
    pLeft->addLayout(pFields);
    pLeft->addLayout(pOptions);
    pLeft->addStretch();

    auto* pButtons = new QVBoxLayout;
    m_pFindNext = new QPushButton("&Find Next");
    m_pFindNext->setDefault(true);
    pButtons->addWidget(m_pFindNext);
    connect(m_pFindNext, &QPushButton::clicked, this, [this] { Act(FR_FINDNEXT); });
    if (!bFindOnly) {
        m_pReplaceOne = new QPushButton("&Replace");
        m_pReplaceAll = new QPushButton("Replace &All");
        pButtons->addWidget(m_pReplaceOne);
        pButtons->addWidget(m_pReplaceAll);
        connect(m_pReplaceOne, &QPushButton::clicked, this, [this] { Act(FR_REPLACE); });
        connect(m_pReplaceAll, &QPushButton::clicked, this, [this] { Act(FR_REPLACEALL); });
    }
    auto* pCancel = new QPushButton("Cancel");
    pButtons->addWidget(pCancel);
    pButtons->addStretch();
    connect(pCancel, &QPushButton::clicked, this, [this] { reject(); });

    auto* pLayout = new QHBoxLayout(this);
    pLayout->addLayout(pLeft, 1);
    pLayout->addLayout(pButtons);
    connect(m_pFind, &QLineEdit::textChanged, this, [this] { UpdateButtons(); });
    UpdateButtons();
    m_pFind->selectAll();
    m_pFind->setFocus();
}

void CQtFindReplaceWidget::UpdateButtons() {
    // Nothing to look for: nothing to do.
    const bool bText = !m_pFind->text().isEmpty();
    for (QPushButton* pButton : {m_pFindNext, m_pReplaceOne, m_pReplaceAll})
        if (pButton) pButton->setEnabled(bText);
}

void CQtFindReplaceWidget::Act(DWORD dwAction) {
    if (!m_pDialog || m_pFind->text().isEmpty()) return;
    CQtWidgetPeer::Dispatch dispatch;
    m_pDialog->DoAction(dwAction, CWindows1252::FromQString(m_pFind->text()),
                        m_pReplace ? CWindows1252::FromQString(m_pReplace->text()) : std::string(),
                        m_pDown ? m_pDown->isChecked() : TRUE, m_pCase->isChecked());
}

void CQtFindReplaceWidget::reject() {
    if (!m_pDialog) return QDialog::reject();
    CQtWidgetPeer::Dispatch dispatch;
    m_pDialog->Terminate();
}

void CQtFindReplaceWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

CQtFindReplacePeer::CQtFindReplacePeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs)
    : CQtDialogPeer(platform, pWnd,
                    new CQtFindReplaceWidget(static_cast<CFindReplaceDialog*>(pWnd),
                                             QApplication::activeWindow()),
                    cs) {
    m_pDialogWidget = static_cast<CQtFindReplaceWidget*>(GetWidget());
    m_pDialogWidget->adjustSize();
    if (QWidget* pOwner = m_pDialogWidget->parentWidget()) {
        // Near the top right of the window it searches, clear of the text's start.
        QRect owner = pOwner->frameGeometry();
        m_pDialogWidget->move(owner.right() - m_pDialogWidget->width() - 40, owner.top() + 80);
    }
    if (cs.style & WS_VISIBLE) {
        m_pDialogWidget->show();
        m_pDialogWidget->raise();
        m_pDialogWidget->activateWindow();
    }
}

CQtFindReplacePeer::~CQtFindReplacePeer() {
    DetachWidget();
}

void CQtFindReplacePeer::DetachWidget() {
    m_pDialogWidget->Detach();
}
