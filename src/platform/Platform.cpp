#include "platform/Platform.h"

#include <atomic>
#include <cstring>
#include <map>
#include <mutex>
#include <string>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"

// Stands behind a cursor handle; the backends map the id to an image.
struct CursorObject {
    int nId;
};

namespace {

std::atomic<IPlatform*> g_platform{nullptr};

}  // namespace

IPlatform* GetPlatform() {
    return g_platform.load();
}

IPlatform* SetPlatform(IPlatform* pPlatform) {
    return g_platform.exchange(pPlatform);
}

SHORT GetKeyState(int nVirtKey) {
    IPlatform* p = GetPlatform();
    return p ? p->GetKeyState(nVirtKey) : 0;
}

DWORD GetTickCount() {
    IPlatform* p = GetPlatform();
    return p ? p->GetTickCount() : 0;
}

COLORREF GetSysColor(int nIndex) {
    IPlatform* p = GetPlatform();
    return p ? p->GetSysColor(nIndex) : 0;
}

int GetSystemMetrics(int nIndex) {
    IPlatform* p = GetPlatform();
    return p ? p->GetSystemMetrics(nIndex) : 0;
}

BOOL GetCursorPos(POINT* ppt) {
    IPlatform* p = GetPlatform();
    return p && ppt ? p->GetCursorPos(ppt) : FALSE;
}

BOOL MessageBeep(UINT uType) {
    IPlatform* p = GetPlatform();
    return p ? p->MessageBeep(uType) : FALSE;
}

HCURSOR LoadCursorA(HINSTANCE, int nCursorId) {
    // The system's cursors, and the library's two drag cursors (31 copy, 32 move).
    static const CursorObject cursors[] = {
        {IDC_ARROW},       {IDC_IBEAM},    {IDC_WAIT},     {IDC_CROSS},
        {IDC_UPARROW},     {IDC_SIZEALL},  {IDC_NO},       {IDC_HAND},
        {IDC_APPSTARTING}, {IDC_SIZENWSE}, {IDC_SIZENESW}, {IDC_SIZEWE},
        {IDC_SIZENS},      {31},           {32},
    };
    for (const CursorObject& c : cursors)
        if (c.nId == nCursorId) return &c;
    return nullptr;
}

HCURSOR SetCursor(HCURSOR hCursor) {
    IPlatform* p = GetPlatform();
    return p ? p->SetCursor(hCursor) : nullptr;
}

int GetCursorId(HCURSOR hCursor) {
    return hCursor ? hCursor->nId : 0;
}

HWND SetFocus(HWND hWnd) {
    IPlatform* p = GetPlatform();
    return p ? p->SetFocus(hWnd) : nullptr;
}

HWND GetFocus() {
    IPlatform* p = GetPlatform();
    return p ? p->GetFocus() : nullptr;
}

HWND SetCapture(HWND hWnd) {
    IPlatform* p = GetPlatform();
    return p ? p->SetCapture(hWnd) : nullptr;
}

BOOL ReleaseCapture() {
    IPlatform* p = GetPlatform();
    return p ? p->ReleaseCapture() : FALSE;
}

HWND GetCapture() {
    IPlatform* p = GetPlatform();
    return p ? p->GetCapture() : nullptr;
}

BOOL PostMessageA(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    IPlatform* p = GetPlatform();
    if (!p || !hWnd) return FALSE;
    p->PostMessage(hWnd, message, wParam, lParam);
    return TRUE;
}

LRESULT SendMessageA(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return hWnd ? hWnd->SendMessage(message, wParam, lParam) : 0;
}

BOOL PeekMessageA(MSG* pMsg, HWND hWnd, UINT nFilterMin, UINT nFilterMax, UINT nRemove) {
    IPlatform* p = GetPlatform();
    return p && pMsg ? p->PeekMessage(pMsg, hWnd, nFilterMin, nFilterMax, nRemove) : FALSE;
}

UINT RegisterWindowMessageA(const char* pszName) {
    static std::mutex lock;
    static std::map<std::string, UINT> ids;
    if (!pszName || !*pszName) return 0;
    std::lock_guard<std::mutex> guard(lock);
    auto [it, added] = ids.emplace(pszName, static_cast<UINT>(0xC000 + ids.size()));
    return it->second;
}

BOOL OpenClipboard(HWND hWnd) {
    IPlatform* p = GetPlatform();
    return p ? p->OpenClipboard(hWnd) : FALSE;
}

BOOL CloseClipboard() {
    IPlatform* p = GetPlatform();
    return p ? p->CloseClipboard() : FALSE;
}

BOOL EmptyClipboard() {
    IPlatform* p = GetPlatform();
    return p ? p->EmptyClipboard() : FALSE;
}

BOOL SetClipboardData(UINT uFormat, const std::string& data) {
    IPlatform* p = GetPlatform();
    return p ? p->SetClipboardData(uFormat, data) : FALSE;
}

BOOL GetClipboardData(UINT uFormat, std::string* pData) {
    IPlatform* p = GetPlatform();
    return p && pData ? p->GetClipboardData(uFormat, pData) : FALSE;
}

BOOL IsClipboardFormatAvailable(UINT uFormat) {
    IPlatform* p = GetPlatform();
    return p ? p->IsClipboardFormatAvailable(uFormat) : FALSE;
}

HHOOK SetWindowsHookExA(int idHook, HOOKPROC lpfn, HINSTANCE, DWORD) {
    IPlatform* p = GetPlatform();
    // Keyboard hooks on the own thread are the only kind this system uses.
    if (!p || !lpfn || idHook != WH_KEYBOARD) return nullptr;
    return p->SetKeyboardHook(lpfn);
}

BOOL UnhookWindowsHookEx(HHOOK hHook) {
    IPlatform* p = GetPlatform();
    return p && hHook ? p->Unhook(hHook) : FALSE;
}

// The platform calls every hook in turn, so there is nothing to chain here.
LRESULT CallNextHookEx(HHOOK, int, WPARAM, LPARAM) {
    return 0;
}

HDC CreateDCA(const char* pszDriver, const char*, const char*, const void*) {
    IPlatform* p = GetPlatform();
    if (!p || !pszDriver || std::strcmp(pszDriver, "DISPLAY") != 0) return nullptr;
    return p->CreateDisplayDC().release();
}

BOOL DeleteDC(HDC hDC) {
    if (!hDC) return FALSE;
    delete hDC;
    return TRUE;
}

std::unique_ptr<CDC> IPlatform::CreatePrinterDC(const CPrintDialogInfo&) {
    return nullptr;
}
