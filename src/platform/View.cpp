#include "platform/View.h"

#include "platform/Document.h"
#include "platform/FrameWnd.h"
#include "platform/CmdUI.h"
#include "platform/Messages.h"
#include "platform/PaintDC.h"

void CView::OnInitialUpdate() {
    OnUpdate(nullptr, 0);
}

void CView::OnUpdate(CView*, LPARAM) {
    Invalidate(TRUE);
}

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*) {
    if (bActivate && pActivateView == this) SetFocus();
}

void CView::OnPrepareDC(CDC*, CPrintInfo*) {}

BOOL CView::OnPreparePrinting(CPrintInfo* pInfo) {
    return DoPreparePrinting(pInfo);
}

void CView::OnBeginPrinting(CDC*, CPrintInfo*) {}

void CView::OnPrint(CDC* pDC, CPrintInfo*) {
    OnDraw(pDC);
}

void CView::OnEndPrinting(CDC*, CPrintInfo*) {}

BOOL CView::DoPreparePrinting(CPrintInfo* pInfo) {
    return CPrintJob::DoPreparePrinting(this, pInfo);
}

void CView::OnFilePrint(BOOL bDirect) {
    CPrintInfo info;
    info.m_bDirect = bDirect;
    Print(info);
}

BOOL CView::Print(CPrintInfo& info) {
    return CPrintJob::RunFor(*this, info, this);
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (CWnd::OnCmdMsg(nID, nCode, pCmdUI)) return TRUE;
    // The framework's own print commands.
    if ((nID == ID_FILE_PRINT || nID == ID_FILE_PRINT_DIRECT) && nCode != CN_UPDATE_COMMAND_UI) {
        if (nCode == CN_COMMAND) OnFilePrint(nID == ID_FILE_PRINT_DIRECT);
        return TRUE;
    }
    return m_pDocument && m_pDocument->OnCmdMsg(nID, nCode, pCmdUI);
}

LRESULT CView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return OnCreate(reinterpret_cast<CREATESTRUCT*>(lParam));
        case WM_DESTROY:
            OnDestroy();
            return 0;
        case WM_PAINT:
            OnPaint();
            return 0;
        case WM_MOUSEACTIVATE:
            return OnMouseActivate(reinterpret_cast<CWnd*>(wParam), LOWORD(lParam),
                                   HIWORD(lParam));
        default:
            return CWnd::WindowProc(message, wParam, lParam);
    }
}

int CView::OnCreate(CREATESTRUCT* pcs) {
    auto* pContext = pcs ? static_cast<CCreateContext*>(pcs->lpCreateParams) : nullptr;
    if (pContext && pContext->m_pCurrentDoc) pContext->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy() {
    if (CFrameWnd* pFrame = GetParentFrame())
        if (pFrame->GetActiveView() == this) pFrame->SetActiveView(nullptr, FALSE);
    if (m_pDocument) m_pDocument->RemoveView(this);
}

void CView::OnPaint() {
    CPaintDC dc(this);
    if (!dc.GetDC()) return;
    OnPrepareDC(dc);
    OnDraw(dc);
}

int CView::OnMouseActivate(CWnd*, UINT, UINT) {
    // A click in a view of another frame brings that frame forward first.
    if (CFrameWnd* pFrame = GetParentFrame()) {
        pFrame->ActivateFrame();
        if (pFrame->GetActiveView() != this) pFrame->SetActiveView(this);
    }
    return MA_ACTIVATE;
}
