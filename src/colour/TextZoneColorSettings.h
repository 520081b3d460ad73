// What a host keeps of a coloured zone's view while the zone is rebuilt:
// the selection, the scroll positions and the lines that carry bookmark 0.
#pragma once

#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"
#include "textzone/TextZone.h"

class TEXTZONE_EXPORT CTextZoneColorSettings {
public:
    short m_wSelectionMode = TZ_SEL_STREAM;
    LONG m_lSelStart = 0;
    LONG m_lSelEnd = 0;
    int m_nSelStartChar = 0;
    int m_nSelEndChar = 0;
    int m_nHScrollPos = 0;
    int m_nVScrollPos = 0;
    std::vector<unsigned int> m_bookmarkedLines;
};
