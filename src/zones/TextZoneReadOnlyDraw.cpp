// How the marks of a read-only line reach the screen: merged into the colour
// runs as marks of the run word, then drawn run by run in the font, colours
// and background each word asks for.
#include <algorithm>
#include <cstdlib>

#include "platform/Brush.h"
#include "platform/DC.h"
#include "zones/TextZoneReadOnly.h"

namespace {

constexpr COLORREF kLinkMarks = RUN_LINK | RUN_BACK_YELLOW | RUN_BACK_PINK;

COLORREF LinkMarks(unsigned int nKind) {
    switch (nKind) {
        case 1:
            return RUN_LINK | RUN_BACK_YELLOW;
        case 2:
            return RUN_LINK | RUN_BACK_PINK;
        case 3:
            return RUN_BACK_YELLOW;
        case 4:
            return RUN_BACK_PINK;
        default:
            return RUN_LINK;
    }
}

}  // namespace

CColorDef* CTextZoneReadOnly::InsertRun(size_t nAt, int nPos, COLORREF crWord) {
    auto it = m_colorDefs.insert(m_colorDefs.begin() + static_cast<std::ptrdiff_t>(nAt),
                                 NewColorDef(nPos, crWord));
    return it->get();
}

void CTextZoneReadOnly::MergeRange(int lo, int hi, COLORREF mark, int nTextEnd, bool bLink,
                                   bool bPastel) {
    auto& runs = m_colorDefs;
    // What a run inserted here copies from its neighbour.
    auto copied = [&](COLORREF word) { return bLink ? (word & ~kLinkMarks) : word; };
    bool bStart = false;
    bool bEnd = false;
    for (size_t i = 0; i < runs.size() && !(bStart && bEnd); ++i) {
        const int pos = runs[i]->nPos;
        if (pos == lo) {
            runs[i]->crColor |= mark;
            bStart = true;
        } else if (pos > lo && pos < hi) {
            runs[i]->crColor |= mark;
        } else if (pos == hi) {
            runs[i]->crColor &= ~mark;
            bEnd = true;
        }
    }
    if (!bStart || !bEnd) {
        for (size_t i = 0; i < runs.size(); ++i) {
            const int pos = runs[i]->nPos;
            const COLORREF previous = i > 0 ? runs[i - 1]->crColor : m_crText;
            if (!bStart && pos > lo) {
                InsertRun(i, lo, copied(previous) | mark);
                bStart = true;
                continue;
            }
            if (!bEnd && pos > hi) {
                InsertRun(i, hi, copied(previous) & ~mark);
                bEnd = true;
                break;
            }
        }
    }
    if (!bStart && (lo < nTextEnd || (bPastel && lo == nTextEnd))) {
        if (runs.empty() && lo >= 1) InsertRun(0, 0, m_crText);
        const COLORREF last = runs.empty() ? m_crText : copied(runs.back()->crColor);
        InsertRun(runs.size(), lo, last | mark);
    }
    if (!bEnd && hi < nTextEnd && !(bPastel && hi == 0x7fffffff)) {
        const COLORREF last = runs.empty() ? m_crText : copied(runs.back()->crColor) & ~mark;
        InsertRun(runs.size(), hi, last);
    }
}

void CTextZoneReadOnly::DefineColors(int nLine, CStringEx* pText) {
    BuildHilighFont(0);
    CTextZoneColor::DefineColors(nLine, pText);
    CStringExReadOnly* pLine = GetReadOnlyLine(nLine);
    if (!pLine) return;
    const int nTextEnd = pText ? pText->GetLength() - pText->IsEnded() : 0;
    using L = CStringExReadOnly;
    if (!pLine->m_hilights.empty() && !pLine->m_crLineColor) {
        for (std::uint32_t range : pLine->m_hilights)
            MergeRange(L::Start(range), L::End(range), RUN_HILIGHT, nTextEnd, false, false);
    }
    for (size_t i = 0; i < pLine->m_linkBounds.size(); ++i) {
        const std::uint32_t range = pLine->m_linkBounds[i];
        MergeRange(L::Start(range), L::End(range), LinkMarks(pLine->m_linkKinds[i]), nTextEnd, true,
                   false);
    }
    if ((pLine->m_nPastelStart || pLine->m_nPastelEnd) && !pLine->m_crLineColor)
        MergeRange(pLine->m_nPastelStart, pLine->m_nPastelEnd, RUN_PASTEL, nTextEnd, false, true);
}

