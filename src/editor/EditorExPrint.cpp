// The control's printing: the print loop a view gets from the framework,
// with the walk over the pages the view uses too.
#include "editor/EditorEx.h"
#include "platform/CmdUI.h"
#include "platform/PrintJob.h"
#include "zones/TextZoneParam.h"

void CEditorEx::OnFilePrint(BOOL bDirect) {
    CPrintInfo info;
    info.m_bDirect = bDirect;
    PrintTo(info);
}

BOOL CEditorEx::PrintTo(CPrintInfo& info) {
    return CPrintJob::RunFor(*this, info, this);
}

void CEditorEx::OnUpdateFilePrint(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_pZone->IsEmpty());
}

int CEditorEx::DoPreparePrinting(CPrintInfo* pInfo) {
    return CPrintJob::DoPreparePrinting(this, pInfo);
}

BOOL CEditorEx::OnPreparePrinting(CPrintInfo* pInfo) {
    return DoPreparePrinting(pInfo);
}

void CEditorEx::OnBeginPrinting(CDC* pDC, CPrintInfo*) {
    m_printing.BeginPrinting(*m_pZone, pDC);
}

void CEditorEx::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    if (pInfo) m_printing.PrepareDC(*m_pZone, *this, pDC, pInfo);
}

void CEditorEx::OnPrint(CDC* pDC, CPrintInfo* pInfo) {
    m_printing.Print(*m_pZone, pDC, pInfo);
}

void CEditorEx::OnEndPrinting(CDC*, CPrintInfo*) {
    m_printing.EndPrinting();
}

int CEditorEx::PaginateTo(CDC* pDC, CPrintInfo* pInfo) {
    return m_printing.PaginateTo(*m_pZone, *this, pDC, pInfo);
}

UINT CEditorEx::PrintInsideRect(CDC* pDC, RECT& rect, UINT nLine, UINT& nChar) {
    return m_printing.PrintInsideRect(*m_pZone, pDC, rect, nLine, nChar);
}
