// Dialog resources as data: a dialog's size in dialog units and its items,
// each with its kind, control id, label, rectangle in dialog units and a few
// style bits. A property page builds its controls from one of these, and a
// backend lays its widgets out from the same rectangles.
#pragma once

#include <vector>

#include "platform/Types.h"

enum class DlgItemKind {
    Group,  // a labelled frame round other items
    Text,   // a plain label
    PushButton,
    CheckBox,     // checks itself when clicked
    RadioButton,  // checks itself and unchecks the others of its group when clicked
    Edit,
    ListBox,
    ComboBox,  // drop-down list, owner-drawn, items are their data
    Static,    // a label whose font and colours the dialog chooses
    UpDown,    // arrows that step the integer in their buddy edit
    ListView,  // report view: columns with a header, rows
};

// Style bits of an item.
constexpr DWORD DIS_DISABLED = 0x0001;  // greyed for good
constexpr DWORD DIS_SORTED = 0x0002;    // lists and combos keep their items sorted
constexpr DWORD DIS_NUMBER = 0x0004;    // edits take digits only
constexpr DWORD DIS_CENTER = 0x0008;    // text centred
constexpr DWORD DIS_SUNKEN = 0x0010;    // sunken frame
constexpr DWORD DIS_GROUP = 0x0020;     // first radio button of a group

struct DLGITEM {
    DlgItemKind kind;
    int nID;  // -1 for items nobody addresses
    const char* pszText;
    int x, y, cx, cy;
    DWORD dwStyle;
    int nBuddy;  // the edit an up-down control steps; 0 otherwise
};

struct DLGTEMPLATE {
    UINT nID;
    const char* pszCaption;
    int cx, cy;
    std::vector<DLGITEM> items;
};

// Dialog units to pixels for the dialogs' font (8-point sans serif): a
// horizontal unit is a quarter and a vertical one an eighth of the font's
// average character width and height.
constexpr int kDialogBaseUnitX = 6;
constexpr int kDialogBaseUnitY = 13;
inline int DialogUnitsToPixelsX(int x) {
    return x * kDialogBaseUnitX / 4;
}
inline int DialogUnitsToPixelsY(int y) {
    return y * kDialogBaseUnitY / 8;
}
