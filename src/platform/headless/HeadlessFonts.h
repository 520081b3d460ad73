// Deterministic font metrics for tests, so geometry can be checked in exact
// pixels. Let h be |lfHeight|, or 16 when lfHeight is 0, and w be lfWidth
// when positive, otherwise h / 2 (at least 1).
//
// - Fixed faces (every face but the proportional ones below): every byte is
//   w wide.
// - Proportional faces ("Proportional", "Arial", "System", "MS Sans Serif",
//   "Tahoma", "Times New Roman", case ignored): the bytes of "iljI.,:;'!|"
//   are w / 2 wide (at least 1), those of "mwMW@" are w + w / 2, all others w.
//
// tmHeight is h, tmAscent h - h / 4, tmDescent h / 4, tmAveCharWidth w,
// tmMaxCharWidth the widest byte, tmOverhang 0; weight, italic, underline
// and strike-out come from the description.
#pragma once

#include "platform/FontMetrics.h"
#include "platform/Types.h"

class CHeadlessFonts {
public:
    static constexpr const char* kFixedFace = "Courier New";
    static constexpr const char* kProportionalFace = "Proportional";
    static constexpr const char* kNarrowBytes = "iljI.,:;'!|";
    static constexpr const char* kWideBytes = "mwMW@";

    static bool IsProportionalFace(const char* pszFace);
    // Metrics of a description; the reference stays valid for the process.
    static const FontMetrics& Get(const LOGFONTA& lf);
    // A description of the face at the given height, for tests.
    static LOGFONTA MakeFont(const char* pszFace, int nHeight, int nWeight = 400);
};
