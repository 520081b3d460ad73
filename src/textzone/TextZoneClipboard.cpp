// Clipboard and drag and drop.
#include "textzone/TextZone.h"

// The clipboard and drag and drop are not wired to the zone yet.
int CTextZone::Cut() {
    return 0;
}
int CTextZone::Copy() {
    return 0;
}
int CTextZone::Paste() {
    return 0;
}
void CTextZone::HandleOleLButtonDown(UINT, POINT*) {}
void CTextZone::HandleOleLButtonUp(UINT, POINT*) {}
void CTextZone::HandleOleMouseMove(UINT, POINT*) {}
int CTextZone::HandleOleDrag(UINT, POINT*) {
    return 0;
}
int CTextZone::HandleOleDrop(const char*, ULONG, POINT*) {
    return 0;
}
bool CTextZone::IsOleDragAllowed(UINT, POINT*) {
    return false;
}
bool CTextZone::IsOleDropAllowed(UINT, POINT*) {
    return false;
}
bool CTextZone::DoOleMoveItem(POINT*) {
    return false;
}
bool CTextZone::DoOlePasteItem(const char*, POINT*) {
    return false;
}
