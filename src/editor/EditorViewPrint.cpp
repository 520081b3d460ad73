// The view prints through the framework's print loop; the walk over the
// pages is the one the control uses too.
#include "editor/EditorView.h"
#include "platform/PrintJob.h"

BOOL CEditorView::OnPreparePrinting(CPrintInfo* pInfo) {
    return DoPreparePrinting(pInfo);
}

void CEditorView::OnBeginPrinting(CDC* pDC, CPrintInfo*) {
    m_printing.BeginPrinting(*m_pZone, pDC);
}

void CEditorView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    if (!pInfo) {
        CVeskView::OnPrepareDC(pDC, pInfo);
        return;
    }
    m_printing.PrepareDC(*m_pZone, *this, pDC, pInfo);
}

void CEditorView::OnPrint(CDC* pDC, CPrintInfo* pInfo) {
    m_printing.Print(*m_pZone, pDC, pInfo);
}

void CEditorView::OnEndPrinting(CDC*, CPrintInfo*) {
    m_printing.EndPrinting();
}

int CEditorView::PaginateTo(CDC* pDC, CPrintInfo* pInfo) {
    return m_printing.PaginateTo(*m_pZone, *this, pDC, pInfo);
}

UINT CEditorView::PrintInsideRect(CDC* pDC, RECT& rect, UINT nLine, UINT& nChar) {
    return m_printing.PrintInsideRect(*m_pZone, pDC, rect, nLine, nChar);
}
