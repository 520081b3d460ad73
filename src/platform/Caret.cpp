#include "platform/Caret.h"

#include "platform/Wnd.h"

namespace {

CaretInfo g_caret;

void Notify(CWnd* pWnd) {
    if (pWnd && pWnd->GetPeer()) pWnd->GetPeer()->OnCaretChanged();
}

}  // namespace

const CaretInfo& GetCaretInfo() {
    return g_caret;
}

BOOL CreateCaret(HWND hWnd, void*, int nWidth, int nHeight) {
    if (!hWnd || !hWnd->GetSafeHwnd()) return FALSE;
    DestroyCaret();
    g_caret.pOwner = hWnd;
    g_caret.nWidth = nWidth;
    g_caret.nHeight = nHeight;
    g_caret.pt = POINT{};
    g_caret.nHideCount = 1;  // a new caret is hidden until shown
    Notify(hWnd);
    return TRUE;
}

BOOL DestroyCaret() {
    CWnd* owner = g_caret.pOwner;
    if (!owner) return FALSE;
    g_caret = CaretInfo{};
    Notify(owner);
    return TRUE;
}

BOOL ShowCaret(HWND hWnd) {
    if (!g_caret.pOwner || (hWnd && hWnd != g_caret.pOwner)) return FALSE;
    if (g_caret.nHideCount > 0) --g_caret.nHideCount;
    Notify(g_caret.pOwner);
    return TRUE;
}

BOOL HideCaret(HWND hWnd) {
    if (!g_caret.pOwner || (hWnd && hWnd != g_caret.pOwner)) return FALSE;
    ++g_caret.nHideCount;
    Notify(g_caret.pOwner);
    return TRUE;
}

BOOL SetCaretPos(int x, int y) {
    if (!g_caret.pOwner) return FALSE;
    g_caret.pt = POINT{x, y};
    Notify(g_caret.pOwner);
    return TRUE;
}

BOOL GetCaretPos(POINT* ppt) {
    if (!ppt || !g_caret.pOwner) return FALSE;
    *ppt = g_caret.pt;
    return TRUE;
}
