// How Qt input reads as desktop messages: the virtual-key code of a key
// (keypad keys told apart by the keypad modifier), the flags word of a key
// message, the 8-bit characters a key types, and the button flags and
// packed coordinates of mouse messages. Stateless, so it is tested alone.
#pragma once

#include <QPoint>
#include <Qt>
#include <string>

#include "platform/Types.h"

class QKeyEvent;

class CQtEventTranslator {
public:
    // 0 when the key has no virtual-key code.
    static int VirtualKey(const QKeyEvent& event);
    // The side of a modifier key (VK_LCONTROL, VK_RSHIFT, ...) when the
    // native key code tells it; the left one otherwise. 0 for other keys.
    static int SidedVirtualKey(const QKeyEvent& event);
    // Repeat count 1, scan code, extended-key bit, previous-state bit for an
    // auto-repeat, and for a release the previous-state and transition bits.
    static LPARAM KeyFlags(const QKeyEvent& event, bool bRelease);
    // The bytes the key types, in Windows-1252; empty for keys that type
    // nothing (Delete among them, although some systems give it DEL).
    static std::string Characters(const QKeyEvent& event);
    // Whether the key goes as WM_SYSKEYDOWN/WM_SYSCHAR: Alt without Ctrl, or F10.
    static bool IsSystemKey(const QKeyEvent& event);

    static UINT MouseFlags(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    // WM_LBUTTONDOWN and its kin for a button and a kind: 0 down, 1 up, 2 double.
    static UINT ButtonMessage(Qt::MouseButton button, int nKind);
    static LPARAM PointParam(QPoint pt) { return MAKELPARAM(pt.x(), pt.y()); }
};
