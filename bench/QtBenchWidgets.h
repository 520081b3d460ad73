// What the benchmarks on the Qt backend share: the widget size and font that
// the engine and its peers all get, and the timing around Qt's event loop.
#pragma once

#include <QCoreApplication>
#include <QFont>

#include "Seconds.h"

namespace bench {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr int kFontPixels = 15;

inline QFont EditorFont() {
    QFont font("DejaVu Sans Mono");
    font.setPixelSize(kFontPixels);
    font.setStyleHint(QFont::Monospace);
    return font;
}

// Lets Qt deliver what the last step posted (updates, timers), outside the
// measured time, so that no step pays for the one before.
inline void Settle() {
    QCoreApplication::processEvents();
}

}  // namespace bench
