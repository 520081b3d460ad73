#include "platform/ScrollBar.h"

#include "platform/Messages.h"

static_assert(SB_CTL == 2, "CScrollBar addresses its bar as SB_CTL");
static_assert(SBS_VERT == 1, "CScrollBar::IsVertical tests SBS_VERT");

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, "SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CScrollBar::NotifyParent(int nScrollCode, int nPos) {
    if (CWnd* parent = GetParent())
        parent->SendMessage(IsVertical() ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(nScrollCode, nPos),
                            reinterpret_cast<LPARAM>(this));
}
