// The mouse: selecting, hit testing.
#include <algorithm>

#include "platform/DC.h"
#include "textzone/TextZone.h"

// Mouse selection is not handled yet.
void CTextZone::HandleLButtonDown(UINT, POINT*) {}
void CTextZone::HandleLButtonUp(UINT, POINT*) {}
void CTextZone::HandleLButtonDblClk(UINT, POINT*) {}
void CTextZone::HandleMouseMove(UINT, POINT*) {}

int CTextZone::GetCharIndexFromPoint(CStringEx* pLine, POINT* pt) {
    if (!pLine || !pt) return 0;
    int d = pt->x - m_rcText.left + GetHScrollOffset();
    if (d <= 0) return 0;
    CDC* pDC = GetStandardDC();
    // A free caret may stand anywhere: measure against a line padded far out.
    CStringEx padded;
    const CStringEx* line = pLine;
    if (m_dwStyle & ZS_FREECARET) {
        padded = *pLine;
        padded.EnsureMinimumLength(TZ_MAX_LINE_LENGTH);
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
