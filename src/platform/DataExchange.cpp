#include "platform/DataExchange.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

#include "platform/Button.h"
#include "platform/ListBox.h"
#include "platform/PropertyPage.h"

void CDataExchange::Fail(int) {
    m_bFailed = true;
}

void DDX_Control(CDataExchange* pDX, int nIDC, CDialogControl& rControl) {
    pDX->m_pDlgWnd->BindControl(nIDC, rControl);
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    auto* pButton = dynamic_cast<CButton*>(pDX->m_pDlgWnd->GetDlgItem(nIDC));
    if (!pButton) return;
    if (pDX->m_bSaveAndValidate)
        value = pButton->GetCheck();
    else
        pButton->SetCheck(value);
}

void DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    CDialogControl* pControl = pDX->m_pDlgWnd->GetDlgItem(nIDC);
    if (!pControl) return;
    if (!pDX->m_bSaveAndValidate) {
        pControl->SetWindowText(std::to_string(value).c_str());
        return;
    }
    const std::string& text = pControl->GetText();
    const char* p = text.c_str();
    char* pEnd = nullptr;
    errno = 0;
    const long n = std::strtol(p, &pEnd, 10);
    while (pEnd && *pEnd == ' ')
        ++pEnd;
    if (pEnd == p || !pEnd || *pEnd || errno == ERANGE || n < INT_MIN || n > INT_MAX) {
        pDX->Fail(nIDC);
        return;
    }
    value = static_cast<int>(n);
}

void DDX_Text(CDataExchange* pDX, int nIDC, std::string& value) {
    CDialogControl* pControl = pDX->m_pDlgWnd->GetDlgItem(nIDC);
    if (!pControl) return;
    if (pDX->m_bSaveAndValidate)
        value = pControl->GetText();
    else
        pControl->SetWindowText(value.c_str());
}

void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    auto* pList = dynamic_cast<CListBox*>(pDX->m_pDlgWnd->GetDlgItem(nIDC));
    if (!pList) return;
    if (pDX->m_bSaveAndValidate)
        index = pList->GetCurSel();
    else
        pList->SetCurSel(index);
}

void DDX_LBString(CDataExchange* pDX, int nIDC, std::string& value) {
    auto* pList = dynamic_cast<CListBox*>(pDX->m_pDlgWnd->GetDlgItem(nIDC));
    if (!pList) return;
    if (pDX->m_bSaveAndValidate) {
        value = pList->GetCurSel() >= 0 ? pList->GetText(pList->GetCurSel()) : std::string();
    } else {
        pList->SetCurSel(pList->FindStringExact(-1, value.c_str()));
    }
}
