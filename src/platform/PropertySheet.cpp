#include "platform/PropertySheet.h"

#include "platform/Messages.h"
#include "platform/PropertyPage.h"

CPropertySheet::CPropertySheet(const char* pszCaption)
    : m_strCaption(pszCaption ? pszCaption : "") {}

CPropertySheet::~CPropertySheet() = default;

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    if (pPage) m_pages.push_back(pPage);
}

void CPropertySheet::AddPage(std::unique_ptr<CPropertyPage> pPage) {
    if (!pPage) return;
    m_pages.push_back(pPage.get());
    m_ownPages.push_back(std::move(pPage));
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    return nPage >= 0 && nPage < GetPageCount() ? m_pages[static_cast<size_t>(nPage)] : nullptr;
}

BOOL CPropertySheet::Create() {
    if (m_nActive >= 0) return TRUE;
    return m_pages.empty() ? FALSE : SetActivePage(0);
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    CPropertyPage* pPage = GetPage(nPage);
    if (!pPage) return FALSE;
    if (nPage == m_nActive) return TRUE;
    if (CPropertyPage* pOld = GetActivePage())
        if (!pOld->OnKillActive()) return FALSE;
    if (!pPage->IsCreated()) {
        pPage->Create(this);
        if (m_pView) m_pView->PageCreated(nPage);
    }
    m_nActive = nPage;
    pPage->OnSetActive();
    return TRUE;
}

BOOL CPropertySheet::ApplyAll() {
    if (CPropertyPage* pActive = GetActivePage())
        if (!pActive->OnKillActive()) return FALSE;
    for (CPropertyPage* pPage : m_pages)
        if (pPage->IsCreated() && !pPage->OnApply()) return FALSE;
    return TRUE;
}

BOOL CPropertySheet::PressApply() {
    if (!m_bApplyEnabled || !ApplyAll()) return FALSE;
    m_bApplyEnabled = false;
    RefreshButtons();
    return TRUE;
}

BOOL CPropertySheet::PressOK() {
    if (!ApplyAll()) return FALSE;
    m_nResult = IDOK;
    return TRUE;
}

void CPropertySheet::PressCancel() {
    for (CPropertyPage* pPage : m_pages)
        if (pPage->IsCreated()) pPage->OnCancel();
    m_nResult = IDCANCEL;
}

void CPropertySheet::OnPageModified() {
    bool bAny = false;
    for (CPropertyPage* pPage : m_pages)
        bAny = bAny || (pPage->IsCreated() && pPage->IsModified());
    if (bAny == m_bApplyEnabled) return;
    m_bApplyEnabled = bAny;
    RefreshButtons();
}

void CPropertySheet::CancelToClose() {
    m_bCancelEnabled = false;
    m_strOKText = "Close";
    RefreshButtons();
}

void CPropertySheet::RefreshButtons() {
    if (m_pView) m_pView->RefreshButtons();
}
