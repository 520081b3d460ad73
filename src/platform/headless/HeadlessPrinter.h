// A printer without paper: fixed page metrics the test sets, and a record
// of the job (started, pages with what was drawn on each, ended or
// aborted), so that page breaks and wrapping are testable exactly.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/headless/HeadlessDC.h"

struct HeadlessPrintJob {
    std::string strDocName;
    std::string strOutput;
    std::vector<DisplayList> pages;
    bool bStarted = false;
    bool bEnded = false;
    bool bAborted = false;
};

class TEXTZONE_EXPORT CHeadlessPrinterDC : public CHeadlessDC {
public:
    struct Page {
        int cx = 600;
        int cy = 800;
        int dpi = 96;
    };
    CHeadlessPrinterDC(const Page& page, std::shared_ptr<HeadlessPrintJob> pJob,
                       std::function<void(int nPage)> onEndPage);

    int GetDeviceCaps(int nIndex) override;
    int StartDoc(const DOCINFOA* pInfo) override;
    int StartPage() override;
    int EndPage() override;
    int EndDoc() override;
    int AbortDoc() override;

private:
    Page m_page;
    std::shared_ptr<HeadlessPrintJob> m_pJob;
    std::function<void(int)> m_onEndPage;
    bool m_bInPage = false;
};
