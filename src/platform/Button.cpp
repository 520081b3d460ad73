#include "platform/Button.h"

#include "platform/Messages.h"
#include "platform/PropertyPage.h"

void CButton::SetCheck(int nCheck) {
    m_nCheck = nCheck;
    Invalidate();
}

void CButton::UserClick() {
    if (!IsWindowEnabled()) return;
    if (GetKind() == DlgItemKind::CheckBox) {
        SetCheck(m_nCheck ? BST_UNCHECKED : BST_CHECKED);
    } else if (GetKind() == DlgItemKind::RadioButton) {
        if (CPropertyPage* pPage = GetParent())
            for (CButton* pOther : pPage->GetRadioGroup(GetDlgCtrlID()))
                if (pOther != this) pOther->SetCheck(BST_UNCHECKED);
        SetCheck(BST_CHECKED);
    }
    NotifyParent(BN_CLICKED);
}
