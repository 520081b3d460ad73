// System colours and metrics on Qt: colours from the application palette,
// sizes from the screen and the style, so that what the engine paints
// matches the widgets around it.
#pragma once

#include "platform/Types.h"

class CQtSystemInfo {
public:
    static COLORREF GetSysColor(int nIndex);
    static int GetSystemMetrics(int nIndex);
    // The thickness of a scroll bar, as the style draws it.
    static int ScrollBarExtent();
};
