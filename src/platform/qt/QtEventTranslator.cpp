#include "platform/qt/QtEventTranslator.h"

#include <QKeyEvent>

#include "platform/Messages.h"
#include "platform/qt/Windows1252.h"

namespace {

// X11 and Wayland key codes (evdev + 8) of the right-hand modifiers.
constexpr quint32 kRightShiftCode = 62;
constexpr quint32 kRightControlCode = 105;
constexpr quint32 kRightAltCode = 108;

struct KeyCode {
    int key;  // Qt::Key
    int vk;
};

// Keys of the keypad, told apart by the keypad modifier; its navigation
// keys (Num Lock off) read as the keys they stand for.
constexpr KeyCode kKeypadKeys[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},       {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Slash, VK_DIVIDE},      {Qt::Key_Period, VK_DECIMAL}, {Qt::Key_Comma, VK_DECIMAL},
    {Qt::Key_Enter, VK_RETURN},
};

constexpr KeyCode kNamedKeys[] = {
    {Qt::Key_Backspace, VK_BACK},    {Qt::Key_Tab, VK_TAB},         {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Clear, VK_CLEAR},       {Qt::Key_Return, VK_RETURN},   {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Shift, VK_SHIFT},       {Qt::Key_Control, VK_CONTROL}, {Qt::Key_Alt, VK_MENU},
    {Qt::Key_AltGr, VK_MENU},        {Qt::Key_Pause, VK_PAUSE},     {Qt::Key_CapsLock, VK_CAPITAL},
    {Qt::Key_Escape, VK_ESCAPE},     {Qt::Key_Space, VK_SPACE},     {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},     {Qt::Key_End, VK_END},         {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},         {Qt::Key_Up, VK_UP},           {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},         {Qt::Key_Select, VK_SELECT},   {Qt::Key_Printer, VK_PRINT},
    {Qt::Key_Execute, VK_EXECUTE},   {Qt::Key_Print, VK_SNAPSHOT},  {Qt::Key_SysReq, VK_SNAPSHOT},
    {Qt::Key_Insert, VK_INSERT},     {Qt::Key_Delete, VK_DELETE},   {Qt::Key_Help, VK_HELP},
    {Qt::Key_Meta, VK_LWIN},         {Qt::Key_Super_L, VK_LWIN},    {Qt::Key_Super_R, VK_RWIN},
    {Qt::Key_Menu, VK_APPS},         {Qt::Key_Sleep, VK_SLEEP},     {Qt::Key_NumLock, VK_NUMLOCK},
    {Qt::Key_ScrollLock, VK_SCROLL}, {Qt::Key_Cancel, VK_CANCEL},
};

// Punctuation by the key that types it on a US keyboard, shifted or not.
// clang-format off
constexpr KeyCode kPunctuationKeys[] = {
    {Qt::Key_Semicolon, VK_OEM_1},       {Qt::Key_Colon, VK_OEM_1},
    {Qt::Key_Equal, VK_OEM_PLUS},        {Qt::Key_Plus, VK_OEM_PLUS},
    {Qt::Key_Comma, VK_OEM_COMMA},       {Qt::Key_Less, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS},       {Qt::Key_Underscore, VK_OEM_MINUS},
    {Qt::Key_Period, VK_OEM_PERIOD},     {Qt::Key_Greater, VK_OEM_PERIOD},
    {Qt::Key_Slash, VK_OEM_2},           {Qt::Key_Question, VK_OEM_2},
    {Qt::Key_QuoteLeft, VK_OEM_3},       {Qt::Key_AsciiTilde, VK_OEM_3},
    {Qt::Key_BracketLeft, VK_OEM_4},     {Qt::Key_BraceLeft, VK_OEM_4},
    {Qt::Key_Backslash, VK_OEM_5},       {Qt::Key_Bar, VK_OEM_5},
    {Qt::Key_BracketRight, VK_OEM_6},    {Qt::Key_BraceRight, VK_OEM_6},
    {Qt::Key_Apostrophe, VK_OEM_7},      {Qt::Key_QuoteDbl, VK_OEM_7},
    {Qt::Key_Exclam, '1'},      {Qt::Key_At, '2'},          {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},      {Qt::Key_Percent, '5'},     {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},   {Qt::Key_Asterisk, '8'},    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},
};
// clang-format on

template <size_t N>
int Find(const KeyCode (&table)[N], int key) {
    for (const KeyCode& k : table)
        if (k.key == key) return k.vk;
    return 0;
}

int KeypadKey(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return VK_NUMPAD0 + (key - Qt::Key_0);
    return Find(kKeypadKeys, key);
}

int NamedKey(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return VK_F1 + (key - Qt::Key_F1);
    return Find(kNamedKeys, key);
}

bool IsExtendedKey(int key, bool bKeypad) {
    switch (key) {
        case Qt::Key_Insert:
        case Qt::Key_Delete:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Left:
        case Qt::Key_Up:
        case Qt::Key_Right:
        case Qt::Key_Down:
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
    if (int vk = Find(kPunctuationKeys, key)) return vk;
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
    const Qt::KeyboardModifiers mods = event.modifiers();
    if ((mods & Qt::ControlModifier) && !(mods & Qt::AltModifier)) {
        // Ctrl types control characters, as on the desktop: Ctrl+C is 3,
        // never a "c" that would replace the selection it is to copy.
        const int key = event.key();
        if (key >= Qt::Key_A && key <= Qt::Key_Z) return std::string(1, char(key - Qt::Key_A + 1));
        if (key == Qt::Key_BracketLeft) return std::string(1, char(27));
        if (key == Qt::Key_Backslash) return std::string(1, char(28));
        if (key == Qt::Key_BracketRight) return std::string(1, char(29));
        if (key == Qt::Key_Space) return " ";
        const std::string text = CWindows1252::FromQString(event.text());
        return text.size() == 1 && static_cast<unsigned char>(text[0]) < 32 ? text : std::string();
    }
    return CWindows1252::FromQString(event.text());
}

bool CQtEventTranslator::IsSystemKey(const QKeyEvent& event) {
    Qt::KeyboardModifiers mods = event.modifiers();
    return ((mods & Qt::AltModifier) && !(mods & Qt::ControlModifier)) ||
           event.key() == Qt::Key_F10 ||
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
