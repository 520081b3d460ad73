#include "platform/headless/HeadlessPlatform.h"

#include "platform/PrintInfo.h"

#include <algorithm>

#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/OleDropTarget.h"
#include "platform/headless/HeadlessDC.h"

namespace {

bool IsKeyInRange(const MSG& msg, CWnd* pWnd, UINT nMin, UINT nMax) {
    if (pWnd && msg.hwnd != pWnd) return false;
    if (nMin == 0 && nMax == 0) return true;
    return msg.message >= nMin && msg.message <= nMax;
}

}  // namespace

CHeadlessPlatform::CHeadlessPlatform() : m_pPrevious(SetPlatform(this)) {}

CHeadlessPlatform::~CHeadlessPlatform() {
    SetPlatform(m_pPrevious);
}

void CHeadlessPlatform::SetKeyState(int nVirtKey, bool bDown) {
    m_keys[nVirtKey] = bDown;
}

SHORT CHeadlessPlatform::GetKeyState(int nVirtKey) {
    auto down = [&](int vk) {
        auto it = m_keys.find(vk);
        return it != m_keys.end() && it->second;
    };
    // The side keys and the plain key report together: a plain key set by a
    // test counts as its left one, either side as the plain one.
    auto sided = [&](int plain, int left, int right) {
        if (nVirtKey == plain) return down(plain) || down(left) || down(right);
        if (nVirtKey == left) return down(left) || (down(plain) && !down(right));
        return down(right);
    };
    bool isDown;
    switch (nVirtKey) {
        case VK_SHIFT:
        case VK_LSHIFT:
        case VK_RSHIFT:
            isDown = sided(VK_SHIFT, VK_LSHIFT, VK_RSHIFT);
            break;
        case VK_CONTROL:
        case VK_LCONTROL:
        case VK_RCONTROL:
            isDown = sided(VK_CONTROL, VK_LCONTROL, VK_RCONTROL);
            break;
        case VK_MENU:
        case VK_LMENU:
        case VK_RMENU:
            isDown = sided(VK_MENU, VK_LMENU, VK_RMENU);
            break;
        default:
            isDown = down(nVirtKey);
    }
    return isDown ? static_cast<SHORT>(0x8000) : 0;
}

BOOL CHeadlessPlatform::GetCursorPos(POINT* ppt) {
    *ppt = m_ptCursor;
    return TRUE;
}

int CHeadlessPlatform::GetCurrentCursorId() const {
    return GetCursorId(m_hCursor);
}

CHeadlessWindowPeer* CHeadlessPlatform::Peer(const CWnd* pWnd) {
    return pWnd ? dynamic_cast<CHeadlessWindowPeer*>(pWnd->GetPeer()) : nullptr;
}

std::unique_ptr<IWindowPeer> CHeadlessPlatform::CreateWindowPeer(CWnd* pWnd,
                                                                 const CREATESTRUCTA& cs) {
    return std::make_unique<CHeadlessWindowPeer>(pWnd, cs);
}

std::unique_ptr<CDC> CHeadlessPlatform::CreateDisplayDC() {
    return std::make_unique<CHeadlessDC>(nullptr, CRgn(RECT{0, 0, kScreenWidth, kScreenHeight}),
                                         false);
}

void CHeadlessPlatform::OnWindowDestroyed(CWnd* pWnd) {
    {
        std::lock_guard<std::mutex> guard(m_queueLock);
        m_queue.erase(std::remove_if(m_queue.begin(), m_queue.end(),
                                     [&](const MSG& m) { return m.hwnd == pWnd; }),
                      m_queue.end());
    }
    if (m_pFocus == pWnd) m_pFocus = nullptr;
    if (m_pCapture == pWnd) m_pCapture = nullptr;
    m_dropTargets.erase(pWnd);
}

void CHeadlessPlatform::PostMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG msg;
    msg.hwnd = pWnd;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    msg.time = m_dwTick;
    msg.pt = m_ptCursor;
    std::lock_guard<std::mutex> guard(m_queueLock);
    m_queue.push_back(msg);
}

BOOL CHeadlessPlatform::PeekMessage(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax,
                                    UINT nRemove) {
    std::lock_guard<std::mutex> guard(m_queueLock);
    auto it = std::find_if(m_queue.begin(), m_queue.end(), [&](const MSG& m) {
        return IsKeyInRange(m, pWnd, nFilterMin, nFilterMax);
    });
    if (it == m_queue.end()) return FALSE;
    *pMsg = *it;
    if (nRemove & PM_REMOVE) m_queue.erase(it);
    return TRUE;
}

int CHeadlessPlatform::PumpMessages(int nMax) {
    int delivered = 0;
    while (delivered < nMax) {
        MSG msg;
        {
            std::lock_guard<std::mutex> guard(m_queueLock);
            if (m_queue.empty()) break;
            msg = m_queue.front();
            m_queue.pop_front();
        }
        if (msg.hwnd) msg.hwnd->SendMessage(msg.message, msg.wParam, msg.lParam);
        ++delivered;
    }
    return delivered;
}

