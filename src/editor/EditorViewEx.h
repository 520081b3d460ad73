// The ready-made editor view: a keyword-converting zone of its own (or a
// host's), with its look and behaviour read from the host's settings under
// a section, reloaded whenever the preference pages announce a change. It
// adds box and stream mode, bookmarks, select all and the status panes.
#pragma once

#include "TextzoneExport.h"
#include "editor/EditorDefaults.h"
#include "editor/EditorView.h"

class CTextZoneParam;

class TEXTZONE_EXPORT CEditorViewEx : public CEditorView, public CEditorDefaults {
public:
    ~CEditorViewEx() override;
    // A view with a zone of its own, as a document template makes it.
    static CEditorViewEx* CreateObject();

    CTextZoneParam* GetTextZone() const { return m_pParamZone; }
    // Inserts text at the caret, or at the start of nAtLine unless that is
    // -1, in stream mode; with bRegister as one undo step.
    int InsertText(const VESK::String& text, int nFlag, int bRegister, int bModified, int nAtLine);
    // Reloads the settings; returns 1.
    virtual int OnFontSize(unsigned int nSize);
    void OnInitialUpdate() override;

    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    int m_bOwnParamZone = 0;

protected:
    explicit CEditorViewEx(CTextZoneParam* pZone = nullptr);

    int OnCreate(CREATESTRUCT* pcs) override;
    virtual LRESULT OnLoadIniSetting(WPARAM wParam, LPARAM lParam);

    CTextZoneParam* GetSettingsZone() override { return m_pParamZone; }
    CWnd* GetSettingsWindow() override { return this; }
    void SetSettingsFont(CFont* pFont, int bRedraw) override { SetFont(pFont, bRedraw); }
    void SetSettingsBackground(COLORREF cr) override { m_crBackground = cr; }

    // Commands.
    void OnEditSelectAll();
    void OnEditBoxmode();
    void OnEditStreammode();
    void OnViewTogglebookmark();
    void OnViewNextbookmark();
    void OnViewPrevbookmark();
    void OnUpdateEditBoxmode(CCmdUI* pCmdUI);
    void OnUpdateEditStreammode(CCmdUI* pCmdUI);
    void OnUpdateLine(CCmdUI* pCmdUI);
    void OnUpdateMode(CCmdUI* pCmdUI);

private:
    static const CommandEntry<CEditorViewEx> s_commands[];
    CTextZoneParam* m_pParamZone = nullptr;
};
