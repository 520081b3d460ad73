// Painting a coloured zone in its headless window and reading back what went
// out: the text records of a row with their colours, and the invalidated
// rows since the last look.
#pragma once

#include <string>

#include "ColourZone.h"
#include "platform/DC.h"

class ColourPaintTest : public ColourTest {
protected:
    static constexpr COLORREF kSelText = 0xFFFFFF;
    static constexpr COLORREF kSelBack = 0x800000;
    static constexpr int kRow = 16;  // pixels a line

    // Invalidates the whole window and paints it, which also caches the
    // start states of every line on the screen.
    void Paint();
    // The text of a row as drawn: "text:Class" per record joined by " ",
    // a selected record as "[text]". Records on the zone's own background in
    // the text colour read as "text:Text"; on another background the colour
    // is followed by "/#RRGGBB" of the background.
    std::string Row(int nLine);
    // Fills in the selection back colour on a row that are not the cells of
    // opaque text: "left-right" per fill joined by " ".
    std::string SelectionFills(int nLine);
    // The rows the invalidations since the last call cover, "first-last"
    // ("" for none), and forgets them. The window is 300 pixels high, so
    // "from a line to the end" reads "n-18".
    std::string InvalidRows();
};
