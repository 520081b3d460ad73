// A status bar: a row of panes, each named by a command id. On idle the
// frame asks the handlers of those ids (through its command routing) what
// each pane shows; a pane without a handler is shown empty.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Wnd.h"

class CFrameWnd;

class TEXTZONE_EXPORT CStatusBar : public CWnd {
public:
    BOOL SetIndicators(const UINT* pIDArray, int nIDCount);
    int CommandToIndex(UINT nID) const;
    UINT GetItemID(int nIndex) const;
    int GetCount() const { return static_cast<int>(m_panes.size()); }
    BOOL SetPaneText(int nIndex, const char* pszText, BOOL bUpdate = TRUE);
    std::string GetPaneText(int nIndex) const;
    // A disabled pane keeps its text but does not show it.
    BOOL IsPaneEnabled(int nIndex) const;
    // What the pane shows now: its text when enabled, nothing otherwise.
    std::string GetShownText(int nIndex) const;

    // Brings every pane up to date from the handlers reachable from the target.
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHandler);

    // Told when a pane's shown text changes; the window system redraws it.
    std::function<void(int nIndex)> m_onPaneChanged;

private:
    struct Pane {
        UINT nID = 0;
        std::string strText;
        bool bEnabled = true;
    };
    void SetPaneEnabled(int nIndex, bool bEnabled);
    std::vector<Pane> m_panes;
};
