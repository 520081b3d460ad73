// A solid brush the caller owns.
#pragma once

#include "platform/OwnedGdiObject.h"

class CBrush : public COwnedGdiObject<HBRUSH> {
public:
    CBrush() = default;
    explicit CBrush(COLORREF cr) { CreateSolidBrush(cr); }
    BOOL CreateSolidBrush(COLORREF cr) { return Attach(::CreateSolidBrush(cr)); }
};
