// The extended control's part in find and replace: the dialog logic all
// editors share, with the parent told when a replacement changed the text.
#include "editor/EditFindReplace.h"
#include "editor/EditorEx.h"
#include "host/MessageBeep.h"

void CEditorEx::OnTextNotFound(const char*) {
    VESKMessageBeep(0);
}

void CEditorEx::Find(int bFindOnly) {
    // The control offers no replacement text of an earlier replace.
    CEditFindReplace::Instance().Open(*this, bFindOnly, false);
}

void CEditorEx::FindNext() {
    CEditFindReplace::Instance().Repeat(*this);
}

int CEditorEx::InitializeReplace() {
    return CEditFindReplace::Instance().InitializeReplace(*this);
}

void CEditorEx::OnFindNext(const char* pszFind, int bNext, int bCase) {
    CEditFindReplace::Instance().FindNext(*this, pszFind, bNext, bCase);
}

void CEditorEx::OnReplaceSel(const char* pszFind, int bNext, int bCase, const char* pszReplace) {
    CEditFindReplace::Instance().ReplaceSel(*this, pszFind, bNext, bCase, pszReplace, true);
}

void CEditorEx::OnReplaceAll(const char* pszFind, const char* pszReplace, int bCase) {
    CEditFindReplace::Instance().ReplaceAll(*this, pszFind, pszReplace, bCase);
}
