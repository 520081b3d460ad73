#include "platform/qt/QtWindowWidget.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include "platform/Caret.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtScrollBar.h"
#include "platform/qt/QtWidgetPeer.h"

namespace {

QColor ColorOf(COLORREF cr) {
    return QColor(GetRValue(cr), GetGValue(cr), GetBValue(cr));
}

}  // namespace

CQtWindowWidget::CQtWindowWidget(CQtPlatform& platform, CWnd* pWnd, QWidget* pParent,
                                 Qt::WindowFlags flags)
    : QWidget(pParent, flags), m_platform(platform), m_pWnd(pWnd) {
    // The image covers the client area; nothing needs Qt's own background.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy((pWnd->GetStyle() & WS_TABSTOP) ? Qt::StrongFocus : Qt::ClickFocus);
    m_pBars[SB_HORZ] = CreateBar(SB_HORZ);
    m_pBars[SB_VERT] = CreateBar(SB_VERT);
    m_blink.setInterval(kCaretBlinkMs);
    connect(&m_blink, &QTimer::timeout, this, [this] {
        m_bCaretOn = !m_bCaretOn;
        update(m_rcCaret.translated(ClientArea().topLeft()));
    });
    Relayout();
}

CQtScrollBar* CQtWindowWidget::CreateBar(int nBar) {
    auto state = [this, nBar] {
        SCROLLINFO si;
        si.cbSize = sizeof(si);
        if (m_pWnd) m_pWnd->GetScrollInfo(nBar, &si, SIF_ALL);
        return si;
    };
    auto arrows = [this, nBar] { return m_pWnd ? m_pWnd->GetScrollBarArrows(nBar) : 0u; };
    UINT message = nBar == SB_HORZ ? WM_HSCROLL : WM_VSCROLL;
    auto report = [this, message](int nCode, int nPos) {
        CQtWidgetPeer::Dispatch dispatch;
        Send(message, MAKEWPARAM(nCode, nPos), 0);
    };
    auto* bar = new CQtScrollBar(nBar == SB_HORZ ? Qt::Horizontal : Qt::Vertical, this, report,
                                 state, arrows);
    // A click on a bar activates the window as a click in it does.
    bar->m_onPress = [this, nBar] {
        CQtWidgetPeer::Dispatch dispatch;
        MouseActivate(nBar == SB_HORZ ? HTHSCROLL : HTVSCROLL, WM_LBUTTONDOWN);
    };
    bar->Reflect();
    return bar;
}

bool CQtWindowWidget::MouseActivate(int nHitTest, UINT message) {
    if (!m_pWnd) return false;
    CWnd* pTop = m_pWnd;
    while (pTop->GetParent())
        pTop = pTop->GetParent();
    return Send(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(pTop),
                MAKELPARAM(nHitTest, static_cast<int>(message)));
}

void CQtWindowWidget::Detach() {
    m_pWnd = nullptr;
    m_blink.stop();
    setAcceptDrops(false);
}

CWnd* CQtWindowWidget::WndOf(const QWidget* pWidget) {
    auto* widget = dynamic_cast<const CQtWindowWidget*>(pWidget);
    return widget ? widget->m_pWnd : nullptr;
}

QRect CQtWindowWidget::ClientArea() const {
    QRect area = rect();
    if (!m_pWnd) return area;
    DWORD style = m_pWnd->GetStyle();
    if (style & WS_BORDER) area.adjust(1, 1, -1, -1);
    int extent = m_platform.ScrollBarExtent();
    if (style & WS_VSCROLL) area.setRight(area.right() - extent);
    if (style & WS_HSCROLL) area.setBottom(area.bottom() - extent);
    return area;
}

void CQtWindowWidget::Relayout() {
    QRect client = ClientArea();
    int extent = m_platform.ScrollBarExtent();
    DWORD style = m_pWnd ? m_pWnd->GetStyle() : 0;
    m_pBars[SB_VERT]->setGeometry(client.right() + 1, client.top(), extent, client.height());
    m_pBars[SB_VERT]->setVisible((style & WS_VSCROLL) != 0);
    m_pBars[SB_HORZ]->setGeometry(client.left(), client.bottom() + 1, client.width(), extent);
    m_pBars[SB_HORZ]->setVisible((style & WS_HSCROLL) != 0);
    FitImage();
    update();
}

void CQtWindowWidget::ReflectScrollBar(int nBar) {
    if (nBar == SB_HORZ || nBar == SB_VERT) m_pBars[nBar]->Reflect();
}

