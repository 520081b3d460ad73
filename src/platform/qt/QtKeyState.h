// The state GetKeyState answers from. Modifiers and mouse buttons come from
// the input event being handled (as of the message, as the desktop has it)
// or, outside one, from Qt's live state; which side of a modifier is down,
// other keys such as the space bar, and the toggles of the lock keys come
// from key events seen, since Qt does not report them.
#pragma once

#include <QKeyEvent>
#include <set>

#include "TextzoneQtExport.h"
#include "platform/Types.h"

class TEXTZONE_QT_EXPORT CQtKeyState {
public:
    // Key events reaching a window; a release clears the key.
    void OnKey(const QKeyEvent& event, bool bRelease);
    // Keys released elsewhere are never heard of: forget them on focus loss.
    void OnFocusLost() { m_down.clear(); }

    // The modifiers and buttons of the input being handled, for as long as
    // the returned scope lives.
    class Scope {
    public:
        Scope(CQtKeyState& state, Qt::KeyboardModifiers mods, Qt::MouseButtons buttons);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        CQtKeyState& m_state;
        bool m_bHad;
        Qt::KeyboardModifiers m_mods;
        Qt::MouseButtons m_buttons;
    };

    SHORT GetKeyState(int nVirtKey) const;

private:
    Qt::KeyboardModifiers Modifiers() const;
    Qt::MouseButtons Buttons() const;
    bool Tracked(int vk) const { return m_down.count(vk) != 0; }

    std::set<int> m_down;
    std::set<int> m_toggled;
    bool m_bInEvent = false;
    Qt::KeyboardModifiers m_eventMods;
    Qt::MouseButtons m_eventButtons;
};
