// One reversible step of an edit, with what is needed to reverse it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

class TEXTZONE_EXPORT CUndoUnit {
public:
    WORD m_wType = 0;      // the unit kind, 1 to 7
    std::string m_hText;   // kinds 1, 6, 7: the text, owned
    char m_cChar = 0;      // kinds 2, 3: the one character
    WORD m_wSelMode = 0;   // the selection mode when the unit was made
    int m_nFirstLine = 0;  // with paragraphs in stream mode: the start offset
    int m_nFirstChar = 0;  // with paragraphs in stream mode: the end offset
    int m_nLastLine = 0;
    int m_nLastChar = 0;
    // The specific info of lines the step destroys, in line order; entries
    // may be null. Null when there are none.
    std::unique_ptr<std::vector<std::unique_ptr<char[]>>> m_pInfos;
};
