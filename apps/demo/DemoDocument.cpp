#include "apps/demo/DemoDocument.h"

#include "apps/demo/DemoCommands.h"
#include "apps/demo/DemoView.h"
#include "apps/demo/FileBytes.h"
#include "editor/EditorDefaults.h"
#include "platform/FrameWnd.h"
#include "platform/Messages.h"
#include "platform/PrintInfo.h"
#include "platform/View.h"
#include "zones/TextZoneParam.h"

const CommandEntry<CDemoDocument> CDemoDocument::s_commands[] = {
    {ID_FILE_SAVE, &CDemoDocument::OnFileSave, nullptr},
    {ID_FILE_SAVE_AS, &CDemoDocument::OnFileSaveAs, nullptr},
    {ID_FILE_CLOSE, &CDemoDocument::OnFileClose, nullptr},
    {ID_FILE_EXPORT_PDF, &CDemoDocument::OnFileExportPdf, nullptr},
    {ID_INDICATOR_LINEEND, nullptr, &CDemoDocument::OnUpdateLineEnd},
    {ID_INDICATOR_LANGUAGE, nullptr, &CDemoDocument::OnUpdateLanguage},
};

BOOL CDemoDocument::OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) {
    if (DispatchCommand<CDemoDocument>(this, s_commands, nID, nCode, pCmdUI)) return TRUE;
    return CDocument::OnCmdMsg(nID, nCode, pCmdUI);
}

CTextZoneParam* CDemoDocument::GetZone() const {
    for (CView* pView : GetViews())
        if (auto* pEditor = dynamic_cast<CEditorViewEx*>(pView)) return pEditor->GetTextZone();
    return nullptr;
}

bool CDemoDocument::Open(const std::string& strPath) {
    CTextZoneParam* pZone = GetZone();
    if (!pZone) return false;
    std::string bytes, strError;
    if (!CFileBytes::Read(strPath, &bytes, &strError)) {
        m_prompts.Tell("Open", strError);
        return false;
    }
    m_file = CTextFile(std::move(bytes));
    pZone->SetText(m_file.GetZoneText());
    m_file.CheckLoaded(*pZone);
    m_file.ReleaseZoneText();
    // A file opens at its top, with nothing to undo and nothing changed.
    pZone->SetSelection(0, 0, 0, 0, 0, 1);
    pZone->FreeAllOperations();
    pZone->SetModify(0);
    SetPathName(strPath.c_str());
    SetModifiedFlag(FALSE);
    if (!m_bLanguageChosen) SetLanguage(CLanguageChoice::ForPath(strPath), false);
    if (!m_file.GetProblems().empty()) m_prompts.Tell("Open " + GetTitle(), m_file.DescribeProblems());
    return true;
}

bool CDemoDocument::WriteTo(const std::string& strPath) {
    CTextZoneParam* pZone = GetZone();
    if (!pZone) return false;
    if (m_file.SavingChangesTheFile() &&
        !m_prompts.Confirm("Save " + GetTitle(), m_file.DescribeSaveChanges()))
        return false;
    std::string strError;
    if (!CFileBytes::Write(strPath, m_file.TextToSave(*pZone), &strError)) {
        m_prompts.Tell("Save", strError);
        return false;
    }
    m_file.MarkSaved();
    // The zone's flag too: the view marks the document again while it is set.
    pZone->SetModify(0);
    if (strPath != GetPathName()) SetPathName(strPath.c_str());
    SetModifiedFlag(FALSE);
    return true;
}

bool CDemoDocument::Save() {
    if (GetPathName().empty()) return SaveAs();
    return WriteTo(GetPathName());
}

bool CDemoDocument::SaveAs() {
    std::string strPath = m_prompts.AskSavePath(GetPathName().empty() ? GetTitle() : GetPathName());
    if (strPath.empty()) return false;
    if (!WriteTo(strPath)) return false;
    if (!m_bLanguageChosen) SetLanguage(CLanguageChoice::ForPath(strPath), false);
    return true;
}

BOOL CDemoDocument::SaveModified() {
    switch (m_prompts.AskSaveChanges(GetTitle())) {
        case IDemoPrompts::EAnswer::Save:
            return Save();
        case IDemoPrompts::EAnswer::Discard:
            return TRUE;
        case IDemoPrompts::EAnswer::Cancel:
        default:
            return FALSE;
    }
}

void CDemoDocument::OnFileClose() {
    for (CView* pView : GetViews())
        if (CFrameWnd* pFrame = pView->GetParentFrame()) {
            pFrame->SendMessage(WM_CLOSE);
            return;
        }
}

void CDemoDocument::SetLanguage(const CLanguageChoice& choice, bool bChosen) {
    m_language = choice;
    m_bLanguageChosen = bChosen;
    ApplyLanguage();
}

void CDemoDocument::ApplyLanguage() {
    CTextZoneParam* pZone = GetZone();
    if (!pZone) return;
    m_language.Apply(*pZone);
    pZone->RedrawTextZone();
}

void CDemoDocument::OnUpdateLineEnd(CCmdUI* pCmdUI) {
    pCmdUI->SetText(m_file.GetLineEndName());
}

void CDemoDocument::OnUpdateLanguage(CCmdUI* pCmdUI) {
    pCmdUI->SetText(m_language.Name().c_str());
}

void CDemoDocument::OnFileExportPdf() {
    std::string strSuggested = GetPathName().empty() ? GetTitle() : GetPathName();
    const size_t nDot = strSuggested.find_last_of('.');
    if (nDot != std::string::npos && strSuggested.find('/', nDot) == std::string::npos)
        strSuggested.erase(nDot);
    std::string strPath = m_prompts.AskSavePath(strSuggested + ".pdf");
    if (!strPath.empty() && !ExportPdf(strPath))
        m_prompts.Tell("Export to PDF", "The text could not be printed to " + strPath + ".");
}

bool CDemoDocument::ExportPdf(const std::string& strPath) {
    for (CView* pView : GetViews()) {
        CPrintInfo info;
        info.m_bDirect = TRUE;
        info.m_pd.strOutputFile = strPath;
        return pView->Print(info);
    }
    return false;
}
