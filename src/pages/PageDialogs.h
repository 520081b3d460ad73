// The dialog resources of the three preference pages.
#pragma once

#include "platform/DialogTemplate.h"

// "Editor Font", "Editor Options", "Editor Shortcuts".
const DLGTEMPLATE& GetEditorFontDialog();      // 4300
const DLGTEMPLATE& GetEditorOptionsDialog();   // 4301
const DLGTEMPLATE& GetEditorShortcutDialog();  // 4302
