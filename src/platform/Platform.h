// The services of the window system, behind one interface that a backend
// installs for the process (the headless one in tests, the Qt one in a real
// host), and free functions with the desktop platform's names over it.
// With no platform installed the free functions answer harmlessly: no key
// is down, the clock stands at 0, nothing beeps.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CDC;
class CWnd;
class IWindowPeer;
class COleDropTarget;
struct CPrintDialogInfo;
struct CREATESTRUCTA;

using HOOKPROC = LRESULT (*)(int nCode, WPARAM wParam, LPARAM lParam);
struct HookObject {
    HOOKPROC pfn;
};
using HHOOK = HookObject*;

class TEXTZONE_EXPORT IPlatform {
public:
    virtual ~IPlatform() = default;

    // Windows and drawing contexts.
    virtual std::unique_ptr<IWindowPeer> CreateWindowPeer(CWnd* pWnd, const CREATESTRUCTA& cs) = 0;
    // A context for measuring and drawing off screen, on the display's
    // resolution (the desktop platform's CreateDC("DISPLAY")).
    virtual std::unique_ptr<CDC> CreateDisplayDC() = 0;
    virtual void OnWindowDestroyed(CWnd* pWnd) = 0;

    // The thread's message queue.
    virtual void PostMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    virtual BOOL PeekMessage(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax,
                             UINT nRemove) = 0;

    // Input state.
    virtual SHORT GetKeyState(int nVirtKey) = 0;
    virtual DWORD GetTickCount() = 0;
    virtual BOOL GetCursorPos(POINT* ppt) = 0;
    virtual CWnd* SetFocus(CWnd* pWnd) = 0;
    virtual CWnd* GetFocus() = 0;
    virtual CWnd* SetCapture(CWnd* pWnd) = 0;
    virtual BOOL ReleaseCapture() = 0;
    virtual CWnd* GetCapture() = 0;
    virtual HCURSOR SetCursor(HCURSOR hCursor) = 0;
    virtual void BeginWaitCursor() = 0;
    virtual void EndWaitCursor() = 0;

    // The system.
    virtual COLORREF GetSysColor(int nIndex) = 0;
    virtual int GetSystemMetrics(int nIndex) = 0;
    virtual BOOL MessageBeep(UINT uType) = 0;

    // The clipboard, in CF_TEXT: 8-bit bytes with CR LF line ends.
    virtual BOOL OpenClipboard(CWnd* pWnd) = 0;
    virtual BOOL CloseClipboard() = 0;
    virtual BOOL EmptyClipboard() = 0;
    virtual BOOL SetClipboardData(UINT uFormat, const std::string& data) = 0;
    virtual BOOL GetClipboardData(UINT uFormat, std::string* pData) = 0;
    virtual BOOL IsClipboardFormatAvailable(UINT uFormat) = 0;

    // Drag and drop of text between windows and applications. DoDragDrop
    // runs until the drop or the cancel and returns the effect performed;
    // the drop may land in a window of this process meanwhile.
    virtual DWORD DoDragDrop(CWnd* pSource, const std::string& text, DWORD dwAllowed) = 0;
    virtual BOOL RegisterDropTarget(CWnd* pWnd, COleDropTarget* pTarget) = 0;
    virtual void RevokeDropTarget(CWnd* pWnd) = 0;

    // Thread keyboard hooks: every key event goes through them first.
    virtual HHOOK SetKeyboardHook(HOOKPROC pfn) = 0;
    virtual BOOL Unhook(HHOOK hHook) = 0;

    // A pick list: a bordered list with a vertical scroll bar, child of
    // pParent at rc (client coordinates), in hFont, holding the items with
    // the first selected. It has the keyboard until Return or a double click
    // accepts (the index of the item is returned) or Escape, a system key, a
    // click elsewhere or the loss of focus cancels (-1); other windows keep
    // getting their events meanwhile. A backend without one cancels.
    virtual int RunPickList(CWnd* pParent, const RECT& rc, HFONT hFont,
                            const std::vector<std::string>& items) {
        (void)pParent, (void)rc, (void)hFont, (void)items;
        return -1;
    }

