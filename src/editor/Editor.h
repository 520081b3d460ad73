// The editor as a child control. It owns or borrows one zone and speaks the
// message language of a multi-line edit control, so a host can treat it as
// one; every message becomes a call on the zone. The control itself adds
// only the lazy set-up, the frame, the text rectangle, change
// notifications and a few keys.
#pragma once

#include <functional>
#include <memory>

#include "TextzoneExport.h"
#include "editor/OleEditDropTarget.h"
#include "host/VeskString.h"
#include "platform/Wnd.h"

class CFont;
class CTextZone;

class TEXTZONE_EXPORT CEditor : public CWnd, public IOleEditDropSink {
public:
    // With a zone it is borrowed; without one the control makes its own.
    explicit CEditor(CTextZone* pZone = nullptr);
    ~CEditor() override;

    virtual void InitEditor();
    virtual void SetFont(CFont* pFont, int bRedraw);
    DWORD OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    DWORD OnDragOver(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    void OnDragLeave() override;
    BOOL OnDrop(COleDataObject* pDataObject, DWORD dropEffect, CPoint point) override;

    CTextZone* GetZone() const { return m_pZone; }

    int CanUndo();
    int GetFirstVisibleLine();
    int GetLine(int nLine, char* pBuffer, int nMax);
    int GetLineCount();
    int GetModify();
    void SetModify(int bModify);
    int LineFromChar(LONG lChar);
    LONG LineIndex(int nLine);
    int LineLength(int nLine);
    int Undo();
    int Redo();
    int Cut();
    int Copy();
    int Paste();
    void Clear();
    void GetSel(int& nStart, int& nEnd);
    DWORD GetSel();
    void SetSel(int nStart, int nEnd, int bNoScroll = 0);
    void SetSel(DWORD dwSelection, int bNoScroll = 0);
    short GetSelection(LONG* plStart, LONG* plEnd, int* pnStartChar, int* pnEndChar, short wMode);
    void SetSelection(LONG lStart, LONG lEnd, int nStartChar, int nEndChar, short wMode,
                      int bRedraw);
    void SetSelectionMode(short wMode);
    void ReplaceSel(const char* pszText);
    LONG GetWindowTextA(char* pBuffer, LONG lSize);
    void GetWindowTextA(VESK::String& strText);
    LONG GetWindowTextLengthA();
    void SetWindowTextA(const char* pszText);
    void LimitText(LONG lMax);
    int SetReadOnly(int bReadOnly);
    int SetTabStops(const int& nTabStops);

    void SetOleDataSource(bool b) { m_bOleDataSource = b; }
    void SetOleDropAllowed(bool b) { m_bOleDropAllowed = b; }
    void SetOleDropTarget(bool b);
    bool IsOleDataSource() const { return m_bOleDataSource; }
    bool IsOleDropAllowed() const { return m_bOleDropAllowed; }
    bool IsOleDropTarget() const { return m_bOleDropTarget; }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnPaint();
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnLButtonDown(UINT nFlags, CPoint point);
    void OnLButtonUp(UINT nFlags, CPoint point);
    void OnSize(UINT nType, int cx, int cy);
    BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    // Runs a user action with the modified flag cleared, and tells the parent
    // EN_CHANGE afterwards if the action changed the text.
    void Notifying(const std::function<void()>& action, bool bCountDepth = true);
    void PostChange();
    // Set-up at the first message that needs it. Set-up sizes and repaints
    // the window, and the paint must not start it over.
    void LazyInit() {
        if (m_bInitialized || m_bInInit) return;
        m_bInInit = true;
        InitEditor();
        m_bInInit = false;
    }
    bool m_bInInit = false;

public:
    int m_bOwnZone = 0;
    CTextZone* m_pZone = nullptr;
    int m_bInitialized = 0;
    HFONT m_hFont = nullptr;
    COLORREF m_crBackground = 0;
    int m_nNotifyDepth = 0;
    bool m_bOleDropAllowed = false;
    bool m_bOleDataSource = false;
    bool m_bOleDropTarget = false;
    std::unique_ptr<COleEditDropTarget> m_pDropTarget;
};
