#include "editor/EditorInput.h"

#include "completion/CompletionList.h"
#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/Platform.h"
#include "platform/ScrollBar.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

BOOL SetEditorCursor(UINT nHitTest) {
    if (nHitTest != HTCLIENT) return FALSE;
    ::SetCursor(LoadCursorA(nullptr, IsCompletionListShown() ? IDC_ARROW : IDC_IBEAM));
    return TRUE;
}

BOOL RouteMouseWheel(CWnd* pSelf, CTextZone* pZone, UINT nFlags, short zDelta, CPoint pt) {
    RECT rc;
    pSelf->GetWindowRect(&rc);
    const bool inside = pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
    if (!inside) {
        // The wheel scrolls what lies under the pointer, as far as this
        // process owns it.
        CWnd* pWnd = WindowFromPoint(pt);
        const WPARAM wParam = MAKEWPARAM(static_cast<int>(nFlags), zDelta);
        const LPARAM lParam = MAKELPARAM(pt.x, pt.y);
        while (pWnd && pWnd != pSelf) {
            if (pWnd->SendMessage(WM_MOUSEWHEEL, wParam, lParam)) return 1;
            POINT client = pt;
            pWnd->ScreenToClient(&client);
            CWnd* pChild = pWnd->ChildWindowFromPoint(client);
            pWnd = pChild == pWnd ? nullptr : pChild;
        }
        if (pWnd != pSelf) return 1;
    }
    // One line a message, whatever the size of the turn.
    pZone->HandleVScroll(zDelta < 1 ? SB_LINEDOWN : SB_LINEUP, 0, nullptr);
    return 1;
}

bool ForwardToZone(CTextZone& zone, UINT message, WPARAM wParam, LPARAM lParam,
                   LRESULT* pResult) {
    *pResult = 0;
    switch (message) {
        case WM_KILLFOCUS:
            zone.HandleKillFocus(reinterpret_cast<CWnd*>(wParam));
            return true;
        case WM_LBUTTONDBLCLK: {
            CPoint pt(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            zone.HandleLButtonDblClk(static_cast<UINT>(wParam), &pt);
            return true;
        }
        case WM_HSCROLL:
            zone.HandleHScroll(LOWORD(wParam), HIWORD(wParam),
                               reinterpret_cast<CScrollBar*>(lParam));
            return true;
        case WM_VSCROLL:
            zone.HandleVScroll(LOWORD(wParam), HIWORD(wParam),
                               reinterpret_cast<CScrollBar*>(lParam));
            return true;
        case WM_USER:
            *pResult = static_cast<LRESULT>(zone.HandleUserMessage(wParam, lParam));
            return true;
        default:
            return false;
    }
}

DWORD DropEffectFor(bool bAllowed, DWORD dwKeyState) {
    if (!bAllowed) return DROPEFFECT_NONE;
    return (dwKeyState & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}

bool CanDropText(COleDataObject* pDataObject, CTextZone* pZone, CPoint point) {
    if (!pDataObject || !pDataObject->IsDataAvailable(CF_TEXT)) return false;
    return pZone->IsOleDropAllowed(0, &point) != 0;
}

void SwitchSelectionMode(CWnd* pWnd, CTextZone* pZone, short wMode) {
    short wFrom = wMode == TZ_SEL_BOX ? TZ_SEL_STREAM : TZ_SEL_BOX;
    if (pZone->GetSelectionMode() != wFrom) return;
    LONG lFirst = 0, lLast = 0;
    pZone->GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    pWnd->HideCaret();
    pZone->SetSelectionMode(wMode);
    pZone->RedrawLines(lFirst, lLast, 1);
    pZone->DrawCaret(1, 1);
}

int InsertHostText(CWnd* pWnd, CTextZone* pZone, const char* pszText, int nFlag, int bRegister,
                   int bModified, int nAtLine) {
    pWnd->BeginWaitCursor();
    if (bRegister) pZone->StartRegister(6);
    pZone->CancelSelection(1);
    // Box mode would insert the lines as a column; the host's text goes in
    // as lines.
    const bool bBox = pZone->GetSelectionMode() == TZ_SEL_BOX;
    if (bBox) pZone->SetSelectionMode(TZ_SEL_STREAM);
    if (nAtLine != -1) pZone->SetSelection(nAtLine, nAtLine, 0, 0, 0, 0);
    const int nResult = pZone->InsertText(pszText, nFlag, 1, 1);
    if (bRegister || bModified) {
        pZone->SetModify(1);
        if (bRegister) pZone->EndRegister();
    }
    if (bBox) pZone->SetSelectionMode(TZ_SEL_BOX);
    pWnd->EndWaitCursor();
    return nResult;
}
