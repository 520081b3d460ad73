#include "platform/qt/QtFonts.h"

#include <QFontMetrics>
#include <QVector>
#include <algorithm>
#include <cstring>

#include "platform/Messages.h"
#include "platform/qt/Windows1252.h"

namespace {

bool FaceIs(const char* face, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (QString::fromLatin1(face).compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

QString FamilyOf(const LOGFONTA& lf) {
    char face[LF_FACESIZE + 1] = {};
    std::memcpy(face, lf.lfFaceName, LF_FACESIZE);
    if ((lf.lfPitchAndFamily & 0x03) == FIXED_PITCH ||
        FaceIs(face, {"Courier New", "Courier", "Fixedsys", "Terminal", "Consolas",
                      "Lucida Console", "Monospace"}))
        return QString::fromLatin1(CQtFonts::kFixedFamily);
    if (FaceIs(face, {"Times New Roman", "Times", "Serif"}))
        return QString::fromLatin1(CQtFonts::kSerifFamily);
    if (face[0] == 0 ||
        FaceIs(face, {"System", "Arial", "MS Sans Serif", "MS Shell Dlg", "MS Shell Dlg 2",
                      "Tahoma", "Segoe UI", "Verdana", "Helvetica", "Sans"}))
        return QString::fromLatin1(CQtFonts::kSansFamily);
    return QString::fromLatin1(face);
}

}  // namespace

QFont CQtFonts::MakeQFont(const LOGFONTA& lf) {
    QFont font(FamilyOf(lf));
    if ((lf.lfPitchAndFamily & 0x03) == FIXED_PITCH) font.setStyleHint(QFont::Monospace);
    font.setKerning(false);
    font.setWeight(static_cast<QFont::Weight>(
        std::clamp(lf.lfWeight == 0 ? FW_NORMAL : static_cast<int>(lf.lfWeight), 1, 1000)));
    font.setItalic(lf.lfItalic != 0);
    font.setUnderline(lf.lfUnderline != 0);
    font.setStrikeOut(lf.lfStrikeOut != 0);
    if (lf.lfQuality == NONANTIALIASED_QUALITY) font.setStyleStrategy(QFont::NoAntialias);
    // A negative height is the character height, a positive one the cell
    // height (ascent plus descent), which is scaled to the same em.
    int px = lf.lfHeight < 0 ? -lf.lfHeight : lf.lfHeight > 0 ? lf.lfHeight : kDefaultHeight;
    font.setPixelSize(std::max(px, 1));
    if (lf.lfHeight >= 0) {
        QFontMetrics fm(font);
        int cell = fm.ascent() + fm.descent();
        if (cell > px) font.setPixelSize(std::max(1, px * px / cell));
    }
    // A width asks for that average character width: stretch to it.
    if (lf.lfWidth > 0) {
        int natural = std::max(1, QFontMetrics(font).averageCharWidth());
        font.setStretch(std::clamp(static_cast<int>(lf.lfWidth) * 100 / natural, 1, 4000));
    }
    return font;
}

std::string CQtFonts::KeyOf(const LOGFONTA& lf) {
    LOGFONTA key = lf;
    // Only the face up to its terminator counts.
    size_t len = strnlen(key.lfFaceName, LF_FACESIZE);
    std::memset(key.lfFaceName + len, 0, LF_FACESIZE - len);
    return std::string(reinterpret_cast<const char*>(&key), sizeof(key));
}

const CQtFonts::Font& CQtFonts::Get(const LOGFONTA& lf) {
    std::string key = KeyOf(lf);
    auto it = m_fonts.find(key);
    if (it != m_fonts.end()) return *it->second;
    auto f = std::make_unique<Font>();
    f->font = MakeQFont(lf);
    f->raw = QRawFont::fromFont(f->font);
    Measure(*f, lf);
    return *m_fonts.emplace(key, std::move(f)).first->second;
}

void CQtFonts::Measure(Font& f, const LOGFONTA& lf) {
    char all[256];
    for (int i = 0; i < 256; ++i)
        all[i] = static_cast<char>(i);
    QString chars = CWindows1252::ToQString(all, 256);
    QVector<quint32> glyphs = f.raw.glyphIndexesForString(chars);
    QFontMetricsF fmf(f.font);
    for (int i = 0; i < 256 && i < glyphs.size(); ++i) {
        f.glyphs[static_cast<size_t>(i)] = glyphs[i];
        // A character the face lacks is drawn from a fallback face, and
        // measured there too.
        qreal advance =
            glyphs[i] != 0 || i < 0x20
                ? f.raw.advancesForGlyphIndexes(QVector<quint32>{glyphs[i]}).value(0).x()
                : fmf.horizontalAdvance(chars[i]);
        f.metrics.widths[static_cast<size_t>(i)] = qRound(advance);
    }

    QFontMetrics fm(f.font);
    TEXTMETRICA& tm = f.metrics.tm;
    tm.tmAscent = fm.ascent();
    // Some faces draw the underscore below their descent at some sizes; the
    // cell must hold every ASCII glyph, or the next line's fill cuts it off.
    int descent = fm.descent();
    for (char16_t ch = 0x21; ch < 0x7F; ++ch)
        descent = std::max(descent, fm.boundingRect(QChar(ch)).bottom() + 1);
    tm.tmDescent = descent;
    tm.tmHeight = tm.tmAscent + tm.tmDescent;
    tm.tmInternalLeading = std::max(0, tm.tmHeight - f.font.pixelSize());
    tm.tmExternalLeading = std::max(0, fm.leading());
    const auto& w = f.metrics.widths;
    bool fixed =
        std::all_of(w.begin() + 0x20, w.begin() + 0x7F, [&](int x) { return x == w[' ']; });
    tm.tmAveCharWidth = fixed ? w['x'] : std::max(1, fm.averageCharWidth());
    tm.tmMaxCharWidth = *std::max_element(w.begin() + 0x20, w.end());
    tm.tmWeight = f.font.weight();
    tm.tmOverhang = 0;
    tm.tmItalic = lf.lfItalic ? 1 : 0;
    tm.tmUnderlined = lf.lfUnderline ? 1 : 0;
    tm.tmStruckOut = lf.lfStrikeOut ? 1 : 0;
    // The desktop's inverted rule: the bit set means variable pitch.
    tm.tmPitchAndFamily = static_cast<BYTE>((fixed ? 0 : TMPF_FIXED_PITCH) | TMPF_TRUETYPE |
                                            (lf.lfPitchAndFamily & 0xF0));
    tm.tmCharSet = ANSI_CHARSET;
    tm.tmFirstChar = 0x20;
    tm.tmLastChar = 0xFF;
    tm.tmDefaultChar = '?';
    tm.tmBreakChar = ' ';
}
