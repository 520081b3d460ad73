// The dialog resources of the three preference pages.
#pragma once

#include "TextzoneExport.h"
#include "platform/DialogTemplate.h"

// "Editor Font", "Editor Options", "Editor Shortcuts".
TEXTZONE_EXPORT const DLGTEMPLATE& GetEditorFontDialog();      // 4300
TEXTZONE_EXPORT const DLGTEMPLATE& GetEditorOptionsDialog();   // 4301
TEXTZONE_EXPORT const DLGTEMPLATE& GetEditorShortcutDialog();  // 4302
