#include "platform/PrintingDialog.h"

#include "platform/Messages.h"

bool& CPrintingDialog::UserAbort() {
    thread_local bool s_bAbort = false;
    return s_bAbort;
}

BOOL CPrintingDialog::Create(CWnd* pParent) {
    return CreateEx(0, kClassName, "Printing", WS_POPUP | WS_VISIBLE, RECT{0, 0, 0, 0}, pParent,
                    IDD);
}

void CPrintingDialog::SetDlgItemText(int nID, const char* pszText) {
    if (nID < IDC_DOCUMENT || nID > IDC_PAGE) return;
    m_strTexts[nID - IDC_DOCUMENT] = pszText ? pszText : "";
    if (m_onTextChanged) m_onTextChanged(nID);
}

std::string CPrintingDialog::GetDlgItemText(int nID) const {
    return nID >= IDC_DOCUMENT && nID <= IDC_PAGE ? m_strTexts[nID - IDC_DOCUMENT]
                                                  : std::string();
}

void CPrintingDialog::OnCancel() {
    UserAbort() = true;
}

LRESULT CPrintingDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // Closing it is cancelling; the print loop destroys it when done.
    if (message == WM_CLOSE) {
        OnCancel();
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