QImage& CQtWindowWidget::Image() {
    FitImage();
    return m_image;
}

void CQtWindowWidget::FitImage() {
    QSize size = ClientArea().size().expandedTo(QSize(0, 0));
    if (m_image.size() == size) return;
    QRect old = m_image.rect();
    QImage image(size, QImage::Format_RGB32);
    image.fill(ColorOf(::GetSysColor(COLOR_WINDOW)));
    if (!m_image.isNull()) {
        QPainter painter(&image);
        painter.drawImage(0, 0, m_image);
    }
    m_image = image;
    // Pixels the client area gains have never been painted.
    if (m_pWnd && m_pWnd->GetPeer() && m_bImageShown) {
        CRgn gained = CRgn::Difference(CRgn(RECT{0, 0, size.width(), size.height()}),
                                       CRgn(RECT{0, 0, old.width(), old.height()}));
        m_pWnd->InvalidateRgn(&gained, TRUE);
    }
}

void CQtWindowWidget::ShowDirty() {
    if (m_bInPaint || m_dirty.isEmpty()) return;
    update(m_dirty.translated(ClientArea().topLeft()));
    m_dirty = QRect();
}

void CQtWindowWidget::InvalidateClient(const QRegion& rgnClient) {
    update(rgnClient.translated(ClientArea().topLeft()));
}

QRect CQtWindowWidget::CaretRect() const {
    const CaretInfo& caret = GetCaretInfo();
    if (!m_pWnd || caret.pOwner != m_pWnd || !caret.IsVisible()) return QRect();
    // A width or height of 0 asks for the system's: one pixel, a line.
    int w = caret.nWidth > 0 ? caret.nWidth : 1;
    int h = caret.nHeight > 0 ? caret.nHeight : 16;
    return QRect(caret.pt.x, caret.pt.y, w, h);
}

void CQtWindowWidget::CaretChanged() {
    QRect old = m_rcCaret;
    m_rcCaret = CaretRect();
    // A caret that moves or appears shows at once and blinks from there.
    m_bCaretOn = !m_rcCaret.isEmpty();
    if (m_bCaretOn)
        m_blink.start();
    else
        m_blink.stop();
    QPoint origin = ClientArea().topLeft();
    update(QRegion(old.translated(origin)) + m_rcCaret.translated(origin));
}

void CQtWindowWidget::paintEvent(QPaintEvent* event) {
    if (!m_pWnd) {
        QPainter(this).fillRect(rect(), palette().window());
        return;
    }
    {
        CQtWidgetPeer::Dispatch dispatch;
        FitImage();
        if (!m_bImageShown) {
            m_bImageShown = true;
            m_pWnd->InvalidateRect(nullptr, TRUE);
        }
        if (m_pWnd->GetUpdateRect(nullptr)) {
            m_bInPaint = true;
            Send(WM_PAINT, 0, 0);
            m_bInPaint = false;
        }
    }
    if (!m_pWnd) return;
    QRect client = ClientArea();
    QPainter painter(this);
    painter.drawImage(client.topLeft(), m_image);
    DWORD style = m_pWnd->GetStyle();
    if (style & WS_BORDER) {
        painter.setPen(ColorOf(::GetSysColor(COLOR_WINDOWFRAME)));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if ((style & WS_VSCROLL) && (style & WS_HSCROLL)) {
        int extent = m_platform.ScrollBarExtent();
        painter.fillRect(QRect(client.right() + 1, client.bottom() + 1, extent, extent),
                         palette().window());
    }
    if (m_bCaretOn && !m_rcCaret.isEmpty()) {
        // An inverting bar, as the desktop draws its caret.
        painter.setClipRect(client);
        painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
        painter.fillRect(m_rcCaret.translated(client.topLeft()), Qt::white);
    }
    // Drawing the paint did outside what Qt repaints now is shown next time.
    if (!m_dirty.isEmpty()) {
        QRect dirty = m_dirty.translated(client.topLeft());
        m_dirty = QRect();
        if (!QRegion(dirty).subtracted(event->region()).isEmpty()) update(dirty);
    }
}

void CQtWindowWidget::resizeEvent(QResizeEvent*) {
    Relayout();
    if (m_pWnd && m_pWnd->GetPeer()) {
        CQtWidgetPeer::Dispatch dispatch;
        m_pWnd->NotifySizeChanged();
    }
}
