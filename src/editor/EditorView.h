// The editor as a document view in a frame of several documents. Like the
// control, it forwards every message to its zone; instead of telling a
// parent, it marks its document modified, and it carries out the standard
// edit commands. The zone comes from the derived class.
#pragma once

#include <memory>
#include <vector>

#include "TextzoneExport.h"
#include "editor/EditFindReplace.h"
#include "editor/EditorPrinting.h"
#include "editor/OleEditDropTarget.h"
#include "host/VeskView.h"
#include "platform/CommandMap.h"

class CFont;
class CTextZone;

class TEXTZONE_EXPORT CEditorView : public CVeskView,
                                    public IOleEditDropSink,
                                    public IFindReplaceTarget {
public:
    ~CEditorView() override;

    // Find and replace, through the dialog the editors share.
    void OnFindNext(const char* pszFind, int bNext, int bCase) override;
    void OnReplaceSel(const char* pszFind, int bNext, int bCase, const char* pszReplace) override;
    void OnReplaceAll(const char* pszFind, const char* pszReplace, int bCase) override;
    // Beeps; nothing else.
    void OnTextNotFound(const char* pszFind) override;
    virtual void OnEditFindReplace(int bFindOnly);
    int InitializeReplace() override;

    virtual void SetFont(CFont* pFont, int bRedraw);

    DWORD OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    DWORD OnDragOver(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    void OnDragLeave() override;
    BOOL OnDrop(COleDataObject* pDataObject, DWORD dropEffect, CPoint point) override;
    void OnDraw(CDC* pDC) override;

    CTextZone* GetZone() const { return m_pZone; }
    void SetOleDataSource(bool b) { m_bOleDataSource = b; }
    void SetOleDropAllowed(bool b) { m_bOleDropAllowed = b; }
    void SetOleDropTarget(bool b);
    bool IsOleDataSource() const { return m_bOleDataSource; }
    bool IsOleDropAllowed() const { return m_bOleDropAllowed; }
    bool IsOleDropTarget() const { return m_bOleDropTarget; }

    BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // The rectangles of a frame or view being sized, with wParam set: the
    // text area inset by 3 pixels and the scroll bars, its bottom on a whole
    // line, so the window system keeps the text's pixels. The first child
    // is taken as the view whose font gives the line height.
    static LRESULT CalcTextArea(CWnd* pWnd, BOOL bCalcValidRects, NCCALCSIZE_PARAMS* pParams);

    // Printing: the page tables and the printer font live in m_printing.
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override;
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override;
    void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    int PaginateTo(CDC* pDC, CPrintInfo* pInfo);
    UINT PrintInsideRect(CDC* pDC, RECT& rect, UINT nLine, UINT& nChar);

    CEditorPrinting m_printing;
    CTextZone* m_pZone = nullptr;
    int m_bCreated = 0;
    HFONT m_hFont = nullptr;
    COLORREF m_crBackground = 0;
    bool m_bOleDropAllowed = false;
    bool m_bOleDataSource = false;
    bool m_bOleDropTarget = false;
    std::unique_ptr<COleEditDropTarget> m_pDropTarget;

protected:
    CEditorView() = default;
    void SetTextZone(CTextZone* pZone) { m_pZone = pZone; }

    virtual int OnCreate(CREATESTRUCT* pcs);
    virtual void OnSize(UINT nType, int cx, int cy);
    virtual void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    virtual void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    virtual void OnSetFocus(CWnd* pOldWnd);
    virtual void OnMouseMove(UINT nFlags, CPoint point);
    int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    // The modified flag of the zone, once set, marks the document.
    void MarkDocumentIfModified();

    CTextZone* GetFindZone() override { return m_pZone; }
    CWnd* GetFindWindow() override { return this; }
    void OnFindReplaceModified() override;
    LRESULT OnFindReplaceCmd(WPARAM wParam, LPARAM lParam);

    // Commands.
    void OnEditFind();
    void OnEditReplace();
    void OnEditRepeat();
    void OnUpdateNeedFind(CCmdUI* pCmdUI);
    void OnEditClear();
    void OnEditCopy();
    void OnEditCut();
    void OnEditPaste();
    void OnEditUndo();
    void OnEditRedo();
    void OnUpdateNeedSel(CCmdUI* pCmdUI);
    void OnUpdateEditClear(CCmdUI* pCmdUI);
    void OnUpdateNeedText(CCmdUI* pCmdUI);
    void OnUpdateNeedClip(CCmdUI* pCmdUI);
    void OnUpdateNeedTextAndWrite(CCmdUI* pCmdUI);
    void OnUpdateEditUndo(CCmdUI* pCmdUI);
    void OnUpdateEditRedo(CCmdUI* pCmdUI);
    bool HasSelection();
    int GetFontHeight();

private:
    static const CommandEntry<CEditorView> s_commands[];
};
