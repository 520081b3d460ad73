// The platform without a screen, for tests and batch use. Constructing one
// installs it for the process; destroying it puts back what was there.
// Everything is deterministic: the clock, the keys and the mouse are what
// the test says, posted messages wait until the test pumps them, and every
// request that would have reached the window system is recorded.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Platform.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessWindowPeer.h"

class TEXTZONE_EXPORT CHeadlessPlatform : public IPlatform {
public:
    // System colours and metrics that tests may rely on.
    static constexpr int kScreenWidth = 1280;
    static constexpr int kScreenHeight = 1024;
    static constexpr int kScrollBarSize = 17;

    CHeadlessPlatform();
    ~CHeadlessPlatform() override;
    CHeadlessPlatform(const CHeadlessPlatform&) = delete;
    CHeadlessPlatform& operator=(const CHeadlessPlatform&) = delete;

    // Test hooks.
    void SetKeyState(int nVirtKey, bool bDown);
    void SetClipboardText(const std::string& text);
    std::string GetClipboardText();
    int GetBeepCount() const { return m_nBeeps; }
    void SetTickCount(DWORD dwTick) { m_dwTick = dwTick; }
    void AdvanceTickCount(DWORD dwMilliseconds) { m_dwTick += dwMilliseconds; }
    void SetCursorPos(POINT ptScreen) { m_ptCursor = ptScreen; }
    int GetCurrentCursorId() const;
    int GetWaitCursorDepth() const { return m_nWaitDepth; }
    void SetClipboardFails(bool bFails) { m_bClipboardFails = bFails; }
    // Takes the capture away, as another application would.
    void StealCapture() { m_pCapture = nullptr; }

    // The headless peer of a window, or null.
    static CHeadlessWindowPeer* Peer(const CWnd* pWnd);

    // Posted messages: delivered in order when pumped, at most nMax of them
    // (a message that re-posts itself would otherwise never let go).
    int PumpMessages(int nMax = 1000);
    std::vector<MSG> GetPostedMessages();
    void ClearPostedMessages();

    // Drag and drop. The handler decides what a drag started here does (it
    // may drop into a window of the test with SimulateDrop); without one a
    // drag is cancelled. SimulateDrop plays enter, over and drop on the
    // target registered for the window and returns the effect it accepted.
    using DragHandler =
        std::function<DWORD(CWnd* pSource, const std::string& text, DWORD dwAllowed)>;
    void SetDragHandler(DragHandler handler) { m_dragHandler = std::move(handler); }
    int GetDragCount() const { return m_nDrags; }
    DWORD SimulateDrop(CWnd* pTarget, const std::string& text, DWORD dwKeyState, POINT ptClient);
    bool HasDropTarget(CWnd* pWnd) const { return m_dropTargets.count(pWnd) != 0; }

    // Pick lists. Each request is recorded; the handler answers it with the
    // index of the chosen item or -1 for a cancel, as the user would have.
    // Without a handler a list is cancelled.
    struct PickListRequest {
        CWnd* pParent;
        RECT rc;
        HFONT hFont;
        std::vector<std::string> items;
    };
    using PickListHandler = std::function<int(const PickListRequest& request)>;
    void SetPickListHandler(PickListHandler handler) { m_pickListHandler = std::move(handler); }
    const std::vector<PickListRequest>& GetPickListRequests() const { return m_pickLists; }

    // Printing. The print dialog asks the handler (without one it is
    // accepted as it stands); the printer has the page set here, and each
    // job made on it is recorded. onEndPage runs after each page.
    using PrintDialogHandler = std::function<BOOL(CPrintDialogInfo& pd)>;
    void SetPrintDialogHandler(PrintDialogHandler handler) { m_printDialog = std::move(handler); }
    void SetPrinterPage(const CHeadlessPrinterDC::Page& page) { m_printerPage = page; }
    void SetPrinterMissing(bool bMissing) { m_bNoPrinter = bMissing; }
    void SetEndPageHandler(std::function<void(int nPage)> handler) {
        m_onEndPage = std::move(handler);
    }
    const std::vector<std::shared_ptr<HeadlessPrintJob>>& GetPrintJobs() const {
        return m_printJobs;
    }
    const std::vector<std::string>& GetMessageBoxes() const { return m_messageBoxes; }

