#include "editor/EditFindReplace.h"

#include <string>
#include <vector>

#include "host/MessageBeep.h"
#include "platform/Messages.h"
#include "textzone/TextZone.h"

namespace {

// The selection as search text, when it is short enough to be one.
std::string SelectionForSearch(CTextZone& zone) {
    LONG lLength = zone.GetSelectedTextLength(TF_CRLF);
    if (lLength <= 0 || lLength + 1 >= 1024) return std::string();
    std::vector<char> buffer(static_cast<size_t>(lLength) + 2, '\0');
    zone.GetSelectedText(buffer.data(), static_cast<LONG>(buffer.size()), TF_CRLF);
    return buffer.data();
}

}  // namespace

CEditFindReplace& CEditFindReplace::Instance() {
    static SingletonDestroyer<CEditFindReplace> s_destroyer;
    static CEditFindReplace* s_pInstance = nullptr;
    if (!s_pInstance) {
        s_pInstance = new CEditFindReplace;
        s_destroyer.SetDoomed(s_pInstance);
    }
    return *s_pInstance;
}

CEditFindReplace::~CEditFindReplace() {
    if (m_pOwnedDlg) m_pOwnedDlg->DestroyWindow();
}

void CEditFindReplace::Open(IFindReplaceTarget& target, int bFindOnly, bool bWithReplace) {
    CWnd* pWnd = target.GetFindWindow();
    if (m_pFindReplaceDlg) {
        if (m_bFindOnly == bFindOnly && m_pFindReplaceDlg->m_hwndOwner == pWnd) {
            m_pFindReplaceDlg->SetActiveWindow();
            m_pFindReplaceDlg->ShowWindow(SW_SHOW);
            return;
        }
        m_pFindReplaceDlg->SendMessage(WM_CLOSE);
    }
    std::string strFind = SelectionForSearch(*target.GetFindZone());
    if (strFind.empty()) strFind = m_strFind.c_str();
    DWORD dwFlags = FR_HIDEWHOLEWORD | (m_bNext ? FR_DOWN : 0) | (m_bCase ? FR_MATCHCASE : 0);
    m_pClosedDlg.reset();
    auto pDlg = std::make_shared<CEditFindReplaceDialog>();
    if (!pDlg->Create(bFindOnly, strFind.c_str(), bWithReplace ? m_strReplace.c_str() : nullptr,
                      dwFlags, nullptr)) {
        m_pFindReplaceDlg = nullptr;
        return;
    }
    pDlg->m_hwndOwner = pWnd;
    m_pOwnedDlg = pDlg;
    m_pFindReplaceDlg = pDlg.get();
    m_bFindOnly = bFindOnly;
}

void CEditFindReplace::FollowFocus(CWnd* pWnd) {
    if (m_pFindReplaceDlg) m_pFindReplaceDlg->m_hwndOwner = pWnd;
}

void CEditFindReplace::ForgetWindow(CWnd* pWnd) {
    if (m_pFindReplaceDlg && m_pFindReplaceDlg->m_hwndOwner == pWnd)
        m_pFindReplaceDlg->m_hwndOwner = nullptr;
}

