// The mouse: placing the caret, selecting by dragging in stream and box
// mode, word selection, the block marks in the margin, and the drag of
// selected text inside one zone.
#include <algorithm>
#include <vector>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

// Where the left button last went down. One for the library: a press can
// only happen in one zone at a time, and box selection needs its x after
// the selection has collapsed.
POINT g_ptLastPress{0, 0};

// The library's drag cursors.
constexpr int kCopyDragCursor = 31;
constexpr int kMoveDragCursor = 32;

bool KeyDown(int nVirtKey) {
    return GetKeyState(nVirtKey) < 0;
}

void ShowCursor(int nId) {
    SetCursor(LoadCursorA(nullptr, nId));
}

}  // namespace

void CTextZone::AutoScroll(UINT nFlags, POINT* pt) {
    if (!m_pWnd || PtInRect(&m_rcText, *pt)) return;
    DWORD now = GetTickCount();
    if (now - m_dwLastAutoScroll > 50) {
        if (pt->x < m_rcText.left) {
            HandleHScroll(SB_LINELEFT, 0, m_pHScrollBar);
            HandleHScroll(SB_LINELEFT, 0, m_pHScrollBar);
        } else if (pt->x >= m_rcText.right) {
            HandleHScroll(SB_LINERIGHT, 0, m_pHScrollBar);
            HandleHScroll(SB_LINERIGHT, 0, m_pHScrollBar);
        }
        m_pWnd->UpdateWindow();
        if (pt->y < m_rcText.top)
            HandleVScroll(SB_LINEUP, 0, m_pVScrollBar);
        else if (pt->y >= m_rcText.bottom)
            HandleVScroll(SB_LINEDOWN, 0, m_pVScrollBar);
        m_pWnd->UpdateWindow();
        m_dwLastAutoScroll = now;
    }
    // No timer: the move comes back until the pointer returns or the
    // button is let go; the tick count above sets the pace.
    MSG msg;
    if (!PeekMessageA(&msg, m_pWnd, WM_MOUSEMOVE, WM_MOUSELAST, PM_NOREMOVE))
        PostMessageA(m_pWnd, WM_MOUSEMOVE, nFlags, MAKELPARAM(pt->x, pt->y));
}

void CTextZone::HandleLButtonDown(UINT nFlags, POINT* pt) {
    if (!pt) return;
    if (m_pWnd) m_pWnd->SetCapture();
    g_ptLastPress = *pt;
    m_bMouseSelecting = 1;
    m_nGoalX = -1;
    HideCaret();
    m_dwLastAutoScroll = 0;
    m_nDragState = 0;

    const bool alt = KeyDown(VK_MENU);
    const bool hadSelection = TestSelection() != 0;
    const int oldFirst = m_nSelStartLine;
    const int oldLast = m_nSelEndLine;
    if (hadSelection) {
        if (!m_bReadOnly && m_bDragDrop && m_nSelectionMode != TZ_SEL_BOX && !alt &&
            PtInSelection(pt)) {
            // Perhaps the start of a text drag; the release tells.
            m_nDragState = 1;
            return;
        }
        // Paint the lines unselected now: a plain press drops the selection
        // without redrawing, and an extending one redraws what it keeps.
        const int endLine = m_nSelEndLine;
        const int endChar = m_nSelEndChar;
        m_nSelEndLine = m_nSelStartLine;
        m_nSelEndChar = m_nSelStartChar;
        RedrawLines(oldFirst, oldLast, 1);
        m_nSelEndLine = endLine;
        m_nSelEndChar = endChar;
    }

    int line = GetLineUnderPoint(pt);
    CStringEx* pLine = GetLine(line);
    int index = pLine ? GetCharIndexFromPoint(pLine, pt) : 0;

    // The mark of a block head sits at the right of the margin.
    int margin = GetMarginWidth();
    if (index == 0 && pLine && (pLine->m_dwBlockFlags & (BF_OPEN_HEAD | BF_CLOSED_HEAD)) &&
        margin != 0 && !alt && !KeyDown(VK_SHIFT) && !KeyDown(VK_CONTROL)) {
        int v = pt->x - m_rcText.left + GetHScrollOffset();
        if (v < margin && v >= margin - (m_nLineHeight * 3) / 4 - 1) {
            if ((pLine->m_dwBlockFlags & (BF_OPEN_HEAD | BF_CLOSED_HEAD)) == BF_OPEN_HEAD)
                CloseBlock(line, 1);
            else
                OpenBlock(line, 1);
        }
    }

    if (!GetNoBlockFlag() && !IsFontProportionnal() && alt) SetSelectionMode(TZ_SEL_BOX);

    if (!(nFlags & MK_SHIFT)) {
        SetSelection(line, line, index, index, 0, 0);
        return;
    }

    // Shift extends the selection from its root.
    const bool box = m_nSelectionMode == TZ_SEL_BOX;
    if (box) index = GetBoxIndexFromPoint(line, pt);
    if (!hadSelection) {
        if (box) {
            // The caret's byte index becomes the column under its x.
            CStringEx padded;
            if (CStringEx* pCaretLine = GetLine(m_nSelStartLine)) padded = *pCaretLine;
            if (padded.IsEnded()) padded.discardRight(1);
            padded.EnsureMinimumLength(m_nSelStartChar);
            CDC* pDC = GetStandardDC();
            POINT caret;
            caret.x = GetTextWidth(pDC, padded.c_str(), m_nSelStartChar) + m_rcText.left -
                      GetHScrollOffset();
            caret.y = 0;
            ReleaseStandardDC(pDC);
            int column = GetBoxIndexFromPoint(m_nSelStartLine, &caret);
            m_nSelStartChar = m_nSelEndChar = column;
        }
        m_nSelRootLine = m_nSelStartLine;
        m_nSelRootChar = m_nSelStartChar;
    }
    DefineSelectionFromRoot(line, index);
    RedrawLines(std::min(oldFirst, m_nSelStartLine), std::max(oldLast, m_nSelEndLine), 1);
}

