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
    const int r = GetRValue(cr), g = GetGValue(cr), b = GetBValue(cr);
    const int nChroma = std::max({r, g, b}) - std::min({r, g, b});
    UINT nBest = 0;
    long nBestDistance = -1;
    for (UINT i = 0; i < kDefaultPaletteSize; ++i) {
        const PALETTEENTRY& e = kDefaultPalette[i];
        const int dr = r - e.peRed, dg = g - e.peGreen, db = b - e.peBlue;
        const int dc = nChroma - (std::max({e.peRed, e.peGreen, e.peBlue}) -
                                  std::min({e.peRed, e.peGreen, e.peBlue}));
        const long nDistance = static_cast<long>(dr) * dr + dg * dg + db * db + dc * dc;
        if (nBestDistance < 0 || nDistance < nBestDistance) {
            nBest = i;
            nBestDistance = nDistance;
        }
    }
    return nBest;
}
