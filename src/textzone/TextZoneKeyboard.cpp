// Keys: the entry of HandleKeyDown and its key table, and the few keys that
// are one call each. Moves are in TextZoneKeyMoves.cpp, the editing keys in
// TextZoneKeyEdit.cpp, typed characters in TextZoneChar.cpp.
#include <cstdio>
#include <string>

#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

namespace {

constexpr int kCopyDragCursor = 31;

bool IsDown(int nVirtKey) {
    return GetKeyState(nVirtKey) < 0;
}

}  // namespace

int CTextZone::IsBoxCaret() {
    return m_nSelectionMode == TZ_SEL_BOX && m_nSelStartChar == m_nSelEndChar &&
           m_nSelStartLine != m_nSelEndLine;
}

void CTextZone::HandleKeyDown(UINT nChar, UINT, UINT) {
    // While the button is down the mouse owns the text; Shift only turns a
    // running text drag into a copy.
    if (IsDown(VK_LBUTTON)) {
        if (m_nDragState == 2 && nChar == static_cast<UINT>(VK_SHIFT) && m_pWnd) {
            POINT pt;
            if (GetCursorPos(&pt)) {
                m_pWnd->ScreenToClient(&pt);
                if (PtInRect(&m_rcText, pt) && !PtInSelection(&pt)) {
                    SetCursor(LoadCursorA(nullptr, kCopyDragCursor));
                    m_bDragCopyCursor = true;
                }
            }
        }
        return;
    }
    if (nChar < static_cast<UINT>(VK_BACK) || nChar > static_cast<UINT>(VK_F2)) return;

    const int ctrl = IsDown(VK_CONTROL) ? 1 : 0;
    const int shift = IsDown(VK_SHIFT) ? 1 : 0;
    switch (static_cast<int>(nChar)) {
        case VK_LEFT:
        case VK_RIGHT:
            KeyMoveHorizontal(nChar == VK_RIGHT, ctrl, shift);
            break;
        case VK_UP:
        case VK_DOWN:
            if (ctrl && m_pWnd)
                m_pWnd->SendMessage(WM_VSCROLL, nChar == VK_UP ? SB_LINEUP : SB_LINEDOWN, 0);
            KeyMoveVertical(nChar == VK_DOWN, shift);
            break;
        case VK_PRIOR:
        case VK_NEXT:
            KeyMovePage(nChar == VK_NEXT, shift);
            break;
        case VK_HOME:
        case VK_END:
            KeyHomeEnd(nChar == VK_END, ctrl, shift);
            break;
        case VK_BACK:
        case VK_DELETE:
            KeyBackDelete(nChar == VK_BACK);
            break;
        case VK_TAB:
            // Ctrl does not stop it: an undo started by Ctrl+Z retypes tabs
            // through this key while Ctrl is still held.
            KeyTab(shift);
            break;
        case VK_RETURN:
            KeyReturn();
            break;
        case VK_ESCAPE:
            CancelSelection(1);
            SetSelectionMode(TZ_SEL_STREAM);
            break;
        case 'U':
            if (ctrl && !m_bReadOnly) MakeUpperOrLower(shift ? 0 : 1);
            break;
        case VK_MULTIPLY:
            if (ctrl) KeyNumberLines();
            break;
        case VK_ADD:
            if (ctrl) ExpandCurrentSel();
            break;
        case VK_SUBTRACT:
            if (ctrl) CollapseCurrentSel();
            break;
        case VK_F2:
            if (ctrl)
                ToggleBookmark();
            else
                GotoNextBookmark(shift);
            break;
        default:
            break;
    }
    // The edits keep the running length by steps; a recount settles the
    // line end that the length counts behind an unended last line.
    if (nChar == VK_BACK || nChar == VK_DELETE || nChar == VK_TAB || nChar == VK_RETURN ||
        nChar == VK_MULTIPLY)
        RebuildCurrentLength();
}

// Ctrl+Num *: numbers the lines of a tall caret from 1, all numbers as wide
// as the last one's digits.
void CTextZone::KeyNumberLines() {
    if (m_bReadOnly || m_nSelectionMode != TZ_SEL_BOX || m_nSelStartChar != m_nSelEndChar) return;
    const int n = m_nSelEndLine - m_nSelStartLine;
    if (n <= 0 || n >= 999) return;
    const int digits = n < 9 ? 1 : (n < 99 ? 2 : 3);
    if (m_lMaxLength > 0 && n * digits + m_nCurrentLength > m_lMaxLength) {
        OnTextTooLong();
        if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
        return;
    }
    SetModify(1);
    StartRegister(TZ_EDIT_TYPING);
    HideCaret();
    std::string text;
    for (int i = 1; i <= n + 1; ++i) {
        char number[16];
        std::snprintf(number, sizeof number, "%0*d\r", digits, i);
        text += number;
    }
    const int startLine = m_nSelStartLine;
    const int column = m_nSelStartChar;
    InsertText(text.c_str(), 0, 1, 1);
    m_nSelStartLine = m_nSelRootLine = startLine;
    m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = column + digits;
    EndRegister();
    RedrawLines(startLine, m_nSelEndLine, 1);
    DrawCaret(1, 1);
}

LONG CTextZone::HandleUserMessage(std::uint64_t, std::int64_t) {
    return 0;
}