    // Printing. The print dialog lets the user choose the printer (or a
    // file) and the pages; FALSE when cancelled. A printer context for the
    // choice, or null when there is no such printer.
    virtual BOOL DoPrintDialog(CWnd* pParent, CPrintDialogInfo& pd) {
        (void)pParent, (void)pd;
        return FALSE;
    }
    virtual std::unique_ptr<CDC> CreatePrinterDC(const CPrintDialogInfo& pd);
    // Handles what the window system has pending (a click on a cancel
    // button during a long job).
    virtual void PumpEvents() {}
    // A message the user must read, with an OK button.
    virtual void MessageBox(CWnd* pParent, const char* pszText) { (void)pParent, (void)pszText; }
};

// The installed platform, or null.
TEXTZONE_EXPORT IPlatform* GetPlatform();
// Installs a platform (null uninstalls); returns the one it replaces.
TEXTZONE_EXPORT IPlatform* SetPlatform(IPlatform* pPlatform);

TEXTZONE_EXPORT SHORT GetKeyState(int nVirtKey);
TEXTZONE_EXPORT DWORD GetTickCount();
TEXTZONE_EXPORT COLORREF GetSysColor(int nIndex);
TEXTZONE_EXPORT int GetSystemMetrics(int nIndex);
TEXTZONE_EXPORT BOOL GetCursorPos(POINT* ppt);
TEXTZONE_EXPORT BOOL MessageBeep(UINT uType);

TEXTZONE_EXPORT HCURSOR LoadCursorA(HINSTANCE hInstance, int nCursorId);
TEXTZONE_EXPORT HCURSOR SetCursor(HCURSOR hCursor);
TEXTZONE_EXPORT int GetCursorId(HCURSOR hCursor);

TEXTZONE_EXPORT HWND SetFocus(HWND hWnd);
TEXTZONE_EXPORT HWND GetFocus();
TEXTZONE_EXPORT HWND SetCapture(HWND hWnd);
TEXTZONE_EXPORT BOOL ReleaseCapture();
TEXTZONE_EXPORT HWND GetCapture();

TEXTZONE_EXPORT BOOL PostMessageA(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
TEXTZONE_EXPORT LRESULT SendMessageA(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
TEXTZONE_EXPORT BOOL PeekMessageA(MSG* pMsg, HWND hWnd, UINT nFilterMin, UINT nFilterMax,
                                  UINT nRemove);
// Ids from 0xC000 up, the same id for the same name within the process.
TEXTZONE_EXPORT UINT RegisterWindowMessageA(const char* pszName);

TEXTZONE_EXPORT BOOL OpenClipboard(HWND hWnd);
TEXTZONE_EXPORT BOOL CloseClipboard();
TEXTZONE_EXPORT BOOL EmptyClipboard();
TEXTZONE_EXPORT BOOL SetClipboardData(UINT uFormat, const std::string& data);
TEXTZONE_EXPORT BOOL GetClipboardData(UINT uFormat, std::string* pData);
TEXTZONE_EXPORT BOOL IsClipboardFormatAvailable(UINT uFormat);

TEXTZONE_EXPORT HHOOK SetWindowsHookExA(int idHook, HOOKPROC lpfn, HINSTANCE hMod,
                                        DWORD dwThreadId);
TEXTZONE_EXPORT BOOL UnhookWindowsHookEx(HHOOK hHook);
TEXTZONE_EXPORT LRESULT CallNextHookEx(HHOOK hHook, int nCode, WPARAM wParam, LPARAM lParam);

// A display context the caller frees with DeleteDC; null without a platform
// or for a device this system cannot open.
TEXTZONE_EXPORT HDC CreateDCA(const char* pszDriver, const char* pszDevice, const char* pszPort,
                              const void* pInitData);
TEXTZONE_EXPORT BOOL DeleteDC(HDC hDC);
