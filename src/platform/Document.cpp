#include "platform/Document.h"

#include <algorithm>

#include "platform/FrameWnd.h"
#include "platform/View.h"

CDocument::~CDocument() {
    // Views outliving their document must not reach back into it.
    for (CView* pView : m_views)
        pView->m_pDocument = nullptr;
}

void CDocument::SetTitle(const char* pszTitle) {
    m_strTitle = pszTitle ? pszTitle : "";
    UpdateFrameCounts();
}

void CDocument::SetPathName(const char* pszPathName) {
    m_strPathName = pszPathName ? pszPathName : "";
    size_t nSlash = m_strPathName.find_last_of('/');
    SetTitle(nSlash == std::string::npos ? m_strPathName.c_str()
                                         : m_strPathName.c_str() + nSlash + 1);
}

void CDocument::SetModifiedFlag(BOOL bModified) {
    bModified = bModified ? TRUE : FALSE;
    if (m_bModified == bModified) return;
    m_bModified = bModified;
    UpdateFrameCounts();
}

void CDocument::AddView(CView* pView) {
    if (!pView || std::find(m_views.begin(), m_views.end(), pView) != m_views.end()) return;
    m_views.push_back(pView);
    pView->m_pDocument = this;
}

void CDocument::RemoveView(CView* pView) {
    auto it = std::find(m_views.begin(), m_views.end(), pView);
    if (it == m_views.end()) return;
    m_views.erase(it);
    pView->m_pDocument = nullptr;
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint) {
    for (CView* pView : m_views)
        if (pView != pSender) pView->OnUpdate(pSender, lHint);
}

void CDocument::UpdateFrameCounts() {
    for (CView* pView : m_views)
        if (CFrameWnd* pFrame = pView->GetParentFrame()) pFrame->OnUpdateFrameTitle(TRUE);
}

BOOL CDocument::OnCmdMsg(UINT, int, CCmdUI*) {
    return FALSE;
}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame) {
    // Another frame still shows the document: closing this one loses nothing.
    for (CView* pView : m_views)
        if (pView->GetParentFrame() != pFrame) return TRUE;
    return !IsModified() || SaveModified();
}
