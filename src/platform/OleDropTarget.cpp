#include "platform/OleDropTarget.h"

#include "platform/Messages.h"
#include "platform/Platform.h"

COleDropTarget::~COleDropTarget() {
    Revoke();
}

BOOL COleDropTarget::Register(CWnd* pWnd) {
    IPlatform* p = GetPlatform();
    if (!p || !pWnd) return FALSE;
    Revoke();
    if (!p->RegisterDropTarget(pWnd, this)) return FALSE;
    m_pWnd = pWnd;
    return TRUE;
}

void COleDropTarget::Revoke() {
    if (!m_pWnd) return;
    if (IPlatform* p = GetPlatform()) p->RevokeDropTarget(m_pWnd);
    m_pWnd = nullptr;
}

DWORD COleDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

DWORD COleDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

void COleDropTarget::OnDragLeave(CWnd*) {}

BOOL COleDropTarget::OnDrop(CWnd*, COleDataObject*, DWORD, CPoint) {
    return FALSE;
}
