// A window that frames views: it knows the active view, routes commands to
// it before its own handlers, and shows the title of the active document.
#pragma once

#include "TextzoneExport.h"
#include "platform/Wnd.h"

class CDocument;
class CView;

class TEXTZONE_EXPORT CFrameWnd : public CWnd {
public:
    CView* GetActiveView() const { return m_pActiveView; }
    // Tells the old and the new view with OnActivateView when bNotify.
    virtual void SetActiveView(CView* pView, BOOL bNotify = TRUE);
    virtual CDocument* GetActiveDocument();
    // The frame whose view has the user's attention: this one, or for the
    // main frame of several documents its active child.
    virtual CFrameWnd* GetActiveFrame() { return this; }
    virtual void ActivateFrame(int nCmdShow = -1);
    // Shows the title of the active document, marked when it is modified.
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);

    // The active view (and its document) first, then the frame itself.
    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;

    // The view that fills the frame, created with kPaneId.
    CView* GetPaneView() const;

protected:
    // Lays the pane view over the whole client area.
    virtual void RecalcLayout();
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    CView* m_pActiveView = nullptr;
};
