#include "apps/demo/DemoMainFrame.h"

#include <memory>

#include "apps/demo/DemoCommands.h"
#include "apps/demo/DemoDocument.h"
#include "apps/demo/DemoView.h"
#include "editor/EditFrm.h"
#include "editor/EditorDefaults.h"
#include "host/AppDataManager.h"
#include "platform/CmdUI.h"
#include "platform/MDIChildWnd.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

namespace {

CLanguageChoice Dialect(int nDialect) {
    CLanguageChoice choice;
    CLanguageChoice::FromDialect(nDialect, &choice);
    return choice;
}

CLanguageChoice Client(const char* pszArgument) {
    CLanguageChoice choice;
    CLanguageChoice::FromArgument(pszArgument, &choice);
    return choice;
}

}  // namespace

const std::vector<CDemoMainFrame::LanguageEntry>& CDemoMainFrame::Languages() {
    static const std::vector<LanguageEntry> languages = {
        {"T-SQL (dialect 150)", Dialect(150)},
        {"T-SQL (dialect 80)", Dialect(80)},
        {"PL/SQL", Dialect(-92)},
        {"UDB SQL", Dialect(-1050)},
        {"C/C++", Client("cpp")},
        {"C#", Client("cs")},
        {"Java", Client("java")},
        {"Objective-C", Client("1250")},
        {"Visual Basic", Client("vb")},
        {"PowerBuilder", Client("35")},
        {"Delphi", Client("pas")},
        {"COBOL", Client("cbl")},
        {"JCL", Client("jcl")},
        {"HTML", Client("html")},
        {"Plain Text", CLanguageChoice()},
    };
    return languages;
}

CDemoDocument* CDemoMainFrame::Create() {
    if (!m_pPrompts) return nullptr;
    auto pDoc = std::make_unique<CDemoDocument>(*m_pPrompts);
    CDemoDocument* pRaw = pDoc.get();
    if (!OpenDocument(std::move(pDoc), std::make_unique<CEditFrm>(), std::make_unique<CDemoView>()))
        return nullptr;
    return pRaw;
}

CDemoDocument* CDemoMainFrame::NewDocument() {
    CDemoDocument* pDoc = Create();
    if (!pDoc) return nullptr;
    pDoc->SetTitle(("Untitled" + std::to_string(++m_nUntitled) + ".sql").c_str());
    pDoc->SetLanguage(m_bDefaultLanguage ? m_defaultLanguage : Dialect(150), m_bDefaultLanguage);
    return pDoc;
}

CDemoDocument* CDemoMainFrame::OpenFile(const std::string& strPath) {
    for (CMDIChildWnd* pChild : GetChildFrames()) {
        CView* pView = pChild->GetPaneView();
        auto* pOpen = pView ? dynamic_cast<CDemoDocument*>(pView->GetDocument()) : nullptr;
        if (pOpen && pOpen->GetPathName() == strPath) {
            MDIActivate(pChild);
            return pOpen;
        }
    }
    CDemoDocument* pDoc = Create();
    if (!pDoc) return nullptr;
    if (m_bDefaultLanguage) pDoc->SetLanguage(m_defaultLanguage, true);
    if (!pDoc->Open(strPath)) {
        if (CView* pView = pDoc->GetViews().empty() ? nullptr : pDoc->GetViews().front())
            pView->GetParentFrame()->DestroyWindow();
        return nullptr;
    }
    return pDoc;
}

CDemoDocument* CDemoMainFrame::GetActiveDemoDocument() {
    return dynamic_cast<CDemoDocument*>(GetActiveDocument());
}

BOOL CDemoMainFrame::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (CMDIFrameWnd::OnCmdMsg(nID, nCode, pCmdUI)) return TRUE;
    const bool bRun = nCode == CN_COMMAND;
    switch (nID) {
        case ID_FILE_NEW:
            if (bRun) NewDocument();
            return nCode != CN_UPDATE_COMMAND_UI;
        case ID_FILE_OPEN:
            if (bRun && m_pPrompts) {
                std::string strPath = m_pPrompts->AskOpenPath();
                if (!strPath.empty()) OpenFile(strPath);
            }
            return nCode != CN_UPDATE_COMMAND_UI;
        default:
            break;
    }
    if (nID >= ID_KEYWORDCASE_FIRST && nID <= ID_KEYWORDCASE_LAST)
        return OnKeywordCaseCommand(nID - ID_KEYWORDCASE_FIRST, nCode, pCmdUI);
    if (nID >= ID_LANGUAGE_FIRST && nID <= ID_LANGUAGE_FIRST + Languages().size())
        return OnLanguageCommand(nID - ID_LANGUAGE_FIRST, nCode, pCmdUI);
    return FALSE;
}

BOOL CDemoMainFrame::OnLanguageCommand(UINT nIndex, int nCode, CCmdUI* pCmdUI) {
    CDemoDocument* pDoc = GetActiveDemoDocument();
    if (nCode == CN_UPDATE_COMMAND_UI) {
        pCmdUI->Enable(pDoc != nullptr);
        bool bChecked = false;
        if (pDoc && nIndex == 0) {
            bChecked = !pDoc->IsLanguageChosen();
        } else if (pDoc && pDoc->IsLanguageChosen()) {
            const CLanguageChoice& mine = pDoc->GetLanguage();
            const CLanguageChoice& item = Languages()[nIndex - 1].choice;
            bChecked = mine.m_kind == item.m_kind && mine.m_nId == item.m_nId;
        }
        pCmdUI->SetCheck(bChecked);
        return TRUE;
    }
    if (nCode == CN_COMMAND && pDoc) {
        if (nIndex == 0)
            pDoc->SetLanguage(CLanguageChoice::ForPath(pDoc->GetPathName().empty()
                                                           ? pDoc->GetTitle()
                                                           : pDoc->GetPathName()),
                              false);
        else
            pDoc->SetLanguage(Languages()[nIndex - 1].choice, true);
    }
    return TRUE;
}

BOOL CDemoMainFrame::OnKeywordCaseCommand(UINT nMode, int nCode, CCmdUI* pCmdUI) {
    if (nCode == CN_UPDATE_COMMAND_UI) {
        pCmdUI->SetCheck(ReadSettingInt("Editor", "KeywordMode", 0) == static_cast<int>(nMode));
        return TRUE;
    }
    if (nCode == CN_COMMAND) {
        // A setting: written to the store, then every open editor reloads.
        WriteSettingInt("Editor", "KeywordMode", static_cast<int>(nMode));
        CEditorDefaults::BroadcastSettingsChanged();
    }
    return TRUE;
}
