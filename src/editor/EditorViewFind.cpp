// The view's part in find and replace: the shared dialog logic, with the
// document marked when a replacement changed the text.
#include "editor/EditFindReplace.h"
#include "editor/EditorView.h"
#include "host/MessageBeep.h"
#include "platform/Document.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

void CEditorView::OnFindNext(const char* pszFind, int bNext, int bCase) {
    CEditFindReplace::Instance().FindNext(*this, pszFind, bNext, bCase);
}

void CEditorView::OnReplaceSel(const char* pszFind, int bNext, int bCase,
                               const char* pszReplace) {
    CEditFindReplace::Instance().ReplaceSel(*this, pszFind, bNext, bCase, pszReplace, true);
}

void CEditorView::OnReplaceAll(const char* pszFind, const char* pszReplace, int bCase) {
    CEditFindReplace::Instance().ReplaceAll(*this, pszFind, pszReplace, bCase);
}

void CEditorView::OnTextNotFound(const char*) {
    VESKMessageBeep(0);
}

void CEditorView::OnEditFindReplace(int bFindOnly) {
    CEditFindReplace::Instance().Open(*this, bFindOnly, true);
}

int CEditorView::InitializeReplace() {
    return CEditFindReplace::Instance().InitializeReplace(*this);
}

void CEditorView::OnFindReplaceModified() {
    if (CDocument* pDoc = GetDocument()) pDoc->SetModifiedFlag(TRUE);
}

LRESULT CEditorView::OnFindReplaceCmd(WPARAM wParam, LPARAM lParam) {
    static const UINT s_nMessage = RegisterWindowMessageA("commdlg_FindReplace");
    return CEditFindReplace::Instance().OnFindReplaceCmd(*this, s_nMessage, wParam, lParam);
}
