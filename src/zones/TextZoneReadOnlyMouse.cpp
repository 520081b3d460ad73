// Links under the mouse, clicks that activate them, and the bubble that
// shows a link's text or a line's help when the mouse rests.
#include <algorithm>
#include <cstring>
#include <string>

#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "zones/TextZoneReadOnly.h"
#include "zones/TooltipBubble.h"

namespace {

CTextZoneReadOnly::HoverWait s_hoverWait = nullptr;

}  // namespace

int CTextZoneReadOnly::IsOnHyperlink(POINT* pPoint, int* pLine1, int* pLine2, int* pChar1,
                                     int* pChar2, char* pText, long nTextMax,
                                     unsigned short nEolMode, char* pLinkText, long nLinkTextMax,
                                     LinkIdList* pIds, LinkDataList* pData, LinkKindList* pKinds) {
    if (pIds) pIds->clear();
    if (pData) pData->clear();
    if (pKinds) pKinds->clear();
    if (pLinkText && nLinkTextMax >= 1) pLinkText[0] = 0;
    if (!pPoint) return 0;
    const int nLine = GetLineFromPoint(pPoint);
    CStringExReadOnly* pLine = GetReadOnlyLine(nLine);
    if (!pLine) return 0;
    const int C = GetCharIndexFromPoint(pLine, pPoint);
    using L = CStringExReadOnly;
    int found = 0;
    for (size_t i = 0; i < pLine->m_linkBounds.size(); ++i) {
        const std::uint32_t range = pLine->m_linkBounds[i];
        if (L::Start(range) > C || L::End(range) <= C) continue;
        found = 1;
        int line1 = nLine, line2 = nLine;
        int char1 = L::Start(range), char2 = L::End(range);
        const VESK::String* pLink = &pLine->m_linkTexts[i];
        std::int64_t id = pLine->m_linkIds[i];
        unsigned long data = pLine->m_linkData[i];
        unsigned int kind = pLine->m_linkKinds[i];
        auto take = [&](CStringExReadOnly* p, size_t k) {
            pLink = &p->m_linkTexts[k];
            id = p->m_linkIds[k];
            data = p->m_linkData[k];
            kind = p->m_linkKinds[k];
        };
        // The link goes on over the line ends it touches. What a neighbour
        // holds is taken before it is known to continue the link: a link at
        // column 0 under an unrelated one reports that one's data, as hosts
        // have come to expect.
        for (int n = line1 - 1; char1 == 0 && n >= 0; --n) {
            CStringExReadOnly* pAbove = GetReadOnlyLine(n);
            if (!pAbove || pAbove->m_linkBounds.empty()) break;
            const size_t k = pAbove->m_linkBounds.size() - 1;
            take(pAbove, k);
            if (L::End(pAbove->m_linkBounds[k]) < L::kThroughEnd) break;
            line1 = n;
            char1 = L::Start(pAbove->m_linkBounds[k]);
        }
        for (int n = line2 + 1; char2 == L::kThroughEnd; ++n) {
            CStringExReadOnly* pBelow = GetReadOnlyLine(n);
            if (!pBelow || pBelow->m_linkBounds.empty()) break;
            take(pBelow, 0);
            if (L::Start(pBelow->m_linkBounds[0]) != 0) break;
            line2 = n;
            char2 = L::End(pBelow->m_linkBounds[0]);
        }
        if (pLine1) *pLine1 = line1;
        if (pLine2) *pLine2 = line2;
        if (pChar1) *pChar1 = char1;
        if (pChar2) *pChar2 = char2;
        if (pText && nTextMax >= 1)
            GetPartOfText(pText, nTextMax, line1, line2, char1, char2, 1, nEolMode);
        if (pLinkText && nLinkTextMax > 1) {
            const size_t n = std::min<size_t>(static_cast<size_t>(pLink->GetLength()),
                                              static_cast<size_t>(nLinkTextMax - 1));
            std::memcpy(pLinkText, pLink->c_str(), n);
            pLinkText[n] = 0;
        }
        if (!pIds) return 1;
        pIds->push_back(id);
        if (pData) pData->push_back(data);
        if (pKinds) pKinds->push_back(kind);
    }
    return found;
}

void CTextZoneReadOnly::OpenHyperlinks(POINT, int, int, int, int, char const*, LinkIdList const&,
                                       LinkDataList const&, LinkKindList const&) {}

void CTextZoneReadOnly::HandleLButtonDown(UINT nFlags, POINT* pPoint) {
    CTextZoneColor::HandleLButtonDown(nFlags, pPoint);
    int line = 0, column = 0;
    if (IsOnHyperlink(pPoint, &line, nullptr, &column, nullptr, nullptr, 0, 0, nullptr, 0, nullptr,
                      nullptr, nullptr)) {
        m_bLinkPressed = 1;
        m_nPressLine = line;
        m_nPressChar = column;
    } else {
        m_bLinkPressed = 0;
    }
}

void CTextZoneReadOnly::HandleLButtonUp(UINT nFlags, POINT* pPoint) {
    CTextZone::HandleLButtonUp(nFlags, pPoint);
    int line1 = 0, line2 = 0, char1 = 0, char2 = 0;
    char text[1024];
    text[0] = 0;
    LinkIdList ids;
    LinkDataList data;
    LinkKindList kinds;
    // Press and release on one link, in any of its stretches, activate it;
    // a drag from one link to another does not.
    if (IsOnHyperlink(pPoint, &line1, &line2, &char1, &char2, text, sizeof text, 0, nullptr, 0,
                      &ids, &data, &kinds) &&
        m_bLinkPressed && line1 == m_nPressLine && char1 == m_nPressChar)
        OpenHyperlinks(*pPoint, line1, line2, char1, char2, text, ids, data, kinds);
}

