// What every Qt peer shares: a widget standing for the window, its geometry
// in desktop terms, and a safe end. A child window's widget is a child of
// its parent's widget; a window without a parent, or a pop-up, is a
// top-level widget. Either is placed in its parent's client coordinates, or
// on the screen without a parent, as the headless backend places them.
#pragma once

#include <QRect>
#include <QWidget>

#include "platform/WindowPeer.h"
#include "platform/Wnd.h"

class CQtWidgetPeer : public IWindowPeer {
public:
    ~CQtWidgetPeer() override;

    QWidget* GetWidget() const { return m_pWidget; }
    CWnd* GetWnd() const { return m_pWnd; }
    // The client area inside the widget.
    virtual QRect ClientArea() const = 0;

    void GetClientRect(RECT* prc) override;
    void GetWindowRect(RECT* prc) override;
    void SetWindowRect(const RECT& rc) override;
    void ClientToScreen(POINT* ppt) override;
    void ScreenToClient(POINT* ppt) override;
    void Show(int nCmdShow) override;
    bool IsVisible() override;
    void Enable(bool bEnable) override;
    void OnTextChanged() override;
    void Activate() override;

    // The peer of a window when it is a Qt one.
    static CQtWidgetPeer* Of(const CWnd* pWnd);
    // The widget a new window's widget goes into, or null for a top-level one.
    static QWidget* ParentWidgetFor(const CREATESTRUCTA& cs);
    static bool IsTopLevel(const CREATESTRUCTA& cs);

    // Held while a widget hands Qt input to its window: a window destroyed
    // meanwhile has its widget deleted later, once Qt is done with it.
    class Dispatch {
    public:
        Dispatch() { ++s_nDispatching; }
        ~Dispatch() { --s_nDispatching; }
        Dispatch(const Dispatch&) = delete;
        Dispatch& operator=(const Dispatch&) = delete;
    };

protected:
    // Takes the widget, places and shows it as the creation asks.
    CQtWidgetPeer(CWnd* pWnd, QWidget* pWidget, const CREATESTRUCTA& cs);
    // Called before the widget goes: cut its links back to the window.
    virtual void DetachWidget() = 0;
    // Where the parent's client area starts, in the coordinates the
    // widget's geometry is given in.
    QPoint ParentClientOrigin() const;

private:
    static int s_nDispatching;
    CWnd* m_pWnd;
    QWidget* m_pWidget;
};
