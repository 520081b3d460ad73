#include "platform/qt/QtEventTranslator.h"

#include <QKeyEvent>

#include "platform/Messages.h"
#include "platform/qt/Windows1252.h"

namespace {

// X11 and Wayland key codes (evdev + 8) of the right-hand modifiers.
constexpr quint32 kRightShiftCode = 62;
constexpr quint32 kRightControlCode = 105;
constexpr quint32 kRightAltCode = 108;

int KeypadKey(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return VK_NUMPAD0 + (key - Qt::Key_0);
    switch (key) {
        case Qt::Key_Asterisk:
            return VK_MULTIPLY;
        case Qt::Key_Plus:
            return VK_ADD;
        case Qt::Key_Minus:
            return VK_SUBTRACT;
        case Qt::Key_Slash:
            return VK_DIVIDE;
        case Qt::Key_Period:
        case Qt::Key_Comma:
            return VK_DECIMAL;
        case Qt::Key_Enter:
            return VK_RETURN;
        default:
            return 0;  // navigation keys of the keypad read as themselves
    }
}

// Punctuation by the key that types it on a US keyboard, shifted or not.
int PunctuationKey(int key) {
    switch (key) {
        case Qt::Key_Semicolon: case Qt::Key_Colon: return VK_OEM_1;
        case Qt::Key_Equal: case Qt::Key_Plus: return VK_OEM_PLUS;
        case Qt::Key_Comma: case Qt::Key_Less: return VK_OEM_COMMA;
        case Qt::Key_Minus: case Qt::Key_Underscore: return VK_OEM_MINUS;
        case Qt::Key_Period: case Qt::Key_Greater: return VK_OEM_PERIOD;
        case Qt::Key_Slash: case Qt::Key_Question: return VK_OEM_2;
        case Qt::Key_QuoteLeft: case Qt::Key_AsciiTilde: return VK_OEM_3;
        case Qt::Key_BracketLeft: case Qt::Key_BraceLeft: return VK_OEM_4;
        case Qt::Key_Backslash: case Qt::Key_Bar: return VK_OEM_5;
        case Qt::Key_BracketRight: case Qt::Key_BraceRight: return VK_OEM_6;
        case Qt::Key_Apostrophe: case Qt::Key_QuoteDbl: return VK_OEM_7;
        case Qt::Key_Exclam: return '1';
        case Qt::Key_At: return '2';
        case Qt::Key_NumberSign: return '3';
        case Qt::Key_Dollar: return '4';
        case Qt::Key_Percent: return '5';
        case Qt::Key_AsciiCircum: return '6';
        case Qt::Key_Ampersand: return '7';
        case Qt::Key_ParenLeft: return '9';
        case Qt::Key_ParenRight: return '0';
        default: return 0;
    }
}

int NamedKey(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return VK_F1 + (key - Qt::Key_F1);
    switch (key) {
        case Qt::Key_Backspace: return VK_BACK;
        case Qt::Key_Tab: case Qt::Key_Backtab: return VK_TAB;
        case Qt::Key_Clear: return VK_CLEAR;
        case Qt::Key_Return: case Qt::Key_Enter: return VK_RETURN;
        case Qt::Key_Shift: return VK_SHIFT;
        case Qt::Key_Control: return VK_CONTROL;
        case Qt::Key_Alt: case Qt::Key_AltGr: return VK_MENU;
        case Qt::Key_Pause: return VK_PAUSE;
        case Qt::Key_CapsLock: return VK_CAPITAL;
        case Qt::Key_Escape: return VK_ESCAPE;
        case Qt::Key_Space: return VK_SPACE;
        case Qt::Key_PageUp: return VK_PRIOR;
        case Qt::Key_PageDown: return VK_NEXT;
        case Qt::Key_End: return VK_END;
        case Qt::Key_Home: return VK_HOME;
        case Qt::Key_Left: return VK_LEFT;
        case Qt::Key_Up: return VK_UP;
        case Qt::Key_Right: return VK_RIGHT;
        case Qt::Key_Down: return VK_DOWN;
        case Qt::Key_Select: return VK_SELECT;
        case Qt::Key_Printer: return VK_PRINT;
        case Qt::Key_Execute: return VK_EXECUTE;
        case Qt::Key_Print: case Qt::Key_SysReq: return VK_SNAPSHOT;
        case Qt::Key_Insert: return VK_INSERT;
        case Qt::Key_Delete: return VK_DELETE;
        case Qt::Key_Help: return VK_HELP;
        case Qt::Key_Meta: case Qt::Key_Super_L: return VK_LWIN;
        case Qt::Key_Super_R: return VK_RWIN;
        case Qt::Key_Menu: return VK_APPS;
        case Qt::Key_Sleep: return VK_SLEEP;
        case Qt::Key_NumLock: return VK_NUMLOCK;
        case Qt::Key_ScrollLock: return VK_SCROLL;
        case Qt::Key_Cancel: return VK_CANCEL;
        default: return 0;
    }
}

bool IsExtendedKey(int key, bool bKeypad) {
    switch (key) {
        case Qt::Key_Insert: case Qt::Key_Delete: case Qt::Key_Home: case Qt::Key_End:
        case Qt::Key_PageUp: case Qt::Key_PageDown: case Qt::Key_Left: case Qt::Key_Up:
        case Qt::Key_Right: case Qt::Key_Down:
            return !bKeypad;
        case Qt::Key_Enter:
            return true;
        case Qt::Key_Slash:
            return bKeypad;
        default:
            return false;
    }
}

}  // namespace

