// What a host calls to put the editor's preference pages into its own
// property sheet. pSection, when not null, replaces the page's section.
// The sheet keeps each page and deletes it with itself.
#pragma once

#include "TextzoneExport.h"

class CPropertySheet;

TEXTZONE_EXPORT void EditEx32_AddOptionPage(CPropertySheet* pSheet, char const* pSection);
TEXTZONE_EXPORT void EditEx32_AddOptionPageTSQL(CPropertySheet* pSheet, char const* pSection);
TEXTZONE_EXPORT void EditEx32_AddFontPage(CPropertySheet* pSheet, char const* pSection);
TEXTZONE_EXPORT void EditEx32_AddShortcutPage(CPropertySheet* pSheet, char const* pSection);
