// A scroll bar control, a window of its own that a host can place anywhere
// and hand to a zone. It reports to its parent with WM_HSCROLL or
// WM_VSCROLL, its own handle in the message's lParam.
#pragma once

#include "TextzoneExport.h"
#include "platform/Wnd.h"

class TEXTZONE_EXPORT CScrollBar : public CWnd {
public:
    // dwStyle holds SBS_VERT for a vertical bar.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    int GetScrollPos() const { return CWnd::GetScrollPos(SB_CTL_BAR); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollPos(SB_CTL_BAR, nPos, bRedraw);
    }
    void GetScrollRange(int* pMin, int* pMax) const {
        CWnd::GetScrollRange(SB_CTL_BAR, pMin, pMax);
    }
    void SetScrollRange(int nMin, int nMax, BOOL bRedraw = TRUE) {
        CWnd::SetScrollRange(SB_CTL_BAR, nMin, nMax, bRedraw);
    }
    BOOL SetScrollInfo(const SCROLLINFO* psi, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL_BAR, psi, bRedraw);
    }
    BOOL GetScrollInfo(SCROLLINFO* psi, UINT nMask = 0x17) const {
        return CWnd::GetScrollInfo(SB_CTL_BAR, psi, nMask);
    }
    int GetScrollLimit() const { return CWnd::GetScrollLimit(SB_CTL_BAR); }
    void ShowScrollBar(BOOL bShow = TRUE) { CWnd::ShowScrollBar(SB_CTL_BAR, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags) {
        return CWnd::EnableScrollBar(SB_CTL_BAR, nArrowFlags);
    }
    BOOL IsVertical() const { return (GetStyle() & 1 /* SBS_VERT */) != 0; }

    // What a backend calls when the user moves the bar: the parent hears it.
    void NotifyParent(int nScrollCode, int nPos);

private:
    static constexpr int SB_CTL_BAR = 2;  // SB_CTL
};
