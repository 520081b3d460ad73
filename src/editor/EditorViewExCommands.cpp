// The extended view's own commands: select all, box and stream mode,
// bookmarks, and the status panes.
#include <cstdio>

#include "editor/EditorInput.h"
#include "editor/EditorViewEx.h"
#include "platform/StatusBar.h"
#include "resources/EditorResources.h"
#include "zones/TextZoneParam.h"

const CommandEntry<CEditorViewEx> CEditorViewEx::s_commands[] = {
    // Its state comes from the base view's handler.
    {ID_EDIT_SELECT_ALL, &CEditorViewEx::OnEditSelectAll, nullptr},
    {ID_EDIT_BOXMODE, &CEditorViewEx::OnEditBoxmode, &CEditorViewEx::OnUpdateEditBoxmode},
    {ID_EDIT_STREAMMODE, &CEditorViewEx::OnEditStreammode,
     &CEditorViewEx::OnUpdateEditStreammode},
    {ID_VIEW_TOGGLEBOOKMARK, &CEditorViewEx::OnViewTogglebookmark, nullptr},
    {ID_VIEW_NEXTBOOKMARK, &CEditorViewEx::OnViewNextbookmark, nullptr},
    {ID_VIEW_PREVBOOKMARK, &CEditorViewEx::OnViewPrevbookmark, nullptr},
    // Both pane handlers stand under the line pane's id; each writes its own pane.
    {ID_INDICATOR_LINE, nullptr, &CEditorViewEx::OnUpdateLine},
    {ID_INDICATOR_LINE, nullptr, &CEditorViewEx::OnUpdateMode},
};

BOOL CEditorViewEx::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (DispatchCommand<CEditorViewEx>(this, s_commands, nID, nCode, pCmdUI)) return TRUE;
    return CEditorView::OnCmdMsg(nID, nCode, pCmdUI);
}

void CEditorViewEx::OnEditSelectAll() {
    m_pParamZone->SetSelection(0, -1, 0, 0, 1, 1);
}

void CEditorViewEx::OnEditBoxmode() {
    SwitchSelectionMode(this, m_pParamZone, 2);
}

void CEditorViewEx::OnEditStreammode() {
    SwitchSelectionMode(this, m_pParamZone, 1);
}

void CEditorViewEx::OnViewTogglebookmark() {
    m_pParamZone->ToggleBookmark();
}

void CEditorViewEx::OnViewNextbookmark() {
    m_pParamZone->GotoNextBookmark(0);
}

void CEditorViewEx::OnViewPrevbookmark() {
    m_pParamZone->GotoNextBookmark(1);
}

void CEditorViewEx::OnUpdateEditBoxmode(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_pParamZone->GetSelectionMode() == TZ_SEL_BOX);
    // A box needs columns of one width.
    pCmdUI->Enable(!m_pParamZone->IsFontProportionnal());
}

void CEditorViewEx::OnUpdateEditStreammode(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_pParamZone->GetSelectionMode() == TZ_SEL_STREAM);
}

void CEditorViewEx::OnUpdateLine(CCmdUI* pCmdUI) {
    pCmdUI->Enable(TRUE);
    auto* pBar = dynamic_cast<CStatusBar*>(pCmdUI->m_pOther);
    if (!pBar) return;
    LONG lFirst = 0, lLast = 0;
    m_pParamZone->GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    char szLine[32];
    std::snprintf(szLine, sizeof szLine, "%05i", static_cast<int>(lFirst) + 1);
    pBar->SetPaneText(pBar->CommandToIndex(ID_INDICATOR_LINE), szLine);
}

void CEditorViewEx::OnUpdateMode(CCmdUI* pCmdUI) {
    pCmdUI->Enable(TRUE);
    if (auto* pBar = dynamic_cast<CStatusBar*>(pCmdUI->m_pOther))
        pBar->SetPaneText(pBar->CommandToIndex(ID_INDICATOR_MODE), "");
}
