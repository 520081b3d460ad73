#include "editor/EditorPrinting.h"

#include <cstdlib>
#include <cstring>
#include <strings.h>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

void CEditorPrinting::BeginPrinting(CTextZone& zone, CDC* pDC) {
    m_PageStartLine.assign(1, 0);
    m_PageStartChar.assign(1, 0);
    if (m_hPrinterFont) return;
    HFONT hFont = zone.GetFont();
    if (!hFont) return;
    LOGFONTA lf;
    if (!GetObjectA(hFont, sizeof lf, &lf)) return;
    // The device's own font prints as it is.
    if (strcasecmp(lf.lfFaceName, "system") == 0) return;
    std::unique_ptr<CDC> pScreen(CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    const int nScreenY = pScreen ? pScreen->GetDeviceCaps(LOGPIXELSY) : 96;
    const int nScreenX = pScreen ? pScreen->GetDeviceCaps(LOGPIXELSX) : 96;
    lf.lfHeight = MulDiv(lf.lfHeight, pDC->GetDeviceCaps(LOGPIXELSY), nScreenY);
    lf.lfWidth = MulDiv(lf.lfWidth, pDC->GetDeviceCaps(LOGPIXELSX), nScreenX);
    m_pPrinterFont = std::make_unique<CFont>();
    if (!m_pPrinterFont->CreateFontIndirect(&lf)) {
        m_pPrinterFont.reset();
        return;
    }
    m_hPrinterFont = m_hMirrorFont = m_pPrinterFont->GetSafeHandle();
}

void CEditorPrinting::PrepareDC(CTextZone& zone, IPrintClient& client, CDC* pDC,
                                CPrintInfo* pInfo) {
    if (pInfo->m_nCurPage > m_PageStartLine.size() && !PaginateTo(zone, client, pDC, pInfo))
        pInfo->m_bContinuePrinting = FALSE;
}

void CEditorPrinting::Print(CTextZone& zone, CDC* pDC, CPrintInfo* pInfo) {
    HFONT hOld = m_hPrinterFont ? pDC->SelectObject(m_hPrinterFont) : nullptr;
    pDC->SetBkMode(TRANSPARENT);
    const size_t nPage = pInfo->m_nCurPage;
    // A page nobody found has no start: nothing to print (the loop finds
    // pages in order, so this is a caller's mistake, not the user's).
    if (nPage < 1 || nPage > m_PageStartLine.size()) {
        if (hOld) pDC->SelectObject(hOld);
        return;
    }
    UINT nChar = m_PageStartChar[nPage - 1];
    RECT rect = pInfo->m_rectDraw;
    UINT nNext = PrintInsideRect(zone, pDC, rect, m_PageStartLine[nPage - 1], nChar);
    if (hOld) pDC->SelectObject(hOld);
    if (nPage == m_PageStartLine.size() &&
        static_cast<int>(nNext) <= zone.GetLastLineIndex()) {
        m_PageStartLine.push_back(nNext);
        m_PageStartChar.push_back(nChar);
    }
}

void CEditorPrinting::EndPrinting() {
    m_PageStartLine.clear();
    m_PageStartChar.clear();
    if (m_hPrinterFont == m_hMirrorFont) {
        m_pPrinterFont.reset();
        m_hPrinterFont = m_hMirrorFont = nullptr;
    }
}

int CEditorPrinting::FittingLength(CDC* pDC, const char* p, int n, int nWidth, int nTabStop) {
    auto fits = [&](int k) { return pDC->GetTabbedTextExtent(p, k, 1, &nTabStop).cx <= nWidth; };
    if (n <= 1 || fits(n)) return std::max(n, 0);
    // fits(lo) or lo == 1; !fits(hi).
    int lo = 1, hi = n;
    while (hi - lo > 1) {
        const int mid = lo + (hi - lo) / 2;
        (fits(mid) ? lo : hi) = mid;
    }
    return lo;
}

UINT CEditorPrinting::PrintInsideRect(CTextZone& zone, CDC* pDC, RECT& rect, UINT nLine,
                                      UINT& nChar) {
    CStringEx* pLine = zone.GetLine(static_cast<int>(nLine));
    if (!pLine) return static_cast<UINT>(zone.GetLastLineIndex() + 1);
    TEXTMETRICA tm;
    pDC->GetTextMetrics(&tm);
    const int h = tm.tmHeight;
    int nTabStop = zone.GetTabWidth();
    if (nTabStop < 1) {
        nTabStop = tm.tmAveCharWidth * std::abs(nTabStop);
        if (nTabStop == 0) nTabStop = 20;
    }
    pDC->SaveDC();
    int y = rect.top;
    int c = static_cast<int>(nChar);
    const int nWidth = rect.right - rect.left;
    for (;;) {
        const int nVisible = pLine->GetVisibleLength();
        const char* pText = pLine->c_str() + c;
        const int n = FittingLength(pDC, pText, nVisible - c, nWidth, nTabStop);
        RECT rcRow{rect.left, y, rect.right, y + h};
        if (n > 0 && pDC->RectVisible(&rcRow))
            zone.getGraphicText()(pDC, rect.left, y, pText, n, 1, &nTabStop, rect.left);
        c += n;
        if (c >= nVisible) {
            // The walk takes every line, collapsed or not.
            pLine = zone.GetLine(static_cast<int>(++nLine));
            c = 0;
        }
        y += h;
        if (!pLine || y + h > rect.bottom) break;
    }
    pDC->RestoreDC(-1);
    rect.bottom = y;
    nChar = static_cast<UINT>(c);
    return nLine;
}

int CEditorPrinting::PaginateTo(CTextZone&, IPrintClient& client, CDC* pDC,
                                CPrintInfo* pInfo) {
    const CRect rcSaved = pInfo->m_rectDraw;
    const UINT nSaved = pInfo->m_nCurPage;
    pDC->SaveDC();
    // Nothing reaches the paper while the pages are counted.
    pDC->IntersectClipRect(0, 0, 0, 0);
    bool bReached = true;
    for (UINT nPage = static_cast<UINT>(m_PageStartLine.size()); nPage < nSaved; ++nPage) {
        const size_t nKnown = m_PageStartLine.size();
        pInfo->m_nCurPage = nPage;
        pInfo->m_rectDraw.SetRect(0, 0, pDC->GetDeviceCaps(HORZRES), pDC->GetDeviceCaps(VERTRES));
        pDC->DPtoLP(&pInfo->m_rectDraw);
        client.OnPrint(pDC, pInfo);
        if (m_PageStartLine.size() == nKnown) {
            bReached = false;
            break;
        }
    }
    bReached = bReached && nSaved <= m_PageStartLine.size();
    pDC->RestoreDC(-1);
    pInfo->m_rectDraw = rcSaved;
    pInfo->m_nCurPage = nSaved;
    return bReached;
}
