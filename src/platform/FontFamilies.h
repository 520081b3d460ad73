// Enumerating the font families of the system, as EnumFontFamiliesA does:
// one call of the callback per family, with a description whose
// lfPitchAndFamily has FIXED_PITCH for a fixed-pitch face and a font type
// with TRUETYPE_FONTTYPE for a scalable outline face. A backend installs
// its source; without one the families are the headless backend's faces.
#pragma once

#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

struct FontFamilyInfo {
    std::string strFace;
    bool bFixedPitch;
    bool bTrueType;
};

class TEXTZONE_EXPORT IFontFamilySource {
public:
    virtual ~IFontFamilySource() = default;
    virtual std::vector<FontFamilyInfo> GetFontFamilies() = 0;
};

// Not owned; null goes back to the built-in list. Returns the one replaced.
TEXTZONE_EXPORT IFontFamilySource* SetFontFamilySource(IFontFamilySource* pSource);
// The built-in list.
TEXTZONE_EXPORT std::vector<FontFamilyInfo> GetBuiltInFontFamilies();

struct TEXTMETRICA;
using FONTENUMPROCA = int (*)(const LOGFONTA* plf, const TEXTMETRICA* ptm, DWORD dwFontType,
                              LPARAM lParam);
// pszFamily null: every family. Returns the last value of the callback;
// a 0 from it ends the enumeration.
TEXTZONE_EXPORT int EnumFontFamiliesA(HDC hDC, const char* pszFamily, FONTENUMPROCA pfn,
                                      LPARAM lParam);
