// Measuring: widths of text under the zone's tab step, tab expansion into
// columns, and the widest line.
#include <algorithm>
#include <cstdlib>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

namespace {

// The platform measures at most this many bytes per call.
constexpr int kMeasureChunk = 1024;

// A copy of pLine whose first nCount bytes can be measured: the terminator
// goes and spaces stand in for whatever lies beyond the text.
CStringEx PaddedCopy(const CStringEx& line, int nCount) {
    CStringEx copy(line);
    if (copy.IsEnded()) copy.discardRight(1);
    copy.EnsureMinimumLength(nCount);
    return copy;
}

}  // namespace

CDC* CTextZone::GetStandardDC() {
    if (!m_pWnd) return nullptr;
    CDC* pDC = m_pWnd->GetDC();
    if (pDC && m_hFont) pDC->SelectObject(m_hFont);
    return pDC;
}

void CTextZone::ReleaseStandardDC(CDC* pDC) {
    if (!pDC) return;
    pDC->SelectStockObject(SYSTEM_FONT);
    if (m_pWnd) m_pWnd->ReleaseDC(pDC);
}

int CTextZone::GetTextWidth(CDC* pDC, const char* pszText, int nCount) {
    int nMargin = GetMarginWidth();
    if (!pDC || !pszText || nCount < 1) return nMargin;

    int nStep = 20;
    if (m_nTabWidth > 0)
        nStep = m_nTabWidth;
    else if (m_nTabWidth < 0 && m_nCharWidth > 0)
        nStep = m_nTabWidth * -m_nCharWidth;

    // The platform only knows tab stops counted from the start of what it
    // measures, so whole chunks are measured only from a tab stop; between
    // stops the bytes are taken one at a time.
    int w = 0;
    int i = 0;
    while (i < nCount) {
        while (i < nCount && w % nStep != 0) {
            char c = pszText[i++];
            if (c == '\t') {
                w += nStep - w % nStep;
            } else {
                DWORD ext = GetTabbedTextExtentA(pDC, &c, 1, 1, &nStep);
                w += static_cast<short>(LOWORD(ext)) - m_nOverhang;
            }
        }
        if (i < nCount) {
            int n = std::min(kMeasureChunk, nCount - i);
            DWORD ext = GetTabbedTextExtentA(pDC, pszText + i, n, 1, &nStep);
            w += static_cast<short>(LOWORD(ext));
            if (w > 0 && pszText[i + n - 1] != '\t') w -= m_nOverhang;
            i += n;
        }
    }
    return nMargin + w;
}

void CTextZone::GetSpaceEquivalentLine(CStringEx* pTarget, const CStringEx* pSource) {
    if (!pTarget || !pSource) return;
    const int nStep = std::abs(m_nTabWidth);
    const int nLength = pSource->GetLength();
    const char* src = pSource->c_str();
    pTarget->EnsureMinimumLength(nLength + 50);

    int p = 0;
    auto put = [&](char c) {
        if (p >= pTarget->GetLength()) pTarget->EnsureMinimumLength(p + 20);
        pTarget->replaceAt(p++, c);
    };
    for (int k = 0; k < nLength; ++k) {
        if (src[k] == '\t') {
            put(' ');
            while (nStep > 0 && p % nStep != 0)
                put(' ');
        } else {
            put(src[k]);
        }
    }
    if (p == 0)
        pTarget->Empty();
    else
        pTarget->keepLeft(p);
}

int CTextZone::ComputeBlockUnit(int nLine, int nChar) {
    CStringEx* pLine = GetLine(nLine);
    if (!pLine) return nChar;
    CDC* pDC = GetStandardDC();
    int w = nChar <= pLine->GetLength() - pLine->IsEnded()
                ? GetTextWidth(pDC, pLine->c_str(), nChar)
                : GetTextWidth(pDC, PaddedCopy(*pLine, nChar).c_str(), nChar);
    ReleaseStandardDC(pDC);
    POINT pt;
    pt.x = w + m_rcText.left - GetHScrollOffset();
    CStringEx copy;
    GetSpaceEquivalentLine(&copy, pLine);
    return GetCharIndexFromPoint(&copy, &pt);
}

int CTextZone::ComputeCharIndex(int nLine, int nColumn) {
    CStringEx* pLine = GetLine(nLine);
    if (!pLine) return 0;
    CStringEx copy;
    GetSpaceEquivalentLine(&copy, pLine);
    CDC* pDC = GetStandardDC();
    int w = GetTextWidth(pDC, PaddedCopy(copy, nColumn).c_str(), nColumn);
    ReleaseStandardDC(pDC);
    POINT pt;
    pt.x = w + m_rcText.left - GetHScrollOffset();
    return GetCharIndexFromPoint(pLine, &pt);
}

int CTextZone::GetMaxLineWidth(int nFirst, int nLast) {
    if (nFirst < 1) nFirst = 0;
    // The longest line (most bytes, the first of equals) of the lines from
    // nFirst on, up to nLast or the first missing one. The store keeps every
    // line's length, so this is found without visiting the lines; the first
    // lookup is the walk's own, which a stale cache may answer with null.
    if (nLast < nFirst || !GetLine(nFirst)) return 0;
    const int nLongest = FindLongestLine(nFirst, std::min(nLast, m_nLineCount - 1));
    CStringEx* pLongest = nLongest >= 0 ? GetLine(nLongest) : nullptr;
    if (!pLongest) return 0;
    CDC* pDC = GetStandardDC();
    int w = GetTextWidth(pDC, pLongest->c_str(), pLongest->GetLength() - pLongest->IsEnded());
    ReleaseStandardDC(pDC);
    return w;
}

int CTextZone::GetCurrentLineWidth() {
    CStringEx* pFirst = GetLine(m_nSelStartLine);
    CStringEx* pLast = GetLine(m_nSelEndLine);
    CStringEx* pLongest = pFirst;
    if (!pLongest || (pLast && pLast->GetLength() > pLongest->GetLength())) pLongest = pLast;
    if (!pLongest) return 0;
    CDC* pDC = GetStandardDC();
    int w = GetTextWidth(pDC, pLongest->c_str(), pLongest->GetLength() - pLongest->IsEnded());
    ReleaseStandardDC(pDC);
    return w;
}
