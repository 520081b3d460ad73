// Drawing one line of a coloured zone: the frame of the plain zone (bookmark
// background, margin, the rest of the row, the selected line end) with the
// text going out run by run, the selection laid over the runs.
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "colour/TextZoneColor.h"
#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/ImageList.h"
#include "platform/Messages.h"

int CTextZoneColor::FirstVisibleCut(CDC* pDC, const char* p, int n, int x, int A, int B,
                                    bool bStartSelected, int* pdx) {
    // The places where the walk draws what it holds: the selection bounds,
    // and the runs that start outside the selection.
    const bool bSwaps = A != B;
    std::vector<int> cuts;
    for (const auto& def : m_colorDefs) {
        const int c = def->nPos;
        if (c <= 0 || c >= n) continue;
        bool bSelected = bStartSelected;
        if (bSwaps) bSelected ^= (A >= 0 && A < c) != (B >= 0 && B < c);
        if (!bSelected) cuts.push_back(c);
    }
    if (bSwaps) {
        if (A > 0 && A < n) cuts.push_back(A);
        if (B > 0 && B < n) cuts.push_back(B);
    }
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());
    // The last cut whose text ends left of the rectangle, by bisection:
    // widths grow with the index.
    const int M = GetMarginWidth();
    int lo = 0;
    int hi = static_cast<int>(cuts.size());
    int best = 0;
    *pdx = 0;
    while (lo < hi) {
        const int mid = (lo + hi) / 2;
        const int w = GetTextWidth(pDC, p, cuts[static_cast<size_t>(mid)]) - M;
        if (x + w <= m_rcText.left) {
            best = cuts[static_cast<size_t>(mid)];
            *pdx = w;
            lo = mid + 1;
        } else {
            hi = mid;
        }
    }
    return best;
}

void CTextZoneColor::DrawTextLine(CDC* pDC, int nLine) {
    // Whatever happens below, the runs of this line are used up.
    struct FreeRuns {
        CTextZoneColor* pZone;
        ~FreeRuns() { pZone->FreeColorDefs(); }
    } freeRuns{this};
    if (!pDC) return;

    CStringEx* pLine = nLine >= 0 ? GetLine(nLine) : nullptr;
    // The place behind the phantom line: nothing can be there.
    const bool bEmptyPlace = !pLine && (nLine <= 0 || !GetLine(nLine - 1));
    const DWORD marks = pLine ? (pLine->m_dwBookmarks & 0xFFFF) : 0;

    // A bookmarked line without a margin shows its mark as the background
    // and its text plain, so that the mark stands out.
    COLORREF crBack;
    COLORREF crText;
    bool bMarked;
    MarkedLineColors(marks, &crBack, &crText, &bMarked);
    const bool bColour = !bMarked;

    LineFrame frame;
    if (!BeginLineFrame(pDC, nLine, marks, crBack, bEmptyPlace, &frame)) return;
    const int M = frame.M;
    const int x = frame.x;
    const int y = frame.y;
    const int h = frame.h;

    const bool bBox = m_nSelectionMode == TZ_SEL_BOX;
    int A = -1;
    int B = -1;
    bool bStartSelected = false;
    const bool bInSelection = LineSelectionBounds(nLine, &A, &B, &bStartSelected);

    int tabStop = TabStopPixels();

    // The text and its runs, the runs found on what is drawn.
    CStringEx padded;
    CStringEx* pText = TextToDraw(pLine, &padded, bInSelection, bBox);
    if (bColour && pText) DefineColors(nLine, pText);
    const char* p = pText ? pText->c_str() : "";
    const int n = pText ? pText->GetLength() - pText->IsEnded() : 0;

    const auto& runs = m_colorDefs;
    // The first run behind position i.
    auto runAfter = [&](int i) {
        return static_cast<size_t>(
            std::upper_bound(runs.begin(), runs.end(), i,
                             [](int pos, const auto& def) { return pos < def->nPos; }) -
            runs.begin());
    };
    const bool bSwaps = A != B;
    int dx = 0;
    // Each cut is measured from the line's start, so a line of many runs
    // costs runs times length: only the cuts that can show are walked. A
    // line scrolled to the left starts at the last cut that ends left of
    // the rectangle; the walk stops once it has passed the right edge.
    const int start =
        GetHScrollOffset() > 0 ? FirstVisibleCut(pDC, p, n, x, A, B, bStartSelected, &dx) : 0;

    bool bSelected = bStartSelected;
    if (bSwaps) bSelected ^= (A >= 0 && A < start) != (B >= 0 && B < start);
    pDC->SetTextColor(bSelected ? m_crSelText : crText);
    pDC->SetBkColor(bSelected ? m_crSelBack : crBack);
    size_t r = 0;  // the next run to take effect
    if (!bSelected) {
        r = runAfter(start);
        if (r > 0) pDC->SetTextColor(runs[r - 1]->crColor);
    }

    int from = start;  // the first byte not drawn yet
    bool bPastRight = false;
    auto flush = [&](int i) {
        if (i > from) {
            m_GraphicText(pDC, x + dx, y, p + from, i - from, 1, &tabStop, x);
            // Measured afresh from the line's start, so that tabs stay right
            // across colour changes.
            dx = GetTextWidth(pDC, p, i) - M;
            bPastRight = x + dx >= m_rcText.right;
        }
        from = i;
    };
    for (int i = start; i <= n && !bPastRight; ++i) {
        // A bound at the very end still swaps, so that a selection that
        // stops at the end of the text does not take the line end along.
        if ((i == A || i == B) && bSwaps) {
            flush(i);
            bSelected = !bSelected;
            pDC->SetTextColor(bSelected ? m_crSelText : crText);
            pDC->SetBkColor(bSelected ? m_crSelBack : crBack);
            if (!bSelected) {
                // Back to plain: the colour of the run in force here.
                r = runAfter(i);
                if (r > 0) pDC->SetTextColor(runs[r - 1]->crColor);
            }
        } else if (!bSelected && r < runs.size() && runs[r]->nPos == i && i < n) {
            flush(i);
            pDC->SetTextColor(runs[r++]->crColor);
        }
        if (i == n) flush(i);
    }

    // A box without width is the box caret.
    DrawLineEnd(pDC, pLine, p, A >= 0 && A == B ? A : -1, x, y, h, dx, bSelected, bBox, crBack);
}

bool CTextZoneColor::LineSelectionBounds(int nLine, int* pA, int* pB, bool* pbStartSelected) {
    const bool bInSelection = TestSelection() && nLine >= m_nSelStartLine && nLine <= m_nSelEndLine;
    if (!bInSelection) return false;
    int& A = *pA;
    int& B = *pB;
    if (m_nSelectionMode == TZ_SEL_BOX) {
        A = m_nSelStartChar;
        B = m_nSelEndChar;
        if (m_nSelStartChar == 0 && m_nSelEndChar > 0) {
            *pbStartSelected = true;
            A = m_nSelEndChar;
            B = -1;
        }
    } else {
        if (nLine == m_nSelStartLine) {
            if (m_nSelStartChar == 0)
                *pbStartSelected = true;
            else
                A = m_nSelStartChar;
        } else {
            *pbStartSelected = true;
        }
        if (nLine == m_nSelEndLine) (A < 0 ? A : B) = m_nSelEndChar;
    }
    return true;
}
