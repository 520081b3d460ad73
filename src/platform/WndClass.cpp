#include "platform/WndClass.h"

#include <cstdio>
#include <set>
#include <string>

const char* AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground,
                                HICON hIcon) {
    // Node-based, so the names handed out stay where they are.
    static std::set<std::string> names;
    char szName[96];
    std::snprintf(szName, sizeof szName, "Afx:%x:%p:%p:%p", nClassStyle,
                  static_cast<const void*>(hCursor), static_cast<const void*>(hbrBackground),
                  hIcon);
    return names.insert(szName).first->c_str();
}
