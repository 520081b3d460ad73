#include "platform/StatusBar.h"

#include "platform/CmdUI.h"
#include "platform/FrameWnd.h"

BOOL CStatusBar::SetIndicators(const UINT* pIDArray, int nIDCount) {
    m_panes.clear();
    for (int i = 0; pIDArray && i < nIDCount; ++i)
        m_panes.push_back(Pane{pIDArray[i], std::string(), true});
    return TRUE;
}

int CStatusBar::CommandToIndex(UINT nID) const {
    for (size_t i = 0; i < m_panes.size(); ++i)
        if (m_panes[i].nID == nID) return static_cast<int>(i);
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_panes[static_cast<size_t>(nIndex)].nID : 0;
}

BOOL CStatusBar::SetPaneText(int nIndex, const char* pszText, BOOL) {
    if (nIndex < 0 || nIndex >= GetCount()) return FALSE;
    Pane& pane = m_panes[static_cast<size_t>(nIndex)];
    std::string strText = pszText ? pszText : "";
    if (pane.strText == strText) return TRUE;
    pane.strText = std::move(strText);
    if (m_onPaneChanged) m_onPaneChanged(nIndex);
    return TRUE;
}

std::string CStatusBar::GetPaneText(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_panes[static_cast<size_t>(nIndex)].strText
                                              : std::string();
}

BOOL CStatusBar::IsPaneEnabled(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() && m_panes[static_cast<size_t>(nIndex)].bEnabled;
}

std::string CStatusBar::GetShownText(int nIndex) const {
    return IsPaneEnabled(nIndex) ? GetPaneText(nIndex) : std::string();
}

void CStatusBar::SetPaneEnabled(int nIndex, bool bEnabled) {
    Pane& pane = m_panes[static_cast<size_t>(nIndex)];
    if (pane.bEnabled == bEnabled) return;
    pane.bEnabled = bEnabled;
    if (m_onPaneChanged) m_onPaneChanged(nIndex);
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHandler) {
    for (int i = 0; i < GetCount(); ++i) {
        // The message pane belongs to the frame, not to a command.
        if (GetItemID(i) == 0) continue;
        CCmdUI ui;
        ui.m_nID = GetItemID(i);
        ui.m_nIndex = static_cast<UINT>(i);
        ui.m_pOther = this;
        ui.DoUpdate(pTarget, bDisableIfNoHandler);
        if (ui.m_bTextSet) SetPaneText(i, ui.m_strText.c_str());
        SetPaneEnabled(i, ui.m_bEnabled);
    }
}
