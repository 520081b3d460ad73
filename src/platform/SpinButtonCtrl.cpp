#include "platform/SpinButtonCtrl.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "platform/PropertyPage.h"

void CSpinButtonCtrl::SetRange(int nLower, int nUpper) {
    m_nLower = nLower;
    m_nUpper = nUpper;
}

int CSpinButtonCtrl::GetPos() const {
    const CPropertyPage* pPage = GetParent();
    const CDialogControl* pBuddy = pPage ? pPage->GetDlgItem(GetItem().nBuddy) : nullptr;
    return pBuddy ? std::atoi(pBuddy->GetText().c_str()) : 0;
}

void CSpinButtonCtrl::UserStep(int nDelta) {
    CPropertyPage* pPage = GetParent();
    CDialogControl* pBuddy = pPage ? pPage->GetDlgItem(GetItem().nBuddy) : nullptr;
    if (!pBuddy || !IsWindowEnabled()) return;
    const int nLow = std::min(m_nLower, m_nUpper), nHigh = std::max(m_nLower, m_nUpper);
    const int nPos = std::clamp(GetPos() + nDelta, nLow, nHigh);
    if (std::to_string(nPos) != pBuddy->GetText())
        pBuddy->SetWindowText(std::to_string(nPos).c_str());
}
