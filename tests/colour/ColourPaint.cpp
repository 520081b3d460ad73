#include "ColourPaint.h"

#include <algorithm>
#include <climits>
#include <cstdio>

void ColourPaintTest::Paint() {
    m_wnd.InvalidateRect(nullptr, FALSE);
    Peer().ClearDisplayList();
    PAINTSTRUCT ps;
    m_zone.HandlePaint(m_wnd.BeginPaint(&ps));
    m_wnd.EndPaint(&ps);
    Peer().ClearInvalidations();
}

std::string ColourPaintTest::Row(int nLine) {
    std::string out;
    for (const DrawRecord& r : Peer().GetDisplayList()) {
        if (r.kind != DrawRecord::Text || r.rc.top != nLine * kRow) continue;
        if (!out.empty()) out += " ";
        if (r.crText == kSelText && r.crBk == kSelBack) {
            out += "[" + r.text + "]";
            continue;
        }
        out += r.text + ":" + ClassName(r.crText);
        if (r.crBk != 0xFFFFFF) {
            char back[16];
            std::snprintf(back, sizeof back, "/#%06X", r.crBk);
            out += back;
        }
    }
    return out;
}

std::string ColourPaintTest::SelectionFills(int nLine) {
    std::string out;
    const DisplayList& list = Peer().GetDisplayList();
    for (size_t i = 0; i < list.size(); ++i) {
        const DrawRecord& r = list[i];
        if (r.kind != DrawRecord::Fill || r.crFill != kSelBack || r.rc.top != nLine * kRow)
            continue;
        if (i + 1 < list.size() && list[i + 1].kind == DrawRecord::Text && list[i + 1].rc == r.rc)
            continue;
        if (!out.empty()) out += " ";
        out += std::to_string(r.rc.left) + "-" + std::to_string(r.rc.right);
    }
    return out;
}

std::string ColourPaintTest::InvalidRows() {
    int top = INT_MAX;
    int bottom = INT_MIN;
    for (const auto& inv : Peer().GetInvalidations()) {
        top = std::min<int>(top, inv.rcBox.top);
        bottom = std::max<int>(bottom, inv.rcBox.bottom);
    }
    Peer().ClearInvalidations();
    if (top >= bottom) return "";
    return std::to_string(top / kRow) + "-" + std::to_string((bottom - 1) / kRow);
}
