// The system's drag and drop: dragging selected text out of a zone, and
// dropping text into one. A zone can receive its own drop while its drag is
// still running; m_bOleDragSource tells that move from a drop from elsewhere.
#include <string>
#include <vector>

#include "platform/Messages.h"
#include "platform/OleDataSource.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

bool CTextZone::IsOleDragAllowed(UINT, POINT* pt) {
    return m_bDragDrop && TestSelection() && pt && PtInSelection(pt) &&
           m_nSelectionMode != TZ_SEL_BOX && GetKeyState(VK_MENU) >= 0;
}

bool CTextZone::IsOleDropAllowed(UINT, POINT*) {
    return m_bDragDrop && !m_bReadOnly;
}

void CTextZone::HandleOleLButtonDown(UINT nFlags, POINT* pt) {
    if (IsOleDragAllowed(nFlags, pt))
        HandleOleDrag(nFlags, pt);
    else
        HandleLButtonDown(nFlags, pt);
}

void CTextZone::HandleOleLButtonUp(UINT, POINT*) {
    if (m_bMouseSelecting) {
        m_bMouseSelecting = 0;
        DrawCaret(1, 1);
    }
    if (m_pWnd && GetCapture() == m_pWnd) ReleaseCapture();
}

void CTextZone::HandleOleMouseMove(UINT nFlags, POINT* pt) {
    if (pt) AutoScroll(nFlags, pt);
}

int CTextZone::HandleOleDrag(UINT, POINT* pt) {
    COleDataSource source;
    source.CacheGlobalData(CF_TEXT, GetSelectedTextString(0));
    m_bOleDragSource = 1;
    DWORD effect = source.DoDragDrop(
        m_bReadOnly ? DROPEFFECT_COPY : DROPEFFECT_COPY | DROPEFFECT_MOVE, m_pWnd);
    source.Empty();

    // Still set, the drop happened elsewhere (or nowhere) and the text that
    // moved away is ours to remove; a move inside the zone has cleared it.
    const bool droppedElsewhere = m_bOleDragSource != 0;
    m_bOleDragSource = 0;
    if (effect != DROPEFFECT_NONE) {
        if (droppedElsewhere && (effect & DROPEFFECT_MOVE) && !m_bReadOnly) {
            StartRegister(TZ_EDIT_DRAG);
            DeleteSelection(1);
            EndRegister();
            SetModify(1);
            UpdateVScrollBar();
            UpdateHScrollBar(0, TZ_TO_END);
        }
        return 1;
    }

    // Nothing was dropped: the press was a click.
    int line = pt ? GetLineUnderPoint(pt) : 0;
    int index = pt ? GetCharIndexFromPoint(GetLine(line), pt) : 0;
    SetSelection(line, line, index, index, 0, 1);
    DrawCaret(1, 1);
    return 0;
}

int CTextZone::HandleOleDrop(const char* pszText, ULONG dropEffect, POINT* pt) {
    if (!pt) return 0;
    if ((dropEffect & DROPEFFECT_MOVE) && m_bOleDragSource) {
        m_bOleDragSource = 0;
        if (PtInSelection(pt)) return 0;
        return DoOleMoveItem(pt) ? 1 : 0;
    }
    return DoOlePasteItem(pszText, pt) ? 1 : 0;
}

bool CTextZone::DoOleMoveItem(POINT* pt) {
    bool moved = false;
    if (PtInRect(&m_rcText, *pt) && !PtInSelection(pt)) {
        int line = GetLineUnderPoint(pt);
        int index = GetCharIndexFromPoint(GetLine(line), pt);
        DropSelectedText(line, index, false);
        moved = true;
    }
    m_nDragState = 0;
    return moved;
}

bool CTextZone::DoOlePasteItem(const char* pszText, POINT* pt) {
    bool pasted = false;
    if (pszText && PtInRect(&m_rcText, *pt)) {
        int line = GetLineUnderPoint(pt);
        int index = GetCharIndexFromPoint(GetLine(line), pt);
        CancelSelection(1);
        StartRegister(TZ_EDIT_DRAG);
        SetSelection(line, line, index, index, 0, 0);
        InsertText(pszText, 1, 1, 1);
        EndRegister();
        SetModify(1);
        UpdateVScrollBar();
        UpdateHScrollBar(0, TZ_TO_END);
        pasted = true;
    }
    m_nDragState = 0;
    return pasted;
}
