// The editor's resources: the menu it offers hosts, the prompts of its
// commands, and the texts that size its status panes.
#pragma once

#include "TextzoneExport.h"
#include "platform/MenuModel.h"
#include "platform/Types.h"

// Commands of the extended editors.
constexpr UINT ID_EDIT_ERASEBUFFER = 49921;
constexpr UINT ID_EDIT_BOXMODE = 49922;
constexpr UINT ID_EDIT_STREAMMODE = 49923;
constexpr UINT ID_VIEW_TOGGLEBOOKMARK = 49937;
constexpr UINT ID_VIEW_NEXTBOOKMARK = 49938;
constexpr UINT ID_VIEW_PREVBOOKMARK = 49939;
// Status panes of the extended view: the line, and the mode indicator.
constexpr UINT ID_INDICATOR_LINE = 50161;
constexpr UINT ID_INDICATOR_MODE = 50162;

// The pop-ups of the menu named, "&Edit" and "&View" for
// "MENUEXTENDEDEDITORVIEW"; null for a name the library does not have.
TEXTZONE_EXPORT const MenuBar* LoadMenuResource(const char* pszName);
// The string of an id: a command's prompt, or the text that sizes a
// status pane; null when there is none.
TEXTZONE_EXPORT const char* LoadStringResource(UINT nID);
