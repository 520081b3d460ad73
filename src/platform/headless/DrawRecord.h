// One thing a headless drawing context was asked to draw, as tests read it.
#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"

class CImageList;

struct DrawRecord {
    enum Kind { Text, Fill, RoundRect, Image, FocusRect, Scroll };
    Kind kind = Fill;
    RECT rc;         // what it covers: the text's cell, the filled area, the shape,
                     // the image, or for a scroll the pixels moved (before moving)
    RECT rcClipBox;  // the context's clip box at the time
    // Text: the bytes (no tabs: tabbed output arrives as runs), in which font,
    // text colour and background.
    std::string text;
    LOGFONTA font;
    COLORREF crText = 0;
    COLORREF crBk = 0;
    int nBkMode = 0;
    // Fill: the colour. RoundRect: brush and pen (absent when null), corners.
    COLORREF crFill = 0;
    bool bHasBrush = false;
    bool bHasPen = false;
    COLORREF crPen = 0;
    int nEllipseW = 0;
    int nEllipseH = 0;
    // Image: which one of which list.
    const CImageList* pImageList = nullptr;
    int nImage = -1;
    // Scroll: by how much.
    int dx = 0;
    int dy = 0;
};

using DisplayList = std::vector<DrawRecord>;
