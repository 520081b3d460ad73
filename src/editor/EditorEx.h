// The ready-made editor control: a CEditor over a keyword-converting zone
// that takes its font, colours and behaviour from the host's settings store
// and reloads them whenever the preference pages broadcast a change. It also
// carries the standard edit commands, box and stream mode and bookmarks for
// a host's menus and tool bars.
//
// Sources: EditorEx.cpp (construction, settings, text in and out, messages),
// EditorExCommands.cpp (the command table and the command-UI states),
// EditorExFind.cpp (its part in the find dialog the editors share).
#pragma once

#include "TextzoneExport.h"
#include "editor/EditFindReplace.h"
#include "editor/Editor.h"
#include "editor/EditorDefaults.h"
#include "editor/EditorPrinting.h"
#include "host/VeskString.h"

class CCmdUI;
class CTextZoneParam;

class TEXTZONE_EXPORT CEditorEx : public CEditor,
                                  public CEditorDefaults,
                                  public IFindReplaceTarget,
                                  public IPrintClient {
public:
    // With a zone it is borrowed; without one the control makes its own.
    explicit CEditorEx(CTextZoneParam* pZone = nullptr);
    ~CEditorEx() override;

    // The message the preference pages send to every window after a change.
    static UINT GetLoadIniMessage();

    using CEditor::InitEditor;
    // Sets the control up for a language now, rather than at its first
    // message: the settings, a 32000-character cap with bLimit, and colouring
    // by nLanguage with bSyntaxColor (none without).
    virtual void InitEditor(int nLanguage, int bLimit, int bSyntaxColor, int nReserved);
    // The whole text with the line ends of nEol (the text flags of the zone's
    // readers), in one string for the library that holds until the next call.
    virtual const char* GetText(unsigned short nEol);
    // A search found nothing: the user hears it.
    void OnTextNotFound(const char* pszText) override;
    // Opens the find dialog (or with bFindOnly 0 the replace dialog) for
    // this control, with the selection as the search text.
    void Find(int bFindOnly);
    // The last search again, from the caret; nothing without one.
    void FindNext();
    // The selection when it is the match already, else the next match.
    int InitializeReplace() override;

    CTextZoneParam* GetTextZone() const { return m_pParamZone; }
    // Inserts at the caret, or at the start of line nAtLine unless that is -1,
    // in stream mode whatever the mode; bRegister makes it one undo step (and
    // marks the text modified), bModified only marks it. The zone's result.
    int InsertText(const VESK::String& strText, int nFlag, int bRegister, int bModified,
                   int nAtLine);
    // Empties the text; the parent hears EN_CHANGE.
    void ClearAll();
    // Tells the parent the text changed (EN_CHANGE, posted).
    void SetModifiedFlag();

    // The answer to the settings broadcast; wParam is null or the address of a
    // section name that replaces m_strSection for good. Returns 0.
    LRESULT OnLoadIniSetting(WPARAM wParam, LPARAM lParam);

    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Set-up at the first message that needs it, with the settings on top.
    void InitEditor() override;

    // Commands and their states.
    void OnEditBoxmode();
    void OnUpdateEditBoxmode(CCmdUI* pCmdUI);
    void OnEditStreammode();
    void OnUpdateEditStreammode(CCmdUI* pCmdUI);
    void OnViewTogglebookmark();
    void OnViewNextbookmark();
    void OnViewPrevbookmark();
    void OnEditClearAll();
    void OnUpdateEditClearAll(CCmdUI* pCmdUI);
    void OnEditCopy();
    void OnUpdateEditCopy(CCmdUI* pCmdUI);
    void OnEditCut();
    void OnUpdateEditCut(CCmdUI* pCmdUI);
    void OnEditPaste();
    void OnUpdateEditPaste(CCmdUI* pCmdUI);
    void OnEditSelectAll();
    void OnUpdateEditSelectAll(CCmdUI* pCmdUI);
    void OnEditUndo();
    void OnUpdateEditUndo(CCmdUI* pCmdUI);
    void OnEditRedo();
    void OnUpdateEditRedo(CCmdUI* pCmdUI);
    void OnEditFind();
    void OnUpdateEditFind(CCmdUI* pCmdUI);
    void OnEditRepeat();
    void OnUpdateEditRepeat(CCmdUI* pCmdUI);

    // Printing, with a print loop of its own since a control is no view:
    // the print dialog (none for the direct command), the pages, a window
    // with Cancel. FilePrint is the public form; PrintTo runs a job the
    // caller prepared (a PDF file, a printer by name).
    void OnFilePrint(BOOL bDirect);
    void FilePrint() { OnFilePrint(FALSE); }
    void OnFilePrintDirect() { OnFilePrint(TRUE); }
    BOOL PrintTo(CPrintInfo& info);
    void OnUpdateFilePrint(CCmdUI* pCmdUI);
    int DoPreparePrinting(CPrintInfo* pInfo);
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override;
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override;
    void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    int PaginateTo(CDC* pDC, CPrintInfo* pInfo);
    UINT PrintInsideRect(CDC* pDC, RECT& rect, UINT nLine, UINT& nChar);

    int m_bOwnParamZone = 0;
    // The page tables and the printer font.
    CEditorPrinting m_printing;

protected:
    int OnCreate(CREATESTRUCT* pcs);
    void OnMouseMove(UINT nFlags, CPoint point);

    // CEditorDefaults
    CTextZoneParam* GetSettingsZone() override { return m_pParamZone; }
    CWnd* GetSettingsWindow() override { return GetSafeHwnd(); }
    void SetSettingsFont(CFont* pFont, int bRedraw) override { SetFont(pFont, bRedraw); }
    void SetSettingsBackground(COLORREF cr) override { m_crBackground = cr; }

    // IFindReplaceTarget
    CTextZone* GetFindZone() override { return m_pZone; }
    CWnd* GetFindWindow() override { return this; }
    void OnFindReplaceModified() override { SetModifiedFlag(); }
    void OnFindNext(const char* pszFind, int bNext, int bCase) override;
    void OnReplaceSel(const char* pszFind, int bNext, int bCase, const char* pszReplace) override;
    void OnReplaceAll(const char* pszFind, const char* pszReplace, int bCase) override;

private:
    // Whether editing commands may change the text now.
    bool CanEdit();

    CTextZoneParam* m_pParamZone = nullptr;
    bool m_bLoading = false;
};
