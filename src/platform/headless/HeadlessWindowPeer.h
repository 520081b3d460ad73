// A window without a screen. It keeps its geometry, and records what the
// window system would have been asked to do, for tests to read: the
// invalidations, the paints, what was drawn, the scrolls, the changes of
// scroll bars and caret.
#pragma once

#include <vector>

#include "platform/WindowPeer.h"
#include "platform/Wnd.h"
#include "platform/headless/DrawRecord.h"

class CHeadlessPlatform;

class CHeadlessWindowPeer : public IWindowPeer {
public:
    struct Invalidation {
        CRgn rgn;
        RECT rcBox;
        BOOL bErase;
    };

    CHeadlessWindowPeer(CWnd* pWnd, const CREATESTRUCTA& cs);

    // Geometry: the client area is the window less a 1-pixel border with
    // WS_BORDER and less the width of each visible scroll bar.
    void GetClientRect(RECT* prc) override;
    void GetWindowRect(RECT* prc) override;
    void SetWindowRect(const RECT& rc) override;
    void ClientToScreen(POINT* ppt) override;
    void ScreenToClient(POINT* ppt) override;
    void Show(int nCmdShow) override;
    bool IsVisible() override;
    void Enable(bool bEnable) override { m_bEnabled = bEnable; }

    std::unique_ptr<CDC> CreateDC(const CRgn* pPaintRegion) override;
    void OnInvalidate(const CRgn& rgn, BOOL bErase) override;
    void OnDrawn() override { ++m_nDrawnCount; }
    void OnScrollBarChanged(int nBar) override { m_scrollBarChanges.push_back(nBar); }
    void OnStyleChanged() override { ++m_nStyleChanges; }
    void OnCaretChanged() override { ++m_nCaretChanges; }

    // What tests read.
    CWnd* GetWnd() const { return m_pWnd; }
    const DisplayList& GetDisplayList() const { return m_displayList; }
    void ClearDisplayList() { m_displayList.clear(); }
    const std::vector<Invalidation>& GetInvalidations() const { return m_invalidations; }
    void ClearInvalidations() { m_invalidations.clear(); }
    int GetPaintCount() const { return m_nPaintCount; }
    int GetDrawnCount() const { return m_nDrawnCount; }
    const std::vector<int>& GetScrollBarChanges() const { return m_scrollBarChanges; }
    int GetCaretChangeCount() const { return m_nCaretChanges; }
    bool IsEnabled() const { return m_bEnabled; }
    // The screen position of the client area's top left corner.
    POINT GetClientOrigin();
    void ClearLogs();

private:
    CWnd* m_pWnd;
    RECT m_rcWindow;  // in the parent's client coordinates, or the screen's
    bool m_bVisible;
    bool m_bEnabled = true;
    DisplayList m_displayList;
    std::vector<Invalidation> m_invalidations;
    std::vector<int> m_scrollBarChanges;
    int m_nPaintCount = 0;
    int m_nDrawnCount = 0;
    int m_nStyleChanges = 0;
    int m_nCaretChanges = 0;
};
