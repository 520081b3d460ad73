#include "platform/MDIChildWnd.h"

#include "platform/Document.h"
#include "platform/MDIFrameWnd.h"
#include "platform/Messages.h"
#include "platform/View.h"

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT&) {
    return TRUE;
}

BOOL CMDIChildWnd::CreateFrame(CMDIFrameWnd* pMainFrame, CView* pView, CDocument* pDoc,
                               const RECT& rect) {
    if (!pMainFrame || !pView) return FALSE;
    m_pMainFrame = pMainFrame;
    CREATESTRUCT cs;
    cs.style = static_cast<LONG>(WS_CHILD | WS_CLIPCHILDREN);
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = rect.right - rect.left;
    cs.cy = rect.bottom - rect.top;
    std::string strTitle = pDoc ? pDoc->GetTitle() : std::string();
    cs.lpszName = strTitle.c_str();
    if (!PreCreateWindow(cs)) return FALSE;
    if (!CreateEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), rect,
                  pMainFrame, 0))
        return FALSE;
    CCreateContext context;
    context.m_pCurrentDoc = pDoc;
    RECT rcClient;
    GetClientRect(&rcClient);
    if (!pView->CreateEx(0, nullptr, nullptr, WS_CHILD | WS_VISIBLE, rcClient, this,
                         CView::kPaneId, &context)) {
        DestroyWindow();
        return FALSE;
    }
    RecalcLayout();
    OnUpdateFrameTitle(TRUE);
    return TRUE;
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const {
    return m_pMainFrame;
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    CFrameWnd::ActivateFrame(nCmdShow);
    MDIActivate();
}

void CMDIChildWnd::MDIActivate() {
    if (m_pMainFrame) m_pMainFrame->MDIActivate(this);
}

LRESULT CMDIChildWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CLOSE:
            OnClose();
            return 0;
        case WM_DESTROY:
            if (m_pMainFrame) m_pMainFrame->ChildDestroyed(this);
            return CFrameWnd::WindowProc(message, wParam, lParam);
        default:
            return CFrameWnd::WindowProc(message, wParam, lParam);
    }
}

void CMDIChildWnd::OnClose() {
    CView* pView = GetPaneView();
    CDocument* pDoc = pView ? pView->GetDocument() : nullptr;
    if (pDoc && !pDoc->CanCloseFrame(this)) return;
    DestroyWindow();
}
