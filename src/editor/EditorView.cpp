// The view's set-up, its text rectangle and its font.
#include "editor/EditorView.h"

#include <memory>

#include "platform/DC.h"
#include "platform/Document.h"
#include "platform/Font.h"
#include "platform/GdiObjects.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

CEditorView::~CEditorView() {
    // The window goes first: its last messages still reach the zone.
    DestroyWindow();
    m_pDropTarget.reset();
}

int CEditorView::OnCreate(CREATESTRUCT* pcs) {
    m_pZone->SetStyle(ZS_AUTOINDENT | ZS_SELTOEDGE);
    m_pZone->SetTabWidth(-4);
    m_pZone->SetWindow(this);
    m_crBackground = GetSysColor(COLOR_WINDOW);
    ModifyStyle(0, WS_HSCROLL | WS_VSCROLL);
    ShowScrollBar(SB_HORZ, TRUE);
    ShowScrollBar(SB_VERT, TRUE);
    m_bCreated = 1;
    m_pZone->SetFont(reinterpret_cast<HFONT>(GetStockObject(SYSTEM_FIXED_FONT)));
    if (m_bOleDropTarget && m_pDropTarget) m_pDropTarget->Register(this);
    return CView::WindowProc(WM_CREATE, 0, reinterpret_cast<LPARAM>(pcs));
}

int CEditorView::GetFontHeight() {
    // Measured on the screen, as the frame measures it while it is sized.
    std::unique_ptr<CDC> pDC(CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    if (!pDC) return 0;
    HFONT hFont = m_pZone->GetFont();
    if (hFont) pDC->SelectObject(hFont);
    TEXTMETRICA tm;
    pDC->GetTextMetrics(&tm);
    return tm.tmHeight;
}

void CEditorView::OnSize(UINT, int, int) {
    RECT rc;
    GetClientRect(&rc);
    rc.left += 3;
    rc.top += 3;
    rc.right -= 3;
    rc.bottom -= 3;
    if (!(m_pZone->GetStyle() & ZS_VARHEIGHT)) {
        int h = GetFontHeight();
        if (h > 0 && rc.bottom > rc.top) rc.bottom = rc.top + (rc.bottom - rc.top) / h * h;
    }
    m_pZone->SetRect(&rc);
    m_pZone->SetMaxWidth(rc.right - rc.left - 10);
    // Nothing is invalidated here: the frame repaints what its size uncovered.
}

LRESULT CEditorView::CalcTextArea(CWnd* pWnd, BOOL bCalcValidRects, NCCALCSIZE_PARAMS* pParams) {
    CWnd* pTop = pWnd->GetTopWindow();
    pWnd->Default();
    if (!bCalcValidRects || !pParams) return 0;
    const int cxBar = GetSystemMetrics(SM_CXHSCROLL);
    const int cyBar = GetSystemMetrics(SM_CYVSCROLL);
    auto inset = [&](RECT& rc) {
        rc.left += 3;
        rc.top += 3;
        rc.right -= 3 + cxBar;
        rc.bottom -= 3 + cyBar;
    };
    inset(pParams->rgrc[2]);
    pParams->rgrc[1] = pParams->rgrc[0];
    inset(pParams->rgrc[1]);
    if (auto* pView = dynamic_cast<CEditorView*>(pTop)) {
        int h = pView->GetFontHeight();
        if (h > 0) {
            for (int i : {1, 2}) {
                RECT& rc = pParams->rgrc[i];
                if (rc.bottom > rc.top) rc.bottom = rc.top + (rc.bottom - rc.top) / h * h;
            }
        }
    }
    return WVR_VALIDRECTS;
}

void CEditorView::SetFont(CFont* pFont, int bRedraw) {
    m_hFont = pFont ? pFont->GetSafeHandle() : nullptr;
    m_pZone->SetFont(m_hFont);
    RECT rc;
    GetClientRect(&rc);
    OnSize(SIZE_RESTORED, rc.right, rc.bottom);
    if (bRedraw) RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CEditorView::SetOleDropTarget(bool b) {
    m_bOleDropTarget = b;
    if (!m_pDropTarget) m_pDropTarget = std::make_unique<COleEditDropTarget>(this);
}

void CEditorView::OnDraw(CDC* pDC) {
    m_pZone->HandlePaint(pDC);
}

void CEditorView::MarkDocumentIfModified() {
    if (m_pZone->GetModify())
        if (CDocument* pDoc = GetDocument()) pDoc->SetModifiedFlag(TRUE);
}

bool CEditorView::HasSelection() {
    return m_pZone->TestSelection() != 0;
}
