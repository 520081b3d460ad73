// One text of the demo: the file it came from, with that file's line ends
// and what the editor could not hold of it, and the language it is coloured
// in. It opens and saves without ever losing the user's text: a file that
// cannot be read or written is said in a dialog, what the editor changed
// on reading is said on opening and confirmed before saving, and a modified
// text is asked about before it goes.
#pragma once

#include <string>

#include "apps/common/LanguageChoice.h"
#include "apps/demo/DemoPrompts.h"
#include "apps/demo/TextFile.h"
#include "platform/CommandMap.h"
#include "platform/Document.h"

class CTextZoneParam;

class CDemoDocument : public CDocument {
public:
    explicit CDemoDocument(IDemoPrompts& prompts) : m_prompts(prompts) {}

    // Reads a file into the view's zone; false, after saying why, if it
    // cannot be read.
    bool Open(const std::string& strPath);
    // To the file's path, or to one the user gives; false if not saved.
    bool Save();
    bool SaveAs();
    BOOL SaveModified() override;

    // The zone of the document's view, null before it has one.
    CTextZoneParam* GetZone() const;
    const CTextFile& GetFile() const { return m_file; }

    // Colours the text as this language from now on; with none chosen, the
    // file's extension decides.
    void SetLanguage(const CLanguageChoice& choice, bool bChosen);
    void ApplyLanguage();
    const CLanguageChoice& GetLanguage() const { return m_language; }
    bool IsLanguageChosen() const { return m_bLanguageChosen; }

    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;

    void OnFileSave() { Save(); }
    void OnFileSaveAs() { SaveAs(); }
    void OnFileClose();
    // Prints the text into a PDF file the user names.
    void OnFileExportPdf();
    // Prints into the PDF file named, as Print would; false if it failed.
    bool ExportPdf(const std::string& strPath);
    void OnUpdateLineEnd(CCmdUI* pCmdUI);
    void OnUpdateLanguage(CCmdUI* pCmdUI);

private:
    bool WriteTo(const std::string& strPath);

    static const CommandEntry<CDemoDocument> s_commands[];
    IDemoPrompts& m_prompts;
    CTextFile m_file;
    CLanguageChoice m_language;
    bool m_bLanguageChosen = false;
};
