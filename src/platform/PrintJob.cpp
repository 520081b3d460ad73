#include "platform/PrintJob.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/PrintingDialog.h"
#include "platform/Wnd.h"

namespace {

// The printer context of each job in progress, by the job's address.
std::map<const CPrintInfo*, std::unique_ptr<CDC>>& PrinterDCs() {
    static std::map<const CPrintInfo*, std::unique_ptr<CDC>> dcs;
    return dcs;
}

void Tell(CWnd* pParent, const char* pszText) {
    if (IPlatform* p = GetPlatform()) p->MessageBox(pParent, pszText);
}

// The abort procedure: pending events (the Cancel button) go first.
bool Aborted() {
    if (IPlatform* p = GetPlatform()) p->PumpEvents();
    return CPrintingDialog::UserAbort();
}

}  // namespace

BOOL CPrintJob::DoPreparePrinting(CWnd* pParent, CPrintInfo* pInfo) {
    IPlatform* pPlatform = GetPlatform();
    if (!pPlatform || !pInfo) return FALSE;
    if (!pInfo->m_bDirect && !pPlatform->DoPrintDialog(pParent, pInfo->m_pd)) return FALSE;
    std::unique_ptr<CDC> pDC = pPlatform->CreatePrinterDC(pInfo->m_pd);
    if (!pDC) {
        Tell(pParent, kFailedToStart);
        return FALSE;
    }
    PrinterDCs()[pInfo] = std::move(pDC);
    return TRUE;
}

BOOL CPrintJob::RunFor(IPrintClient& client, CPrintInfo& info, CWnd* pWnd) {
    CWnd* pMain = pWnd;
    while (pMain && pMain->GetParent())
        pMain = pMain->GetParent();
    return Run(client, info, pMain);
}

CDC* CPrintJob::PrinterDC(CPrintInfo& info) {
    auto it = PrinterDCs().find(&info);
    return it == PrinterDCs().end() ? nullptr : it->second.get();
}

BOOL CPrintJob::Run(IPrintClient& client, CPrintInfo& info, CWnd* pMainWnd,
                    const char* pszDocName) {
    struct Release {
        CPrintInfo* pInfo;
        ~Release() { PrinterDCs().erase(pInfo); }
    } release{&info};
    if (!client.OnPreparePrinting(&info)) return FALSE;
    CDC* pDC = PrinterDC(info);
    if (!pDC) return FALSE;

    DOCINFOA docInfo;
    docInfo.lpszDocName = pszDocName;
    const std::string& strOutput = info.m_pd.strOutputFile;
    docInfo.lpszOutput = strOutput.empty() ? nullptr : strOutput.c_str();
    std::string strPort = strOutput.empty() ? "on " + info.m_pd.strPortName
                                            : "to " + strOutput;

    client.OnBeginPrinting(pDC, &info);
    if (pMainWnd) pMainWnd->EnableWindow(FALSE);
    CPrintingDialog dialog;
    dialog.Create(pMainWnd);
    CPrintingDialog::UserAbort() = false;
    dialog.SetDlgItemText(CPrintingDialog::IDC_DOCUMENT, pszDocName);
    dialog.SetDlgItemText(CPrintingDialog::IDC_PRINTER,
                          info.m_pd.strPrinterName.empty() ? "default printer"
                                                           : info.m_pd.strPrinterName.c_str());
    dialog.SetDlgItemText(CPrintingDialog::IDC_PORT, strPort.c_str());
    dialog.UpdateWindow();
    auto finish = [&] {
        if (pMainWnd) pMainWnd->EnableWindow(TRUE);
        client.OnEndPrinting(pDC, &info);
        dialog.DestroyWindow();
    };
    if (pDC->StartDoc(&docInfo) == -1) {
        finish();
        Tell(pMainWnd, kFailedToStart);
        return FALSE;
    }

    // The range, clamped to the limits; backwards when it runs downwards.
    const UINT nMin = info.GetMinPage();
    const UINT nMax = std::max(nMin, info.GetMaxPage());
    const UINT nFrom = std::clamp(info.GetFromPage(), nMin, nMax);
    const UINT nTo = std::clamp(info.GetToPage(), nMin, nMax);
    const int nStep = nTo >= nFrom ? 1 : -1;
    bool bError = false;
    for (UINT nPage = nFrom;; nPage += nStep) {
        info.m_nCurPage = nPage;
        client.OnPrepareDC(pDC, &info);
        if (!info.m_bContinuePrinting) break;
        char szPage[64];
        std::snprintf(szPage, sizeof szPage, info.m_strPageDesc.c_str(), nPage);
        dialog.SetDlgItemText(CPrintingDialog::IDC_PAGE, szPage);
        info.m_rectDraw.SetRect(0, 0, pDC->GetDeviceCaps(HORZRES), pDC->GetDeviceCaps(VERTRES));
        pDC->DPtoLP(&info.m_rectDraw);
        if (pDC->StartPage() < 0) {
            bError = true;
            break;
        }
        client.OnPrepareDC(pDC, &info);
        client.OnPrint(pDC, &info);
        if (pDC->EndPage() < 0 || Aborted()) {
            bError = true;
            break;
        }
        if (nPage == nTo) break;
    }
    if (bError)
        pDC->AbortDoc();
    else
        pDC->EndDoc();
    finish();
    return !bError;
}
