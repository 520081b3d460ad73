#include "platform/DialogControl.h"

#include <algorithm>
#include <cstring>

#include "platform/Messages.h"
#include "platform/PropertyPage.h"

CDialogControl::~CDialogControl() = default;

void CDialogControl::Attach(CPropertyPage* pParent, const DLGITEM& item) {
    m_pParent = pParent;
    m_item = item;
    m_nID = item.nID;
    m_kind = item.kind;
    m_dwStyle = item.dwStyle;
    m_bEnabled = !(item.dwStyle & DIS_DISABLED);
    if (item.pszText) m_strText = item.pszText;
    RECT rc = {item.x, item.y, item.x + item.cx, item.y + item.cy};
    pParent->MapDialogRect(&rc);
    m_rcWindow = rc;
}

void CDialogControl::SetWindowText(const char* pszText) {
    m_strText = pszText ? pszText : "";
    Invalidate();
}

int CDialogControl::GetWindowText(char* pBuffer, int nMax) const {
    if (!pBuffer || nMax <= 0) return 0;
    const int n = std::min(static_cast<int>(m_strText.size()), nMax - 1);
    std::memcpy(pBuffer, m_strText.data(), static_cast<size_t>(n));
    pBuffer[n] = 0;
    return n;
}

void CDialogControl::EnableWindow(BOOL bEnable) {
    m_bEnabled = bEnable ? TRUE : FALSE;
    Invalidate();
}

void CDialogControl::MoveWindow(const RECT& rc) {
    const bool bSized = rc.right - rc.left != m_rcWindow.right - m_rcWindow.left ||
                        rc.bottom - rc.top != m_rcWindow.bottom - m_rcWindow.top;
    m_rcWindow = rc;
    if (bSized) OnSize(SIZE_RESTORED, rc.right - rc.left, rc.bottom - rc.top);
}

void CDialogControl::Invalidate() {
    if (m_pView) m_pView->Refresh();
}

void CDialogControl::OnSize(UINT, int, int) {}

void CDialogControl::NotifyParent(int nCode) {
    if (m_pParent) m_pParent->OnControlNotify(m_nID, nCode);
}
