// The main frame of several documents. It owns each open document with its
// child frame and view, keeps which child is active, routes commands to the
// active child before its own handlers, and keeps the status bar current.
// A window system follows the children through an observer.
#pragma once

#include <memory>
#include <vector>

#include "TextzoneExport.h"
#include "platform/FrameWnd.h"
#include "platform/StatusBar.h"

class CDocument;
class CMDIChildWnd;

class TEXTZONE_EXPORT IMDIFrameObserver {
public:
    virtual ~IMDIFrameObserver() = default;
    virtual void OnChildAdded(CMDIChildWnd* pChild) = 0;
    virtual void OnChildActivated(CMDIChildWnd* pChild) = 0;
    // The child's window is being destroyed.
    virtual void OnChildRemoved(CMDIChildWnd* pChild) = 0;
};

class TEXTZONE_EXPORT CMDIFrameWnd : public CFrameWnd {
public:
    ~CMDIFrameWnd() override;

    // Opens a document in a new child frame with its view, activates it, and
    // keeps all three until the frame closes. Null if a window failed.
    CMDIChildWnd* OpenDocument(std::unique_ptr<CDocument> pDoc,
                               std::unique_ptr<CMDIChildWnd> pFrame, std::unique_ptr<CView> pView);
    CMDIChildWnd* MDIGetActive() const { return m_pActiveChild; }
    void MDIActivate(CMDIChildWnd* pChild);
    // The open children, oldest first.
    std::vector<CMDIChildWnd*> GetChildFrames() const;
    // Asks every modified document, then closes all children; FALSE, with
    // nothing closed, if one refused.
    BOOL CloseAllDocuments();

    CFrameWnd* GetActiveFrame() override;
    CDocument* GetActiveDocument() override;
    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;
    // Brings the status bar up to date from the active view's handlers.
    void OnIdleUpdateCmdUI();

    void SetObserver(IMDIFrameObserver* pObserver) { m_pObserver = pObserver; }
    // A child's window is going; its objects are freed once back in the loop.
    void ChildDestroyed(CMDIChildWnd* pChild);

    CStatusBar m_wndStatusBar;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // Private: frees the objects of closed children.
    static constexpr UINT kFreeClosed = 0x0401;
    struct Child {
        std::unique_ptr<CDocument> pDoc;
        std::unique_ptr<CMDIChildWnd> pFrame;
        std::unique_ptr<CView> pView;  // goes first, while frame and document stand
    };
    std::vector<Child> m_children;
    std::vector<Child> m_closed;
    // Most recently active last, so closing one activates the one before.
    std::vector<CMDIChildWnd*> m_activation;
    CMDIChildWnd* m_pActiveChild = nullptr;
    IMDIFrameObserver* m_pObserver = nullptr;
};
