// The find and replace dialog: modeless, with the text to find, the
// replacement, match case and direction, and the buttons Find Next,
// Replace, Replace All and Cancel. Each action fills the dialog's record
// and sends the registered message "commdlg_FindReplace" to the window it
// reports to, the record's address in lParam. Closing it reports
// FR_DIALOGTERM. The window system supplies the look (a dialog on Qt); the
// headless backend has the record only, driven by tests through DoAction.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"

struct FINDREPLACEA {
    DWORD lStructSize = sizeof(FINDREPLACEA);
    HWND hwndOwner = nullptr;
    DWORD Flags = 0;
    const char* lpstrFindWhat = nullptr;
    const char* lpstrReplaceWith = nullptr;
    WORD wFindWhatLen = 0;
    WORD wReplaceWithLen = 0;
    LPARAM lCustData = 0;  // the dialog that owns the record
};
using FINDREPLACE = FINDREPLACEA;

class TEXTZONE_EXPORT CFindReplaceDialog : public CWnd {
public:
    // The class name its windows are made with; a backend gives them a dialog.
    static constexpr const char* kClassName = "FindReplaceDialog";
    // The longest search and replacement texts the dialog takes.
    static constexpr int kMaxText = 128;

    CFindReplaceDialog();

    // Shows the dialog with these texts and FR_ flags; it reports to
    // pParentWnd. FALSE if the window could not be made.
    BOOL Create(BOOL bFindDialogOnly, const char* pszFindWhat, const char* pszReplaceWith,
                DWORD dwFlags, CWnd* pParentWnd);
    BOOL IsFindOnly() const { return m_bFindOnly; }

    std::string GetFindString() const { return m_strFind; }
    std::string GetReplaceString() const { return m_strReplace; }
    BOOL SearchDown() const { return (m_fr.Flags & FR_DOWN) != 0; }
    BOOL MatchCase() const { return (m_fr.Flags & FR_MATCHCASE) != 0; }
    BOOL FindNext() const { return (m_fr.Flags & FR_FINDNEXT) != 0; }
    BOOL ReplaceCurrent() const { return (m_fr.Flags & FR_REPLACE) != 0; }
    BOOL ReplaceAll() const { return (m_fr.Flags & FR_REPLACEALL) != 0; }
    BOOL IsTerminating() const { return (m_fr.Flags & FR_DIALOGTERM) != 0; }
    // The dialog whose record a message carries.
    static CFindReplaceDialog* GetNotifier(LPARAM lParam);

    // What the user did: one of FR_FINDNEXT, FR_REPLACE, FR_REPLACEALL with
    // the texts and options as they stand in the dialog, reported.
    void DoAction(DWORD dwAction, const std::string& strFind, const std::string& strReplace,
                  BOOL bDown, BOOL bMatchCase);
    // Cancel, Escape or the close button: FR_DIALOGTERM is reported and the
    // window goes.
    void Terminate();

    FINDREPLACEA m_fr;

protected:
    // The window actions are reported to: the parent given to Create.
    virtual CWnd* GetNotifyWindow() { return m_fr.hwndOwner; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Report();

    BOOL m_bFindOnly = TRUE;
    std::string m_strFind;
    std::string m_strReplace;
    bool m_bTerminated = false;
};
