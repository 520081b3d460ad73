// What the control and the view do alike under the mouse and a drag: the
// cursor, the wheel, and the effect a drag of text would have; and what the
// extended control and view do alike with text from the host.
#pragma once

#include "platform/Types.h"

class COleDataObject;
class CTextZone;
class CWnd;

// The cursor for a hit-test code; FALSE for a code outside the client area,
// which the window's default handling gets.
BOOL SetEditorCursor(UINT nHitTest);
// A wheel turn: offered to what lies under the pointer when that is not the
// window, else one line up or down.
BOOL RouteMouseWheel(CWnd* pWnd, CTextZone* pZone, UINT nFlags, short zDelta, CPoint pt);
// Copy with Ctrl held, move otherwise, nothing when the drop is not allowed.
DWORD DropEffectFor(bool bAllowed, DWORD dwKeyState);
// Whether a drag entering the window may drop here.
bool CanDropText(COleDataObject* pDataObject, CTextZone* pZone, CPoint point);
// The messages both windows pass to the zone as they come: the loss of the
// focus, a double click, the scroll bars, the zone's own WM_USER. True with
// the result when the message was one of them.
bool ForwardToZone(CTextZone& zone, UINT message, WPARAM wParam, LPARAM lParam,
                   LRESULT* pResult);

// Box (2) or stream (1) selection, switched only from the other mode, with
// the selected lines redrawn in their new shape.
void SwitchSelectionMode(CWnd* pWnd, CTextZone* pZone, short wMode);
// The host's text at the caret, or at the start of line nAtLine unless that
// is -1, as lines whatever the selection mode; bRegister makes it one undo
// step and marks the text modified, bModified only marks it. The zone's result.
int InsertHostText(CWnd* pWnd, CTextZone* pZone, const char* pszText, int nFlag, int bRegister,
                   int bModified, int nAtLine);
