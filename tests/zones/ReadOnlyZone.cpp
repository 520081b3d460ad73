#include "ReadOnlyZone.h"

#include <cstdio>

#include "platform/DC.h"
#include "support/ZoneTest.h"

LRESULT CZoneWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    POINT pt{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    const UINT flags = static_cast<UINT>(wParam);
    if (m_pZone) {
        switch (message) {
            case WM_TIMER:
                if (m_pPlatform) m_pPlatform->AdvanceTickCount(100);
                break;
            case WM_LBUTTONDOWN:
                m_pZone->HandleLButtonDown(flags, &pt);
                break;
            case WM_LBUTTONUP:
                m_pZone->HandleLButtonUp(flags, &pt);
                break;
            case WM_MOUSEMOVE:
                m_pZone->HandleMouseMove(flags, &pt);
                break;
            case WM_KEYDOWN:
                m_pZone->HandleKeyDown(flags, 1, 0);
                break;
            default:
                break;
        }
    }
    return CRecordingWnd::WindowProc(message, wParam, lParam);
}

void ReadOnlyTest::SetUp() {
    ASSERT_TRUE(m_wnd.Create(WS_VISIBLE, RECT{10, 20, 410, 320}, nullptr, 1));
    m_wnd.m_pZone = &m_zone;
    m_wnd.m_pPlatform = &m_platform;
    CreateFixedFont(m_font);
    AttachZone(m_zone, m_wnd, m_font);
    m_zone.EnableSyntaxColor(0, 0, 0, 0, 0, 0, 0);
    m_zone.SetColors(kText, kBack, kSelText, kSelBack);
    m_wnd.SetFocus();
}

void ReadOnlyTest::TearDown() {
    m_zone.CloseBubble();
    m_zone.HideCaret();
    m_wnd.m_pZone = nullptr;
    m_wnd.DestroyWindow();
}

std::string ReadOnlyTest::Runs(int nLine) {
    m_zone.DefineColors(nLine, m_zone.GetLine(nLine));
    std::string out;
    for (const auto& def : m_zone.m_colorDefs) {
        if (!out.empty()) out += ", ";
        const COLORREF cr = def->crColor & 0xFFFFFF;
        char colour[16];
        std::snprintf(colour, sizeof colour, "#%06X", cr);
        out += std::to_string(def->nPos) + " " + (cr == kText ? std::string("Text") : colour);
        const std::pair<COLORREF, char> marks[] = {{RUN_HILIGHT, 'H'},
                                                   {RUN_LINK, 'L'},
                                                   {RUN_BACK_YELLOW, 'Y'},
                                                   {RUN_BACK_PINK, 'P'},
                                                   {RUN_PASTEL, 'S'}};
        bool first = true;
        for (auto [mask, c] : marks) {
            if (!(def->crColor & mask)) continue;
            out += first ? "+" : "";
            out += c;
            first = false;
        }
    }
    m_zone.FreeColorDefs();
    return out;
}

std::string ReadOnlyTest::Row(int nLine) {
    m_wnd.InvalidateRect(nullptr, FALSE);
    auto* peer = CHeadlessPlatform::Peer(&m_wnd);
    peer->ClearDisplayList();
    PAINTSTRUCT ps;
    m_zone.HandlePaint(m_wnd.BeginPaint(&ps));
    m_wnd.EndPaint(&ps);
    std::string out;
    for (const DrawRecord& r : peer->GetDisplayList()) {
        if (r.kind != DrawRecord::Text || r.rc.top != nLine * 16) continue;
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, ":#%06X/#%06X", r.crText, r.crBk);
        if (!out.empty()) out += " ";
        out += r.text + buffer;
        if (r.font.lfWeight >= 700) out += "!b";
        if (r.font.lfUnderline) out += "!u";
    }
    return out;
}

void ReadOnlyTest::Press(POINT pt) {
    m_wnd.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, Lp(pt));
}

void ReadOnlyTest::Release(POINT pt) {
    m_wnd.SendMessage(WM_LBUTTONUP, 0, Lp(pt));
}

void ReadOnlyTest::Move(POINT pt, UINT nFlags) {
    m_wnd.SendMessage(WM_MOUSEMOVE, nFlags, Lp(pt));
}
