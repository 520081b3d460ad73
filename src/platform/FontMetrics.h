// What a backend knows about a font: its text metrics and the advance of
// every byte. Text widths are sums of these integer advances (no kerning),
// so prefix widths, hit tests and pieces measured apart add up exactly.
#pragma once

#include <array>

#include "platform/Types.h"

struct FontMetrics {
    TEXTMETRICA tm;
    std::array<int, 256> widths{};

    int Width(const char* p, int n) const {
        int w = 0;
        for (int i = 0; i < n; ++i)
            w += widths[static_cast<unsigned char>(p[i])];
        return w;
    }
};
