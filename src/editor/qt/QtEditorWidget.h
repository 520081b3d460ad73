// The editor control as a QWidget, for Qt hosts: it goes into layouts like
// any widget, and tells the host of changes through a callback. Inside, a
// host window stands in for the control's parent: it hears the control's
// notifications and keeps the control as large as itself.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "TextzoneQtExport.h"
#include "editor/Editor.h"
#include "platform/Font.h"
#include "platform/Messages.h"

class CTextZone;

class TEXTZONE_QT_EXPORT CQtEditorWidget : public QWidget {
public:
    // The control's window style; WS_CHILD and WS_VISIBLE are added. With a
    // zone the control borrows it.
    explicit CQtEditorWidget(QWidget* pParent = nullptr,
                             DWORD dwStyle = WS_VSCROLL | WS_HSCROLL | WS_BORDER,
                             CTextZone* pZone = nullptr);
    // Hosts a control the caller made, of any class derived from CEditor (a
    // CEditorEx, say), not yet created; the widget creates and owns it.
    explicit CQtEditorWidget(std::unique_ptr<CEditor> pEditor, QWidget* pParent = nullptr,
                             DWORD dwStyle = WS_VSCROLL | WS_HSCROLL | WS_BORDER);
    ~CQtEditorWidget() override;

    CEditor& Editor() { return *m_pEditor; }
    CTextZone& Zone() { return *m_pEditor->GetZone(); }
    // Called after every user action that changed the text (EN_CHANGE).
    void SetChangeHandler(std::function<void()> handler) { m_host.m_onChange = std::move(handler); }
    // The font the control takes at its set-up; a fixed font by default.
    void SetEditorFont(const LOGFONTA& lf);

private:
    class CHostWnd : public CWnd {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
        CEditor* m_pEditor = nullptr;
        HFONT m_hFont = nullptr;
        std::function<void()> m_onChange;
    };

    CFont m_font;
    CHostWnd m_host;
    std::unique_ptr<CEditor> m_pEditor;
};
