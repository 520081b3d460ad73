#include "editor/OleEditDropTarget.h"

DWORD COleEditDropTarget::OnDragEnter(CWnd*, COleDataObject* pDataObject, DWORD dwKeyState,
                                      CPoint point) {
    return m_pSink->OnDragEnter(pDataObject, dwKeyState, point);
}

DWORD COleEditDropTarget::OnDragOver(CWnd*, COleDataObject* pDataObject, DWORD dwKeyState,
                                     CPoint point) {
    return m_pSink->OnDragOver(pDataObject, dwKeyState, point);
}

void COleEditDropTarget::OnDragLeave(CWnd*) {
    m_pSink->OnDragLeave();
}

BOOL COleEditDropTarget::OnDrop(CWnd*, COleDataObject* pDataObject, DWORD dropEffect,
                                CPoint point) {
    return m_pSink->OnDrop(pDataObject, dropEffect, point);
}