int CQtEventTranslator::VirtualKey(const QKeyEvent& event) {
    int key = event.key();
    if (event.modifiers() & Qt::KeypadModifier)
        if (int vk = KeypadKey(key)) return vk;
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return key;  // letters and digits are their upper-case ASCII codes
    if (int vk = NamedKey(key)) return vk;
    if (int vk = PunctuationKey(key)) return vk;
    // Other keys that type something (letters of other layouts) share one code.
    return event.text().isEmpty() ? 0 : VK_OEM_8;
}

int CQtEventTranslator::SidedVirtualKey(const QKeyEvent& event) {
    quint32 code = event.nativeScanCode();
    switch (event.key()) {
        case Qt::Key_Shift:
            return code == kRightShiftCode ? VK_RSHIFT : VK_LSHIFT;
        case Qt::Key_Control:
            return code == kRightControlCode ? VK_RCONTROL : VK_LCONTROL;
        case Qt::Key_Alt:
            return code == kRightAltCode ? VK_RMENU : VK_LMENU;
        case Qt::Key_AltGr:
            return VK_RMENU;
        default:
            return 0;
    }
}

LPARAM CQtEventTranslator::KeyFlags(const QKeyEvent& event, bool bRelease) {
    DWORD flags = 1;
    quint32 native = event.nativeScanCode();
    if (native >= 8) flags |= ((native - 8) & 0xFF) << 16;
    bool keypad = (event.modifiers() & Qt::KeypadModifier) != 0;
    if (IsExtendedKey(event.key(), keypad) || SidedVirtualKey(event) == VK_RCONTROL ||
        SidedVirtualKey(event) == VK_RMENU)
        flags |= static_cast<DWORD>(KF_EXTENDED) << 16;
    if (event.modifiers() & Qt::AltModifier) flags |= static_cast<DWORD>(KF_ALTDOWN) << 16;
    if (bRelease)
        flags |= static_cast<DWORD>(KF_REPEAT | KF_UP) << 16;
    else if (event.isAutoRepeat())
        flags |= static_cast<DWORD>(KF_REPEAT) << 16;
    // Sign-extended, so that a release reads negative, as hooks test it.
    return static_cast<LPARAM>(static_cast<LONG>(flags));
}

std::string CQtEventTranslator::Characters(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Delete) return {};
    return CWindows1252::FromQString(event.text());
}

bool CQtEventTranslator::IsSystemKey(const QKeyEvent& event) {
    Qt::KeyboardModifiers mods = event.modifiers();
    return ((mods & Qt::AltModifier) && !(mods & Qt::ControlModifier)) || event.key() == Qt::Key_F10 ||
           (event.key() == Qt::Key_Alt && !(mods & Qt::ControlModifier));
}

UINT CQtEventTranslator::MouseFlags(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
    UINT flags = 0;
    if (buttons & Qt::LeftButton) flags |= MK_LBUTTON;
    if (buttons & Qt::RightButton) flags |= MK_RBUTTON;
    if (buttons & Qt::MiddleButton) flags |= MK_MBUTTON;
    if (buttons & Qt::BackButton) flags |= MK_XBUTTON1;
    if (buttons & Qt::ForwardButton) flags |= MK_XBUTTON2;
    if (modifiers & Qt::ShiftModifier) flags |= MK_SHIFT;
    if (modifiers & Qt::ControlModifier) flags |= MK_CONTROL;
    return flags;
}

UINT CQtEventTranslator::ButtonMessage(Qt::MouseButton button, int nKind) {
    UINT base;
    switch (button) {
        case Qt::LeftButton:
            base = WM_LBUTTONDOWN;
            break;
        case Qt::RightButton:
            base = WM_RBUTTONDOWN;
            break;
        case Qt::MiddleButton:
            base = WM_MBUTTONDOWN;
            break;
        case Qt::BackButton:
        case Qt::ForwardButton:
            base = WM_XBUTTONDOWN;
            break;
        default:
            return 0;
    }
    return base + static_cast<UINT>(nKind);
}