void CTextZone::HandleMouseMove(UINT nFlags, POINT* pt) {
    if (!pt) return;
    if (m_nDragState == 0) {
        if (!(nFlags & MK_LBUTTON) || !m_pWnd || GetCapture() != m_pWnd) m_bMouseSelecting = 0;
        if (!m_bMouseSelecting) return;

        AutoScroll(nFlags, pt);
        const bool box = m_nSelectionMode == TZ_SEL_BOX;
        if (box && !TestSelection()) {
            // A box grows in columns: the caret takes the column of the press.
            int column = GetBoxIndexFromPoint(m_nSelStartLine, &g_ptLastPress);
            m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = column;
            m_nSelRootLine = m_nSelStartLine;
        }

        // Outside the text the selection follows the nearest place inside;
        // below, the last whole line.
        POINT p = *pt;
        p.x = std::clamp<LONG>(p.x, m_rcText.left, m_rcText.right);
        int height = m_rcText.bottom - m_rcText.top;
        int lineHeight = std::max(1, m_nLineHeight);
        p.y = std::min<LONG>(p.y, m_rcText.bottom - height % lineHeight - 1);
        p.y = std::max<LONG>(p.y, m_rcText.top);

        int line = GetLineUnderPoint(&p);
        int index;
        if (box)
            index = GetBoxIndexFromPoint(line, &p);
        else
            index = GetCharIndexFromPoint(GetLine(line), &p);

        int mobileLine = GetSelMobileLine();
        if (line != mobileLine || index != GetSelMobileChar()) {
            int first = std::min(mobileLine, line);
            int last = std::max(mobileLine, line);
            if (box) {
                first = std::min(m_nSelStartLine, line);
                last = std::max(m_nSelEndLine, line);
            }
            DefineSelectionFromRoot(line, index);
            RedrawLines(first, last, 1);
            DrawCaret(0, 1);
        }
        if (box && !TestSelection()) {
            // Back to no width: the caret returns to a byte of its line.
            int caret = GetCharIndexFromPoint(GetLine(m_nSelStartLine), &g_ptLastPress);
            m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = caret;
            m_nSelRootLine = m_nSelStartLine;
            DrawCaret(0, 1);
        }
        return;
    }

    if (m_nDragState == 1) {
        m_nDragState = 2;
        DrawCaret(0, 1);
    }
    m_bDragCopyCursor = false;
    if (!PtInRect(&m_rcText, *pt)) {
        AutoScroll(nFlags, pt);
        ShowCursor(IDC_NO);
    } else if (PtInSelection(pt)) {
        ShowCursor(IDC_NO);
    } else {
        // Shift copies in this drag; the system drag uses Ctrl.
        m_bDragCopyCursor = (nFlags & MK_SHIFT) != 0;
        ShowCursor(m_bDragCopyCursor ? kCopyDragCursor : kMoveDragCursor);
    }
}

