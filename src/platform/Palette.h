// The system's default palette (the stock DEFAULT_PALETTE): the twenty
// colours every display of the desktop platform had, as a fixed table, so
// that colour pickers behave the same on every backend.
#pragma once

#include "platform/OwnerDraw.h"
#include "platform/Types.h"

constexpr UINT kDefaultPaletteSize = 20;

// The number of entries of the default palette.
UINT GetDefaultPaletteSize();
// Copies up to nEntries from nStart; returns the number copied (0 past the end).
UINT GetPaletteEntries(UINT nStart, UINT nEntries, PALETTEENTRY* pEntries);
// The entry nearest to the colour: the one whose largest channel difference
// is least, ties going to the smaller sum of squared differences, then to
// the lower index. So a light grey finds a grey rather than a tinted entry
// that is nearer on two channels.
UINT GetNearestPaletteIndex(COLORREF cr);
