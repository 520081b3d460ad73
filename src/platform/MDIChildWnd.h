// The frame of one document window inside the main frame. It holds one
// view over its client area, shows the document's title, and asks the
// document before it closes.
#pragma once

#include "TextzoneExport.h"
#include "platform/FrameWnd.h"

class CDocument;
class CMDIFrameWnd;

class TEXTZONE_EXPORT CMDIChildWnd : public CFrameWnd {
public:
    // Makes the frame window inside the main frame, and the view in it,
    // showing the document.
    virtual BOOL CreateFrame(CMDIFrameWnd* pMainFrame, CView* pView, CDocument* pDoc,
                             const RECT& rect);
    // Fills in the frame's window class and style before it is made.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

    CMDIFrameWnd* GetMDIFrame() const;
    // Makes this the active child of the main frame.
    void ActivateFrame(int nCmdShow = -1) override;
    void MDIActivate();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    virtual void OnClose();

private:
    CMDIFrameWnd* m_pMainFrame = nullptr;
};
