// Collapsible blocks and their status string.
#include "textzone/TextZone.h"

void CTextZone::FreeAllEditBlocks() {
    m_editBlocks.clear();
    m_inputBlocks.clear();
    m_altBlocks.clear();
}

// Blocks are not yet made: the text shows every line.
int CTextZone::SetEditBlock(int, int) {
    return 0;
}
void CTextZone::BeginEditBlockInput() {}
int CTextZone::AddEditBlockInput(int, int) {
    return 0;
}
void CTextZone::EndEditBlockInput() {}
int CTextZone::OpenBlock(int, int) {
    return 0;
}
int CTextZone::CloseBlock(int, int) {
    return 0;
}
int CTextZone::CreateClosedAltBlock(int, int, int) {
    return 0;
}
void CTextZone::GetEditorBlockStatus(VESK::String& strStatus) {
    strStatus.Empty();
}
void CTextZone::SetEditorBlockStatus(VESK::String&) {}
void CTextZone::CollapseCurrentSel() {}
void CTextZone::ExpandCurrentSel() {}
