// The control's message map: window and edit-control messages become calls
// on the zone, and user actions tell the parent when they changed the text.
#include <cstring>

#include "editor/Editor.h"
#include "editor/EditorInput.h"
#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/ScrollBar.h"
#include "textzone/TextZone.h"

namespace {

bool KeyDown(int nVirtKey) {
    return GetKeyState(nVirtKey) < 0;
}

CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

}  // namespace

void CEditor::Notifying(const std::function<void()>& action, bool bCountDepth) {
    if (bCountDepth) ++m_nNotifyDepth;
    int bSaved = m_pZone->GetModify();
    m_pZone->SetModify(0);
    action();
    if (m_pZone->GetModify())
        PostChange();
    else
        m_pZone->SetModify(bSaved);
    if (bCountDepth) --m_nNotifyDepth;
}

void CEditor::PostChange() {
    if (CWnd* pParent = GetParent())
        pParent->PostMessage(WM_COMMAND, MAKEWPARAM(static_cast<int>(GetDlgCtrlID()), EN_CHANGE),
                             reinterpret_cast<LPARAM>(this));
}

LRESULT CEditor::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    CTextZone& zone = *m_pZone;
    if (LRESULT lResult; ForwardToZone(zone, message, wParam, lParam, &lResult)) return lResult;
    switch (message) {
        case WM_ERASEBKGND:
            return OnEraseBkgnd(reinterpret_cast<CDC*>(wParam));
        case WM_PAINT:
            OnPaint();
            return 0;
        case WM_KEYDOWN:
            OnKeyDown(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_CHAR:
            OnChar(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_SETFOCUS:
            LazyInit();
            zone.HandleSetFocus(reinterpret_cast<CWnd*>(wParam));
            return 0;
        case WM_LBUTTONDOWN:
            OnLButtonDown(static_cast<UINT>(wParam), PointOf(lParam));
            return 0;
        case WM_LBUTTONUP:
            OnLButtonUp(static_cast<UINT>(wParam), PointOf(lParam));
            return 0;
        case WM_MOUSEMOVE: {
            LazyInit();
            CPoint pt = PointOf(lParam);
            zone.HandleMouseMove(static_cast<UINT>(wParam), &pt);
            return 0;
        }
        case WM_RBUTTONDOWN:
            return 0;
        case WM_SIZE:
            OnSize(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_SETCURSOR:
            return OnSetCursor(reinterpret_cast<CWnd*>(wParam), LOWORD(lParam), HIWORD(lParam));
        case WM_MOUSEWHEEL:
            return OnMouseWheel(LOWORD(wParam), GET_WHEEL_DELTA_WPARAM(wParam), PointOf(lParam));
        case WM_SETTEXT:
            SetWindowTextA(reinterpret_cast<const char*>(lParam));
            return 0;
        case WM_GETTEXT: {
            auto* pBuffer = reinterpret_cast<char*>(lParam);
            if (!pBuffer || wParam == 0) return 0;
            zone.GetText(pBuffer, static_cast<LONG>(wParam), TF_CRLF);
            return static_cast<LRESULT>(std::strlen(pBuffer));
        }
        case WM_GETTEXTLENGTH:
            return zone.GetTextLength(TF_CRLF);
        case EM_GETSEL: {
            // The 16-bit form: the pointers in wParam and lParam stay unwritten.
            int nStart = 0, nEnd = 0;
            GetSel(nStart, nEnd);
            return static_cast<DWORD>(MAKELONG(nStart, nEnd));
        }
        case EM_SETSEL:
            // Both ends come from lParam, as in the 16-bit form of the message.
            zone.SetSelection(LOWORD(lParam), HIWORD(lParam), 0, 0, 1, 1);
            return 0;
        case EM_GETMODIFY:
            return zone.GetModify();
        case EM_SETMODIFY:
            zone.SetModify(static_cast<int>(wParam));
            return 0;
        case EM_GETLINECOUNT:
            return GetLineCount();
        case EM_LINEINDEX:
            return zone.LineIndex(static_cast<int>(wParam));
        case EM_LINELENGTH:
            // A line number here, not a character position.
            return LineLength(static_cast<int>(wParam));
        case EM_REPLACESEL:
            ReplaceSel(reinterpret_cast<const char*>(lParam));
            return 0;
        case EM_GETLINE: {
            // The size word at the head of the buffer is not read: the caller
            // gives room for the whole line.
            auto* pBuffer = reinterpret_cast<char*>(lParam);
            if (!pBuffer) return 0;
            CStringEx* pLine = zone.GetLine(static_cast<int>(wParam));
            int n = pLine ? pLine->GetLength() : 0;
            if (n) std::memcpy(pBuffer, pLine->c_str(), static_cast<size_t>(n));
            pBuffer[n] = 0;
            return n;
        }
        case EM_LIMITTEXT:
            zone.SetMaxLength(static_cast<LONG>(wParam));
            return 0;
        case EM_CANUNDO:
            return CanUndo();
        case EM_UNDO:
        case WM_UNDO:
            return Undo();
        case EM_LINEFROMCHAR:
            return zone.LineFromChar(static_cast<LONG>(wParam), 0);
        case EM_SETTABSTOPS: {
            auto* pStops = reinterpret_cast<const int*>(lParam);
            if (wParam != 1 || !pStops) return 0;
            zone.SetTabWidth(*pStops);
            return 1;
        }
        case EM_EMPTYUNDOBUFFER:
            zone.FreeAllOperations();
            return 0;
        case EM_GETFIRSTVISIBLELINE:
            return GetScrollPos(SB_VERT);
        case EM_SETREADONLY:
            zone.SetReadOnly(static_cast<int>(wParam));
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTALLKEYS;
        case WM_CUT:
        case WM_COPY:
        case WM_PASTE:
            ++m_nNotifyDepth;
            if (message == WM_CUT)
                zone.Cut();
            else if (message == WM_COPY)
                zone.Copy();
            else
                zone.Paste();
            --m_nNotifyDepth;
            return 1;
        default:
            return CWnd::WindowProc(message, wParam, lParam);
    }
}

BOOL CEditor::OnEraseBkgnd(CDC* pDC) {
    LazyInit();
    if (!pDC) return 1;
    RECT rc;
    GetClientRect(&rc);
    CBrush brush;
    brush.CreateSolidBrush(m_crBackground);
    pDC->FillRect(&rc, &brush);
    return 1;
}

void CEditor::OnPaint() {
    if (m_nNotifyDepth > 0 && m_pZone->GetModify()) {
        if (CWnd* pParent = GetParent())
            pParent->SendMessage(WM_COMMAND,
                                 MAKEWPARAM(static_cast<int>(GetDlgCtrlID()), EN_UPDATE),
                                 reinterpret_cast<LPARAM>(this));
    }
    PAINTSTRUCT ps;
    CDC* pDC = BeginPaint(&ps);
    LazyInit();
    if (pDC) {
        if (GetStyle() & WS_BORDER) {
            RECT rc;
            GetClientRect(&rc);
            pDC->SelectStockObject(BLACK_PEN);
            pDC->SelectStockObject(NULL_BRUSH);
            pDC->Rectangle(&rc);
            pDC->SelectStockObject(WHITE_BRUSH);
        }
        m_pZone->HandlePaint(pDC);
    }
    EndPaint(&ps);
}

void CEditor::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    LazyInit();
    Notifying([&] {
        if (nChar == VK_ESCAPE) {
            if (CWnd* pParent = GetParent()) pParent->PostMessage(WM_CLOSE);
            return;
        }
        if (nChar >= VK_BACK && nChar <= 'Z') {
            const bool ctrl = KeyDown(VK_CONTROL);
            const bool shift = KeyDown(VK_SHIFT);
            const bool alt = KeyDown(VK_MENU);
            if (alt && nChar == VK_BACK) {
                Undo();
                return;
            }
            if (ctrl) {
                switch (nChar) {
                    case 'A':
                        m_pZone->SetSelection(0, -1, 0, 0, 1, 1);
                        return;
                    case 'C':
                    case VK_INSERT:
                        Copy();
                        return;
                    case 'X':
                        Cut();
                        return;
                    case 'V':
                        Paste();
                        return;
                    case 'Y':
                        Redo();
                        return;
                    case 'Z':
                        Undo();
                        return;
                    default:
                        break;
                }
            }
            if (shift && nChar == VK_INSERT) {
                Paste();
                return;
            }
            if (shift && nChar == VK_DELETE) {
                Cut();
                return;
            }
        }
        m_pZone->HandleKeyDown(nChar, nRepCnt, nFlags);
    });
}

void CEditor::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    // Ctrl+Space belongs to the completion, never to the text.
    if (nChar == ' ' && KeyDown(VK_CONTROL)) return;
    Notifying([&] { m_pZone->HandleChar(nChar, nRepCnt, nFlags); });
}

