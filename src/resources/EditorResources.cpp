#include "resources/EditorResources.h"

#include <cstring>

#include "platform/Messages.h"

namespace {

MenuBar ExtendedEditorViewMenu() {
    using M = MenuItem;
    return {
        M::Popup("&Edit", {M::Command(ID_EDIT_UNDO, "&Undo\tCtrl+Z"),
                           M::Command(ID_EDIT_REDO, "&Redo\tCtrl+Y"), M::Separator(),
                           M::Command(ID_EDIT_CUT, "Cu&t\tCtrl+X"),
                           M::Command(ID_EDIT_COPY, "&Copy\tCtrl+C"),
                           M::Command(ID_EDIT_PASTE, "&Paste\tCtrl+V"),
                           M::Command(ID_EDIT_ERASEBUFFER, "Era&se buffer"),
                           M::Command(ID_EDIT_SELECT_ALL, "Select &All\tCtrl+A"), M::Separator(),
                           M::Command(ID_EDIT_FIND, "&Find...\tCtrl+F", MF_GRAYED),
                           M::Command(ID_EDIT_REPEAT, "Find &Next\tF3"),
                           M::Command(ID_EDIT_REPLACE, "R&eplace...\tCtrl+H"), M::Separator(),
                           M::Command(ID_EDIT_BOXMODE, "&Box Mode"),
                           M::Command(ID_EDIT_STREAMMODE, "Stream M&ode")}),
        M::Popup("&View", {M::Separator(),
                           M::Command(ID_VIEW_TOGGLEBOOKMARK, "To&ggle Bookmark\tCtrl+F2"),
                           M::Command(ID_VIEW_NEXTBOOKMARK, "Ne&xt Bookmark\t F2"),
                           M::Command(ID_VIEW_PREVBOOKMARK, "Pre&vious Bookmark\tShift+F2")}),
    };
}

struct StringEntry {
    UINT nID;
    const char* pszText;
};

constexpr StringEntry kStrings[] = {
    {ID_EDIT_ERASEBUFFER, "Remove all the current buffer contents"},
    {ID_EDIT_BOXMODE, "Set current editor into box mode"},
    {ID_EDIT_STREAMMODE, "Set current editor into stream mode (default mode)"},
    {ID_VIEW_TOGGLEBOOKMARK, "Toggle a bookmark for the current line."},
    {ID_VIEW_NEXTBOOKMARK, "Move to the next bookmark line in current editor."},
    {ID_VIEW_PREVBOOKMARK, "Move to the previous bookmark line in current editor."},
    {ID_INDICATOR_LINE, "          "},
    {ID_INDICATOR_MODE, " TEST "},
};

}  // namespace

const MenuBar* LoadMenuResource(const char* pszName) {
    static const MenuBar menu = ExtendedEditorViewMenu();
    return pszName && std::strcmp(pszName, "MENUEXTENDEDEDITORVIEW") == 0 ? &menu : nullptr;
}

const char* LoadStringResource(UINT nID) {
    for (const StringEntry& entry : kStrings)
        if (entry.nID == nID) return entry.pszText;
    return nullptr;
}
