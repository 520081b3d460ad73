// A portable window. It keeps what the engine reads back from a window (the
// pending invalid region, its own scroll bars, style, text, children) and
// forwards everything visible to its backend peer. Input arrives as messages
// through WindowProc, which each window class dispatches to its handlers.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Rgn.h"
#include "platform/Types.h"
#include "platform/WindowPeer.h"

class CCmdUI;
class CDC;
class CFrameWnd;

struct CREATESTRUCTA {
    void* lpCreateParams = nullptr;
    HINSTANCE hInstance = nullptr;
    void* hMenu = nullptr;
    HWND hwndParent = nullptr;
    int cy = 0;
    int cx = 0;
    int y = 0;
    int x = 0;
    LONG style = 0;
    const char* lpszName = nullptr;
    const char* lpszClass = nullptr;
    DWORD dwExStyle = 0;
};
using CREATESTRUCT = CREATESTRUCTA;

struct PAINTSTRUCT {
    HDC hdc = nullptr;
    BOOL fErase = FALSE;
    RECT rcPaint;
};

class CWnd;
// The deepest visible window of this process under a point of the screen.
TEXTZONE_EXPORT CWnd* WindowFromPoint(POINT ptScreen);

class TEXTZONE_EXPORT CWnd {
public:
    CWnd();
    virtual ~CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    // Creation and destruction. Create sends WM_CREATE, then WM_SIZE.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL CreateEx(DWORD dwExStyle, const char* lpszClassName, const char* lpszWindowName,
                  DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                  void* lpParam = nullptr);
    virtual BOOL DestroyWindow();
    HWND GetSafeHwnd() const { return m_pPeer ? const_cast<CWnd*>(this) : nullptr; }
    static CWnd* FromHandle(HWND hWnd) { return hWnd; }
    IWindowPeer* GetPeer() const { return m_pPeer.get(); }

    // Messages. SendMessage runs the window procedure at once; PostMessage
    // queues the message for the thread's loop and is safe from any thread.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE);
    // To every window of the process: each top-level one and its descendants.
    // A host on another toolkit may hold editors under several top-level
    // windows, where the desktop would have one main window above them all.
    static void SendMessageToAllWindows(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Default processing of the message being handled.
    LRESULT Default();
    // Carries out (CN_COMMAND), updates (CN_UPDATE_COMMAND_UI) or looks for
    // (CN_QUERY_HANDLER) the handler of a command; TRUE when one was found.
    // A window has none of its own; classes with command tables override it.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI);

    // Relations and attributes.
    CWnd* GetParent() const { return m_pParent; }
    const std::vector<CWnd*>& GetChildren() const { return m_children; }
    CWnd* GetTopWindow() const { return m_children.empty() ? nullptr : m_children.front(); }
    // The nearest frame window above this one, or null.
    CFrameWnd* GetParentFrame() const;
    UINT GetDlgCtrlID() const { return m_nID; }
    void SetDlgCtrlID(UINT nID) { m_nID = nID; }
    DWORD GetStyle() const { return m_dwStyle; }
    DWORD GetExStyle() const { return m_dwExStyle; }
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    void SetWindowText(const char* psz);
    int GetWindowText(char* pszBuffer, int nMaxCount) const;
    int GetWindowTextLength() const { return static_cast<int>(m_strText.size()); }
    BOOL IsWindowEnabled() const { return m_bEnabled; }
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL ShowWindow(int nCmdShow);
    // Brings a top-level window forward and gives it the keyboard.
    CWnd* SetActiveWindow();
    BOOL IsWindowVisible() const;

    // Geometry. MoveWindow sends WM_SIZE when the client size changes.
    void GetClientRect(RECT* prc) const;
    void GetWindowRect(RECT* prc) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(const RECT* prc, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void ClientToScreen(POINT* ppt) const;
    void ClientToScreen(RECT* prc) const;
    void ScreenToClient(POINT* ppt) const;
    void ScreenToClient(RECT* prc) const;
    // The direct child, visible, whose window holds a point of the client
    // area; this window itself when none does, null when the point is outside.
    CWnd* ChildWindowFromPoint(POINT pt) const;

    // Invalidation and painting. The invalid region is clipped to the client
    // area; UpdateWindow sends WM_PAINT at once when it is not empty.
    void Invalidate(BOOL bErase = TRUE) { InvalidateRect(nullptr, bErase); }
    void InvalidateRect(const RECT* prc, BOOL bErase = TRUE);
    void InvalidateRgn(const CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(const RECT* prc);
    void ValidateRgn(const CRgn* pRgn);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE) const;
    BOOL GetUpdateRect(RECT* prc, BOOL bErase = FALSE) const;
    void UpdateWindow();
    BOOL RedrawWindow(const RECT* prcUpdate = nullptr, const CRgn* pRgnUpdate = nullptr,
                      UINT flags = 0x0105 /* RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE */);
    CDC* BeginPaint(PAINTSTRUCT* pPaint);
    void EndPaint(const PAINTSTRUCT* pPaint);
    CDC* GetDC();
    int ReleaseDC(CDC* pDC);

    // The window's own scroll bars (SB_HORZ, SB_VERT) and, for a scroll bar
    // control, its bar (SB_CTL). Positions stay inside the range less the page.
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, int* pMin, int* pMax) const;
    void SetScrollRange(int nBar, int nMin, int nMax, BOOL bRedraw = TRUE);
    BOOL SetScrollInfo(int nBar, const SCROLLINFO* psi, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, SCROLLINFO* psi, UINT nMask = 0x17 /* SIF_ALL */) const;
    int GetScrollLimit(int nBar) const;
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL EnableScrollBar(int nBar, UINT nArrowFlags);
    UINT GetScrollBarArrows(int nBar) const;
    BOOL IsScrollBarVisible(int nBar) const;

    // The caret, one for the whole thread, owned by the window that made it.
    void CreateSolidCaret(int nWidth, int nHeight);
    void ShowCaret();
    void HideCaret();
    static void SetCaretPos(POINT pt);
    static CPoint GetCaretPos();

    // Focus, capture and cursors.
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    void BeginWaitCursor();
    void EndWaitCursor();

    // Tells the window its client size may have changed, sending WM_SIZE if
    // so; backends call it when the window system resized the window.
    void NotifySizeChanged();

private:
    struct ScrollBarState {
        SCROLLINFO si;
        UINT nDisabledArrows = 0;
    };
    ScrollBarState* Bar(int nBar);
    const ScrollBarState* Bar(int nBar) const;
    void ClampScrollPos(ScrollBarState& bar);
    void ScrollBarChanged(int nBar, bool bRangeChanged);
    void DetachFromParent();

    std::unique_ptr<IWindowPeer> m_pPeer;
    CWnd* m_pParent = nullptr;
    std::vector<CWnd*> m_children;
    UINT m_nID = 0;
    DWORD m_dwStyle = 0;
    DWORD m_dwExStyle = 0;
    BOOL m_bEnabled = TRUE;
    std::string m_strText;
    CRgn m_rgnUpdate;
    BOOL m_bErasePending = FALSE;
    SIZE m_lastClientSize;
    ScrollBarState m_bars[3];
    std::vector<std::unique_ptr<CDC>> m_dcs;  // handed out by GetDC and BeginPaint
    struct CurrentMessage {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    } m_current{0, 0, 0};
};
