// The read-only zone's model: marks set by address, the conversion of
// addresses, the two derived fonts and what a run's word means.
#include "zones/TextZoneReadOnly.h"

#include <algorithm>

#include "platform/DC.h"
#include "platform/GdiObjects.h"
#include "platform/Platform.h"
#include "zones/TooltipBubble.h"

CTextZoneReadOnly::CTextZoneReadOnly() {
    // Bookmark 5 is the mark of a line with help text.
    SetBookmarkColor(0x00FF00, 5);
}

CTextZoneReadOnly::~CTextZoneReadOnly() {
    CloseBubble();
    if (m_hHilightFont) DeleteObject(m_hHilightFont);
    if (m_hLinkFont) DeleteObject(m_hLinkFont);
    if (m_hRefittedFont) DeleteObject(m_hRefittedFont);
}

CStringEx* CTextZoneReadOnly::CreateLine() {
    return NewLine<CStringExReadOnly>();
}

CStringExReadOnly* CTextZoneReadOnly::GetReadOnlyLine(int nLine) {
    return dynamic_cast<CStringExReadOnly*>(GetLine(nLine));
}

void CTextZoneReadOnly::SetFont(HFONT hFont) {
    CTextZone::SetFont(hFont);
    if (m_hRefittedFont && m_hRefittedFont != hFont) {
        DeleteObject(m_hRefittedFont);
        m_hRefittedFont = nullptr;
    }
    BuildHilighFont(1);
}

void CTextZoneReadOnly::BuildHilighFont(int bForce) {
    if (bForce) {
        if (m_hHilightFont) DeleteObject(m_hHilightFont);
        if (m_hLinkFont) DeleteObject(m_hLinkFont);
        m_hHilightFont = nullptr;
        m_hLinkFont = nullptr;
        m_nNormalHeight = -1;
    }
    if (m_hHilightFont || !m_hFont) return;
    HDC hDC = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    if (!hDC) return;
    LOGFONTA lf{};
    GetObjectA(m_hFont, sizeof lf, &lf);
    lf.lfWeight = 700;
    lf.lfUnderline = 1;
    m_hHilightFont = CreateFontIndirectA(&lf);
    hDC->SelectObject(m_hHilightFont);
    TEXTMETRICA tm;
    GetTextMetricsA(hDC, &tm);
    if (tm.tmHeight != m_nLineHeight) {
        // The bold face is taller: both fonts are made again at the line
        // height, so that marked text fits the rows.
        lf.lfHeight = m_nLineHeight - 1;
        DeleteObject(m_hHilightFont);
        m_hHilightFont = CreateFontIndirectA(&lf);
        LOGFONTA normal = lf;
        normal.lfWeight = 400;
        normal.lfUnderline = 0;
        HFONT hNormal = CreateFontIndirectA(&normal);
        // The refitted font is ours; the one the host gave stays the host's.
        if (m_hRefittedFont) DeleteObject(m_hRefittedFont);
        m_hRefittedFont = hNormal;
        m_hFont = hNormal;
        hDC->SelectObject(hNormal);
        GetTextMetricsA(hDC, &tm);
        m_nNormalHeight = tm.tmHeight + tm.tmUnderlined;
    }
    LOGFONTA link{};
    GetObjectA(m_hHilightFont, sizeof link, &link);
    link.lfWeight = 400;
    link.lfUnderline = 1;
    m_hLinkFont = CreateFontIndirectA(&link);
    hDC->SelectObject(m_hHilightFont);
    GetTextMetricsA(hDC, &tm);
    m_nHilightHeight = tm.tmHeight + tm.tmUnderlined;
    hDC->SelectObject(m_hLinkFont);
    GetTextMetricsA(hDC, &tm);
    m_nLinkHeight = tm.tmHeight + tm.tmUnderlined;
    DeleteDC(hDC);
}

COLORREF CTextZoneReadOnly::Pastel(COLORREF cr) {
    auto pale = [](unsigned c) -> unsigned {
        if (c < 64) return c + 144;
        if (c < 128) return c + 112;
        if (c < 192) return c + 56;
        // The top of this band would pass 255 and spill into the next
        // channel: it stops at white.
        if (c < 240) return std::min(c + 32, 255u);
        return c;
    };
    return RGB(pale(GetRValue(cr)), pale(GetGValue(cr)), pale(GetBValue(cr)));
}

int CTextZoneReadOnly::ColorConvert(HFONT* phFont, COLORREF* pcrText, COLORREF nRunWord,
                                    COLORREF* pcrBack, COLORREF crBackNow) {
    int nHeight;
    if (nRunWord & RUN_HILIGHT) {
        *phFont = m_hHilightFont;
        nHeight = m_nHilightHeight;
    } else if (nRunWord & RUN_LINK) {
        *phFont = m_hLinkFont;
        nHeight = m_nLinkHeight;
    } else {
        *phFont = m_hFont;
        nHeight = m_nNormalHeight < 1 ? m_nLineHeight : m_nNormalHeight;
    }
    const COLORREF cr = nRunWord & 0xFFFFFF;
    *pcrText = (nRunWord & RUN_PASTEL) ? Pastel(cr) : cr;
    *pcrBack = crBackNow;
    // No mark changes the background of selected text.
    if (crBackNow == m_crSelBack) return nHeight;
    if (nRunWord & RUN_BACK_YELLOW)
        *pcrBack = 0x80FFFF;
    else if (nRunWord & RUN_BACK_PINK)
        *pcrBack = 0xFFC0FF;
    return nHeight;
}

