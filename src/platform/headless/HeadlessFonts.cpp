#include "platform/headless/HeadlessFonts.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <tuple>

#include "platform/Messages.h"

namespace {

bool EqualNoCase(const char* a, const char* b) {
    for (; *a && *b; ++a, ++b)
        if (std::tolower(static_cast<unsigned char>(*a)) !=
            std::tolower(static_cast<unsigned char>(*b)))
            return false;
    return *a == *b;
}

using FontKey = std::tuple<std::string, int, int, int, int, int, int>;

FontKey KeyOf(const LOGFONTA& lf) {
    std::string face(lf.lfFaceName, strnlen(lf.lfFaceName, LF_FACESIZE));
    return {face,        lf.lfHeight,    lf.lfWidth,    lf.lfWeight,
            lf.lfItalic, lf.lfUnderline, lf.lfStrikeOut};
}

std::unique_ptr<FontMetrics> Compute(const LOGFONTA& lf) {
    auto fm = std::make_unique<FontMetrics>();
    int h = lf.lfHeight == 0 ? 16 : std::abs(lf.lfHeight);
    int w = lf.lfWidth > 0 ? lf.lfWidth : std::max(1, h / 2);
    bool proportional = CHeadlessFonts::IsProportionalFace(lf.lfFaceName);
    fm->widths.fill(w);
    if (proportional) {
        for (const char* p = CHeadlessFonts::kNarrowBytes; *p; ++p)
            fm->widths[static_cast<unsigned char>(*p)] = std::max(1, w / 2);
        for (const char* p = CHeadlessFonts::kWideBytes; *p; ++p)
            fm->widths[static_cast<unsigned char>(*p)] = w + w / 2;
    }
    TEXTMETRICA& tm = fm->tm;
    tm.tmHeight = h;
    tm.tmAscent = h - h / 4;
    tm.tmDescent = h / 4;
    tm.tmAveCharWidth = w;
    tm.tmMaxCharWidth = *std::max_element(fm->widths.begin(), fm->widths.end());
    tm.tmWeight = lf.lfWeight ? lf.lfWeight : FW_NORMAL;
    tm.tmOverhang = 0;
    tm.tmItalic = lf.lfItalic;
    tm.tmUnderlined = lf.lfUnderline;
    tm.tmStruckOut = lf.lfStrikeOut;
    // As on the desktop platform, the "fixed pitch" bit is set for variable pitch.
    tm.tmPitchAndFamily = proportional ? TMPF_FIXED_PITCH : 0;
    return fm;
}

}  // namespace

bool CHeadlessFonts::IsProportionalFace(const char* pszFace) {
    static const char* const faces[] = {kProportionalFace, "Arial",  "System",
                                        "MS Sans Serif",   "Tahoma", "Times New Roman"};
    if (!pszFace) return false;
    return std::any_of(std::begin(faces), std::end(faces),
                       [&](const char* f) { return EqualNoCase(f, pszFace); });
}

const FontMetrics& CHeadlessFonts::Get(const LOGFONTA& lf) {
    static std::mutex lock;
    static std::map<FontKey, std::unique_ptr<FontMetrics>> cache;
    std::lock_guard<std::mutex> guard(lock);
    auto& slot = cache[KeyOf(lf)];
    if (!slot) slot = Compute(lf);
    return *slot;
}

LOGFONTA CHeadlessFonts::MakeFont(const char* pszFace, int nHeight, int nWeight) {
    LOGFONTA lf;
    lf.lfHeight = nHeight;
    lf.lfWeight = nWeight;
    if (pszFace) std::strncpy(lf.lfFaceName, pszFace, LF_FACESIZE - 1);
    return lf;
}
