#include "platform/qt/QtPrinterDC.h"

#include <QFile>
#include <QPageLayout>

#include "platform/Messages.h"

CQtPrinterDC::CQtPrinterDC(CQtFonts& fonts, const CPrintDialogInfo& pd)
    : CQtDC(fonts, nullptr, CRgn(), nullptr), m_printer(QPrinter::HighResolution) {
    m_bPdf = !pd.strOutputFile.empty();
    if (m_bPdf) {
        m_printer.setOutputFormat(QPrinter::PdfFormat);
        m_printer.setOutputFileName(QString::fromLocal8Bit(pd.strOutputFile.c_str()));
        m_printer.setResolution(kPdfResolution);
    } else if (!pd.strPrinterName.empty()) {
        m_printer.setPrinterName(QString::fromLocal8Bit(pd.strPrinterName.c_str()));
    }
    m_printer.setFullPage(false);
    QRect page = PageRect();
    SetSystemClip(CRgn(RECT{0, 0, page.width(), page.height()}));
}

QRect CQtPrinterDC::PageRect() const {
    return m_printer.pageLayout().paintRectPixels(m_printer.resolution());
}

int CQtPrinterDC::GetDeviceCaps(int nIndex) {
    switch (nIndex) {
        case LOGPIXELSX:
        case LOGPIXELSY:
            return m_printer.resolution();
        case HORZRES:
            return PageRect().width();
        case VERTRES:
            return PageRect().height();
        default:
            return CQtDC::GetDeviceCaps(nIndex);
    }
}

int CQtPrinterDC::StartDoc(const DOCINFOA* pInfo) {
    if (m_painter.isActive()) return -1;
    if (pInfo && pInfo->lpszDocName)
        m_printer.setDocName(QString::fromLocal8Bit(pInfo->lpszDocName));
    if (pInfo && pInfo->lpszOutput && !m_bPdf) {
        m_printer.setOutputFormat(QPrinter::PdfFormat);
        m_printer.setOutputFileName(QString::fromLocal8Bit(pInfo->lpszOutput));
        m_bPdf = true;
    }
    if (!m_painter.begin(&m_printer)) return -1;
    m_bFirstPage = true;
    return 1;
}

int CQtPrinterDC::StartPage() {
    if (!m_painter.isActive() || m_bInPage) return -1;
    if (!m_bFirstPage && !m_printer.newPage()) return -1;
    m_bFirstPage = false;
    m_bInPage = true;
    return 1;
}

int CQtPrinterDC::EndPage() {
    if (!m_bInPage) return -1;
    m_bInPage = false;
    return 1;
}

int CQtPrinterDC::EndDoc() {
    if (!m_painter.isActive()) return -1;
    return m_painter.end() ? 1 : -1;
}

int CQtPrinterDC::AbortDoc() {
    if (m_painter.isActive()) m_painter.end();
    // A half-made file is no document: it goes.
    if (m_bPdf) QFile::remove(m_printer.outputFileName());
    return 1;
}

QPainter* CQtPrinterDC::Open(std::optional<QPainter>&, const QRect& rcTouched) {
    if (!m_bInPage) return nullptr;
    QRegion clip = ClipRegion();
    if (!clip.intersects(rcTouched)) return nullptr;
    m_painter.setClipRegion(clip);
    m_painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    return &m_painter;
}