void CTextZoneReadOnly::BoundsConvert(int* pLine1, int* pLine2, int* pChar1, int* pChar2, long a,
                                      long b, int c, int d, short nMode) {
    const int last = GetLastLineIndex();
    if (nMode == 0) {
        *pLine1 = (a < 0 || a > last) ? last : static_cast<int>(a);
        *pChar1 = std::max(c, 0);
        if (b < 0 || b > last) {
            *pLine2 = GetLine(last) ? last + 1 : last;
            *pChar2 = 0;
        } else {
            *pLine2 = static_cast<int>(b);
            *pChar2 = std::max(d, 0);
        }
    } else {
        const long start = std::max(a, 0L);
        const long end = b < 0 ? 0x7fffffffL : b;
        *pLine1 = 0;
        *pChar1 = 0;
        bool bStartFound = false;
        bool bEndFound = false;
        if (!(start == 0x7fffffffL && end == 0x7fffffffL)) {
            long pos = 0;
            for (int n = 0; n <= last + 1 && !bEndFound; ++n) {
                CStringEx* pLine = GetLine(n);
                const long length = pLine ? pLine->GetLength() : 0;
                const long limit = pos + length - (pLine ? pLine->IsEnded() : 0);
                if (!bStartFound && start <= limit) {
                    *pLine1 = n;
                    *pChar1 = static_cast<int>(start - pos);
                    bStartFound = true;
                }
                if (bStartFound && end <= limit) {
                    *pLine2 = n;
                    *pChar2 = static_cast<int>(std::max(end - pos, 0L));
                    bEndFound = true;
                }
                pos += length;
            }
        }
        if (!bEndFound) {
            CStringEx* pLast = GetLine(last);
            if (pLast && pLast->IsEnded()) {
                *pLine2 = last + 1;
                *pChar2 = 0;
            } else {
                *pLine2 = last;
                *pChar2 = pLast ? pLast->GetLength() : 0;
            }
            if (!bStartFound) {
                *pLine1 = *pLine2;
                *pChar1 = *pChar2;
            }
        }
    }
    if (*pLine2 < *pLine1) *pLine2 = *pLine1;
    if (*pLine2 == *pLine1 && *pChar2 < *pChar1) *pChar2 = *pChar1;
}

template <typename Fn>
void CTextZoneReadOnly::ForEachMarkedLine(long a, long b, int c, int d, short nMode, Fn fn) {
    int line1 = 0, line2 = 0, char1 = 0, char2 = 0;
    BoundsConvert(&line1, &line2, &char1, &char2, a, b, c, d, nMode);
    const int kEnd = CStringExReadOnly::kThroughEnd;
    if (line1 == line2) {
        if (char1 < char2)
            if (CStringExReadOnly* pLine = GetReadOnlyLine(line1)) fn(pLine, char1, char2);
        return;
    }
    if (CStringExReadOnly* pLine = GetReadOnlyLine(line1)) fn(pLine, char1, kEnd);
    for (int n = line1 + 1; n < line2; ++n) {
        CStringExReadOnly* pLine = GetReadOnlyLine(n);
        if (!pLine) break;
        fn(pLine, 0, kEnd);
    }
    if (CStringExReadOnly* pLine = GetReadOnlyLine(line2)) fn(pLine, 0, char2);
}

void CTextZoneReadOnly::SetLineColor(int nLine, unsigned long crColor) {
    if (CStringExReadOnly* pLine = GetReadOnlyLine(nLine))
        pLine->m_crLineColor = static_cast<COLORREF>(crColor);
}

void CTextZoneReadOnly::SetHilighted(long a, long b, int c, int d, short nMode) {
    ForEachMarkedLine(a, b, c, d, nMode, [](CStringExReadOnly* pLine, int from, int to) {
        pLine->AddHilight(from, to);
    });
}

void CTextZoneReadOnly::SetHyperlink(long a, long b, int c, int d, short nMode, char const* pText,
                                     std::int64_t nId, unsigned long nData, unsigned int nKind) {
    ForEachMarkedLine(a, b, c, d, nMode, [&](CStringExReadOnly* pLine, int from, int to) {
        pLine->AddHyperlink(from, to, pText, nId, nData, nKind);
    });
}

void CTextZoneReadOnly::SetPastel(long a, long b, int c, int d, short nMode) {
    int line1 = 0, line2 = 0, char1 = 0, char2 = 0;
    BoundsConvert(&line1, &line2, &char1, &char2, a, b, c, d, nMode);
    auto has = [](CStringExReadOnly* p) { return p->m_nPastelStart || p->m_nPastelEnd; };
    if (line1 == line2) {
        CStringExReadOnly* pLine = GetReadOnlyLine(line1);
        if (!pLine || char1 >= char2) return;
        if (!has(pLine)) {
            pLine->m_nPastelStart = char1;
            pLine->m_nPastelEnd = char2;
        } else {
            pLine->m_nPastelStart = std::min(pLine->m_nPastelStart, char1);
            pLine->m_nPastelEnd = std::max(pLine->m_nPastelEnd, char2);
        }
        return;
    }
    if (CStringExReadOnly* pLine = GetReadOnlyLine(line1)) {
        pLine->m_nPastelStart = has(pLine) ? std::min(pLine->m_nPastelStart, char1) : char1;
        pLine->m_nPastelEnd = 0x7fffffff;
    }
    for (int n = line1 + 1; n < line2; ++n) {
        CStringExReadOnly* pLine = GetReadOnlyLine(n);
        if (!pLine) break;
        pLine->m_nPastelStart = 0;
        pLine->m_nPastelEnd = 0x7fffffff;
    }
    if (CStringExReadOnly* pLine = GetReadOnlyLine(line2)) {
        pLine->m_nPastelEnd = has(pLine) ? std::max(pLine->m_nPastelEnd, char2) : char2;
        pLine->m_nPastelStart = 0;
    }
}
