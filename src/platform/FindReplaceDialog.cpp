#include "platform/FindReplaceDialog.h"

#include "platform/Messages.h"
#include "platform/Platform.h"

CFindReplaceDialog::CFindReplaceDialog() {
    m_fr.lCustData = reinterpret_cast<LPARAM>(this);
}

BOOL CFindReplaceDialog::Create(BOOL bFindDialogOnly, const char* pszFindWhat,
                                const char* pszReplaceWith, DWORD dwFlags, CWnd* pParentWnd) {
    m_bFindOnly = bFindDialogOnly;
    m_strFind = pszFindWhat ? pszFindWhat : "";
    m_strReplace = pszReplaceWith ? pszReplaceWith : "";
    m_fr.hwndOwner = pParentWnd;
    m_fr.Flags = dwFlags;
    m_fr.lpstrFindWhat = m_strFind.c_str();
    m_fr.lpstrReplaceWith = m_strReplace.c_str();
    m_bTerminated = false;
    // A top-level window of its own, owned by nobody the window system knows:
    // it floats above the editors and reports by message.
    return CreateEx(0, kClassName, bFindDialogOnly ? "Find" : "Replace", WS_POPUP | WS_VISIBLE,
                    RECT{0, 0, 0, 0}, nullptr, 0);
}

CFindReplaceDialog* CFindReplaceDialog::GetNotifier(LPARAM lParam) {
    auto* pRecord = reinterpret_cast<FINDREPLACEA*>(lParam);
    return pRecord ? reinterpret_cast<CFindReplaceDialog*>(pRecord->lCustData) : nullptr;
}

void CFindReplaceDialog::DoAction(DWORD dwAction, const std::string& strFind,
                                  const std::string& strReplace, BOOL bDown, BOOL bMatchCase) {
    if (m_bTerminated) return;
    m_strFind = strFind.substr(0, kMaxText);
    m_strReplace = strReplace.substr(0, kMaxText);
    m_fr.lpstrFindWhat = m_strFind.c_str();
    m_fr.lpstrReplaceWith = m_strReplace.c_str();
    DWORD dwKeep = m_fr.Flags & ~(FR_FINDNEXT | FR_REPLACE | FR_REPLACEALL | FR_DIALOGTERM |
                                  FR_DOWN | FR_MATCHCASE);
    m_fr.Flags = dwKeep | (dwAction & (FR_FINDNEXT | FR_REPLACE | FR_REPLACEALL)) |
                 (bDown ? FR_DOWN : 0) | (bMatchCase ? FR_MATCHCASE : 0);
    Report();
}

void CFindReplaceDialog::Terminate() {
    if (m_bTerminated) return;
    m_bTerminated = true;
    m_fr.Flags = (m_fr.Flags & ~(FR_FINDNEXT | FR_REPLACE | FR_REPLACEALL)) | FR_DIALOGTERM;
    Report();
    DestroyWindow();
}

void CFindReplaceDialog::Report() {
    static const UINT s_nMessage = RegisterWindowMessageA("commdlg_FindReplace");
    if (CWnd* pTarget = GetNotifyWindow())
        if (pTarget->GetSafeHwnd())
            pTarget->SendMessage(s_nMessage, 0, reinterpret_cast<LPARAM>(&m_fr));
}

LRESULT CFindReplaceDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) {
        Terminate();
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
