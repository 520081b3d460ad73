#include "platform/qt/QtPlatform.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QScreen>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstring>

#include "completion/qt/QtPickList.h"
#include "platform/DC.h"
#include "platform/FindReplaceDialog.h"
#include "platform/PrintInfo.h"
#include "platform/PrintingDialog.h"
#include "platform/GdiObjects.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "platform/qt/QtDC.h"
#include "platform/qt/QtEventTranslator.h"
#include "platform/qt/QtFindReplaceDialog.h"
#include "platform/qt/QtPrinterDC.h"
#include "platform/qt/QtPrintingDialog.h"
#include "platform/qt/QtScrollBarPeer.h"
#include "platform/qt/QtSystemInfo.h"
#include "platform/qt/QtWindowPeer.h"
#include "platform/qt/QtWindowWidget.h"

namespace {

Qt::CursorShape ShapeOf(int nId) {
    switch (nId) {
        case IDC_IBEAM:
            return Qt::IBeamCursor;
        case IDC_WAIT:
            return Qt::WaitCursor;
        case IDC_CROSS:
            return Qt::CrossCursor;
        case IDC_UPARROW:
            return Qt::UpArrowCursor;
        case IDC_SIZEALL:
            return Qt::SizeAllCursor;
        case IDC_NO:
            return Qt::ForbiddenCursor;
        case IDC_HAND:
            return Qt::PointingHandCursor;
        case IDC_APPSTARTING:
            return Qt::BusyCursor;
        case IDC_SIZENWSE:
            return Qt::SizeFDiagCursor;
        case IDC_SIZENESW:
            return Qt::SizeBDiagCursor;
        case IDC_SIZEWE:
            return Qt::SizeHorCursor;
        case IDC_SIZENS:
            return Qt::SizeVerCursor;
        case 31:
            return Qt::DragCopyCursor;  // the library's own drag cursors
        case 32:
            return Qt::DragMoveCursor;
        case 0:
            return Qt::BlankCursor;
        default:
            return Qt::ArrowCursor;
    }
}

}  // namespace

CQtPlatform::CQtPlatform() : m_pPrevious(SetPlatform(this)) {
    qApp->installEventFilter(this);
}

CQtPlatform::~CQtPlatform() {
    qApp->removeEventFilter(this);
    while (m_nWaitDepth > 0)
        EndWaitCursor();
    SetPlatform(m_pPrevious);
}

CQtPlatform* CQtPlatform::Instance() {
    return dynamic_cast<CQtPlatform*>(GetPlatform());
}

QWidget* CQtPlatform::WidgetOf(const CWnd* pWnd) {
    CQtWidgetPeer* peer = CQtWidgetPeer::Of(pWnd);
    return peer ? peer->GetWidget() : nullptr;
}

int CQtPlatform::ScrollBarExtent() const {
    return CQtSystemInfo::ScrollBarExtent();
}

std::unique_ptr<IWindowPeer> CQtPlatform::CreateWindowPeer(CWnd* pWnd, const CREATESTRUCTA& cs) {
    if (cs.lpszClass && std::strcmp(cs.lpszClass, "SCROLLBAR") == 0)
        return std::make_unique<CQtScrollBarPeer>(*this, pWnd, cs);
    if (cs.lpszClass && std::strcmp(cs.lpszClass, CPrintingDialog::kClassName) == 0 &&
        dynamic_cast<CPrintingDialog*>(pWnd))
        return std::make_unique<CQtPrintingPeer>(*this, pWnd, cs);
    if (cs.lpszClass && std::strcmp(cs.lpszClass, CFindReplaceDialog::kClassName) == 0 &&
        dynamic_cast<CFindReplaceDialog*>(pWnd))
        return std::make_unique<CQtFindReplacePeer>(*this, pWnd, cs);
    return std::make_unique<CQtWindowPeer>(*this, pWnd, cs);
}

std::unique_ptr<CDC> CQtPlatform::CreateDisplayDC() {
    QRect screen = QGuiApplication::primaryScreen()->geometry();
    return std::make_unique<CQtDC>(m_fonts, nullptr,
                                   CRgn(RECT{0, 0, screen.width(), screen.height()}), nullptr);
}

void CQtPlatform::OnWindowDestroyed(CWnd* pWnd) {
    m_queue.Forget(pWnd);
    if (m_pCapture == pWnd) {
        // Gone past WM_NCDESTROY: it hears nothing more, the mouse just goes.
        m_pCapture = nullptr;
        if (QWidget* widget = WidgetOf(pWnd)) widget->releaseMouse();
    }
    if (m_pFocus == pWnd) m_pFocus = nullptr;
    m_dragDrop.Revoke(pWnd);
}