std::vector<MSG> CHeadlessPlatform::GetPostedMessages() {
    std::lock_guard<std::mutex> guard(m_queueLock);
    return std::vector<MSG>(m_queue.begin(), m_queue.end());
}

void CHeadlessPlatform::ClearPostedMessages() {
    std::lock_guard<std::mutex> guard(m_queueLock);
    m_queue.clear();
}

CWnd* CHeadlessPlatform::SetFocus(CWnd* pWnd) {
    CWnd* old = m_pFocus;
    if (pWnd == old) return old;
    m_pFocus = pWnd;
    if (old && old->GetSafeHwnd()) old->SendMessage(WM_KILLFOCUS, reinterpret_cast<WPARAM>(pWnd));
    if (pWnd && m_pFocus == pWnd) pWnd->SendMessage(WM_SETFOCUS, reinterpret_cast<WPARAM>(old));
    return old;
}

CWnd* CHeadlessPlatform::SetCapture(CWnd* pWnd) {
    CWnd* old = m_pCapture;
    m_pCapture = pWnd;
    return old;
}

BOOL CHeadlessPlatform::ReleaseCapture() {
    m_pCapture = nullptr;
    return TRUE;
}

HCURSOR CHeadlessPlatform::SetCursor(HCURSOR hCursor) {
    HCURSOR old = m_hCursor;
    m_hCursor = hCursor;
    return old;
}

void CHeadlessPlatform::EndWaitCursor() {
    if (m_nWaitDepth > 0) --m_nWaitDepth;
}

COLORREF CHeadlessPlatform::GetSysColor(int nIndex) {
    switch (nIndex) {
        case COLOR_WINDOW:
        case COLOR_HIGHLIGHTTEXT:
        case COLOR_BTNHIGHLIGHT:
            return RGB(255, 255, 255);
        case COLOR_WINDOWTEXT:
        case COLOR_WINDOWFRAME:
        case COLOR_MENUTEXT:
        case COLOR_BTNTEXT:
        case COLOR_CAPTIONTEXT:
        case COLOR_INFOTEXT:
            return RGB(0, 0, 0);
        case COLOR_HIGHLIGHT:
        case COLOR_ACTIVECAPTION:
            return RGB(0, 0, 128);
        case COLOR_BTNSHADOW:
        case COLOR_GRAYTEXT:
        case COLOR_INACTIVECAPTION:
            return RGB(128, 128, 128);
        case COLOR_INFOBK:
            return RGB(255, 255, 225);
        case COLOR_BACKGROUND:
            return RGB(0, 128, 128);
        default:
            return RGB(192, 192, 192);
    }
}

int CHeadlessPlatform::GetSystemMetrics(int nIndex) {
    switch (nIndex) {
        case SM_CXSCREEN:
        case SM_CXFULLSCREEN:
            return kScreenWidth;
        case SM_CYSCREEN:
            return kScreenHeight;
        case SM_CYFULLSCREEN:
            return kScreenHeight - 19;
        case SM_CXVSCROLL:
        case SM_CYHSCROLL:
        case SM_CYVSCROLL:
        case SM_CXHSCROLL:
            return kScrollBarSize;
        case SM_CXBORDER:
        case SM_CYBORDER:
            return 1;
        case SM_CXEDGE:
        case SM_CYEDGE:
            return 2;
        case SM_CYCAPTION:
            return 19;
        case SM_CXCURSOR:
        case SM_CYCURSOR:
            return 32;
        case SM_CXDOUBLECLK:
        case SM_CYDOUBLECLK:
        case SM_CXDRAG:
        case SM_CYDRAG:
            return 4;
        default:
            return 0;
    }
}

BOOL CHeadlessPlatform::MessageBeep(UINT) {
    ++m_nBeeps;
    return TRUE;
}

void CHeadlessPlatform::SetClipboardText(const std::string& text) {
    m_clipboard.clear();
    m_clipboard[CF_TEXT] = text;
}

std::string CHeadlessPlatform::GetClipboardText() {
    auto it = m_clipboard.find(CF_TEXT);
    return it == m_clipboard.end() ? std::string() : it->second;
}

BOOL CHeadlessPlatform::OpenClipboard(CWnd*) {
    if (m_bClipboardFails || m_bClipboardOpen) return FALSE;
    m_bClipboardOpen = true;
    return TRUE;
}

BOOL CHeadlessPlatform::CloseClipboard() {
    if (!m_bClipboardOpen) return FALSE;
    m_bClipboardOpen = false;
    return TRUE;
}

