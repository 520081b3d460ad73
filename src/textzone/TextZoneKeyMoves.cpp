// Caret movement and keyboard selection: arrows, words, Home and End, pages.
// A move without Shift ends the selection and moves the caret; with Shift it
// moves the mobile end of the selection and leaves the root where it is.
#include <algorithm>

#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

using textbytes::IsBlank;
using textbytes::IsWordChar;
using textbytes::PadText;
using textbytes::TextLength;

namespace {

bool IsHidden(CTextZone& zone, int nLine) {
    CStringEx* pLine = nLine >= 0 ? zone.GetLine(nLine) : nullptr;
    return pLine && (pLine->m_dwBlockFlags & BF_HIDDEN);
}

void PutCaret(CTextZone& zone, int nLine, int nChar) {
    zone.m_nSelStartLine = zone.m_nSelEndLine = zone.m_nSelRootLine = nLine;
    zone.m_nSelStartChar = zone.m_nSelEndChar = zone.m_nSelRootChar = nChar;
}

// The nearest line above nLine that is not hidden, at its last non-blank;
// false if there is none.
bool ToEndOfLineAbove(CTextZone& zone, int& nLine, int& nChar) {
    int n = nLine - 1;
    while (n >= 0 && IsHidden(zone, n))
        --n;
    if (n < 0) return false;
    nLine = n;
    CStringEx* pLine = zone.GetLine(n);
    nChar = pLine ? pLine->GetVisibleLength() : 0;
    return true;
}

// Index 0 of the next line that is not hidden: past the last line that is
// the place behind the text.
void ToStartOfLineBelow(CTextZone& zone, int& nLine, int& nChar) {
    int n = nLine + 1;
    while (IsHidden(zone, n))
        ++n;
    nLine = n;
    nChar = 0;
}

void StepLeft(CTextZone& zone, int& nLine, int& nChar) {
    if (zone.m_dwStyle & ZS_FREECARET) {
        if (nChar > 0) --nChar;
        return;
    }
    if (--nChar < 0 && !ToEndOfLineAbove(zone, nLine, nChar)) nChar = 0;
}

void StepRight(CTextZone& zone, int& nLine, int& nChar) {
    CStringEx* pLine = zone.GetLine(nLine);
    if (!pLine) return;
    if (zone.m_dwStyle & ZS_FREECARET) {
        if (nChar < TZ_MAX_LINE_LENGTH) ++nChar;
        return;
    }
    // The end of a wrapped line that ends in a blank is the same place as the
    // start of the next line, so the caret does not stop there.
    const int raw = pLine->GetLength();
    int limit = raw - pLine->IsEnded();
    if (raw > 0 && IsBlank((*pLine)[raw - 1])) --limit;
    if (++nChar > limit) ToStartOfLineBelow(zone, nLine, nChar);
}

void WordRight(CTextZone& zone, int& nLine, int& nChar) {
    CStringEx* pLine = zone.GetLine(nLine);
    if (!pLine) return;
    const int visible = pLine->GetVisibleLength();
    if (nChar >= visible) {
        ToStartOfLineBelow(zone, nLine, nChar);
        return;
    }
    const char* p = pLine->c_str();
    int i = nChar;
    if (!IsBlank(p[i])) {
        if (IsWordChar(p[i])) {
            while (i < visible && IsWordChar(p[i]))
                ++i;
        } else {
            while (i < visible && !IsWordChar(p[i]) && !IsBlank(p[i]))
                ++i;
        }
    }
    while (i < visible && IsBlank(p[i]))
        ++i;
    nChar = i;
}

void WordLeft(CTextZone& zone, int& nLine, int& nChar) {
    if (nChar == 0) {
        ToEndOfLineAbove(zone, nLine, nChar);
        return;
    }
    CStringEx* pLine = zone.GetLine(nLine);
    if (!pLine) {
        nChar = 0;
        return;
    }
    const char* p = pLine->c_str();
    int i = std::min(nChar, pLine->GetVisibleLength());
    while (i > 0 && IsBlank(p[i - 1]))
        --i;
    if (i > 0 && IsWordChar(p[i - 1])) {
        while (i > 0 && IsWordChar(p[i - 1]))
            --i;
    } else {
        while (i > 0 && !IsWordChar(p[i - 1]) && !IsBlank(p[i - 1]))
            --i;
    }
    nChar = i;
}

}  // namespace