void CTextZoneReadOnly::DrawTextLine(CDC* pDC, int nLine) {
    struct FreeRuns {
        CTextZoneColor* pZone;
        ~FreeRuns() { pZone->FreeColorDefs(); }
    } freeRuns{this};
    if (!pDC) return;

    CStringEx* pLine = nLine >= 0 ? GetLine(nLine) : nullptr;
    auto* pMarked = dynamic_cast<CStringExReadOnly*>(pLine);
    const bool bEmptyPlace = !pLine && (nLine <= 0 || !GetLine(nLine - 1));
    const DWORD marks = pLine ? (pLine->m_dwBookmarks & 0xFFFF) : 0;

    COLORREF crText;
    COLORREF crBack;
    bool bMarked;
    bool bPastel = pMarked && (pMarked->m_nPastelStart || pMarked->m_nPastelEnd);
    // Outside margin mode a marked line (a line with help among them) shows
    // its mark as the background, without syntax colours.
    MarkedLineColors(marks, &crBack, &crText, &bMarked);
    const bool bColour = !bMarked;
    // A line colour takes all the text. The runs are still made, for the
    // links on the line keep their fonts and backgrounds; only their text
    // colour gives way.
    const bool bLineColour = pMarked && pMarked->m_crLineColor;
    if (bLineColour) {
        bPastel = false;
        crText = pMarked->m_crLineColor;
    }

    LineFrame frame;
    if (!BeginLineFrame(pDC, nLine, marks, crBack, bEmptyPlace, &frame)) return;
    const int M = frame.M;
    const int x = frame.x;
    const int y = frame.y;
    const int h = frame.h;
    const int right = frame.right;

    const bool bBox = m_nSelectionMode == TZ_SEL_BOX;
    int A = -1;
    int B = -1;
    bool bSelected = false;
    const bool bInSelection = LineSelectionBounds(nLine, &A, &B, &bSelected);
    COLORREF crSelText = m_crSelText;
    if (bPastel) {
        crText = Pastel(crText);
        crSelText = Pastel(crSelText);
    }

    int tabStop = TabStopPixels();

    CStringEx padded;
    CStringEx* pText = TextToDraw(pLine, &padded, bInSelection, bBox);
    // In a box selection the marks give way to the selection.
    if (bInSelection && bBox && pText)
        CTextZoneColor::DefineColors(nLine, pText);
    else if (bColour && pText)
        DefineColors(nLine, pText);
    const char* p = pText ? pText->c_str() : "";
    const int n = pText ? pText->GetLength() - pText->IsEnded() : 0;

    // The run in force: its font, colours and height.
    HFONT hNormal = m_hFont;
    HFONT hRunFont = hNormal;
    COLORREF crRunText = crText;
    COLORREF crRunBack = crBack;
    int nRunHeight = m_nNormalHeight < 1 ? m_nLineHeight : m_nNormalHeight;
    auto apply = [&]() {
        if (hRunFont) pDC->SelectObject(hRunFont);
        pDC->SetTextColor(bSelected ? crSelText : crRunText);
        pDC->SetBkColor(bSelected ? m_crSelBack : crRunBack);
    };
    auto takeRun = [&](const CColorDef& def) {
        nRunHeight = ColorConvert(&hRunFont, &crRunText, def.crColor, &crRunBack, crBack);
        if (bLineColour ||
            (!(def.crColor & RUN_PASTEL) && bPastel && (def.crColor & 0xFFFFFF) == m_crText))
            crRunText = crText;
    };
    const auto& runs = m_colorDefs;
    size_t r = 0;
    if (!runs.empty() && runs[0]->nPos <= 0) takeRun(*runs[r++]);
    apply();

    const bool bSwaps = A != B;
    int dx = 0;
    int from = 0;
    // Positions follow the zone's font, so that hit tests and the caret
    // agree with the places text is drawn at whatever font a run uses.
    auto flush = [&](int i) {
        if (i > from) {
            m_GraphicText(pDC, x + dx, y, p + from, i - from, 1, &tabStop, x);
            pDC->SelectObject(hNormal);
            const int next = GetTextWidth(pDC, p, i) - M;
            if (nRunHeight < h) {
                // A shorter font leaves a strip under its text to cover.
                RECT strip{x + dx, y + nRunHeight, x + next, y + h};
                CBrush stripBrush(bSelected ? m_crSelBack : crBack);
                pDC->FillRect(&strip, &stripBrush);
            }
            dx = next;
            if (hRunFont) pDC->SelectObject(hRunFont);
        }
        from = i;
    };
    for (int i = 0; i <= n && x + dx < right; ++i) {
        const bool bBound = bSwaps && (i == A || i == B);
        const bool bRun = r < runs.size() && runs[r]->nPos == i && i < n;
        if (bBound || bRun) {
            flush(i);
            if (bBound) bSelected = !bSelected;
            while (r < runs.size() && runs[r]->nPos <= i)
                takeRun(*runs[r++]);
            apply();
        }
        if (i == n) flush(i);
    }
    pDC->SelectObject(hNormal);

    DrawLineEnd(pDC, pLine, p, A >= 0 && A == B ? A : -1, x, y, h, dx, bSelected, bBox, crBack);
}