    // Passes a key event through the installed keyboard hooks, as the system
    // would before the key reaches a window. Returns how many hooks ran.
    int InjectHookKey(int nVirtKey, bool bRelease);
    int GetHookCount() const { return static_cast<int>(m_hooks.size()); }

    // IPlatform.
    std::unique_ptr<IWindowPeer> CreateWindowPeer(CWnd* pWnd, const CREATESTRUCTA& cs) override;
    std::unique_ptr<CDC> CreateDisplayDC() override;
    void OnWindowDestroyed(CWnd* pWnd) override;
    void PostMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PeekMessage(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax,
                     UINT nRemove) override;
    SHORT GetKeyState(int nVirtKey) override;
    DWORD GetTickCount() override { return m_dwTick; }
    BOOL GetCursorPos(POINT* ppt) override;
    CWnd* SetFocus(CWnd* pWnd) override;
    CWnd* GetFocus() override { return m_pFocus; }
    CWnd* SetCapture(CWnd* pWnd) override;
    BOOL ReleaseCapture() override;
    CWnd* GetCapture() override { return m_pCapture; }
    HCURSOR SetCursor(HCURSOR hCursor) override;
    void BeginWaitCursor() override { ++m_nWaitDepth; }
    void EndWaitCursor() override;
    COLORREF GetSysColor(int nIndex) override;
    int GetSystemMetrics(int nIndex) override;
    BOOL MessageBeep(UINT uType) override;
    BOOL OpenClipboard(CWnd* pWnd) override;
    BOOL CloseClipboard() override;
    BOOL EmptyClipboard() override;
    BOOL SetClipboardData(UINT uFormat, const std::string& data) override;
    BOOL GetClipboardData(UINT uFormat, std::string* pData) override;
    BOOL IsClipboardFormatAvailable(UINT uFormat) override;
    DWORD DoDragDrop(CWnd* pSource, const std::string& text, DWORD dwAllowed) override;
    BOOL RegisterDropTarget(CWnd* pWnd, COleDropTarget* pTarget) override;
    void RevokeDropTarget(CWnd* pWnd) override;
    HHOOK SetKeyboardHook(HOOKPROC pfn) override;
    BOOL Unhook(HHOOK hHook) override;
    BOOL DoPrintDialog(CWnd* pParent, CPrintDialogInfo& pd) override;
    std::unique_ptr<CDC> CreatePrinterDC(const CPrintDialogInfo& pd) override;
    void MessageBox(CWnd* pParent, const char* pszText) override;
    int RunPickList(CWnd* pParent, const RECT& rc, HFONT hFont,
                    const std::vector<std::string>& items) override;

private:
    PrintDialogHandler m_printDialog;
    CHeadlessPrinterDC::Page m_printerPage;
    bool m_bNoPrinter = false;
    std::function<void(int)> m_onEndPage;
    std::vector<std::shared_ptr<HeadlessPrintJob>> m_printJobs;
    std::vector<std::string> m_messageBoxes;

    IPlatform* m_pPrevious;
    std::map<int, bool> m_keys;
    DWORD m_dwTick = 0;
    POINT m_ptCursor;
    HCURSOR m_hCursor = nullptr;
    int m_nWaitDepth = 0;
    int m_nBeeps = 0;
    CWnd* m_pFocus = nullptr;
    CWnd* m_pCapture = nullptr;

    std::mutex m_queueLock;  // PostMessage may come from any thread
    std::deque<MSG> m_queue;

    bool m_bClipboardFails = false;
    bool m_bClipboardOpen = false;
    std::map<UINT, std::string> m_clipboard;

    DragHandler m_dragHandler;
    int m_nDrags = 0;
    std::map<CWnd*, COleDropTarget*> m_dropTargets;

    std::vector<std::unique_ptr<HookObject>> m_hooks;

    PickListHandler m_pickListHandler;
    std::vector<PickListRequest> m_pickLists;
};
