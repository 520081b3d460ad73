#include "platform/MDIFrameWnd.h"

#include <algorithm>

#include "platform/Document.h"
#include "platform/MDIChildWnd.h"
#include "platform/Messages.h"
#include "platform/View.h"

CMDIFrameWnd::~CMDIFrameWnd() {
    // Children go before the frame they report to.
    m_pObserver = nullptr;
    std::vector<Child> children = std::move(m_children);
    m_children.clear();
    for (Child& child : children)
        child.pFrame->DestroyWindow();
    children.clear();
    m_closed.clear();
    DestroyWindow();
}

CMDIChildWnd* CMDIFrameWnd::OpenDocument(std::unique_ptr<CDocument> pDoc,
                                         std::unique_ptr<CMDIChildWnd> pFrame,
                                         std::unique_ptr<CView> pView) {
    if (!pFrame || !pView || !GetSafeHwnd()) return nullptr;
    RECT rc;
    GetClientRect(&rc);
    // Each new child a little lower and to the right, like stacked sheets.
    int nOffset = static_cast<int>(m_children.size() % 8) * 24;
    RECT rcChild{nOffset, nOffset, nOffset + std::max(200, rc.right * 3 / 4),
                 nOffset + std::max(150, rc.bottom * 3 / 4)};
    if (!pFrame->CreateFrame(this, pView.get(), pDoc.get(), rcChild)) return nullptr;
    CMDIChildWnd* pChild = pFrame.get();
    m_children.push_back(Child{std::move(pDoc), std::move(pFrame), std::move(pView)});
    if (m_pObserver) m_pObserver->OnChildAdded(pChild);
    if (CView* pPane = pChild->GetPaneView()) pPane->OnInitialUpdate();
    pChild->ActivateFrame();
    return pChild;
}

void CMDIFrameWnd::MDIActivate(CMDIChildWnd* pChild) {
    if (pChild == m_pActiveChild) return;
    auto it = std::find_if(m_children.begin(), m_children.end(),
                           [&](const Child& c) { return c.pFrame.get() == pChild; });
    if (pChild && it == m_children.end()) return;
    m_pActiveChild = pChild;
    if (pChild) {
        m_activation.erase(std::remove(m_activation.begin(), m_activation.end(), pChild),
                           m_activation.end());
        m_activation.push_back(pChild);
        CView* pView = pChild->GetActiveView() ? pChild->GetActiveView() : pChild->GetPaneView();
        if (pView) {
            pChild->SetActiveView(pView, FALSE);
            pView->SetFocus();
        }
    }
    if (m_pObserver) m_pObserver->OnChildActivated(pChild);
    OnIdleUpdateCmdUI();
}

std::vector<CMDIChildWnd*> CMDIFrameWnd::GetChildFrames() const {
    std::vector<CMDIChildWnd*> frames;
    for (const Child& child : m_children)
        frames.push_back(child.pFrame.get());
    return frames;
}

BOOL CMDIFrameWnd::CloseAllDocuments() {
    // Every modified document is asked once, before anything closes: one
    // refusal keeps them all.
    for (const Child& child : m_children)
        if (child.pDoc && child.pDoc->IsModified() && !child.pDoc->SaveModified()) return FALSE;
    for (CMDIChildWnd* pChild : GetChildFrames())
        pChild->DestroyWindow();
    return TRUE;
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    return m_pActiveChild ? static_cast<CFrameWnd*>(m_pActiveChild) : this;
}

CDocument* CMDIFrameWnd::GetActiveDocument() {
    return m_pActiveChild ? m_pActiveChild->GetActiveDocument() : nullptr;
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (m_pActiveChild && m_pActiveChild->OnCmdMsg(nID, nCode, pCmdUI)) return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pCmdUI);
}

void CMDIFrameWnd::OnIdleUpdateCmdUI() {
    m_wndStatusBar.OnUpdateCmdUI(this, TRUE);
}

void CMDIFrameWnd::ChildDestroyed(CMDIChildWnd* pChild) {
    auto it = std::find_if(m_children.begin(), m_children.end(),
                           [&](const Child& c) { return c.pFrame.get() == pChild; });
    if (it == m_children.end()) return;
    if (m_pObserver) m_pObserver->OnChildRemoved(pChild);
    m_closed.push_back(std::move(*it));
    m_children.erase(it);
    m_activation.erase(std::remove(m_activation.begin(), m_activation.end(), pChild),
                       m_activation.end());
    if (m_pActiveChild == pChild) {
        m_pActiveChild = nullptr;
        MDIActivate(m_activation.empty() ? nullptr : m_activation.back());
    }
    // The child is still inside its own handlers: free it afterwards.
    if (GetSafeHwnd()) PostMessage(kFreeClosed);
}

LRESULT CMDIFrameWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CLOSE:
            if (CloseAllDocuments()) DestroyWindow();
            return 0;
        case WM_IDLEUPDATECMDUI:
            OnIdleUpdateCmdUI();
            return 0;
        case kFreeClosed:
            m_closed.clear();
            return 0;
        case WM_SIZE:
            // Children float inside the main frame; there is no pane view.
            return 0;
        default:
            return CFrameWnd::WindowProc(message, wParam, lParam);
    }
}
