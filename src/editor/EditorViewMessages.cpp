// The view's message map: window messages become calls on the zone, and a
// user action that changed the text marks the document modified.
#include <cstring>

#include "editor/EditorInput.h"
#include "editor/EditorView.h"
#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/Platform.h"
#include "platform/ScrollBar.h"
#include "textzone/TextZone.h"

namespace {

CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

}  // namespace

LRESULT CEditorView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT s_nFindReplace = RegisterWindowMessageA("commdlg_FindReplace");
    if (message == s_nFindReplace) return OnFindReplaceCmd(wParam, lParam);
    CTextZone& zone = *m_pZone;
    if (LRESULT lResult; ForwardToZone(zone, message, wParam, lParam, &lResult)) return lResult;
    switch (message) {
        case WM_CREATE:
            return OnCreate(reinterpret_cast<CREATESTRUCT*>(lParam));
        case WM_DESTROY:
            CEditFindReplace::Instance().ForgetWindow(this);
            return CVeskView::WindowProc(message, wParam, lParam);
        case WM_ERASEBKGND: {
            auto* pDC = reinterpret_cast<CDC*>(wParam);
            if (!pDC) return 1;
            RECT rc;
            GetClientRect(&rc);
            CBrush brush;
            brush.CreateSolidBrush(m_crBackground);
            pDC->FillRect(&rc, &brush);
            return 1;
        }
        case WM_SIZE:
            OnSize(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_NCCALCSIZE:
            return CalcTextArea(this, static_cast<BOOL>(wParam),
                                reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam));
        case WM_KEYDOWN:
            OnKeyDown(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_CHAR:
            OnChar(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_SETFOCUS:
            OnSetFocus(reinterpret_cast<CWnd*>(wParam));
            return 0;
        case WM_LBUTTONDOWN: {
            CPoint pt = PointOf(lParam);
            SetFocus();
            if (m_bOleDataSource)
                zone.HandleOleLButtonDown(static_cast<UINT>(wParam), &pt);
            else
                zone.HandleLButtonDown(static_cast<UINT>(wParam), &pt);
            MarkDocumentIfModified();
            return 0;
        }
        case WM_LBUTTONUP: {
            // The drop-target flag decides here, as in the control.
            CPoint pt = PointOf(lParam);
            if (m_bOleDropTarget)
                zone.HandleOleLButtonUp(static_cast<UINT>(wParam), &pt);
            else
                zone.HandleLButtonUp(static_cast<UINT>(wParam), &pt);
            MarkDocumentIfModified();
            return 0;
        }
        case WM_MOUSEMOVE:
            OnMouseMove(static_cast<UINT>(wParam), PointOf(lParam));
            return 0;
        case WM_MOUSEACTIVATE:
            return OnMouseActivate(reinterpret_cast<CWnd*>(wParam), LOWORD(lParam),
                                   HIWORD(lParam));
        case WM_SETCURSOR:
            if (SetEditorCursor(LOWORD(lParam))) return 1;
            return Default();
        case WM_MOUSEWHEEL:
            return RouteMouseWheel(this, m_pZone, LOWORD(wParam), GET_WHEEL_DELTA_WPARAM(wParam),
                                   PointOf(lParam));
        case WM_SETFONT: {
            CFont font;
            font.Attach(reinterpret_cast<HFONT>(wParam));
            SetFont(&font, 1);
            font.Detach();
            return 0;
        }
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_hFont);
        case WM_GETDLGCODE:
            // No dialog manager stands round a view: Tab and Enter are text.
            return DLGC_WANTALLKEYS;
        default:
            return CVeskView::WindowProc(message, wParam, lParam);
    }
}

void CEditorView::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    m_pZone->HandleKeyDown(nChar, nRepCnt, nFlags);
    MarkDocumentIfModified();
    // Ctrl+F3 searches for the selected text.
    if (nChar == VK_F3 && GetKeyState(VK_CONTROL) < 0 && m_pZone->TestSelection() &&
        m_pZone->GetSelectionMode() == TZ_SEL_STREAM)
        CEditFindReplace::Instance().FindSelection(*this);
}

void CEditorView::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    m_pZone->HandleChar(nChar, nRepCnt, nFlags);
    MarkDocumentIfModified();
}

void CEditorView::OnSetFocus(CWnd* pOldWnd) {
    m_pZone->HandleSetFocus(pOldWnd);
    // The open dialog searches the editor with the focus.
    CEditFindReplace::Instance().FollowFocus(this);
}

void CEditorView::OnMouseMove(UINT nFlags, CPoint point) {
    m_pZone->HandleMouseMove(nFlags, &point);
}

int CEditorView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    int nResult = CView::OnMouseActivate(pDesktopWnd, nHitTest, message);
    SetFocus();
    // A click on a bar of a view in another frame: paints still pending
    // there must land before the first scroll moves the pixels.
    if (nHitTest == HTHSCROLL || nHitTest == HTVSCROLL) m_pZone->m_bRepaintBeforeScroll = 1;
    return nResult;
}

DWORD CEditorView::OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) {
    m_bOleDropAllowed = CanDropText(pDataObject, m_pZone, point);
    return DropEffectFor(m_bOleDropAllowed, dwKeyState);
}

DWORD CEditorView::OnDragOver(COleDataObject*, DWORD dwKeyState, CPoint point) {
    m_pZone->HandleOleMouseMove(dwKeyState, &point);
    return DropEffectFor(m_bOleDropAllowed, dwKeyState);
}

void CEditorView::OnDragLeave() {}

BOOL CEditorView::OnDrop(COleDataObject* pDataObject, DWORD dropEffect, CPoint point) {
    if (!pDataObject || !pDataObject->IsDataAvailable(CF_TEXT)) return 0;
    const std::string text = pDataObject->GetGlobalData(CF_TEXT);
    BOOL bResult = m_pZone->HandleOleDrop(text.c_str(), dropEffect, &point);
    MarkDocumentIfModified();
    return bResult;
}
