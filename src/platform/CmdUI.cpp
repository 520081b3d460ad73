#include "platform/CmdUI.h"

#include "platform/Messages.h"
#include "platform/Wnd.h"

void CCmdUI::Enable(BOOL bOn) {
    m_bEnabled = bOn;
    m_bEnableChanged = true;
}

void CCmdUI::SetCheck(int nCheck) {
    m_nCheck = nCheck;
}

void CCmdUI::SetText(const char* pszText) {
    m_strText = pszText ? pszText : "";
    m_bTextSet = true;
}

BOOL CCmdUI::DoUpdate(CWnd* pTarget, BOOL bDisableIfNoHandler) {
    m_bEnableChanged = false;
    if (!pTarget) return FALSE;
    if (pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this)) return TRUE;
    if (!m_bEnableChanged) {
        BOOL bHandler = pTarget->OnCmdMsg(m_nID, CN_QUERY_HANDLER, nullptr);
        if (bHandler || bDisableIfNoHandler) Enable(bHandler);
    }
    return FALSE;
}