void CTextZone::KeyMoveHorizontal(int bRight, int bWord, int bShift) {
    HideCaret();
    m_nGoalX = -1;

    if (!bShift && IsBoxCaret()) {
        // A tall caret moves as a whole column and stays tall.
        int column = m_nSelStartChar;
        if (bRight ? column < TZ_MAX_LINE_LENGTH : column > 0) {
            column += bRight ? 1 : -1;
            m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = column;
            RedrawLines(m_nSelStartLine, m_nSelEndLine, 1);
        }
        DrawCaret(1, 1);
        return;
    }

    if (!bShift) {
        CancelSelection(1);
        int line = m_nSelStartLine;
        int ch = m_nSelStartChar;
        if (bWord)
            bRight ? WordRight(*this, line, ch) : WordLeft(*this, line, ch);
        else
            bRight ? StepRight(*this, line, ch) : StepLeft(*this, line, ch);
        PutCaret(*this, line, ch);
        DrawCaret(1, 1);
        return;
    }

    if (!TestSelection()) StartSelection();
    const int oldFirst = m_nSelStartLine;
    const int oldLast = m_nSelEndLine;
    const int oldLine = GetSelMobileLine();
    int line = oldLine;
    int ch = GetSelMobileChar();
    if (m_nSelectionMode == TZ_SEL_BOX) {
        // A box changes its width only; Ctrl makes no word steps in columns.
        ch = bRight ? std::min(ch + 1, TZ_MAX_LINE_LENGTH) : std::max(ch - 1, 0);
    } else if (bWord) {
        bRight ? WordRight(*this, line, ch) : WordLeft(*this, line, ch);
    } else {
        bRight ? StepRight(*this, line, ch) : StepLeft(*this, line, ch);
    }
    DefineSelectionFromRoot(line, ch);
    int first = std::min(oldLine, line);
    int last = std::max(oldLine, line);
    if (m_nSelectionMode == TZ_SEL_BOX) {
        first = std::min({first, oldFirst, m_nSelStartLine});
        last = std::max({last, oldLast, m_nSelEndLine});
    }
    RedrawLines(first, last, 1);
    DrawCaret(1, 1);
}

void CTextZone::KeyStartMove(int bShift, int bRedraw, int* pnLine, int* pnChar) {
    // Without Shift a move ends the selection and starts from the caret;
    // with it, the selection's mobile end moves.
    if (!bShift)
        CancelSelection(bRedraw);
    else if (!TestSelection())
        StartSelection();
    *pnLine = bShift ? GetSelMobileLine() : m_nSelStartLine;
    *pnChar = bShift ? GetSelMobileChar() : m_nSelStartChar;
}

void CTextZone::KeyGoalX(CDC* pDC, int nLine, int nChar, int bSpaced, int bPage) {
    if (m_nGoalX != -1) return;
    CStringEx* pLine = GetLine(nLine);
    if (!pLine && bPage) {
        m_nGoalX = 0;
        return;
    }
    CStringEx copy;
    if (pLine && bSpaced)
        GetSpaceEquivalentLine(&copy, pLine);
    else if (pLine)
        copy = *pLine;
    if (nChar > TextLength(copy)) PadText(copy, nChar);
    m_nGoalX = m_rcText.left - GetHScrollOffset() + GetTextWidth(pDC, copy.c_str(), nChar);
}

int CTextZone::KeyIndexAtGoal(int nLine, int nChar) {
    POINT pt{m_nGoalX, 0};
    CStringEx* pLine = GetLine(nLine);
    if (pLine) return GetCharIndexFromPoint(pLine, &pt);
    // Behind the text the caret may stand out in the blank, as far as the goal.
    CStringEx blank;
    blank.EnsureMinimumLength(nChar + 100);
    return GetCharIndexFromPoint(&blank, &pt);
}

