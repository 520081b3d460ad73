// The zone's settings: plain setters and getters, and the few that have to
// bring the text or the screen in line with a new value.
#include <algorithm>
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

namespace {

constexpr COLORREF kSystemColor = static_cast<COLORREF>(-1);

COLORREF OrSystemColor(COLORREF cr, int nSysColor) {
    return cr == kSystemColor ? GetSysColor(nSysColor) : cr;
}

}  // namespace

void CTextZone::SetWindow(CWnd* pWnd) {
    m_pWnd = pWnd;
}

CWnd* CTextZone::GetWindow() {
    return m_pWnd;
}

void CTextZone::SetRect(const RECT* prc) {
    if (prc) m_rcText = *prc;
}

void CTextZone::GetRect(RECT* prc) {
    if (prc) *prc = m_rcText;
}

void CTextZone::SetFont(HFONT hFont) {
    m_hFont = hFont;
    HDC hDC = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    if (hDC) {
        if (hFont) hDC->SelectObject(hFont);
        TEXTMETRICA tm;
        GetTextMetricsA(hDC, &tm);
        m_nLineHeight = tm.tmHeight;
        m_nCharWidth = tm.tmAveCharWidth;
        m_nOverhang = tm.tmOverhang;
        SIZE sizeI;
        SIZE sizeW;
        GetTextExtentPoint32A(hDC, "i", 1, &sizeI);
        GetTextExtentPoint32A(hDC, "W", 1, &sizeW);
        m_bProportional = sizeI.cx != sizeW.cx ? 1 : 0;
        DeleteDC(hDC);
    }
    // Box columns are only meaningful in a fixed pitch.
    if (m_bProportional && m_nSelectionMode == TZ_SEL_BOX) SetSelectionMode(TZ_SEL_STREAM);
}

HFONT CTextZone::GetFont() {
    return m_hFont;
}

int CTextZone::IsFontProportionnal() {
    return m_bProportional;
}

void CTextZone::SetTabWidth(int nTabWidth) {
    // A step wider than any window (or than 256 characters) only makes the
    // measuring overflow.
    m_nTabWidth = std::clamp(nTabWidth, -256, 4096);
    if (m_pWnd) {
        // Recorded positions no longer mean the same under another tab step.
        FreeAllOperations();
        RebuildAllParagraphs();
        RedrawTextZone();
    }
}

int CTextZone::GetTabWidth() {
    return m_nTabWidth;
}

void CTextZone::SetTabConvert(int bTabConvert) {
    m_bTabConvert = bTabConvert;
    if (!bTabConvert) return;
    for (int n = 0;; ++n) {
        CStringEx* pLine = GetLine(n);
        if (!pLine) break;
        CStringEx expanded;
        GetSpaceEquivalentLine(&expanded, pLine);
        // Assigning a fresh line drops the bookmarks and block flags too.
        *pLine = expanded;
    }
    if (m_pWnd) {
        FreeAllOperations();
        SetSelectionMode(TZ_SEL_STREAM);
        RebuildAllParagraphs();
        RedrawTextZone();
    }
}

int CTextZone::GetTabConvert() {
    return m_bTabConvert;
}

void CTextZone::SetColors(COLORREF crText, COLORREF crBack, COLORREF crSelText,
                          COLORREF crSelBack) {
    m_crText = OrSystemColor(crText, COLOR_WINDOWTEXT);
    m_crBack = OrSystemColor(crBack, COLOR_WINDOW);
    m_crSelText = OrSystemColor(crSelText, COLOR_HIGHLIGHTTEXT);
    m_crSelBack = OrSystemColor(crSelBack, COLOR_HIGHLIGHT);
}

void CTextZone::GetColors(COLORREF* pcrText, COLORREF* pcrBack, COLORREF* pcrSelText,
                          COLORREF* pcrSelBack) {
    if (pcrText) *pcrText = m_crText;
    if (pcrBack) *pcrBack = m_crBack;
    if (pcrSelText) *pcrSelText = m_crSelText;
    if (pcrSelBack) *pcrSelBack = m_crSelBack;
}

void CTextZone::SetScrollbars(CScrollBar* pVScrollBar, CScrollBar* pHScrollBar) {
    m_pVScrollBar = pVScrollBar;
    m_pHScrollBar = pHScrollBar;
}