LRESULT CEditFindReplace::OnFindReplaceCmd(IFindReplaceTarget& target, UINT message, WPARAM,
                                           LPARAM lParam) {
    if (!m_pFindReplaceDlg) return 0;
    CWnd* pWnd = target.GetFindWindow();
    // The action is the owner's, whichever window heard of it.
    if (m_pFindReplaceDlg->m_hwndOwner != pWnd) {
        if (CWnd* pOwner = m_pFindReplaceDlg->m_hwndOwner) pOwner->PostMessage(message, 0, lParam);
        return 0;
    }
    auto* pRecord = reinterpret_cast<FINDREPLACEA*>(lParam);
    if (!pRecord) return 0;
    const DWORD dwFlags = pRecord->Flags;
    const char* pszFind = pRecord->lpstrFindWhat ? pRecord->lpstrFindWhat : "";
    const char* pszReplace = pRecord->lpstrReplaceWith ? pRecord->lpstrReplaceWith : "";
    if (dwFlags & FR_DIALOGTERM) {
        // The dialog is on its way out; it is freed at the next opening.
        m_pClosedDlg = std::move(m_pOwnedDlg);
        m_pFindReplaceDlg = nullptr;
    } else if (dwFlags & FR_FINDNEXT) {
        target.OnFindNext(pszFind, (dwFlags & FR_DOWN) != 0, (dwFlags & FR_MATCHCASE) != 0);
    } else if (dwFlags & FR_REPLACE) {
        target.OnReplaceSel(pszFind, (dwFlags & FR_DOWN) != 0, (dwFlags & FR_MATCHCASE) != 0,
                            pszReplace);
    } else if (dwFlags & FR_REPLACEALL) {
        target.OnReplaceAll(pszFind, pszReplace, (dwFlags & FR_MATCHCASE) != 0);
    }
    return 0;
}

int CEditFindReplace::FindNext(IFindReplaceTarget& target, const char* pszFind, int bNext,
                               int bCase) {
    m_strFind = pszFind;
    m_bNext = bNext;
    m_bCase = bCase;
    if (target.GetFindZone()->FindTextFromCurrentPos(pszFind, bNext, bCase)) return 1;
    target.OnTextNotFound(pszFind);
    return 0;
}

void CEditFindReplace::ReplaceSel(IFindReplaceTarget& target, const char* pszFind, int bNext,
                                  int bCase, const char* pszReplace, bool bTestReadOnly) {
    m_strFind = pszFind;
    m_bNext = bNext;
    m_bCase = bCase;
    m_strReplace = pszReplace;
    if (!target.InitializeReplace()) return;
    CTextZone& zone = *target.GetFindZone();
    if (!bTestReadOnly || !zone.GetReadOnly()) {
        zone.StartRegister(TZ_EDIT_REPLACE);
        zone.InsertText(pszReplace, 0, 1, 1);
        zone.EndRegister();
        target.OnFindReplaceModified();
    }
    // On to the next match, without a word if there is none.
    zone.FindTextFromCurrentPos(m_strFind.c_str(), m_bNext, m_bCase);
}

void CEditFindReplace::ReplaceAll(IFindReplaceTarget& target, const char* pszFind,
                                  const char* pszReplace, int bCase) {
    m_strFind = pszFind;
    m_strReplace = pszReplace;
    m_bCase = bCase;
    m_bNext = 1;
    if (!target.InitializeReplace()) return;
    CTextZone& zone = *target.GetFindZone();
    // One undo frame: a single Undo restores every replacement.
    zone.StartRegister(TZ_EDIT_REPLACE_ALL);
    do {
        zone.InsertText(pszReplace, 0, 1, 1);
    } while (zone.FindTextFromCurrentPos(pszFind, 1, bCase));
    zone.EndRegister();
    target.OnFindReplaceModified();
}

int CEditFindReplace::InitializeReplace(IFindReplaceTarget& target) {
    CTextZone& zone = *target.GetFindZone();
    if (zone.TestSelection() && zone.SameAsSelected(m_strFind.c_str(), m_bCase)) return 1;
    if (zone.FindTextFromCurrentPos(m_strFind.c_str(), m_bNext, m_bCase)) return 1;
    target.OnTextNotFound(m_strFind.c_str());
    return 0;
}

void CEditFindReplace::FindSelection(IFindReplaceTarget& target) {
    CTextZone& zone = *target.GetFindZone();
    if (zone.GetSelectedTextLength(TF_CRLF) >= 1023) {
        VESKMessageBeep(0);
        return;
    }
    m_strFind = SelectionForSearch(zone).c_str();
    Repeat(target);
}

void CEditFindReplace::Repeat(IFindReplaceTarget& target) {
    if (m_strFind.IsEmpty()) return;
    if (!target.GetFindZone()->FindTextFromCurrentPos(m_strFind.c_str(), m_bNext, m_bCase))
        target.OnTextNotFound(m_strFind.c_str());
}
