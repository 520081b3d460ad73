#include "platform/headless/HeadlessPrinter.h"

#include "platform/Messages.h"
#include "platform/PrintInfo.h"

CHeadlessPrinterDC::CHeadlessPrinterDC(const Page& page, std::shared_ptr<HeadlessPrintJob> pJob,
                                       std::function<void(int)> onEndPage)
    : CHeadlessDC(nullptr, CRgn(RECT{0, 0, page.cx, page.cy}), false),
      m_page(page),
      m_pJob(std::move(pJob)),
      m_onEndPage(std::move(onEndPage)) {}

int CHeadlessPrinterDC::GetDeviceCaps(int nIndex) {
    switch (nIndex) {
        case LOGPIXELSX:
        case LOGPIXELSY:
            return m_page.dpi;
        case HORZRES:
            return m_page.cx;
        case VERTRES:
            return m_page.cy;
        default:
            return CHeadlessDC::GetDeviceCaps(nIndex);
    }
}

int CHeadlessPrinterDC::StartDoc(const DOCINFOA* pInfo) {
    if (m_pJob->bStarted) return -1;
    m_pJob->bStarted = true;
    if (pInfo && pInfo->lpszDocName) m_pJob->strDocName = pInfo->lpszDocName;
    if (pInfo && pInfo->lpszOutput) m_pJob->strOutput = pInfo->lpszOutput;
    return 1;
}

int CHeadlessPrinterDC::StartPage() {
    if (!m_pJob->bStarted || m_bInPage) return -1;
    m_bInPage = true;
    TakeDisplayList();  // what was drawn between pages reaches no paper
    return 1;
}

int CHeadlessPrinterDC::EndPage() {
    if (!m_bInPage) return -1;
    m_bInPage = false;
    m_pJob->pages.push_back(TakeDisplayList());
    if (m_onEndPage) m_onEndPage(static_cast<int>(m_pJob->pages.size()));
    return 1;
}

int CHeadlessPrinterDC::EndDoc() {
    if (!m_pJob->bStarted) return -1;
    m_pJob->bEnded = true;
    return 1;
}

int CHeadlessPrinterDC::AbortDoc() {
    m_pJob->bAborted = true;
    return 1;
}
