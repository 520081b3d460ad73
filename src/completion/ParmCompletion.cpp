// Parameter tooltips: the answers of the host, the tooltip window, and the
// keys and clicks that move the caret through a call. The host answers on
// any thread; its answer is entered under m_parmLock and carried to the
// window's thread by a posted WM_USER, so everything else here runs on that
// thread alone.
#include <algorithm>
#include <cstring>
#include <memory>

#include "colour/TextZoneColor.h"
#include "completion/CompletionTooltip.h"
#include "completion/OpenParmComp.h"
#include "completion/ParmCompRequest.h"
#include "completion/ParmCompSet.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

namespace {

// A tooltip closed from inside one of its own messages is kept until that
// message has returned; the next open or close frees it.
std::unique_ptr<CCompletionTooltip> g_pRetiredTooltip;

void FreeRetiredTooltip() {
    if (g_pRetiredTooltip && !g_pRetiredTooltip->IsInMessage()) g_pRetiredTooltip.reset();
}

// Piece nIndex of a comma-separated list; false when there is none.
bool ListPiece(const VESK::String& list, int nIndex, VESK::String* pPiece) {
    const char* p = list.c_str();
    const int n = list.GetLength();
    int start = 0;
    for (int i = 0; i < nIndex; ++i) {
        const void* comma = std::memchr(p + start, ',', static_cast<size_t>(n - start));
        if (!comma) return false;
        start = static_cast<int>(static_cast<const char*>(comma) - p) + 1;
    }
    const void* comma = std::memchr(p + start, ',', static_cast<size_t>(n - start));
    const int end = comma ? static_cast<int>(static_cast<const char*>(comma) - p) : n;
    *pPiece = VESK::String(p + start, end - start);
    return true;
}

}  // namespace

void CTextZoneColor::SetParmCompletionMode(unsigned int nMode) {
    m_nParmCompletionMode = nMode;
}

void CTextZoneColor::OnNewParmCompletionRequest(int, char const*) {}

void CTextZoneColor::AddParmCompletionSet(int nKind, char const* pName, char const* pTitle,
                                          char const* pParms, char const* pNames) {
    if (!pParms) return;
    auto* pSet = new CParmCompSet;
    pSet->nKind = nKind;
    pSet->strName = pName;
    pSet->strTitle = pTitle;
    pSet->strParms = pParms;
    pSet->strNames = pNames;
    if (*pParms)
        pSet->nParmCount =
            1 + static_cast<int>(std::count(pParms, pParms + std::strlen(pParms), ','));
    {
        std::lock_guard<std::mutex> lock(m_parmLock);
        m_parmSets.push_back(pSet);
        auto it = std::find_if(m_parmRequests.begin(), m_parmRequests.end(),
                               [&](const CParmCompRequest* r) {
                                   return r->nKind == nKind && r->strName == pSet->strName;
                               });
        if (it != m_parmRequests.end()) {
            delete *it;
            m_parmRequests.erase(it);
        }
    }
    // The set stays in m_parmSets until the zone dies, so it outlives the
    // message that carries it.
    if (m_pWnd) m_pWnd->PostMessage(WM_USER, 0, reinterpret_cast<LPARAM>(pSet));
}

LONG CTextZoneColor::HandleUserMessage(std::uint64_t, std::int64_t lParam) {
    auto* pSet = reinterpret_cast<CParmCompSet*>(lParam);
    {
        // Only a set of this zone: a message left in the queue for a zone
        // the window no longer shows carries nothing to read.
        std::lock_guard<std::mutex> lock(m_parmLock);
        if (!pSet || std::find(m_parmSets.begin(), m_parmSets.end(), pSet) == m_parmSets.end())
            return 0;
    }
    bool bTaken = false;
    for (COpenParmComp* pComp : m_openParmComps) {
        if (!pComp->pSet && pComp->nKind == pSet->nKind && pComp->strName == pSet->strName) {
            pComp->pSet = pSet;
            bTaken = true;
        }
    }
    if (!bTaken) return 0;
    // The innermost call shows its own parameters as soon as they are
    // known, even where the tooltip of an outer call is up meanwhile.
    if (m_pParmTooltip && m_openParmComps.back()->pSet == pSet)
        OpenParmTooltip(m_openParmComps.back());
    UpdateParmTooltipStatus();
    // Types the first name only if the user has not moved on while the host
    // was answering.
    if (m_openParmComps.empty()) return 0;
    const COpenParmComp* pNewest = m_openParmComps.back();
    if (pNewest->pSet != pSet || TestSelection() || m_nSelStartLine != pNewest->nLine ||
        m_nSelStartChar != pNewest->nChar || pSet->strNames.IsEmpty() || !m_pParmTooltip ||
        m_pParmTooltip->GetActiveParm() != 0)
        return 0;
    InsertParmName(0, false);
    return 0;
}

