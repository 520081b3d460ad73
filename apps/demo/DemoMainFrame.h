// The demo's main frame: new and open documents, the language of the active
// one, and the keyword case of all of them (a setting every open editor
// takes at once).
#pragma once

#include <string>
#include <vector>

#include "apps/common/LanguageChoice.h"
#include "apps/demo/DemoPrompts.h"
#include "platform/MDIFrameWnd.h"

class CDemoDocument;

class CDemoMainFrame : public CMDIFrameWnd {
public:
    struct LanguageEntry {
        std::string strName;
        CLanguageChoice choice;
    };
    // The languages of the Language menu, after its first entry "By Extension".
    static const std::vector<LanguageEntry>& Languages();

    void SetPrompts(IDemoPrompts* pPrompts) { m_pPrompts = pPrompts; }
    // A new, empty SQL text.
    CDemoDocument* NewDocument();
    // The file in a window of its own, or its window brought forward when it
    // is open already; null, after saying why, when it cannot be read.
    CDemoDocument* OpenFile(const std::string& strPath);
    CDemoDocument* GetActiveDemoDocument();
    // The language every document opened from now on gets, instead of the
    // one its extension says.
    void SetDefaultLanguage(const CLanguageChoice& choice) {
        m_defaultLanguage = choice;
        m_bDefaultLanguage = true;
    }

    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;

private:
    CDemoDocument* Create();
    BOOL OnLanguageCommand(UINT nIndex, int nCode, CCmdUI* pCmdUI);
    BOOL OnKeywordCaseCommand(UINT nMode, int nCode, CCmdUI* pCmdUI);

    IDemoPrompts* m_pPrompts = nullptr;
    int m_nUntitled = 0;
    CLanguageChoice m_defaultLanguage;
    bool m_bDefaultLanguage = false;
};
