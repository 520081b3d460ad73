// A window class's table of commands: for an id, the handler that carries
// it out and the handler that tells its state. OnCmdMsg of the class looks
// its id up here and otherwise asks its base class.
#pragma once

#include <span>

#include "platform/CmdUI.h"
#include "platform/Messages.h"

template <class T>
struct CommandEntry {
    UINT nID;
    void (T::*pfnCommand)();         // null: the id only has an update handler
    void (T::*pfnUpdate)(CCmdUI*);   // null: no update handler
};

// True when the table handled the id for that code. Every update entry of
// the id runs, so two handlers under one id both see the item.
template <class T>
BOOL DispatchCommand(T* pTarget, std::span<const CommandEntry<T>> table, UINT nID, int nCode,
                     CCmdUI* pCmdUI) {
    BOOL bHandled = FALSE;
    for (const CommandEntry<T>& entry : table) {
        if (entry.nID != nID) continue;
        if (nCode == CN_COMMAND && entry.pfnCommand) {
            (pTarget->*entry.pfnCommand)();
            return TRUE;
        }
        if (nCode == CN_QUERY_HANDLER && entry.pfnCommand) return TRUE;
        if (nCode == CN_UPDATE_COMMAND_UI && entry.pfnUpdate && pCmdUI) {
            (pTarget->*entry.pfnUpdate)(pCmdUI);
            bHandled = TRUE;
        }
    }
    return bHandled;
}
