// A print job as the print loop and the printed window share it: the page
// range the user chose, the page being printed and the rectangle to print
// it into, the printer or file it goes to, and whether to go on.
#pragma once

#include <string>

#include "platform/Messages.h"
#include "platform/Types.h"

// What the print dialog asks and answers.
struct CPrintDialogInfo {
    DWORD Flags = 0;
    UINT nMinPage = 1;
    UINT nMaxPage = 0xFFFF;
    UINT nFromPage = 1;
    UINT nToPage = 0xFFFF;
    std::string strPrinterName;  // empty: the default printer
    std::string strPortName;
    // A PDF file to print into instead of a printer, when not empty.
    std::string strOutputFile;
};

struct CPrintInfo {
    void SetMinPage(UINT n) { m_pd.nMinPage = n; }
    void SetMaxPage(UINT n) { m_pd.nMaxPage = n; }
    UINT GetMinPage() const { return m_pd.nMinPage; }
    UINT GetMaxPage() const { return m_pd.nMaxPage; }
    UINT GetFromPage() const { return m_pd.nFromPage; }
    UINT GetToPage() const { return m_pd.nToPage; }

    CPrintDialogInfo m_pd;
    // Print without asking: the printer (or file) of m_pd as it stands.
    BOOL m_bDirect = FALSE;
    BOOL m_bPreview = FALSE;
    BOOL m_bContinuePrinting = TRUE;
    UINT m_nCurPage = 1;
    CRect m_rectDraw;
    std::string m_strPageDesc = "Page %u";
};

struct DOCINFOA {
    int cbSize = sizeof(DOCINFOA);
    const char* lpszDocName = nullptr;
    const char* lpszOutput = nullptr;
};
using DOCINFO = DOCINFOA;
