// Where one of a zone's scroll positions lives: in the bar control handed to
// the zone, in the window's own bar when its style shows one, or in the
// zone's private fields. Every read and write of a position goes through
// here, so the three sources behave alike.
#pragma once

#include "platform/ScrollBar.h"
#include "textzone/TextZone.h"

class CZoneScroll {
public:
    // pControl: the bar a message came from, if any; else the zone's own.
    CZoneScroll(CTextZone& zone, bool bVertical, CScrollBar* pControl = nullptr);

    bool IsWindowBar() const { return !m_pControl && m_pWnd; }
    int GetPos() const;
    void GetRange(int* pMin, int* pMax) const;
    void SetPos(int nPos, BOOL bRedraw = TRUE);
    void SetRange(int nMin, int nMax, BOOL bRedraw = TRUE);
    // A window's bar gets no proportional thumb.
    void ClearPage();
    void Show();

private:
    CTextZone& m_zone;
    bool m_bVertical;
    CScrollBar* m_pControl = nullptr;
    CWnd* m_pWnd = nullptr;  // set when the window's own bar is the source
};
