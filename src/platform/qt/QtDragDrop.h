// Drag and drop of plain text. A drag started here is a QDrag whose data is
// the text in Windows-1252; windows registered as drop targets hear Qt's
// drag events as the enter, over, leave and drop of their target, with the
// key state in MK_ flags and the point in client coordinates.
#pragma once

#include <QPoint>
#include <map>
#include <string>

#include "platform/Types.h"

class COleDropTarget;
class CWnd;
class QDropEvent;
class QWidget;

class CQtDragDrop {
public:
    DWORD DoDragDrop(QWidget* pSource, const std::string& text, DWORD dwAllowed);
    BOOL Register(CWnd* pWnd, QWidget* pWidget, COleDropTarget* pTarget);
    void Revoke(CWnd* pWnd);
    COleDropTarget* TargetOf(CWnd* pWnd) const;

    // From the window's drag events; pt is in client coordinates.
    void OnEnter(CWnd* pWnd, QDropEvent* pEvent, QPoint pt);
    void OnMove(CWnd* pWnd, QDropEvent* pEvent, QPoint pt);
    void OnLeave(CWnd* pWnd);
    void OnDrop(CWnd* pWnd, QDropEvent* pEvent, QPoint pt);

    static DWORD KeyStateOf(const QDropEvent& event);

private:
    // Tells Qt the effect a target chose.
    static void Answer(QDropEvent* pEvent, DWORD dwEffect);

    std::map<CWnd*, COleDropTarget*> m_targets;
    DWORD m_dwLastEffect = 0;
};
