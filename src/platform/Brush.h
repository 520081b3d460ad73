// A solid brush the caller owns.
#pragma once

#include "TextzoneExport.h"
#include "platform/OwnedGdiObject.h"

class TEXTZONE_EXPORT CBrush : public COwnedGdiObject<HBRUSH> {
public:
    CBrush() = default;
    explicit CBrush(COLORREF cr) { CreateSolidBrush(cr); }
    BOOL CreateSolidBrush(COLORREF cr) { return Attach(::CreateSolidBrush(cr)); }
};
