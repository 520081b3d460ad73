// One colour run of the line being drawn: from nPos on, characters are drawn
// in crColor until the next run.
#pragma once

#include "TextzoneExport.h"
#include "platform/Types.h"

class TEXTZONE_EXPORT CColorDef {
public:
    CColorDef() = default;
    CColorDef(int pos, COLORREF color) : nPos(pos), crColor(color) {}
    CColorDef(const CColorDef&) = default;
    CColorDef& operator=(const CColorDef&) = default;

    int nPos = 0;
    COLORREF crColor = 0;
};
