// The control under the mouse and under a drag: the cursor, the wheel, and
// drops of text from this or another window.
#include "editor/Editor.h"
#include "editor/EditorInput.h"
#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

BOOL CEditor::OnSetCursor(CWnd*, UINT nHitTest, UINT) {
    if (SetEditorCursor(nHitTest)) return 1;
    return static_cast<BOOL>(Default());
}

BOOL CEditor::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    return RouteMouseWheel(this, m_pZone, nFlags, zDelta, pt);
}

DWORD CEditor::OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) {
    m_bOleDropAllowed = CanDropText(pDataObject, m_pZone, point);
    return DropEffectFor(m_bOleDropAllowed, dwKeyState);
}

DWORD CEditor::OnDragOver(COleDataObject*, DWORD dwKeyState, CPoint point) {
    m_pZone->HandleOleMouseMove(dwKeyState, &point);
    return DropEffectFor(m_bOleDropAllowed, dwKeyState);
}

void CEditor::OnDragLeave() {}

BOOL CEditor::OnDrop(COleDataObject* pDataObject, DWORD dropEffect, CPoint point) {
    if (!pDataObject || !pDataObject->IsDataAvailable(CF_TEXT)) return 0;
    const std::string text = pDataObject->GetGlobalData(CF_TEXT);
    BOOL bResult = 0;
    Notifying([&] { bResult = m_pZone->HandleOleDrop(text.c_str(), dropEffect, &point); });
    return bResult;
}
