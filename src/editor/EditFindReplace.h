// The find state every editor of the application shares, and its one
// dialog: a search repeated in any window goes on with the same text, and
// the open dialog follows the focus from editor to editor. The control and
// the view carry the same dialog logic; it lives here, over what each of
// them supplies (IFindReplaceTarget).
#pragma once

#include <memory>

#include "TextzoneExport.h"
#include "host/Singleton.h"
#include "host/VeskString.h"
#include "platform/FindReplaceDialog.h"

class CTextZone;

// The dialog of the editors: it reports to the editor that owns the search.
class TEXTZONE_EXPORT CEditFindReplaceDialog : public CFindReplaceDialog {
public:
    HWND m_hwndOwner = nullptr;

protected:
    CWnd* GetNotifyWindow() override { return m_hwndOwner; }
};

// What an editor gives the shared dialog logic.
class TEXTZONE_EXPORT IFindReplaceTarget {
public:
    virtual ~IFindReplaceTarget() = default;
    virtual CTextZone* GetFindZone() = 0;
    virtual CWnd* GetFindWindow() = 0;
    // Nothing found: the editor's own reaction (a beep).
    virtual void OnTextNotFound(const char* pszFind) = 0;
    // A replacement changed the text: the editor tells its document or parent.
    virtual void OnFindReplaceModified() = 0;
    virtual int InitializeReplace() = 0;
    // The dialog's three actions; an editor may do more round them.
    virtual void OnFindNext(const char* pszFind, int bNext, int bCase) = 0;
    virtual void OnReplaceSel(const char* pszFind, int bNext, int bCase,
                              const char* pszReplace) = 0;
    virtual void OnReplaceAll(const char* pszFind, const char* pszReplace, int bCase) = 0;
};

class TEXTZONE_EXPORT CEditFindReplace {
public:
    static CEditFindReplace& Instance();
    virtual ~CEditFindReplace();
    CEditFindReplace(const CEditFindReplace&) = default;
    CEditFindReplace& operator=(const CEditFindReplace&) = default;

    // Opens the find (or replace) dialog for the editor, or brings it
    // forward when it is open already, of that kind, for that editor. With
    // bWithReplace the last replacement text is offered.
    void Open(IFindReplaceTarget& target, int bFindOnly, bool bWithReplace);
    // The editor got the focus: an open dialog reports to it from now on.
    void FollowFocus(CWnd* pWnd);
    // The editor's window is going: the dialog outlives it and must not
    // report to it. The next editor to get the focus takes the dialog.
    void ForgetWindow(CWnd* pWnd);
    // The answer to "commdlg_FindReplace" in an editor.
    LRESULT OnFindReplaceCmd(IFindReplaceTarget& target, UINT message, WPARAM wParam,
                             LPARAM lParam);

    // Finds the next match; not found is told to the editor. Returns 1 if found.
    int FindNext(IFindReplaceTarget& target, const char* pszFind, int bNext, int bCase);
    // Replaces the match at the selection (found first when the selection is
    // not one) and moves on to the next.
    void ReplaceSel(IFindReplaceTarget& target, const char* pszFind, int bNext, int bCase,
                    const char* pszReplace, bool bTestReadOnly);
    // Ctrl+F3: the selection, when it is short enough, becomes the search
    // text and is searched for; a longer one beeps.
    void FindSelection(IFindReplaceTarget& target);
    // Every match from the selection on, forwards, as one undo step.
    void ReplaceAll(IFindReplaceTarget& target, const char* pszFind, const char* pszReplace,
                    int bCase);
    // The replacement loop itself, from the selection (the first match) on:
    // what ReplaceAll runs where the zone cannot replace in one pass.
    static void ReplaceEach(CTextZone& zone, const char* pszFind, const char* pszReplace,
                            int bCase);
    // The selection when it is the match already, else the next match.
    int InitializeReplace(IFindReplaceTarget& target);
    // Find Next again with the last text; nothing without one.
    void Repeat(IFindReplaceTarget& target);

    VESK::String m_strFind;
    VESK::String m_strReplace;
    int m_bNext = 1;
    int m_bFindOnly = 1;
    int m_bCase = 0;
    CEditFindReplaceDialog* m_pFindReplaceDlg = nullptr;

protected:
    CEditFindReplace() = default;

private:
    friend class SingletonDestroyer<CEditFindReplace>;
    // The dialogs; a closed one is freed at the next opening, once its own
    // handlers have returned.
    std::shared_ptr<CEditFindReplaceDialog> m_pOwnedDlg;
    std::shared_ptr<CEditFindReplaceDialog> m_pClosedDlg;
};
