// A font the caller owns.
#pragma once

#include "TextzoneExport.h"
#include "platform/OwnedGdiObject.h"

class TEXTZONE_EXPORT CFont : public COwnedGdiObject<HFONT> {
public:
    BOOL CreateFontIndirect(const LOGFONTA* plf) { return Attach(CreateFontIndirectA(plf)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality,
                    BYTE nPitchAndFamily, const char* pszFacename);
    int GetLogFont(LOGFONTA* plf) const;
};
