// A window that shows a document inside a frame. Paints go to OnDraw, a
// click makes it the frame's active view, and commands it does not handle
// go on to its document. The printing hooks are for the print loop.
#pragma once

#include "TextzoneExport.h"
#include "platform/PrintJob.h"
#include "platform/Wnd.h"

class CDC;
class CDocument;
class CFrameWnd;
struct CPrintInfo;

// Handed to a view's Create through CREATESTRUCT::lpCreateParams.
struct TEXTZONE_EXPORT CCreateContext {
    CDocument* m_pCurrentDoc = nullptr;
};

class TEXTZONE_EXPORT CView : public CWnd, public IPrintClient {
public:
    // The id a frame gives the view that fills it.
    static constexpr UINT kPaneId = 0xE900;

    CDocument* GetDocument() const { return m_pDocument; }

    virtual void OnInitialUpdate();
    virtual void OnUpdate(CView* pSender, LPARAM lHint);
    virtual void OnDraw(CDC* pDC) = 0;
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);

    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override;
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override;
    void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    // The framework's print command: the print dialog (none when bDirect),
    // then the pages. Print runs a job prepared by the caller (a PDF file).
    void OnFilePrint(BOOL bDirect);
    BOOL Print(CPrintInfo& info);
    BOOL DoPreparePrinting(CPrintInfo* pInfo);

    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    int OnCreate(CREATESTRUCT* pcs);
    void OnDestroy();
    void OnPaint();
    int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);

private:
    friend class CDocument;
    CDocument* m_pDocument = nullptr;
};
