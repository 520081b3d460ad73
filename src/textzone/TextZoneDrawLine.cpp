// Drawing one line: its background or bookmark colour, the margin, the
// selection in stream or box form, and the text in pieces. Coloured zones
// replace this with their own drawing in the same frame.
#include <algorithm>
#include <cstdlib>

#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/ImageList.h"
#include "platform/Messages.h"
#include "textzone/TextZone.h"

namespace {

// The platform's tabbed text calls take at most this many bytes.
constexpr int kPieceLength = 1024;

int HighestBit(DWORD bits) {
    int n = -1;
    for (; bits; bits >>= 1)
        ++n;
    return n;
}

// Dark backgrounds get white text, or the text would vanish into them.
bool IsDark(COLORREF cr) {
    return GetRValue(cr) <= 0x80 && GetGValue(cr) <= 0x80 && GetBValue(cr) <= 0x80;
}

}  // namespace

void CTextZone::DrawTextLine(CDC* pDC, int nLine) {
    if (!pDC) return;
    CStringEx* pLine = nLine >= 0 ? GetLine(nLine) : nullptr;
    // The place behind the phantom line: nothing can be there.
    const bool bEmptyPlace = !pLine && (nLine <= 0 || !GetLine(nLine - 1));
    const DWORD marks = pLine ? (pLine->m_dwBookmarks & 0xFFFF) : 0;

    COLORREF crBack;
    COLORREF crText;
    bool bMarked;
    MarkedLineColors(marks, &crBack, &crText, &bMarked);

    LineFrame frame;
    if (!BeginLineFrame(pDC, nLine, marks, crBack, bEmptyPlace, &frame)) return;
    const int M = frame.M;
    const int x = frame.x;
    const int y = frame.y;
    const int h = frame.h;

    // Where the selection starts and stops on this line: two boundaries
    // (-1 for none) and whether the line begins selected.
    const bool bBox = m_nSelectionMode == TZ_SEL_BOX;
    const bool bInSelection = TestSelection() && nLine >= m_nSelStartLine && nLine <= m_nSelEndLine;
    int b1 = -1;
    int b2 = -1;
    bool bStartSelected = false;
    if (bInSelection) {
        const bool bOneLine = m_nSelStartLine == m_nSelEndLine;
        if (bBox) {
            if (m_nSelStartChar > 0)
                b1 = m_nSelStartChar, b2 = m_nSelEndChar;
            else if (m_nSelEndChar > 0)
                bStartSelected = true, b1 = m_nSelEndChar;
            else
                b1 = b2 = 0;
        } else if (nLine == m_nSelStartLine) {
            if (m_nSelStartChar > 0) {
                b1 = m_nSelStartChar;
                if (bOneLine) b2 = m_nSelEndChar;
            } else {
                bStartSelected = true;
                if (bOneLine) b1 = m_nSelEndChar;
            }
        } else if (nLine == m_nSelEndLine) {
            if (m_nSelEndChar > 0) bStartSelected = true, b1 = m_nSelEndChar;
        } else {
            bStartSelected = true;
        }
    }

    int tabStop = TabStopPixels();

    // The bytes to draw, without the line end.
    CStringEx padded;
    const CStringEx* pText = TextToDraw(pLine, &padded, bInSelection, bBox);
    const char* p = pText ? pText->c_str() : "";
    const int n = pText ? pText->GetLength() - pText->IsEnded() : 0;

    bool bSelected = bStartSelected;
    auto applyColors = [&] {
        pDC->SetTextColor(bSelected ? m_crSelText : crText);
        pDC->SetBkColor(bSelected ? m_crSelBack : crBack);
    };
    applyColors();
    int dx = 0;
    for (int pos = 0;;) {
        if (pos == b1) bSelected = !bStartSelected;
        if (pos == b2) bSelected = bStartSelected;
        if (pos >= n) break;
        int end = std::min(n, pos + kPieceLength);
        if (b1 > pos && b1 < end) end = b1;
        if (b2 > pos && b2 < end) end = b2;
        applyColors();
        m_GraphicText(pDC, x + dx, y, p + pos, end - pos, 1, &tabStop, x);
        // Measured from the line's start, so that tabs land where they should.
        dx = GetTextWidth(pDC, p, end) - M;
        pos = end;
    }

    // A box without width is the box caret.
    const int nBar = bBox && b1 >= 0 && b1 == b2 ? b1 : -1;
    DrawLineEnd(pDC, pLine, p, nBar, x, y, h, dx, bSelected, bBox, crBack);
}