void CTextZoneColor::InsertParmName(int nParm, bool bComma) {
    if (m_openParmComps.empty()) return;
    const CParmCompSet* pSet = m_openParmComps.back()->pSet;
    VESK::String name;
    if (!pSet || nParm < 0 || !ListPiece(pSet->strNames, nParm, &name)) return;
    VESK::String text = bComma ? " " : "";
    text += name;
    text += " = ";

    // Nothing to type when the text behind the caret already says it.
    CStringEx line;
    GetCommentAndStringFreeLine(&line, m_nSelStartLine, 1);
    int at = std::min(m_nSelStartChar, line.GetLength());
    while (at < line.GetLength() && (line[at] == ' ' || line[at] == '\t' || line[at] == 10))
        ++at;
    int skip = 0;
    while (skip < text.GetLength() && text[skip] == ' ')
        ++skip;
    const int rest = text.GetLength() - skip;
    if (line.GetLength() - at >= rest &&
        std::memcmp(line.c_str() + at, text.c_str() + skip, static_cast<size_t>(rest)) == 0)
        return;

    SetModify(1);
    StartRegister(6);
    InsertText(text.c_str(), 0, 1, 1);
    EndRegister();
    UpdateParmTooltipStatus();
}

POINT CTextZoneColor::ParmTooltipPlace(const COpenParmComp* pComp) {
    POINT pt{m_rcText.left - GetHScrollOffset(), 0};
    const int nLine = m_nSelStartLine;
    if (CStringEx* pLine = GetLine(nLine)) {
        CDC* pDC = GetStandardDC();
        pt.x += GetTextWidth(pDC, pLine->c_str(), std::min(pComp->nChar, pLine->GetLength()));
        ReleaseStandardDC(pDC);
    }
    pt.y = m_rcText.top - GetVScrollOffset() + GetLinePosition(nLine + 1);
    return pt;
}

void CTextZoneColor::OpenParmTooltip(COpenParmComp* pComp) {
    FreeRetiredTooltip();
    if (m_pParmTooltip) {
        delete m_pParmTooltip;
        m_pParmTooltip = nullptr;
    }
    if (!pComp || !pComp->pSet || !m_pWnd) return;
    const POINT pt = ParmTooltipPlace(pComp);
    const int bNoParens = pComp->pSet->nKind == 0 && m_bProcCallNoParens;
    auto* pTooltip = new CCompletionTooltip(pComp->pSet->strTitle, pComp->pSet->strParms, bNoParens,
                                            m_pWnd, this);
    if (!pTooltip->CreateAt(pt)) {
        delete pTooltip;
        return;
    }
    m_pParmTooltip = pTooltip;
    pTooltip->SetActiveParm(0);
    pTooltip->ShowWindow(SW_SHOWNOACTIVATE);
    m_pWnd->UpdateWindow();
}

void CTextZoneColor::CloseParmTooltip(int bClearRequests) {
    if (bClearRequests) {
        for (COpenParmComp* pComp : m_openParmComps)
            delete pComp;
        m_openParmComps.clear();
    }
    FreeRetiredTooltip();
    if (m_pParmTooltip) {
        CCompletionTooltip* pTooltip = m_pParmTooltip;
        m_pParmTooltip = nullptr;
        pTooltip->DestroyWindow();
        if (pTooltip->IsInMessage())
            g_pRetiredTooltip.reset(pTooltip);
        else
            delete pTooltip;
        if (m_pWnd) m_pWnd->UpdateWindow();
    }
}

void CTextZoneColor::FreeParmCompletion() {
    // The window may be gone already: nothing is redrawn here.
    for (COpenParmComp* pComp : m_openParmComps)
        delete pComp;
    m_openParmComps.clear();
    delete m_pParmTooltip;
    m_pParmTooltip = nullptr;
    FreeRetiredTooltip();
    std::lock_guard<std::mutex> lock(m_parmLock);
    for (CParmCompSet* pSet : m_parmSets)
        delete pSet;
    m_parmSets.clear();
    for (CParmCompRequest* pRequest : m_parmRequests)
        delete pRequest;
    m_parmRequests.clear();
}

void CTextZoneColor::HandleKeyDownForCompletion(unsigned int nChar, unsigned int, unsigned int) {
    switch (nChar) {
        case VK_BACK:
        case VK_RETURN:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_UP:
        case VK_DOWN:
            UpdateParmTooltipStatus();
            // The caret may have gone to another line: the tooltip follows.
            if (m_pParmTooltip && !m_openParmComps.empty()) {
                POINT pt = ParmTooltipPlace(m_openParmComps.back());
                if (m_pWnd) m_pWnd->ClientToScreen(&pt);
                m_pParmTooltip->SetWindowPos(
                    nullptr, pt.x, pt.y, 0, 0,
                    SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
                if (m_pWnd) m_pWnd->UpdateWindow();
            }
            break;
        case VK_TAB:
        case VK_END:
        case VK_HOME:
        case VK_LEFT:
        case VK_RIGHT:
            UpdateParmTooltipStatus();
            break;
        case VK_ESCAPE:
            if (m_openParmComps.empty()) break;
            delete m_openParmComps.back();
            m_openParmComps.pop_back();
            // The tooltip keeps the text of the dropped call until it
            // closes: the outer call's is not rebuilt here.
            if (m_openParmComps.empty())
                CloseParmTooltip(0);
            else
                UpdateParmTooltipStatus();
            break;
        default:
            break;
    }
}

void CTextZoneColor::HandleLButtonDownForCompletion(unsigned int nFlags, tagPOINT*) {
    HandleKeyDownForCompletion(VK_BACK, 1, nFlags);
}
