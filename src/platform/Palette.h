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
// The entry nearest to the colour: the least sum of squared channel
// differences plus the squared difference of their chroma (largest less
// smallest channel), ties to the lower index. The chroma term keeps a grey
// grey: the default margin colour 0xD0D0D0 finds silver, not the pale
// green entry that is nearer channel by channel.
UINT GetNearestPaletteIndex(COLORREF cr);
