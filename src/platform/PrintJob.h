// The print loop of the framework: the print dialog (or the printer given),
// the printing window with its Cancel, and page after page through the
// printed window's hooks, until the range ends, the window says there is no
// such page, or the user cancels. Views and controls print through it.
#pragma once

#include <memory>
#include <string>

#include "TextzoneExport.h"
#include "platform/PrintInfo.h"

class CDC;
class CWnd;

// What a printed window supplies, in the order the loop calls it.
class TEXTZONE_EXPORT IPrintClient {
public:
    virtual ~IPrintClient() = default;
    // Asks where to print (DoPrintJobDialog); FALSE ends the job.
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo) = 0;
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) = 0;
    // Before each page; clears m_bContinuePrinting when there is no page.
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) = 0;
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo) = 0;
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) = 0;
};

class TEXTZONE_EXPORT CPrintJob {
public:
    // The print dialog unless the job is direct, then the printer context
    // for the choice, kept in the job. FALSE when cancelled or when there is
    // no printer, which the user is told.
    static BOOL DoPreparePrinting(CWnd* pParent, CPrintInfo* pInfo);
    // Prints the document named; FALSE if it did not start or was cancelled
    // or failed on the way. The main window is disabled meanwhile.
    static BOOL Run(IPrintClient& client, CPrintInfo& info, CWnd* pMainWnd,
                    const char* pszDocName = "Text Editor");
    // Run for a window: its top-level window is the main window disabled
    // meanwhile.
    static BOOL RunFor(IPrintClient& client, CPrintInfo& info, CWnd* pWnd);
    // The printer context DoPreparePrinting made for the job.
    static CDC* PrinterDC(CPrintInfo& info);

    // Said when a job cannot start.
    static constexpr const char* kFailedToStart = "Failed to start print job.";
};
