// The control under the mouse and under a drag: the cursor, the wheel, and
// drops of text from this or another window.
#include "completion/CompletionList.h"
#include "editor/Editor.h"
#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

BOOL CEditor::OnSetCursor(CWnd*, UINT nHitTest, UINT) {
    if (nHitTest != HTCLIENT) return static_cast<BOOL>(Default());
    ::SetCursor(LoadCursorA(nullptr, IsCompletionListShown() ? IDC_ARROW : IDC_IBEAM));
    return 1;
}

BOOL CEditor::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    RECT rc;
    GetWindowRect(&rc);
    const bool inside = pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
    if (!inside) {
        // The wheel scrolls what lies under the pointer, as far as this
        // process owns it.
        CWnd* pWnd = WindowFromPoint(pt);
        const WPARAM wParam = MAKEWPARAM(static_cast<int>(nFlags), zDelta);
        const LPARAM lParam = MAKELPARAM(pt.x, pt.y);
        while (pWnd && pWnd != this) {
            if (pWnd->SendMessage(WM_MOUSEWHEEL, wParam, lParam)) return 1;
            POINT client = pt;
            pWnd->ScreenToClient(&client);
            CWnd* pChild = pWnd->ChildWindowFromPoint(client);
            pWnd = pChild == pWnd ? nullptr : pChild;
        }
        if (pWnd != this) return 1;
    }
    // One line a message, whatever the size of the turn.
    m_pZone->HandleVScroll(zDelta < 1 ? SB_LINEDOWN : SB_LINEUP, 0, nullptr);
    return 1;
}

DWORD CEditor::OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) {
    if (!pDataObject || !pDataObject->IsDataAvailable(CF_TEXT)) {
        m_bOleDropAllowed = false;
        return DROPEFFECT_NONE;
    }
    m_bOleDropAllowed = m_pZone->IsOleDropAllowed(0, &point);
    if (!m_bOleDropAllowed) return DROPEFFECT_NONE;
    return (dwKeyState & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}

DWORD CEditor::OnDragOver(COleDataObject*, DWORD dwKeyState, CPoint point) {
    m_pZone->HandleOleMouseMove(dwKeyState, &point);
    if (!m_bOleDropAllowed) return DROPEFFECT_NONE;
    return (dwKeyState & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}

void CEditor::OnDragLeave() {}

BOOL CEditor::OnDrop(COleDataObject* pDataObject, DWORD dropEffect, CPoint point) {
    if (!pDataObject || !pDataObject->IsDataAvailable(CF_TEXT)) return 0;
    const std::string text = pDataObject->GetGlobalData(CF_TEXT);
    BOOL bResult = 0;
    Notifying([&] { bResult = m_pZone->HandleOleDrop(text.c_str(), dropEffect, &point); });
    return bResult;
}
