#include "pages/PageFactories.h"

#include <memory>

#include "pages/EditorFontPage.h"
#include "pages/EditorOptionPage.h"
#include "pages/EditorShortcutPage.h"
#include "platform/PropertySheet.h"

void EditEx32_AddOptionPage(CPropertySheet* pSheet, char const* pSection) {
    if (pSheet) pSheet->AddPage(std::make_unique<CEditorOptionPage>(false, pSection));
}

void EditEx32_AddOptionPageTSQL(CPropertySheet* pSheet, char const* pSection) {
    if (pSheet) pSheet->AddPage(std::make_unique<CEditorOptionPage>(true, pSection));
}

void EditEx32_AddFontPage(CPropertySheet* pSheet, char const* pSection) {
    if (pSheet) pSheet->AddPage(std::make_unique<CEditorFontPage>(pSection));
}

void EditEx32_AddShortcutPage(CPropertySheet* pSheet, char const* pSection) {
    if (pSheet) pSheet->AddPage(std::make_unique<CEditorShortcutPage>(pSection));
}
