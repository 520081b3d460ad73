// Tabbed text output on a drawing context, in the context's current font,
// colours and background mode. Tabs expand against the stops counted from
// the tab origin. Text goes out in pieces of at most 1024 bytes, each placed
// where the one before it ended, so a long line shows without a gap.
#pragma once

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "platform/Types.h"

class TEXTZONE_EXPORT GraphicText {
public:
    static constexpr int kPieceLength = 1024;

    void operator()(HDC hdc, int x, int y, const char* text, int count, int nTabPositions,
                    const int* pTabStops, int nTabOrigin) const;
    void operator()(HDC hdc, int x, int y, const VESK::String& text) const;
    void operator()(HDC hdc, int x, int y, const VESK::String& text, int nTabPositions,
                    const int* pTabStops, int nTabOrigin) const;
};
