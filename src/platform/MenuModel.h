// A menu as data: pop-ups holding items, each item a command id and its
// text ("&Undo\tCtrl+Z": the letter after & is the mnemonic, the part after
// the tab names the key). A window system builds its menu bar from it.
#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"

constexpr UINT MF_GRAYED = 0x0001;
constexpr UINT MF_CHECKED = 0x0008;
constexpr UINT MF_POPUP = 0x0010;
constexpr UINT MF_SEPARATOR = 0x0800;

struct MenuItem {
    UINT nID = 0;  // 0 for a separator and a pop-up
    std::string strText;
    UINT nFlags = 0;
    std::vector<MenuItem> items;  // of a pop-up

    static MenuItem Command(UINT nID, const char* pszText, UINT nFlags = 0) {
        return MenuItem{nID, pszText, nFlags, {}};
    }
    static MenuItem Separator() { return MenuItem{0, std::string(), MF_SEPARATOR, {}}; }
    static MenuItem Popup(const char* pszText, std::vector<MenuItem> items) {
        return MenuItem{0, pszText, MF_POPUP, std::move(items)};
    }
    bool IsSeparator() const { return (nFlags & MF_SEPARATOR) != 0; }
    bool IsPopup() const { return (nFlags & MF_POPUP) != 0; }
};

// A menu bar: its pop-ups in order.
using MenuBar = std::vector<MenuItem>;
