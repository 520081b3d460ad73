#include "apps/demo/DemoView.h"

#include "apps/demo/DemoDocument.h"

LRESULT CDemoView::OnLoadIniSetting(WPARAM wParam, LPARAM lParam) {
    LRESULT lResult = CEditorViewEx::OnLoadIniSetting(wParam, lParam);
    // The settings colour every text as SQL; a text in another language
    // keeps its own.
    if (auto* pDoc = dynamic_cast<CDemoDocument*>(GetDocument())) pDoc->ApplyLanguage();
    return lResult;
}
