// The demo's own command ids and status panes, beside the framework's and
// the editor's.
#pragma once

#include "platform/Types.h"

constexpr UINT ID_APP_EXIT_DEMO = 0xE141;
// The line-end convention and the language of the active text.
constexpr UINT ID_INDICATOR_LINEEND = 0xA001;
constexpr UINT ID_INDICATOR_LANGUAGE = 0xA002;
// File > Export to PDF: the text printed into a PDF file.
constexpr UINT ID_FILE_EXPORT_PDF = 0xA003;
// Search > List Lines: the lines holding the selected word, in the report.
constexpr UINT ID_SEARCH_LISTLINES = 0xA010;
// View > Keyword Case: the four keyword modes, in their order.
constexpr UINT ID_KEYWORDCASE_FIRST = 0xA020;
constexpr UINT ID_KEYWORDCASE_LAST = ID_KEYWORDCASE_FIRST + 3;
// Language: by extension, then the entries of the demo's language list.
constexpr UINT ID_LANGUAGE_FIRST = 0xA100;
