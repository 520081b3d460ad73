#include "platform/Palette.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr PALETTEENTRY kDefaultPalette[kDefaultPaletteSize] = {
    {0, 0, 0, 0},       {128, 0, 0, 0},     {0, 128, 0, 0},     {128, 128, 0, 0},
    {0, 0, 128, 0},     {128, 0, 128, 0},   {0, 128, 128, 0},   {192, 192, 192, 0},
    {192, 220, 192, 0}, {166, 202, 240, 0}, {255, 251, 240, 0}, {160, 160, 164, 0},
    {128, 128, 128, 0}, {255, 0, 0, 0},     {0, 255, 0, 0},     {255, 255, 0, 0},
    {0, 0, 255, 0},     {255, 0, 255, 0},   {0, 255, 255, 0},   {255, 255, 255, 0}};

}  // namespace

UINT GetDefaultPaletteSize() {
    return kDefaultPaletteSize;
}

UINT GetPaletteEntries(UINT nStart, UINT nEntries, PALETTEENTRY* pEntries) {
    if (!pEntries || nStart >= kDefaultPaletteSize) return 0;
    const UINT n = std::min(nEntries, kDefaultPaletteSize - nStart);
    for (UINT i = 0; i < n; ++i)
        pEntries[i] = kDefaultPalette[nStart + i];
    return n;
}

UINT GetNearestPaletteIndex(COLORREF cr) {
    const int rgb[3] = {GetRValue(cr), GetGValue(cr), GetBValue(cr)};
    UINT nBest = 0;
    int nBestMax = 1 << 30, nBestSquares = 1 << 30;
    for (UINT i = 0; i < kDefaultPaletteSize; ++i) {
        const PALETTEENTRY& e = kDefaultPalette[i];
        const int d[3] = {std::abs(rgb[0] - e.peRed), std::abs(rgb[1] - e.peGreen),
                          std::abs(rgb[2] - e.peBlue)};
        const int nMax = std::max({d[0], d[1], d[2]});
        const int nSquares = d[0] * d[0] + d[1] * d[1] + d[2] * d[2];
        if (nMax < nBestMax || (nMax == nBestMax && nSquares < nBestSquares)) {
            nBest = i;
            nBestMax = nMax;
            nBestSquares = nSquares;
        }
    }
    return nBest;
}
