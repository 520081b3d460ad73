// The state of one command as a menu item, a tool button or a status pane
// shows it. An update handler sets it; the item that asked then takes it.
// The base class records what the handler said, so menus, panes and tests
// read the answer the same way.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CWnd;

class TEXTZONE_EXPORT CCmdUI {
public:
    virtual ~CCmdUI() = default;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetText(const char* pszText);

    // Routes the update through the target. Without an update handler the
    // item is enabled when a command handler exists, and disabled otherwise
    // if bDisableIfNoHandler.
    BOOL DoUpdate(CWnd* pTarget, BOOL bDisableIfNoHandler);

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    // The status bar or tool bar the item belongs to; null for a menu item.
    CWnd* m_pOther = nullptr;

    // What the handler said; the text only if it set one.
    BOOL m_bEnabled = TRUE;
    int m_nCheck = 0;
    bool m_bTextSet = false;
    std::string m_strText;
    bool m_bEnableChanged = false;
};