BOOL CHeadlessPlatform::EmptyClipboard() {
    if (!m_bClipboardOpen) return FALSE;
    m_clipboard.clear();
    return TRUE;
}

BOOL CHeadlessPlatform::SetClipboardData(UINT uFormat, const std::string& data) {
    if (!m_bClipboardOpen) return FALSE;
    m_clipboard[uFormat] = data;
    return TRUE;
}

BOOL CHeadlessPlatform::GetClipboardData(UINT uFormat, std::string* pData) {
    if (!m_bClipboardOpen) return FALSE;
    auto it = m_clipboard.find(uFormat);
    if (it == m_clipboard.end()) return FALSE;
    *pData = it->second;
    return TRUE;
}

BOOL CHeadlessPlatform::IsClipboardFormatAvailable(UINT uFormat) {
    return m_clipboard.count(uFormat) != 0;
}

DWORD CHeadlessPlatform::DoDragDrop(CWnd* pSource, const std::string& text, DWORD dwAllowed) {
    ++m_nDrags;
    if (!m_dragHandler) return DROPEFFECT_NONE;
    return m_dragHandler(pSource, text, dwAllowed) & (dwAllowed | DROPEFFECT_SCROLL);
}

DWORD CHeadlessPlatform::SimulateDrop(CWnd* pTarget, const std::string& text, DWORD dwKeyState,
                                      POINT ptClient) {
    auto it = m_dropTargets.find(pTarget);
    if (it == m_dropTargets.end()) return DROPEFFECT_NONE;
    COleDropTarget* target = it->second;
    COleDataObject data(text);
    CPoint pt(ptClient);
    DWORD effect = target->OnDragEnter(pTarget, &data, dwKeyState, pt);
    if (effect != DROPEFFECT_NONE) effect = target->OnDragOver(pTarget, &data, dwKeyState, pt);
    if (effect == DROPEFFECT_NONE) {
        target->OnDragLeave(pTarget);
        return DROPEFFECT_NONE;
    }
    return target->OnDrop(pTarget, &data, effect, pt) ? effect : DROPEFFECT_NONE;
}

BOOL CHeadlessPlatform::RegisterDropTarget(CWnd* pWnd, COleDropTarget* pTarget) {
    if (!pWnd || !pWnd->GetSafeHwnd() || !pTarget) return FALSE;
    m_dropTargets[pWnd] = pTarget;
    return TRUE;
}

void CHeadlessPlatform::RevokeDropTarget(CWnd* pWnd) {
    m_dropTargets.erase(pWnd);
}

HHOOK CHeadlessPlatform::SetKeyboardHook(HOOKPROC pfn) {
    m_hooks.push_back(std::make_unique<HookObject>(HookObject{pfn}));
    return m_hooks.back().get();
}

BOOL CHeadlessPlatform::Unhook(HHOOK hHook) {
    auto it = std::find_if(m_hooks.begin(), m_hooks.end(),
                           [&](const std::unique_ptr<HookObject>& h) { return h.get() == hHook; });
    if (it == m_hooks.end()) return FALSE;
    m_hooks.erase(it);
    return TRUE;
}

int CHeadlessPlatform::InjectHookKey(int nVirtKey, bool bRelease) {
    // The flags word of a key event: repeat count 1, and for a release the
    // previous-state and transition bits, which make it negative.
    LPARAM flags = bRelease ? static_cast<LPARAM>(static_cast<LONG>(0xC0000001u)) : 1;
    std::vector<HOOKPROC> procs;
    for (const auto& h : m_hooks)
        procs.push_back(h->pfn);
    for (HOOKPROC proc : procs)
        proc(HC_ACTION, static_cast<WPARAM>(nVirtKey), flags);
    return static_cast<int>(procs.size());
}

int CHeadlessPlatform::RunPickList(CWnd* pParent, const RECT& rc, HFONT hFont,
                                   const std::vector<std::string>& items) {
    m_pickLists.push_back({pParent, rc, hFont, items});
    const int nChosen = m_pickListHandler ? m_pickListHandler(m_pickLists.back()) : -1;
    return nChosen >= 0 && nChosen < static_cast<int>(items.size()) ? nChosen : -1;
}

BOOL CHeadlessPlatform::DoPrintDialog(CWnd*, CPrintDialogInfo& pd) {
    return m_printDialog ? m_printDialog(pd) : TRUE;
}

std::unique_ptr<CDC> CHeadlessPlatform::CreatePrinterDC(const CPrintDialogInfo&) {
    if (m_bNoPrinter) return nullptr;
    auto pJob = std::make_shared<HeadlessPrintJob>();
    m_printJobs.push_back(pJob);
    return std::make_unique<CHeadlessPrinterDC>(m_printerPage, pJob, m_onEndPage);
}

void CHeadlessPlatform::MessageBox(CWnd*, const char* pszText) {
    m_messageBoxes.push_back(pszText ? pszText : "");
}