void CEditor::OnLButtonDown(UINT nFlags, CPoint point) {
    LazyInit();
    SetFocus();
    // The frame of a key, but a click does not count as an action in
    // progress: a paint meanwhile announces no update.
    Notifying(
        [&] {
            if (m_bOleDataSource)
                m_pZone->HandleOleLButtonDown(nFlags, &point);
            else
                m_pZone->HandleLButtonDown(nFlags, &point);
        },
        false);
}

void CEditor::OnLButtonUp(UINT nFlags, CPoint point) {
    // The drop-target flag decides here, where the press asked the
    // data-source flag: hosts set both or neither.
    if (m_bOleDropTarget)
        m_pZone->HandleOleLButtonUp(nFlags, &point);
    else
        m_pZone->HandleLButtonUp(nFlags, &point);
}

void CEditor::OnSize(UINT, int, int) {
    RECT client;
    GetClientRect(&client);
    RECT rc = client;
    rc.left += 3;
    rc.top += 3;
    rc.right -= 3;
    rc.bottom -= 3;
    // Whole lines only, so that no half line shows at the bottom.
    if (!(m_pZone->GetStyle() & ZS_VARHEIGHT)) {
        int h = 0;
        for (int n = 0; h == 0 && n <= m_pZone->GetLineCount(); ++n)
            h = m_pZone->GetLineHeight(n);
        if (h > 0 && rc.bottom > rc.top) rc.bottom = rc.top + (rc.bottom - rc.top) / h * h;
    }
    RECT old;
    m_pZone->GetRect(&old);
    m_pZone->SetRect(&rc);
    m_pZone->SetMaxWidth(rc.right - rc.left - 10);

    if (old.right > old.left && old.bottom > old.top) {
        // Only what the text rectangle no longer covers as before.
        CRgn all, kept, rest;
        all.CreateRectRgnIndirect(&client);
        RECT both;
        if (!IntersectRect(&both, &old, &rc)) both = RECT{};
        kept.CreateRectRgnIndirect(&both);
        rest.CreateRectRgn(0, 0, 0, 0);
        rest.CombineRgn(&all, &kept, RGN_DIFF);
        InvalidateRgn(&rest, TRUE);
    } else {
        Invalidate(TRUE);
    }
    UpdateWindow();
}
