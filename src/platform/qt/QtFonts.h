// Real fonts for font descriptions. A LOGFONTA becomes a QFont (family,
// pixel height, width as a stretch, weight, italic, underline, strike-out,
// kerning off) and a QRawFont, and its metrics are read once: every byte
// gets an integer advance, so widths are additive and text is drawn glyph
// by glyph at those same advances. Fixed-pitch requests and the desktop's
// fixed faces map to "DejaVu Sans Mono", its usual proportional faces to
// "DejaVu Sans".
#pragma once

#include <QFont>
#include <QRawFont>
#include <array>
#include <map>
#include <memory>
#include <string>

#include "TextzoneQtExport.h"
#include "platform/FontMetrics.h"
#include "platform/Types.h"

class TEXTZONE_QT_EXPORT CQtFonts {
public:
    static constexpr const char* kFixedFamily = "DejaVu Sans Mono";
    static constexpr const char* kSansFamily = "DejaVu Sans";
    static constexpr const char* kSerifFamily = "DejaVu Serif";
    static constexpr int kDefaultHeight = 16;  // lfHeight 0: the cell height

    struct Font {
        QFont font;
        QRawFont raw;
        FontMetrics metrics;
        std::array<quint32, 256> glyphs{};  // glyph of each byte, 0 when missing
    };

    // The font of a description; the reference stays valid as long as this
    // object lives.
    const Font& Get(const LOGFONTA& lf);

    static QFont MakeQFont(const LOGFONTA& lf);

private:
    static std::string KeyOf(const LOGFONTA& lf);
    static void Measure(Font& f, const LOGFONTA& lf);

    std::map<std::string, std::unique_ptr<Font>> m_fonts;
};