void CTextZone::MarkedLineColors(DWORD marks, COLORREF* pcrBack, COLORREF* pcrText,
                                 bool* pbMarked) {
    *pcrBack = m_crBack;
    *pcrText = m_crText;
    *pbMarked = !IsMarginMode() && marks;
    if (*pbMarked) *pcrBack = GetBookmarkColor(HighestBit(marks));
    if (IsDark(*pcrBack)) *pcrText = RGB(255, 255, 255);
}

bool CTextZone::BeginLineFrame(CDC* pDC, int nLine, DWORD marks, COLORREF crBack,
                               bool bEmptyPlace, LineFrame* pFrame) {
    LineFrame& f = *pFrame;
    f.M = GetMarginWidth();
    f.x = m_rcText.left + f.M - GetHScrollOffset();
    f.y = m_rcText.top - GetVScrollOffset() + GetLinePosition(nLine);
    f.h = GetLineHeight(nLine);
    f.right = m_rcText.right;
    if (bEmptyPlace) {
        CBrush backBrush(crBack);
        RECT rc{f.x - f.M, f.y, f.right + f.M, f.y + f.h};
        pDC->FillRect(&rc, &backBrush);
        return false;
    }
    if (IsMarginMode()) DrawMarginMarks(pDC, marks, f.y, f.h);
    return true;
}

void CTextZone::DrawMarginMarks(CDC* pDC, DWORD marks, int y, int h) {
    const int M = GetMarginWidth();
    // The margin scrolls with the text.
    const int mx = m_rcText.left - GetHScrollOffset();
    RECT rcMargin{mx, y, mx + M, y + h};
    pDC->FillSolidRect(&rcMargin, m_crMargin);
    CImageList* pImages = GetMarginModeImageList();
    for (int i = 0; i < 16; ++i) {
        if (!(marks & (1u << i))) continue;
        const int image = GetBookmarkImageIndex(i);
        if (pImages && image >= 0) {
            ImageList_Draw(pImages, image, pDC, mx, y + h / 4, ILD_NORMAL);
            continue;
        }
        CBrush brush(GetBookmarkColor(i));
        pDC->SaveDC();
        pDC->SelectStockObject(BLACK_PEN);
        pDC->SelectObject(&brush);
        const int top = y + h / 4 - 1;
        pDC->RoundRect(mx, top, mx + M, top + h - h / 4, 4, 4);
        pDC->RestoreDC(-1);
    }
}

int CTextZone::TabStopPixels() {
    int tabStop = GetTabWidth();
    if (tabStop < 1) {
        tabStop = m_nCharWidth * std::abs(tabStop);
        if (tabStop == 0) tabStop = 20;
    }
    return tabStop;
}

CStringEx* CTextZone::TextToDraw(CStringEx* pLine, CStringEx* pPadded, bool bInSelection,
                                 bool bBox) {
    // Columns of a box line up only on the space-equivalent text; a free
    // caret's selection may reach beyond the text, so the text is padded to
    // it.
    int nPad = -1;
    if (bInSelection && bBox) {
        if (pLine) GetSpaceEquivalentLine(pPadded, pLine);
        nPad = m_nSelEndChar + 1;
    } else if (bInSelection && (m_dwStyle & ZS_FREECARET)) {
        if (pLine) *pPadded = *pLine;
        nPad = std::max(m_nSelStartChar, m_nSelEndChar) + 1;
    }
    if (nPad < 0) return pLine;
    if (pPadded->IsEnded()) pPadded->discardRight(1);
    pPadded->EnsureMinimumLength(nPad);
    return pPadded;
}

void CTextZone::DrawLineEnd(CDC* pDC, const CStringEx* pLine, const char* p, int nBar, int x, int y,
                            int h, int dx, bool bSelected, bool bBox, COLORREF crBack) {
    const int M = GetMarginWidth();
    const int right = m_rcText.right;
    CBrush selBrush(m_crSelBack);
    if (nBar >= 0) {
        const int column = x + GetTextWidth(pDC, p, nBar) - M;
        RECT bar{column - 1, y, column + 1, y + h};
        pDC->FillRect(&bar, &selBrush);
    }
    if (x - M + dx < right) {
        CBrush backBrush(crBack);
        RECT rest{x + dx, y, right + M, y + h};
        pDC->FillRect(&rest, &backBrush);
    }
    if (bSelected && !bBox) {
        // The selection goes on past the text: to the edge, or one
        // character for the selected line end.
        if (m_dwStyle & ZS_SELTOEDGE) {
            RECT block{x + dx, y, right - M, y + h};
            pDC->FillRect(&block, &selBrush);
        } else if (pLine && pLine->IsEnded()) {
            RECT block{x + dx, y, x + dx + m_nCharWidth, y + h};
            pDC->FillRect(&block, &selBrush);
        }
    }
}
