#include "platform/PropertyPage.h"

#include "platform/Button.h"
#include "platform/ComboBox.h"
#include "platform/DC.h"
#include "platform/DataExchange.h"
#include "platform/Edit.h"
#include "platform/ListBox.h"
#include "platform/ListCtrl.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/PropertySheet.h"
#include "platform/SpinButtonCtrl.h"
#include "platform/Static.h"

namespace {

std::unique_ptr<CDialogControl> MakeControl(DlgItemKind kind) {
    switch (kind) {
        case DlgItemKind::PushButton:
        case DlgItemKind::CheckBox:
        case DlgItemKind::RadioButton:
            return std::make_unique<CButton>();
        case DlgItemKind::Edit:
            return std::make_unique<CEdit>();
        case DlgItemKind::ListBox:
            return std::make_unique<CListBox>();
        case DlgItemKind::ComboBox:
            return std::make_unique<CComboBox>();
        case DlgItemKind::UpDown:
            return std::make_unique<CSpinButtonCtrl>();
        case DlgItemKind::ListView:
            return std::make_unique<CListCtrl>();
        case DlgItemKind::Group:
        case DlgItemKind::Text:
        case DlgItemKind::Static:
            break;
    }
    return std::make_unique<CStatic>();
}

}  // namespace

CPropertyPage::CPropertyPage(const DLGTEMPLATE& dialog) : m_dialog(dialog) {}

CPropertyPage::~CPropertyPage() {
    // Bound controls are the derived page's members and go before this
    // runs; nothing may reach them through the list any more.
    m_controls.clear();
}

SIZE CPropertyPage::GetSize() const {
    RECT rc = {0, 0, m_dialog.cx, m_dialog.cy};
    MapDialogRect(&rc);
    return SIZE{rc.right, rc.bottom};
}

BOOL CPropertyPage::Create(CPropertySheet* pSheet) {
    if (m_bCreated) return TRUE;
    m_pSheet = pSheet;
    m_bCreated = true;
    for (const DLGITEM& item : m_dialog.items) {
        m_ownControls.push_back(MakeControl(item.kind));
        m_ownControls.back()->Attach(this, item);
        m_controls.push_back(m_ownControls.back().get());
    }
    return OnInitDialog();
}

CDialogControl* CPropertyPage::GetDlgItem(int nID) const {
    if (nID == -1) return nullptr;
    for (CDialogControl* pControl : m_controls)
        if (pControl->GetDlgCtrlID() == nID) return pControl;
    return nullptr;
}

std::vector<CButton*> CPropertyPage::GetRadioGroup(int nID) const {
    std::vector<CButton*> group;
    size_t nAt = m_controls.size();
    for (size_t i = 0; i < m_controls.size(); ++i)
        if (m_controls[i]->GetDlgCtrlID() == nID) nAt = i;
    if (nAt == m_controls.size() || m_controls[nAt]->GetKind() != DlgItemKind::RadioButton)
        return group;
    auto isRadio = [&](size_t i) { return m_controls[i]->GetKind() == DlgItemKind::RadioButton; };
    size_t nFirst = nAt;
    while (nFirst > 0 && !(m_controls[nFirst]->GetItemStyle() & DIS_GROUP) && isRadio(nFirst - 1))
        --nFirst;
    for (size_t i = nFirst; i < m_controls.size() && isRadio(i); ++i) {
        if (i > nFirst && (m_controls[i]->GetItemStyle() & DIS_GROUP)) break;
        group.push_back(static_cast<CButton*>(m_controls[i]));
    }
    return group;
}

BOOL CPropertyPage::UpdateData(BOOL bSaveAndValidate) {
    if (!m_bCreated) return FALSE;
    CDataExchange dx(this, bSaveAndValidate);
    DoDataExchange(&dx);
    if (dx.Failed()) MessageBeep(0);
    return dx.Failed() ? FALSE : TRUE;
}

void CPropertyPage::SetModified(BOOL bChanged) {
    m_bModified = bChanged != FALSE;
    if (m_pSheet) m_pSheet->OnPageModified();
}

void CPropertyPage::CancelToClose() {
    if (m_pSheet) m_pSheet->CancelToClose();
}

void CPropertyPage::CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheck) {
    for (int nID = nIDFirst; nID <= nIDLast; ++nID)
        CheckDlgButton(nID, nID == nIDCheck ? BST_CHECKED : BST_UNCHECKED);
}

UINT CPropertyPage::IsDlgButtonChecked(int nID) const {
    const CDialogControl* pControl = GetDlgItem(nID);
    const auto* pButton = dynamic_cast<const CButton*>(pControl);
    return pButton ? static_cast<UINT>(pButton->GetCheck()) : 0;
}

void CPropertyPage::CheckDlgButton(int nID, UINT nCheck) {
    if (auto* pButton = dynamic_cast<CButton*>(GetDlgItem(nID)))
        pButton->SetCheck(static_cast<int>(nCheck));
}

void CPropertyPage::SetDlgItemText(int nID, const char* pszText) {
    if (CDialogControl* pControl = GetDlgItem(nID)) pControl->SetWindowText(pszText);
}

int CPropertyPage::GetDlgItemText(int nID, char* pBuffer, int nMax) const {
    const CDialogControl* pControl = GetDlgItem(nID);
    if (!pControl) {
        if (pBuffer && nMax > 0) pBuffer[0] = 0;
        return 0;
    }
    return pControl->GetWindowText(pBuffer, nMax);
}

void CPropertyPage::MapDialogRect(RECT* prc) const {
    prc->left = DialogUnitsToPixelsX(prc->left);
    prc->right = DialogUnitsToPixelsX(prc->right);
    prc->top = DialogUnitsToPixelsY(prc->top);
    prc->bottom = DialogUnitsToPixelsY(prc->bottom);
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

void CPropertyPage::OnControlNotify(int, int) {}

HBRUSH CPropertyPage::OnCtlColor(CDC* pDC, CDialogControl*, UINT) {
    pDC->SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
    pDC->SetBkColor(GetSysColor(COLOR_3DFACE));
    m_brushFace.DeleteObject();
    m_brushFace.CreateSolidBrush(GetSysColor(COLOR_3DFACE));
    return m_brushFace.GetSafeHandle();
}

void CPropertyPage::BindControl(int nID, CDialogControl& control) {
    if (control.GetParent() == this) return;
    for (size_t i = 0; i < m_controls.size(); ++i) {
        if (m_controls[i]->GetDlgCtrlID() != nID) continue;
        control.Attach(this, m_controls[i]->GetItem());
        m_controls[i] = &control;
        return;
    }
}

BOOL CPropertyPage::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CPropertyPage::DoDataExchange(CDataExchange*) {}
