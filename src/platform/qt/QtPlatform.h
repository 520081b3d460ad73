// The platform on Qt 6 Widgets. Constructing one (after the QApplication)
// installs it for the process; destroying it puts back what was there.
// Windows become widgets with a backing image (CQtWindowWidget), scroll bar
// controls QScrollBars; posted messages travel as Qt events; the clipboard
// and drag and drop carry text in Windows-1252.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "TextzoneQtExport.h"
#include "platform/Platform.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtDragDrop.h"
#include "platform/qt/QtFonts.h"
#include "platform/qt/QtKeyState.h"
#include "platform/qt/QtMessageQueue.h"

class TEXTZONE_QT_EXPORT CQtPlatform : public QObject, public IPlatform {
public:
    CQtPlatform();
    ~CQtPlatform() override;
    CQtPlatform(const CQtPlatform&) = delete;
    CQtPlatform& operator=(const CQtPlatform&) = delete;

    // The installed Qt platform, or null.
    static CQtPlatform* Instance();
    // The widget of a window, or null.
    static QWidget* WidgetOf(const CWnd* pWnd);

    CQtFonts& Fonts() { return m_fonts; }
    CQtKeyState& KeyState() { return m_keyState; }
    CQtDragDrop& DragDrop() { return m_dragDrop; }
    int ScrollBarExtent() const;
    int GetBeepCount() const { return m_nBeeps; }

    // From the widgets: Qt moved the focus; the mouse is over a widget.
    void OnQtFocusIn(CWnd* pWnd);
    void OnQtFocusOut(CWnd* pWnd);
    void SetCursorWidget(QWidget* pWidget);

    // IPlatform.
    std::unique_ptr<IWindowPeer> CreateWindowPeer(CWnd* pWnd, const CREATESTRUCTA& cs) override;
    std::unique_ptr<CDC> CreateDisplayDC() override;
    void OnWindowDestroyed(CWnd* pWnd) override;
    void PostMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PeekMessage(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax,
                     UINT nRemove) override;
    SHORT GetKeyState(int nVirtKey) override { return m_keyState.GetKeyState(nVirtKey); }
    DWORD GetTickCount() override;
    BOOL GetCursorPos(POINT* ppt) override;
    CWnd* SetFocus(CWnd* pWnd) override;
    CWnd* GetFocus() override { return m_pFocus; }
    CWnd* SetCapture(CWnd* pWnd) override;
    BOOL ReleaseCapture() override;
    CWnd* GetCapture() override { return m_pCapture; }
    HCURSOR SetCursor(HCURSOR hCursor) override;
    void BeginWaitCursor() override;
    void EndWaitCursor() override;
    COLORREF GetSysColor(int nIndex) override;
    int GetSystemMetrics(int nIndex) override;
    BOOL MessageBeep(UINT uType) override;
    BOOL OpenClipboard(CWnd*) override { return m_clipboard.Open(); }
    BOOL CloseClipboard() override { return m_clipboard.Close(); }
    BOOL EmptyClipboard() override { return m_clipboard.Empty(); }
    BOOL SetClipboardData(UINT uFormat, const std::string& data) override;
    BOOL GetClipboardData(UINT uFormat, std::string* pData) override;
    BOOL IsClipboardFormatAvailable(UINT uFormat) override;
    DWORD DoDragDrop(CWnd* pSource, const std::string& text, DWORD dwAllowed) override;
    BOOL RegisterDropTarget(CWnd* pWnd, COleDropTarget* pTarget) override;
    void RevokeDropTarget(CWnd* pWnd) override { m_dragDrop.Revoke(pWnd); }
    HHOOK SetKeyboardHook(HOOKPROC pfn) override;
    BOOL Unhook(HHOOK hHook) override;
    BOOL DoPrintDialog(CWnd* pParent, CPrintDialogInfo& pd) override;
    std::unique_ptr<CDC> CreatePrinterDC(const CPrintDialogInfo& pd) override;
    void PumpEvents() override;
    void MessageBox(CWnd* pParent, const char* pszText) override;
    int RunPickList(CWnd* pParent, const RECT& rc, HFONT hFont,
                    const std::vector<std::string>& items) override;

protected:
    // Key events pass the keyboard hooks before any widget sees them.
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    // Moves the focus in the bookkeeping and tells both windows.
    void MoveFocus(CWnd* pWnd);
    void ApplyCursor();

    IPlatform* m_pPrevious;
    CQtFonts m_fonts;
    CQtKeyState m_keyState;
    CQtMessageQueue m_queue;
    CQtClipboard m_clipboard;
    CQtDragDrop m_dragDrop;
    CWnd* m_pFocus = nullptr;
    CWnd* m_pCapture = nullptr;
    HCURSOR m_hCursor = nullptr;
    QPointer<QWidget> m_pCursorWidget;
    int m_nWaitDepth = 0;
    int m_nBeeps = 0;
    std::vector<std::unique_ptr<HookObject>> m_hooks;
    // The key event the hooks last saw, and where: Qt hands the same event
    // to each parent in turn, and the hooks hear it once.
    const QEvent* m_pHookedEvent = nullptr;
    QPointer<QWidget> m_pHookedReceiver;
};
