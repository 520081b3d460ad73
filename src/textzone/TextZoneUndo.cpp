// Undo and redo history.
#include "textzone/TextZone.h"

// Recording is not yet kept: the operations below leave the history empty,
// so edits simply cannot be undone for now.
void CTextZone::StartRegister(short) {}
void CTextZone::RegisterUnit(WORD) {}
void CTextZone::EndRegister() {}

void CTextZone::FreeAllOperations() {
    m_undoList.clear();
    m_redoList.clear();
    m_pCurrentOperation.reset();
}

void CTextZone::Undo() {}
void CTextZone::Redo() {}
void CTextZone::PerformUndoing(CUndoOperation*) {}

short CTextZone::GetUndoType() {
    if (m_bReadOnly || m_undoList.empty()) return 0;
    return static_cast<short>(m_undoList.back()->m_wType);
}

short CTextZone::GetRedoType() {
    if (m_bReadOnly || m_redoList.empty()) return 0;
    return static_cast<short>(m_redoList.back()->m_wType);
}
