// The standard edit commands of the view and the states of their menu
// items and buttons.
#include <iterator>

#include "editor/EditorView.h"
#include "platform/CommandMap.h"
#include "platform/Document.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

const CommandEntry<CEditorView> CEditorView::s_commands[] = {
    {ID_EDIT_CLEAR, nullptr, &CEditorView::OnUpdateNeedSel},
    {ID_EDIT_CLEAR_ALL, &CEditorView::OnEditClear, &CEditorView::OnUpdateEditClear},
    {ID_EDIT_COPY, &CEditorView::OnEditCopy, &CEditorView::OnUpdateNeedSel},
    {ID_EDIT_CUT, &CEditorView::OnEditCut, &CEditorView::OnUpdateNeedSel},
    {ID_EDIT_FIND, &CEditorView::OnEditFind, &CEditorView::OnUpdateNeedText},
    {ID_EDIT_PASTE, &CEditorView::OnEditPaste, &CEditorView::OnUpdateNeedClip},
    {ID_EDIT_REPEAT, &CEditorView::OnEditRepeat, &CEditorView::OnUpdateNeedFind},
    {ID_EDIT_REPLACE, &CEditorView::OnEditReplace, &CEditorView::OnUpdateNeedTextAndWrite},
    {ID_EDIT_SELECT_ALL, nullptr, &CEditorView::OnUpdateNeedText},
    {ID_EDIT_UNDO, &CEditorView::OnEditUndo, &CEditorView::OnUpdateEditUndo},
    {ID_EDIT_REDO, &CEditorView::OnEditRedo, &CEditorView::OnUpdateEditRedo},
};

BOOL CEditorView::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (DispatchCommand<CEditorView>(this, s_commands, nID, nCode, pCmdUI)) return TRUE;
    return CVeskView::OnCmdMsg(nID, nCode, pCmdUI);
}

void CEditorView::OnEditClear() {
    if (!IsWindowEnabled()) return;
    m_pZone->SetText("");
    m_pZone->SetModify(1);
    if (CDocument* pDoc = GetDocument()) pDoc->SetModifiedFlag(TRUE);
}

void CEditorView::OnEditCopy() {
    m_pZone->Copy();
}

void CEditorView::OnEditCut() {
    if (!IsWindowEnabled()) return;
    m_pZone->Cut();
    MarkDocumentIfModified();
}

void CEditorView::OnEditPaste() {
    if (!IsWindowEnabled()) return;
    m_pZone->Paste();
    MarkDocumentIfModified();
}

void CEditorView::OnEditUndo() {
    m_pZone->Undo();
    MarkDocumentIfModified();
}

void CEditorView::OnEditRedo() {
    m_pZone->Redo();
    MarkDocumentIfModified();
}

void CEditorView::OnUpdateNeedSel(CCmdUI* pCmdUI) {
    pCmdUI->Enable(HasSelection() && IsWindowEnabled());
}

void CEditorView::OnUpdateEditClear(CCmdUI* pCmdUI) {
    pCmdUI->Enable(HasSelection() && IsWindowEnabled() && !m_pZone->GetReadOnly());
}

void CEditorView::OnUpdateNeedText(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_pZone->IsEmpty() && IsWindowEnabled());
}

void CEditorView::OnUpdateNeedClip(CCmdUI* pCmdUI) {
    pCmdUI->Enable(IsClipboardFormatAvailable(CF_TEXT) && IsWindowEnabled());
}

void CEditorView::OnUpdateNeedTextAndWrite(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_pZone->IsEmpty() && IsWindowEnabled() && !m_pZone->GetReadOnly());
}

void CEditorView::OnUpdateEditUndo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_pZone->GetUndoType() != 0 && IsWindowEnabled());
}

void CEditorView::OnUpdateEditRedo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_pZone->GetRedoType() != 0 && IsWindowEnabled());
}

void CEditorView::OnEditFind() {
    OnEditFindReplace(TRUE);
}

void CEditorView::OnEditReplace() {
    OnEditFindReplace(FALSE);
}

void CEditorView::OnEditRepeat() {
    CEditFindReplace::Instance().Repeat(*this);
}

void CEditorView::OnUpdateNeedFind(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!CEditFindReplace::Instance().m_strFind.IsEmpty() && IsWindowEnabled());
}