void CQtPlatform::PostMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG msg;
    msg.hwnd = pWnd;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    msg.time = GetTickCount();
    // The cursor is read only on the thread that owns the screen.
    if (QThread::currentThread() == thread()) GetCursorPos(&msg.pt);
    m_queue.Post(msg);
}

BOOL CQtPlatform::PeekMessage(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax,
                              UINT nRemove) {
    return m_queue.Peek(pMsg, pWnd, nFilterMin, nFilterMax, nRemove);
}

DWORD CQtPlatform::GetTickCount() {
    using namespace std::chrono;
    auto ms = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    return static_cast<DWORD>(ms);  // wraps like the desktop's 32-bit count
}

BOOL CQtPlatform::GetCursorPos(POINT* ppt) {
    QPoint pt = QCursor::pos();
    *ppt = POINT{pt.x(), pt.y()};
    return TRUE;
}

void CQtPlatform::MoveFocus(CWnd* pWnd) {
    CWnd* old = m_pFocus;
    if (pWnd == old) return;
    m_pFocus = pWnd;
    if (!pWnd) m_keyState.OnFocusLost();
    if (old && old->GetSafeHwnd()) old->SendMessage(WM_KILLFOCUS, reinterpret_cast<WPARAM>(pWnd));
    if (pWnd && m_pFocus == pWnd) pWnd->SendMessage(WM_SETFOCUS, reinterpret_cast<WPARAM>(old));
}

CWnd* CQtPlatform::SetFocus(CWnd* pWnd) {
    CWnd* old = m_pFocus;
    MoveFocus(pWnd);
    // Qt's focus follows; its focus events then find the move made.
    if (QWidget* widget = WidgetOf(pWnd); widget && m_pFocus == pWnd)
        widget->setFocus(Qt::OtherFocusReason);
    return old;
}

void CQtPlatform::OnQtFocusIn(CWnd* pWnd) {
    MoveFocus(pWnd);
}

void CQtPlatform::OnQtFocusOut(CWnd* pWnd) {
    if (m_pFocus != pWnd) return;
    // Qt names the new focus before telling the old one; when it is not
    // one of our windows the focus left them all.
    MoveFocus(CQtWindowWidget::WndOf(QApplication::focusWidget()));
}

CWnd* CQtPlatform::SetCapture(CWnd* pWnd) {
    CWnd* old = m_pCapture;
    m_pCapture = pWnd;
    if (QWidget* widget = WidgetOf(pWnd)) widget->grabMouse();
    if (old && old != pWnd) old->SendMessage(WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(pWnd));
    return old;
}

BOOL CQtPlatform::ReleaseCapture() {
    CWnd* old = m_pCapture;
    if (!old) return TRUE;
    m_pCapture = nullptr;
    if (QWidget* widget = WidgetOf(old)) widget->releaseMouse();
    old->SendMessage(WM_CAPTURECHANGED, 0, 0);
    return TRUE;
}

void CQtPlatform::SetCursorWidget(QWidget* pWidget) {
    m_pCursorWidget = pWidget;
}

HCURSOR CQtPlatform::SetCursor(HCURSOR hCursor) {
    HCURSOR old = m_hCursor;
    m_hCursor = hCursor;
    ApplyCursor();
    return old;
}

void CQtPlatform::ApplyCursor() {
    // The desktop's cursor belongs to the screen; here it is the cursor of
    // the window under the mouse.
    if (!m_pCursorWidget) return;
    Qt::CursorShape shape = ShapeOf(GetCursorId(m_hCursor));
    // Windows set their cursor on every move; most of the time it is the same.
    if (m_pCursorWidget->cursor().shape() != shape) m_pCursorWidget->setCursor(shape);
}