void CTextZone::DropSelectedText(int nLine, int nChar, bool bCopy) {
    if (!bCopy &&
        (nLine > m_nSelStartLine || (nLine == m_nSelStartLine && nChar > m_nSelStartChar))) {
        // The place as it will be once the selection is gone.
        if (nLine == m_nSelEndLine && nChar >= m_nSelEndChar)
            nChar += m_nSelStartChar - m_nSelEndChar;
        nLine -= m_nSelEndLine - m_nSelStartLine;
    }
    StartRegister(TZ_EDIT_DRAG);
    const std::string text = GetSelectedTextString(0);
    const int oldFirst = m_nSelStartLine;
    const int oldLast = m_nSelEndLine;
    if (!bCopy) DeleteSelection(1);
    SetSelection(nLine, nLine, nChar, nChar, 0, 0);
    if (bCopy) RedrawLines(oldFirst, oldLast, 1);
    InsertText(text.c_str(), 1, 1, 1);
    EndRegister();
    SetModify(1);
    UpdateVScrollBar();
    UpdateHScrollBar(0, TZ_TO_END);
}

void CTextZone::HandleLButtonUp(UINT nFlags, POINT* pt) {
    if (m_nDragState != 0 && pt) {
        int line = GetLineUnderPoint(pt);
        int index = GetCharIndexFromPoint(GetLine(line), pt);
        if (m_nDragState == 1) {
            // A click on the selection that never moved places the caret.
            const int oldFirst = m_nSelStartLine;
            const int oldLast = m_nSelEndLine;
            SetSelection(line, line, index, index, 0, 0);
            RedrawLines(oldFirst, oldLast, 1);
        } else if (m_nDragState == 2) {
            if (PtInRect(&m_rcText, *pt) && !PtInSelection(pt))
                DropSelectedText(line, index, (nFlags & MK_SHIFT) != 0);
            m_bDragCopyCursor = false;
            ShowCursor(IDC_IBEAM);
        }
    }
    if (m_bMouseSelecting) {
        m_bMouseSelecting = 0;
        DrawCaret(1, 1);
    }
    if (m_pWnd && GetCapture() == m_pWnd) ReleaseCapture();
    m_nDragState = 0;
}

void CTextZone::HandleLButtonDblClk(UINT, POINT* pt) {
    HideCaret();
    if (TestSelection()) {
        const int oldFirst = m_nSelStartLine;
        const int oldLast = m_nSelEndLine;
        m_nSelEndLine = m_nSelStartLine;
        m_nSelEndChar = m_nSelStartChar;
        RedrawLines(oldFirst, oldLast, 1);
    }
    int line = pt ? GetLineUnderPoint(pt) : 0;
    CStringEx* pLine = GetLine(line);
    if (!pLine) {
        DrawCaret(1, 1);
        return;
    }
    const int end = pLine->GetLength() - pLine->IsEnded();
    int index = std::min(GetCharIndexFromPoint(pLine, pt), end);
    SetSelectionMode(TZ_SEL_STREAM);

    while (index > 0 && textbytes::IsWordChar((*pLine)[index - 1]))
        --index;
    SetSelection(line, line, index, index, 0, 0);
    const int start = index;
    while (index < pLine->GetLength() && textbytes::IsWordChar((*pLine)[index]))
        ++index;
    // On a blank or punctuation the one byte is taken.
    if (index == start && index < end) ++index;
    DefineSelectionFromRoot(line, index);
    RedrawLines(line, line, 1);
    DrawCaret(1, 1);
}