void CTextZoneReadOnly::HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    CloseBubble();
    CTextZoneColor::HandleKeyDown(nChar, nRepCnt, nFlags);
}

void CTextZoneReadOnly::HandleMouseMove(UINT nFlags, POINT* pPoint) {
    if (!pPoint || !PtInRect(&m_rcText, *pPoint) || (nFlags & MK_LBUTTON)) {
        CloseBubble();
        CTextZone::HandleMouseMove(nFlags, pPoint);
        return;
    }
    CTextZone::HandleMouseMove(nFlags, pPoint);
    const int nLine = GetLineFromPoint(pPoint);
    std::string tip(32768, '\0');
    bool bTip = false;
    if (IsOnHyperlink(pPoint, nullptr, nullptr, nullptr, nullptr, nullptr, 0, 0, tip.data(),
                      static_cast<long>(tip.size()), nullptr, nullptr, nullptr)) {
        SetCursor(LoadCursorA(nullptr, IDC_HAND));
        bTip = tip[0] != 0;
    } else {
        CStringExReadOnly* pLine = GetReadOnlyLine(nLine);
        if (pLine && !pLine->GetHelp().IsEmpty()) {
            const size_t n =
                std::min<size_t>(static_cast<size_t>(pLine->GetHelp().GetLength()), 32767);
            std::memcpy(tip.data(), pLine->GetHelp().c_str(), n);
            tip[n] = 0;
            bTip = true;
        }
        SetCursor(LoadCursorA(nullptr, IDC_IBEAM));
    }
    tip.resize(std::strlen(tip.c_str()));
    CWnd* pWnd = GetWindow();
    if (!pWnd || CWnd::GetFocus() != pWnd) {
        CloseBubble();
        return;
    }
    if (!m_pBubble) {
        if (!bTip) return;
        HoverWait wait = s_hoverWait ? s_hoverWait : &PollHoverWait;
        if (wait(this, nLine, kHoverDelay)) OpenBubble(nLine, pPoint, tip.c_str());
        return;
    }
    if (!bTip) {
        CloseBubble();
        return;
    }
    if (m_nBubbleLine == nLine && m_pBubble->GetText() == tip.c_str()) {
        m_ptBubble = *pPoint;
        return;
    }
    CloseBubble();
    OpenBubble(nLine, pPoint, tip.c_str());
}

void CTextZoneReadOnly::SetHoverWait(HoverWait pWait) {
    s_hoverWait = pWait;
}

bool CTextZoneReadOnly::PollHoverWait(CTextZoneReadOnly* pZone, int nLine, DWORD dwDelay) {
    CWnd* pWnd = pZone->GetWindow();
    const DWORD dwStart = GetTickCount();
    // Polls without sleeping, so that timers keep working and any real
    // input ends the wait at once; the message stays for its handler.
    while (GetTickCount() - dwStart < dwDelay) {
        MSG msg;
        if (!PeekMessageA(&msg, pWnd, 0, 0, PM_NOREMOVE)) continue;
        if (msg.message == WM_TIMER) {
            PeekMessageA(&msg, pWnd, WM_TIMER, WM_TIMER, PM_REMOVE);
            pWnd->SendMessage(msg.message, msg.wParam, msg.lParam);
        } else if (msg.message == WM_MOUSEMOVE) {
            POINT pt{static_cast<short>(LOWORD(msg.lParam)),
                     static_cast<short>(HIWORD(msg.lParam))};
            if (pZone->GetLineFromPoint(&pt) != nLine) return false;
        } else if (msg.message != WM_NCHITTEST && (msg.message < 0x360 || msg.message > 0x37F)) {
            return false;
        }
    }
    return true;
}

void CTextZoneReadOnly::OpenBubble(int nLine, POINT* pPoint, char const* pText) {
    if (!pPoint) return;
    // A mouse that has not moved does not bring back a bubble that closed.
    if (pPoint->x == m_ptBubble.x && pPoint->y == m_ptBubble.y) return;
    m_pClosedBubble.reset();
    // One pixel under the line, lines taken to be of one height.
    POINT pos{pPoint->x, GetLineHeight(0) * (nLine + 1) + m_rcText.top - GetVScrollOffset() + 1};
    m_pBubble = new CTooltipBubble(pText, GetWindow(), this);
    if (m_pBubble->CreateBubble(&pos)) {
        m_nBubbleLine = nLine;
        m_ptBubble = *pPoint;
    } else {
        delete m_pBubble;
        m_pBubble = nullptr;
    }
}

void CTextZoneReadOnly::CloseBubble() {
    if (!m_pBubble) return;
    ReleaseCapture();
    m_pBubble->DestroyWindow();
    m_pClosedBubble.reset(m_pBubble);
    m_pBubble = nullptr;
    m_nBubbleLine = 0;
    if (CWnd* pWnd = GetWindow(); pWnd && pWnd->GetSafeHwnd()) pWnd->UpdateWindow();
}