void CQtPlatform::BeginWaitCursor() {
    ++m_nWaitDepth;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void CQtPlatform::EndWaitCursor() {
    if (m_nWaitDepth == 0) return;
    --m_nWaitDepth;
    QGuiApplication::restoreOverrideCursor();
}

COLORREF CQtPlatform::GetSysColor(int nIndex) {
    return CQtSystemInfo::GetSysColor(nIndex);
}

int CQtPlatform::GetSystemMetrics(int nIndex) {
    return CQtSystemInfo::GetSystemMetrics(nIndex);
}

BOOL CQtPlatform::MessageBeep(UINT) {
    ++m_nBeeps;
    QApplication::beep();
    return TRUE;
}

BOOL CQtPlatform::SetClipboardData(UINT uFormat, const std::string& data) {
    return uFormat == CF_TEXT ? m_clipboard.SetText(data) : FALSE;
}

BOOL CQtPlatform::GetClipboardData(UINT uFormat, std::string* pData) {
    return uFormat == CF_TEXT ? m_clipboard.GetText(pData) : FALSE;
}

BOOL CQtPlatform::IsClipboardFormatAvailable(UINT uFormat) {
    return uFormat == CF_TEXT ? m_clipboard.HasText() : FALSE;
}

DWORD CQtPlatform::DoDragDrop(CWnd* pSource, const std::string& text, DWORD dwAllowed) {
    QWidget* source = WidgetOf(pSource);
    if (!source) source = QApplication::activeWindow();
    return m_dragDrop.DoDragDrop(source, text, dwAllowed);
}

BOOL CQtPlatform::RegisterDropTarget(CWnd* pWnd, COleDropTarget* pTarget) {
    return m_dragDrop.Register(pWnd, WidgetOf(pWnd), pTarget);
}

HHOOK CQtPlatform::SetKeyboardHook(HOOKPROC pfn) {
    m_hooks.push_back(std::make_unique<HookObject>(HookObject{pfn}));
    return m_hooks.back().get();
}

BOOL CQtPlatform::Unhook(HHOOK hHook) {
    auto it = std::find_if(m_hooks.begin(), m_hooks.end(),
                           [&](const std::unique_ptr<HookObject>& h) { return h.get() == hHook; });
    if (it == m_hooks.end()) return FALSE;
    m_hooks.erase(it);
    return TRUE;
}

bool CQtPlatform::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (m_hooks.empty()) return false;
    if (pEvent->type() != QEvent::KeyPress && pEvent->type() != QEvent::KeyRelease) return false;
    if (!pWatched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(pWatched);
    if (pEvent == m_pHookedEvent && m_pHookedReceiver && widget != m_pHookedReceiver &&
        widget->isAncestorOf(m_pHookedReceiver))
        return false;
    m_pHookedEvent = pEvent;
    m_pHookedReceiver = widget;
    auto* key = static_cast<QKeyEvent*>(pEvent);
    int vk = CQtEventTranslator::VirtualKey(*key);
    if (vk == 0) return false;
    LPARAM flags = CQtEventTranslator::KeyFlags(*key, pEvent->type() == QEvent::KeyRelease);
    std::vector<HOOKPROC> procs;
    for (const auto& h : m_hooks)
        procs.push_back(h->pfn);
    bool swallowed = false;
    // Every hook hears the key; one that answers non-zero keeps it from
    // the window.
    for (HOOKPROC proc : procs)
        swallowed = proc(HC_ACTION, static_cast<WPARAM>(vk), flags) != 0 || swallowed;
    return swallowed;
}

int CQtPlatform::RunPickList(CWnd* pParent, const RECT& rc, HFONT hFont,
                             const std::vector<std::string>& items) {
    QWidget* widget = WidgetOf(pParent);
    if (!widget) return -1;
    const QFont font = hFont ? m_fonts.Get(hFont->lf).font : widget->font();
    const QRect where(QPoint(rc.left, rc.top), QPoint(rc.right - 1, rc.bottom - 1));
    return CQtPickList::Run(widget, where, font, items);
}

BOOL CQtPlatform::DoPrintDialog(CWnd* pParent, CPrintDialogInfo& pd) {
    QPrinter printer(QPrinter::HighResolution);
    if (!pd.strPrinterName.empty())
        printer.setPrinterName(QString::fromLocal8Bit(pd.strPrinterName.c_str()));
    QPrintDialog dialog(&printer, WidgetOf(pParent) ? WidgetOf(pParent)->window() : nullptr);
    dialog.setMinMax(static_cast<int>(pd.nMinPage), static_cast<int>(pd.nMaxPage));
    if (dialog.exec() != QDialog::Accepted) return FALSE;
    pd.strPrinterName = printer.printerName().toLocal8Bit().toStdString();
    pd.strOutputFile = printer.outputFormat() == QPrinter::PdfFormat
                           ? printer.outputFileName().toLocal8Bit().toStdString()
                           : std::string();
    if (dialog.printRange() == QAbstractPrintDialog::PageRange) {
        pd.nFromPage = static_cast<UINT>(dialog.fromPage());
        pd.nToPage = static_cast<UINT>(dialog.toPage());
    }
    return TRUE;
}

std::unique_ptr<CDC> CQtPlatform::CreatePrinterDC(const CPrintDialogInfo& pd) {
    // A PDF file needs no printer; a printer must be there.
    if (pd.strOutputFile.empty() && QPrinterInfo::availablePrinterNames().isEmpty())
        return nullptr;
    return std::make_unique<CQtPrinterDC>(m_fonts, pd);
}

void CQtPlatform::PumpEvents() {
    QCoreApplication::processEvents();
}

void CQtPlatform::MessageBox(CWnd* pParent, const char* pszText) {
    QWidget* pWidget = WidgetOf(pParent);
    QMessageBox::warning(pWidget ? pWidget->window() : nullptr, QApplication::applicationName(),
                         QString::fromLocal8Bit(pszText ? pszText : ""));
}