void CTextZone::KeyMoveVertical(int bDown, int bShift) {
    HideCaret();
    int oldLine, ch;
    KeyStartMove(bShift, 1, &oldLine, &ch);
    // A box keeps its column under Shift; a caret follows the goal x.
    const bool keepColumn = bShift && m_nSelectionMode == TZ_SEL_BOX;

    CDC* pDC = GetStandardDC();
    KeyGoalX(pDC, oldLine, ch, keepColumn, 0);
    int line = oldLine;
    if (bDown) {
        do {
            if (GetLine(line)) ++line;
        } while (IsHidden(*this, line));
    } else {
        while (line > 0) {
            --line;
            if (!IsHidden(*this, line)) break;
        }
    }
    if (!keepColumn && (line != oldLine || !GetLine(line))) ch = KeyIndexAtGoal(line, ch);
    ReleaseStandardDC(pDC);

    if (!bShift) {
        PutCaret(*this, line, ch);
    } else {
        DefineSelectionFromRoot(line, ch);
        RedrawLines(std::min(oldLine, line), std::max(oldLine, line), 1);
    }
    DrawCaret(1, 1);
}

void CTextZone::KeyMovePage(int bDown, int bShift) {
    HideCaret();
    int oldLine, ch;
    KeyStartMove(bShift, 1, &oldLine, &ch);
    const bool keepColumn = bShift && m_nSelectionMode == TZ_SEL_BOX;

    // Stored lines, not visible ones: a page may land inside a closed block.
    const int lineHeight = m_nLineHeight > 0 ? m_nLineHeight : 1;
    const int page = std::max(1, (m_rcText.bottom - m_rcText.top) / lineHeight - 1);
    int target;
    if (bDown) {
        target = std::min(oldLine + page, GetLineCount());
        while (target > 0 && !GetLine(target - 1))
            --target;
    } else {
        target = std::max(0, oldLine - page);
    }

    CDC* pDC = GetStandardDC();
    KeyGoalX(pDC, oldLine, ch, keepColumn, 1);
    if (!keepColumn) ch = KeyIndexAtGoal(target, ch);
    ReleaseStandardDC(pDC);

    if (!bShift) PutCaret(*this, target, ch);
    HandleVScroll(bDown ? SB_PAGEDOWN : SB_PAGEUP, 0, m_pVScrollBar);
    if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
    if (bShift) {
        DefineSelectionFromRoot(target, ch);
        RedrawLines(std::min(oldLine, target), std::max(oldLine, target), 1);
    }
    DrawCaret(1, 1);
}

void CTextZone::KeyHomeEnd(int bEnd, int bCtrl, int bShift) {
    HideCaret();
    m_nGoalX = -1;
    const int oldFirst = m_nSelStartLine;
    const int oldLast = m_nSelEndLine;
    int oldLine, ch;
    KeyStartMove(bShift, 0, &oldLine, &ch);
    const bool spaced = bShift && m_nSelectionMode == TZ_SEL_BOX;
    int line = oldLine;

    if (bEnd && bCtrl) {
        line = GetLastLineIndex();
        CStringEx* pLast = GetLine(line);
        if (pLast && pLast->IsEnded()) ++line;
    } else if (!bEnd && bCtrl) {
        line = 0;
    }

    CStringEx* pLine = GetLine(line);
    CStringEx spacedLine;
    if (pLine && spaced) {
        GetSpaceEquivalentLine(&spacedLine, pLine);
        pLine = &spacedLine;
    }
    if (!pLine || (!bEnd && bCtrl)) {
        ch = 0;
    } else if (!bEnd) {
        // Smart home: the first non-blank, and from there the line's start.
        int first = 0;
        while (IsBlank((*pLine)[first]))
            ++first;
        ch = ch == first ? 0 : first;
    } else {
        // Two-stage end: the last non-blank, then past the trailing blanks.
        const int visible = pLine->GetVisibleLength();
        ch = ch != visible && !bCtrl ? visible : TextLength(*pLine);
    }

    if (!bShift) {
        PutCaret(*this, line, ch);
        RedrawLines(!bEnd && bCtrl ? 0 : oldFirst, bEnd && bCtrl ? line : oldLast, 1);
    } else {
        DefineSelectionFromRoot(line, ch);
        int first = std::min(oldLine, line);
        int last = std::max(oldLine, line);
        if (m_nSelectionMode == TZ_SEL_BOX) {
            first = std::min({first, oldFirst, m_nSelStartLine});
            last = std::max({last, oldLast, m_nSelEndLine});
        }
        RedrawLines(first, last, 1);
    }
    DrawCaret(1, 1);
}
