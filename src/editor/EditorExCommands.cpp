// The extended control's commands and the states a host's menus, tool bars
// and status panes show for them. In a disabled window the commands do
// nothing, whatever route they came by. Erase buffer (49921) is the host's:
// the menu offers it, but the text it erases is the host's business; so is
// Replace (57641), which a host opens with Find(FALSE).
#include <array>

#include "editor/EditFindReplace.h"
#include "editor/EditorEx.h"
#include "editor/EditorInput.h"
#include "host/MessageBeep.h"
#include "platform/CmdUI.h"
#include "platform/CommandMap.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "resources/EditorResources.h"
#include "zones/TextZoneParam.h"

namespace {

constexpr short kStreamMode = 1;
constexpr short kBoxMode = 2;

using Entry = CommandEntry<CEditorEx>;

const std::array kCommands = {
    Entry{ID_EDIT_BOXMODE, &CEditorEx::OnEditBoxmode, &CEditorEx::OnUpdateEditBoxmode},
    Entry{ID_EDIT_STREAMMODE, &CEditorEx::OnEditStreammode, &CEditorEx::OnUpdateEditStreammode},
    Entry{ID_VIEW_TOGGLEBOOKMARK, &CEditorEx::OnViewTogglebookmark, nullptr},
    Entry{ID_VIEW_NEXTBOOKMARK, &CEditorEx::OnViewNextbookmark, nullptr},
    Entry{ID_VIEW_PREVBOOKMARK, &CEditorEx::OnViewPrevbookmark, nullptr},
    Entry{ID_EDIT_CLEAR_ALL, &CEditorEx::OnEditClearAll, &CEditorEx::OnUpdateEditClearAll},
    Entry{ID_EDIT_COPY, &CEditorEx::OnEditCopy, &CEditorEx::OnUpdateEditCopy},
    Entry{ID_EDIT_CUT, &CEditorEx::OnEditCut, &CEditorEx::OnUpdateEditCut},
    Entry{ID_EDIT_PASTE, &CEditorEx::OnEditPaste, &CEditorEx::OnUpdateEditPaste},
    Entry{ID_EDIT_SELECT_ALL, &CEditorEx::OnEditSelectAll, &CEditorEx::OnUpdateEditSelectAll},
    Entry{ID_EDIT_UNDO, &CEditorEx::OnEditUndo, &CEditorEx::OnUpdateEditUndo},
    Entry{ID_EDIT_REDO, &CEditorEx::OnEditRedo, &CEditorEx::OnUpdateEditRedo},
    Entry{ID_EDIT_FIND, &CEditorEx::OnEditFind, &CEditorEx::OnUpdateEditFind},
    Entry{ID_EDIT_REPEAT, &CEditorEx::OnEditRepeat, &CEditorEx::OnUpdateEditRepeat},
    Entry{ID_FILE_PRINT, &CEditorEx::FilePrint, &CEditorEx::OnUpdateFilePrint},
    Entry{ID_FILE_PRINT_DIRECT, &CEditorEx::OnFilePrintDirect, &CEditorEx::OnUpdateFilePrint},
};

}  // namespace

BOOL CEditorEx::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (DispatchCommand<CEditorEx>(this, kCommands, nID, nCode, pCmdUI)) return TRUE;
    return CEditor::OnCmdMsg(nID, nCode, pCmdUI);
}

bool CEditorEx::CanEdit() {
    return IsWindowEnabled() && !m_pZone->GetReadOnly();
}

void CEditorEx::OnEditBoxmode() {
    // Columns need every byte equally wide.
    if (m_pZone->IsFontProportionnal()) {
        VESKMessageBeep(0);
        return;
    }
    SwitchSelectionMode(this, m_pZone, kBoxMode);
}

void CEditorEx::OnUpdateEditBoxmode(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_pZone->GetSelectionMode() == kBoxMode);
    pCmdUI->Enable(!m_pZone->IsFontProportionnal());
}

void CEditorEx::OnEditStreammode() {
    SwitchSelectionMode(this, m_pZone, kStreamMode);
}

void CEditorEx::OnUpdateEditStreammode(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_pZone->GetSelectionMode() == kStreamMode);
}

void CEditorEx::OnViewTogglebookmark() {
    m_pZone->ToggleBookmark();
}

void CEditorEx::OnViewNextbookmark() {
    m_pZone->GotoNextBookmark(0);
}

void CEditorEx::OnViewPrevbookmark() {
    m_pZone->GotoNextBookmark(1);
}

void CEditorEx::ClearAll() {
    OnEditClearAll();
}

void CEditorEx::OnEditClearAll() {
    if (!CanEdit()) return;
    Notifying([&] {
        const bool bHadText = !m_pZone->IsEmpty();
        m_pZone->SetText("");
        // A new text starts unmodified; an erased one is a change the host
        // must hear of, or it would not ask to save.
        if (bHadText) m_pZone->SetModify(1);
    });
}

void CEditorEx::OnUpdateEditClearAll(CCmdUI* pCmdUI) {
    // Offered with a selection only, like cut: the whole text goes all the same.
    pCmdUI->Enable(m_pZone->TestSelection() && CanEdit());
}

void CEditorEx::OnEditCopy() {
    if (IsWindowEnabled()) m_pZone->Copy();
}

void CEditorEx::OnUpdateEditCopy(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_pZone->TestSelection() && IsWindowEnabled());
}

void CEditorEx::OnEditCut() {
    if (!CanEdit()) return;
    Notifying([&] { m_pZone->Cut(); });
}

void CEditorEx::OnUpdateEditCut(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_pZone->TestSelection() && CanEdit());
}

void CEditorEx::OnEditPaste() {
    if (!CanEdit()) return;
    Notifying([&] { m_pZone->Paste(); });
}

void CEditorEx::OnUpdateEditPaste(CCmdUI* pCmdUI) {
    pCmdUI->Enable(IsClipboardFormatAvailable(CF_TEXT) && CanEdit());
}

void CEditorEx::OnEditSelectAll() {
    if (IsWindowEnabled()) m_pZone->SetSelection(0, -1, 0, 0, 1, 1);
}

void CEditorEx::OnUpdateEditSelectAll(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_pZone->IsEmpty() && IsWindowEnabled());
}

void CEditorEx::OnEditUndo() {
    // As Ctrl+Z: the parent hears of the change. A read-only zone keeps
    // its text by itself.
    if (!IsWindowEnabled()) return;
    Notifying([&] { m_pZone->Undo(); });
}

void CEditorEx::OnUpdateEditUndo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_pZone->GetUndoType() != 0 && IsWindowEnabled());
}

void CEditorEx::OnEditRedo() {
    if (!IsWindowEnabled()) return;
    Notifying([&] { m_pZone->Redo(); });
}

void CEditorEx::OnUpdateEditRedo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_pZone->GetRedoType() != 0 && IsWindowEnabled());
}

void CEditorEx::OnEditFind() {
    if (IsWindowEnabled()) Find(TRUE);
}

void CEditorEx::OnUpdateEditFind(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_pZone->IsEmpty() && IsWindowEnabled());
}

void CEditorEx::OnEditRepeat() {
    if (IsWindowEnabled()) FindNext();
}

void CEditorEx::OnUpdateEditRepeat(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!CEditFindReplace::Instance().m_strFind.IsEmpty() && IsWindowEnabled());
}
