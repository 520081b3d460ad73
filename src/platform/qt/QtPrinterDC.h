// A printer's drawing context over QPrinter: a real printer, or a PDF file
// when the job names one (no printer needs to be installed for that). One
// painter lives from StartDoc to EndDoc; text goes out as glyphs, so a PDF
// keeps it as text.
#pragma once

#include <QPrinter>
#include <memory>

#include "platform/PrintInfo.h"
#include "platform/qt/QtDC.h"

class CQtPrinterDC : public CQtDC {
public:
    // The resolution of PDF output, in dots per inch.
    static constexpr int kPdfResolution = 300;

    CQtPrinterDC(CQtFonts& fonts, const CPrintDialogInfo& pd);

    int GetDeviceCaps(int nIndex) override;
    int StartDoc(const DOCINFOA* pInfo) override;
    int StartPage() override;
    int EndPage() override;
    int EndDoc() override;
    int AbortDoc() override;

    QPrinter& Printer() { return m_printer; }

protected:
    QPainter* Open(std::optional<QPainter>& local, const QRect& rcTouched) override;

private:
    QRect PageRect() const;

    QPrinter m_printer;
    QPainter m_painter;
    bool m_bFirstPage = true;
    bool m_bInPage = false;
    bool m_bPdf = false;
};
