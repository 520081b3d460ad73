#include "editor/EditFrm.h"

#include <cstring>

#include "editor/EditorView.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Rgn.h"
#include "platform/WndClass.h"
#include "textzone/TextZone.h"

BOOL CEditFrm::PreCreateWindow(CREATESTRUCT& cs) {
    if (!m_szClassName[0]) {
        const char* pszName =
            AfxRegisterWndClass(CS_DBLCLKS, LoadCursorA(nullptr, IDC_ARROW),
                                reinterpret_cast<HBRUSH>(static_cast<intptr_t>(COLOR_WINDOWFRAME)),
                                reinterpret_cast<HICON>(static_cast<intptr_t>(kIconId)));
        std::strncpy(m_szClassName, pszName, sizeof m_szClassName - 1);
    }
    cs.lpszClass = m_szClassName;
    return CMDIChildWnd::PreCreateWindow(cs);
}

LRESULT CEditFrm::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            OnSize(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_NCCALCSIZE:
            return CEditorView::CalcTextArea(this, static_cast<BOOL>(wParam),
                                             reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam));
        default:
            return CMDIChildWnd::WindowProc(message, wParam, lParam);
    }
}

void CEditFrm::OnSize(UINT nType, int cx, int cy) {
    auto* pView = dynamic_cast<CEditorView*>(GetPaneView());
    if (!pView || nType == SIZE_MINIMIZED) {
        CMDIChildWnd::WindowProc(WM_SIZE, nType, MAKELPARAM(cx, cy));
        return;
    }
    RECT rcOldText;
    pView->GetZone()->GetRect(&rcOldText);
    // The view covers the frame; it sets its new text rectangle itself.
    pView->SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
    RECT rcClient{0, 0, cx, cy};
    CRgn all, kept, strip;
    all.CreateRectRgnIndirect(&rcClient);
    kept.CreateRectRgnIndirect(&rcOldText);
    strip.CreateRectRgn(0, 0, 0, 0);
    strip.CombineRgn(&all, &kept, RGN_DIFF);
    pView->RedrawWindow(nullptr, &strip, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE);
}
