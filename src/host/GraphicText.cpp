#include "host/GraphicText.h"

#include <algorithm>

#include "platform/DC.h"

void GraphicText::operator()(HDC hdc, int x, int y, const char* text, int count, int nTabPositions,
                             const int* pTabStops, int nTabOrigin) const {
    if (!hdc || !text) return;
    int pos = x;
    for (int done = 0; done < count;) {
        int n = std::min(kPieceLength, count - done);
        CSize extent =
            hdc->TabbedTextOut(pos, y, text + done, n, nTabPositions, pTabStops, nTabOrigin);
        pos += extent.cx;
        done += n;
    }
}

void GraphicText::operator()(HDC hdc, int x, int y, const VESK::String& text) const {
    (*this)(hdc, x, y, text.c_str(), text.GetLength(), 0, nullptr, x);
}

void GraphicText::operator()(HDC hdc, int x, int y, const VESK::String& text, int nTabPositions,
                             const int* pTabStops, int nTabOrigin) const {
    (*this)(hdc, x, y, text.c_str(), text.GetLength(), nTabPositions, pTabStops, nTabOrigin);
}
