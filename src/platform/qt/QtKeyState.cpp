#include "platform/qt/QtKeyState.h"

#include <QGuiApplication>

#include "platform/Messages.h"
#include "platform/qt/QtEventTranslator.h"

void CQtKeyState::OnKey(const QKeyEvent& event, bool bRelease) {
    int vk = CQtEventTranslator::VirtualKey(event);
    if (vk == 0) return;
    int sided = CQtEventTranslator::SidedVirtualKey(event);
    if (bRelease) {
        m_down.erase(vk);
        if (sided) m_down.erase(sided);
        return;
    }
    if ((vk == VK_CAPITAL || vk == VK_NUMLOCK || vk == VK_SCROLL) && !event.isAutoRepeat()) {
        if (!m_toggled.erase(vk)) m_toggled.insert(vk);
    }
    m_down.insert(vk);
    if (sided) m_down.insert(sided);
}

CQtKeyState::Scope::Scope(CQtKeyState& state, Qt::KeyboardModifiers mods, Qt::MouseButtons buttons)
    : m_state(state),
      m_bHad(state.m_bInEvent),
      m_mods(state.m_eventMods),
      m_buttons(state.m_eventButtons) {
    state.m_bInEvent = true;
    state.m_eventMods = mods;
    state.m_eventButtons = buttons;
}

CQtKeyState::Scope::~Scope() {
    m_state.m_bInEvent = m_bHad;
    m_state.m_eventMods = m_mods;
    m_state.m_eventButtons = m_buttons;
}

Qt::KeyboardModifiers CQtKeyState::Modifiers() const {
    return m_bInEvent ? m_eventMods : QGuiApplication::queryKeyboardModifiers();
}

Qt::MouseButtons CQtKeyState::Buttons() const {
    return m_bInEvent ? m_eventButtons : QGuiApplication::mouseButtons();
}

SHORT CQtKeyState::GetKeyState(int nVirtKey) const {
    Qt::KeyboardModifiers mods = Modifiers();
    Qt::MouseButtons buttons = Buttons();
    // A modifier is down by Qt's word; its side by the key events seen, the
    // left one when they tell nothing.
    auto sided = [&](Qt::KeyboardModifier mod, int plain, int left, int right) {
        bool down = (mods & mod) != 0;
        if (nVirtKey == plain) return down;
        if (nVirtKey == right) return down && Tracked(right);
        return down && (Tracked(left) || !Tracked(right));
    };
    bool down;
    switch (nVirtKey) {
        case VK_SHIFT:
        case VK_LSHIFT:
        case VK_RSHIFT:
            down = sided(Qt::ShiftModifier, VK_SHIFT, VK_LSHIFT, VK_RSHIFT);
            break;
        case VK_CONTROL:
        case VK_LCONTROL:
        case VK_RCONTROL:
            down = sided(Qt::ControlModifier, VK_CONTROL, VK_LCONTROL, VK_RCONTROL);
            break;
        case VK_MENU:
        case VK_LMENU:
        case VK_RMENU:
            down = sided(Qt::AltModifier, VK_MENU, VK_LMENU, VK_RMENU);
            break;
        case VK_LBUTTON:
            down = (buttons & Qt::LeftButton) != 0;
            break;
        case VK_RBUTTON:
            down = (buttons & Qt::RightButton) != 0;
            break;
        case VK_MBUTTON:
            down = (buttons & Qt::MiddleButton) != 0;
            break;
        case VK_XBUTTON1:
            down = (buttons & Qt::BackButton) != 0;
            break;
        case VK_XBUTTON2:
            down = (buttons & Qt::ForwardButton) != 0;
            break;
        default:
            down = Tracked(nVirtKey);
    }
    SHORT state = down ? static_cast<SHORT>(0x8000) : 0;
    if (m_toggled.count(nVirtKey)) state = static_cast<SHORT>(state | 1);
    return state;
}
