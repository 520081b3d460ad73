#include "platform/qt/QtPropertySheet.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/PropertyPage.h"

CQtPropertySheet::CQtPropertySheet(CPropertySheet& sheet, QWidget* pParent)
    : QDialog(pParent), m_sheet(sheet) {
    InstallQtFontFamilySource();
    setWindowTitle(QString::fromLatin1(sheet.GetCaption().c_str()));
    // The pages are laid out for an 8-point dialog font.
    QFont font = this->font();
    font.setPixelSize(10);
    setFont(font);

    auto* pLayout = new QVBoxLayout(this);
    m_pTabs = new QTabWidget(this);
    pLayout->addWidget(m_pTabs);
    auto* pButtons = new QHBoxLayout();
    pButtons->addStretch(1);
    m_pOK = new QPushButton(this);
    m_pCancel = new QPushButton("Cancel", this);
    m_pApply = new QPushButton("&Apply", this);
    m_pOK->setDefault(true);
    for (QPushButton* pButton : {m_pOK, m_pCancel, m_pApply})
        pButtons->addWidget(pButton);
    pLayout->addLayout(pButtons);

    for (int i = 0; i < sheet.GetPageCount(); ++i) {
        CPropertyPage* pPage = sheet.GetPage(i);
        auto* pWidget = new QWidget();
        const SIZE size = pPage->GetSize();
        pWidget->setFixedSize(size.cx, size.cy);
        m_pageWidgets.push_back(pWidget);
        m_pTabs->addTab(pWidget, QString::fromLatin1(pPage->GetCaption()));
    }
    connect(m_pOK, &QPushButton::clicked, this, &CQtPropertySheet::accept);
    connect(m_pCancel, &QPushButton::clicked, this, &CQtPropertySheet::reject);
    connect(m_pApply, &QPushButton::clicked, this, [this] { m_sheet.PressApply(); });
    connect(m_pTabs, &QTabWidget::currentChanged, this, &CQtPropertySheet::OnTabChanged);

    sheet.SetView(this);
    for (int i = 0; i < sheet.GetPageCount(); ++i)
        if (sheet.GetPage(i)->IsCreated()) PageCreated(i);
    sheet.Create();
    RefreshButtons();
}

CQtPropertySheet::~CQtPropertySheet() {
    m_views.clear();
    m_sheet.SetView(nullptr);
}

QWidget* CQtPropertySheet::ControlWidget(int nPage, int nID) const {
    if (nPage < 0 || nPage >= static_cast<int>(m_pageWidgets.size())) return nullptr;
    return m_pageWidgets[static_cast<size_t>(nPage)]->findChild<QWidget*>(
        QString::number(nID), Qt::FindDirectChildrenOnly);
}

void CQtPropertySheet::accept() {
    if (m_sheet.PressOK()) QDialog::accept();
}

void CQtPropertySheet::reject() {
    m_sheet.PressCancel();
    QDialog::reject();
}

void CQtPropertySheet::RefreshButtons() {
    m_pOK->setText(QString::fromLatin1(m_sheet.GetOKText().c_str()));
    m_pCancel->setEnabled(m_sheet.IsCancelEnabled());
    m_pApply->setEnabled(m_sheet.IsApplyEnabled());
}

void CQtPropertySheet::PageCreated(int nPage) {
    CPropertyPage* pPage = m_sheet.GetPage(nPage);
    QWidget* pWidget = m_pageWidgets[static_cast<size_t>(nPage)];
    for (CDialogControl* pControl : pPage->GetControls())
        if (auto pView = CQtControlView::Create(pControl, pWidget))
            m_views.push_back(std::move(pView));
}

void CQtPropertySheet::OnTabChanged(int nIndex) {
    if (m_bSwitching) return;
    if (m_sheet.SetActivePage(nIndex)) return;
    // The page being left refused: stay on it.
    m_bSwitching = true;
    m_pTabs->setCurrentIndex(m_sheet.GetActiveIndex());
    m_bSwitching = false;
}