void CTextZone::SetStyle(DWORD dwStyle) {
    // A wrapped line has no room beyond its end; an unwrapped free caret
    // selects to the edge of the zone.
    if (dwStyle & ZS_PARAGRAPH)
        dwStyle &= ~ZS_FREECARET;
    else if (dwStyle & ZS_FREECARET)
        dwStyle |= ZS_SELTOEDGE;
    const bool wrapChanged = ((m_dwStyle ^ dwStyle) & ZS_PARAGRAPH) != 0;
    m_dwStyle = dwStyle;
    if (!wrapChanged || !m_pWnd) return;

    // Undo units hold text offsets under wrap and lines and characters
    // without it: a history across the switch would be read in the wrong form.
    FreeAllOperations();
    LONG lStart = 0, lEnd = 0;
    GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    if (dwStyle & ZS_PARAGRAPH) {
        RebuildAllParagraphs();
    } else {
        // The soft breaks go: each paragraph becomes one line again, as far
        // as the line limit lets it.
        for (int n = 0;; ++n) {
            CStringEx* pLine = GetLine(n);
            if (!pLine) break;
            while (!pLine->IsEnded()) {
                CStringEx* pNext = GetLine(n + 1);
                if (!pNext) break;
                if (pLine->GetLength() + pNext->GetLength() - pNext->IsEnded() >
                    TZ_MAX_LINE_LENGTH) {
                    pLine->EnsureEnded();
                    break;
                }
                *pLine += *pNext;
                RemoveLines(n + 1, 1);
                pLine = GetLine(n);
            }
        }
    }
    // Columns have no meaning between wrapped lines.
    SetSelection(lStart, lEnd, 0, 0, 1, 0);
    RebuildCurrentLength();
    RedrawTextZone();
}

DWORD CTextZone::GetStyle() {
    return m_dwStyle;
}

void CTextZone::SetReadOnly(int bReadOnly) {
    m_bReadOnly = bReadOnly;
}

int CTextZone::GetReadOnly() {
    return m_bReadOnly;
}

void CTextZone::SetModify(int bModify) {
    m_bModify = bModify;
}

int CTextZone::GetModify() {
    return m_bModify;
}

void CTextZone::SetMaxLength(LONG lMaxLength) {
    m_lMaxLength = lMaxLength;
    RebuildCurrentLength();
}

LONG CTextZone::GetMaxLength() {
    return m_lMaxLength;
}

void CTextZone::SetNoBlockFlag(int bNoBlock) {
    m_bNoBlock = bNoBlock;
}

int CTextZone::GetNoBlockFlag() {
    return m_bNoBlock;
}

void CTextZone::SetMaxWidth(int nMaxWidth) {
    if (nMaxWidth < 0) nMaxWidth = 0;
    bool bChanged = nMaxWidth != m_nMaxWidth;
    m_nMaxWidth = nMaxWidth;
    if (bChanged && nMaxWidth != 0 && m_pWnd) RebuildAllParagraphs();
}

int CTextZone::GetMaxWidth() {
    return m_nMaxWidth;
}

void CTextZone::SetRedraw(int bRedraw) {
    m_bRedraw = bRedraw;
}

int CTextZone::GetRedraw() {
    return m_bRedraw;
}

void CTextZone::SetDragDropFlag(int bDragDrop) {
    m_bDragDrop = bDragDrop;
}

void CTextZone::SetMarginMode(int bMarginMode) {
    if (bMarginMode == m_bMarginMode) return;
    m_bMarginMode = bMarginMode;
    RedrawLines(0, TZ_TO_END, 1);
}

int CTextZone::IsMarginMode() {
    return m_bMarginMode;
}

void CTextZone::SetMarginModeImageList(CImageList* pImages) {
    m_pMarginImages = pImages;
    RedrawLines(0, TZ_TO_END, 1);
}

CImageList* CTextZone::GetMarginModeImageList() {
    return m_pMarginImages;
}

void CTextZone::SetMarginColor(COLORREF crMargin) {
    if (crMargin == m_crMargin) return;
    m_crMargin = crMargin;
    RedrawLines(0, TZ_TO_END, 1);
}

COLORREF CTextZone::GetMarginColor() {
    return m_crMargin;
}

void CTextZone::SetMarginWidth(UINT nWidth) {
    if (nWidth == m_nMarginWidth) return;
    m_nMarginWidth = nWidth;
    RedrawLines(0, TZ_TO_END, 1);
}

int CTextZone::GetMarginWidth() {
    return IsMarginMode() ? static_cast<int>(m_nMarginWidth) : 0;
}

void CTextZone::SetBlockMode(int bBlockMode) {
    if (bBlockMode == m_bBlockMode) return;
    m_bBlockMode = bBlockMode;
    RedrawLines(0, TZ_TO_END, 1);
}

int CTextZone::IsBlockMode() const {
    return m_bBlockMode;
}
