// Hit testing: which line and which byte lie under a point of the window.
#include <algorithm>

#include "platform/DC.h"
#include "textzone/TextZone.h"

int CTextZone::GetCharIndexFromPoint(CStringEx* pLine, POINT* pt) {
    if (!pLine || !pt) return 0;
    const long long dWide = static_cast<long long>(pt->x) - m_rcText.left + GetHScrollOffset();
    if (dWide <= 0) return 0;
    // No line reaches this far (65536 bytes of the widest font); beyond it
    // every point is behind the text.
    int d = static_cast<int>(std::min<long long>(dWide, 1 << 28));
    CDC* pDC = GetStandardDC();
    // A free caret may stand anywhere: measure against a line padded far out.
    CStringEx padded;
    const CStringEx* line = pLine;
    if (m_dwStyle & ZS_FREECARET) {
        padded = *pLine;
        // The terminator would be measured in the middle of the padding.
        if (padded.IsEnded()) padded.discardRight(1);
        // Padded as far as the point needs (a byte past it), not always to
        // the limit: measuring 65500 bytes on every hit test is slow.
        const int textWidth = GetTextWidth(pDC, padded.c_str(), padded.GetLength());
        const int space = std::max(1, GetTextWidth(pDC, " ", 1) - GetTextWidth(pDC, "", 0));
        const long long reach =
            padded.GetLength() + std::max(0LL, static_cast<long long>(d) - textWidth) / space + 2;
        padded.EnsureMinimumLength(
            static_cast<int>(std::min<long long>(reach, TZ_MAX_LINE_LENGTH)));
        line = &padded;
    }
    const char* text = line->c_str();
    int n = line->GetLength() - line->IsEnded();
    int low = 0, high = n, index = -1;
    while (high - low > 1) {
        int mid = (low + high) / 2;
        int w = GetTextWidth(pDC, text, mid);
        if (w == d) {
            index = mid;
            break;
        }
        if (w < d)
            low = mid;
        else
            high = mid;
    }
    if (index < 0) {
        if (high - low == 1) {
            // The nearer boundary wins; a tie goes to the right one.
            int wl = GetTextWidth(pDC, text, low);
            int wh = GetTextWidth(pDC, text, high);
            index = (d - wl < wh - d) ? low : high;
        } else {
            index = low;
        }
    }
    ReleaseStandardDC(pDC);
    index = std::min(index, std::max(n, TZ_MAX_LINE_LENGTH));
    // Never inside a multi-byte sequence.
    while (index > 0 && index < pLine->GetLength() &&
           (static_cast<unsigned char>((*pLine)[index]) & 0xC0) == 0x80)
        --index;
    return index;
}

int CTextZone::GetLineUnderPoint(POINT* pt) {
    // Below the text the line is the place behind it, and no further.
    int line = std::min(GetLineFromPoint(pt), GetLineCount());
    while (line > 0 && !GetLine(line - 1))
        --line;
    return line;
}

int CTextZone::GetBoxIndexFromPoint(int nLine, POINT* pt) {
    CStringEx copy;
    if (CStringEx* pLine = GetLine(nLine)) GetSpaceEquivalentLine(&copy, pLine);
    if (copy.IsEnded()) copy.discardRight(1);
    copy.EnsureMinimumLength(TZ_MAX_LINE_LENGTH);
    return GetCharIndexFromPoint(&copy, pt);
}
