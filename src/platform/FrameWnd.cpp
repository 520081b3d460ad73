#include "platform/FrameWnd.h"

#include "platform/Document.h"
#include "platform/Messages.h"
#include "platform/View.h"

void CFrameWnd::SetActiveView(CView* pView, BOOL bNotify) {
    CView* pOld = m_pActiveView;
    if (pOld == pView) return;
    m_pActiveView = pView;
    if (!bNotify) return;
    if (pOld) pOld->OnActivateView(FALSE, pView, pOld);
    if (pView) pView->OnActivateView(TRUE, pView, pOld);
}

CDocument* CFrameWnd::GetActiveDocument() {
    CView* pView = GetActiveView();
    return pView ? pView->GetDocument() : nullptr;
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    ShowWindow(nCmdShow == -1 ? SW_SHOW : nCmdShow);
    if (!GetActiveView())
        if (CView* pView = GetPaneView()) SetActiveView(pView);
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    CDocument* pDoc = GetActiveDocument();
    if (!pDoc) {
        if (CView* pView = GetPaneView()) pDoc = pView->GetDocument();
    }
    if (!bAddToTitle || !pDoc) return;
    std::string strTitle = pDoc->GetTitle();
    if (pDoc->IsModified()) strTitle += " *";
    SetWindowText(strTitle.c_str());
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (CView* pView = GetActiveView())
        if (pView->OnCmdMsg(nID, nCode, pCmdUI)) return TRUE;
    return CWnd::OnCmdMsg(nID, nCode, pCmdUI);
}

CView* CFrameWnd::GetPaneView() const {
    for (CWnd* pChild : GetChildren())
        if (pChild->GetDlgCtrlID() == CView::kPaneId)
            if (auto* pView = dynamic_cast<CView*>(pChild)) return pView;
    return nullptr;
}

void CFrameWnd::RecalcLayout() {
    CView* pView = GetPaneView();
    if (!pView) return;
    RECT rc;
    GetClientRect(&rc);
    pView->MoveWindow(&rc, TRUE);
}

LRESULT CFrameWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) RecalcLayout();
            return 0;
        case WM_SETFOCUS:
            // The frame passes the keyboard on to what it shows.
            if (CView* pView = GetActiveView()) pView->SetFocus();
            return 0;
        default:
            return CWnd::WindowProc(message, wParam, lParam);
    }
}
