// What the view and the control print with, alike: the tables of where each
// page found so far starts, the printer's copy of the screen font, and the
// walk that puts lines on a page. Printing is plain: one colour, the lines
// wrapped at the character that no longer fits, tabs as wide as on screen,
// collapsed lines printed like the others.
#pragma once

#include <memory>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Font.h"
#include "platform/PrintJob.h"

class CDC;
class CTextZone;

class TEXTZONE_EXPORT CEditorPrinting {
public:
    // Page 1 starts at the top; the screen font scaled to the printer, unless
    // it is the device's own "system" font.
    void BeginPrinting(CTextZone& zone, CDC* pDC);
    // Finds the page asked for if it is not known yet; none stops the job.
    void PrepareDC(CTextZone& zone, IPrintClient& client, CDC* pDC, CPrintInfo* pInfo);
    // Prints the page into m_rectDraw and notes where the next one starts.
    void Print(CTextZone& zone, CDC* pDC, CPrintInfo* pInfo);
    void EndPrinting();

    // Prints from (nLine, nChar) into rect; returns the next line, updates
    // nChar, and sets rect.bottom to where it stopped.
    UINT PrintInsideRect(CTextZone& zone, CDC* pDC, RECT& rect, UINT nLine, UINT& nChar);
    // Walks the pages, printing nowhere (through the client's OnPrint, so a
    // derived window sees them), up to pInfo->m_nCurPage; true if it exists.
    int PaginateTo(CTextZone& zone, IPrintClient& client, CDC* pDC, CPrintInfo* pInfo);

    // How many of the n bytes at p fit in nWidth pixels, at least 1 of a
    // non-empty run: the longest fitting run, found by halving (widths only
    // grow with length).
    static int FittingLength(CDC* pDC, const char* p, int n, int nWidth, int nTabStop);

    std::vector<unsigned int> m_PageStartLine;
    std::vector<unsigned int> m_PageStartChar;
    HFONT m_hPrinterFont = nullptr;
    HFONT m_hMirrorFont = nullptr;

private:
    std::unique_ptr<CFont> m_pPrinterFont;
};
