// A pen the caller owns.
#pragma once

#include "TextzoneExport.h"
#include "platform/OwnedGdiObject.h"

class TEXTZONE_EXPORT CPen : public COwnedGdiObject<HPEN> {
public:
    CPen() = default;
    CPen(int nStyle, int nWidth, COLORREF cr) { CreatePen(nStyle, nWidth, cr); }
    BOOL CreatePen(int nStyle, int nWidth, COLORREF cr) {
        return Attach(::CreatePen(nStyle, nWidth, cr));
    }
};
