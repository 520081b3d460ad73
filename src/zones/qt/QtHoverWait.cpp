#include "zones/qt/QtHoverWait.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <memory>

#include "platform/Wnd.h"
#include "platform/qt/QtPlatform.h"
#include "zones/TextZoneReadOnly.h"

namespace {

class CWaitFilter : public QObject {
public:
    CWaitFilter(QWidget* pWidget, CTextZoneReadOnly* pZone, int nLine, QEventLoop* pLoop)
        : m_pWidget(pWidget), m_pZone(pZone), m_nLine(nLine), m_pLoop(pLoop) {}

    // The input that ended the wait, or the last move within the line, to
    // be delivered once the wait is over.
    QObject* m_pReceiver = nullptr;
    std::unique_ptr<QEvent> m_pPending;
    bool m_bCancelled = false;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override {
        if (m_bCancelled || !IsInput(pEvent->type())) return false;
        if (!pWatched->isWidgetType()) return false;
        auto* widget = static_cast<QWidget*>(pWatched);
        if (widget != m_pWidget && !m_pWidget->isAncestorOf(widget)) return false;
        if (pEvent->type() == QEvent::MouseMove) {
            const QPointF global = static_cast<QMouseEvent*>(pEvent)->globalPosition();
            POINT pt{static_cast<LONG>(global.x()), static_cast<LONG>(global.y())};
            m_pZone->GetWindow()->ScreenToClient(&pt);
            Keep(pWatched, pEvent);
            if (m_pZone->GetLineFromPoint(&pt) != m_nLine) Cancel();
            return true;
        }
        Keep(pWatched, pEvent);
        Cancel();
        return true;
    }

private:
    static bool IsInput(QEvent::Type type) {
        switch (type) {
            case QEvent::MouseMove:
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::Wheel:
                return true;
            default:
                return false;
        }
    }
    void Keep(QObject* pReceiver, QEvent* pEvent) {
        m_pReceiver = pReceiver;
        m_pPending.reset(pEvent->clone());
    }
    void Cancel() {
        m_bCancelled = true;
        m_pLoop->quit();
    }

    QWidget* m_pWidget;
    CTextZoneReadOnly* m_pZone;
    int m_nLine;
    QEventLoop* m_pLoop;
};

}  // namespace

void CQtHoverWait::Install() {
    CTextZoneReadOnly::SetHoverWait(&CQtHoverWait::Wait);
}

bool CQtHoverWait::Wait(CTextZoneReadOnly* pZone, int nLine, DWORD dwDelay) {
    CWnd* pWnd = pZone->GetWindow();
    QWidget* pWidget = pWnd ? CQtPlatform::WidgetOf(pWnd) : nullptr;
    if (!pWidget || !QCoreApplication::instance()) return false;
    QEventLoop loop;
    CWaitFilter filter(pWidget, pZone, nLine, &loop);
    QTimer::singleShot(static_cast<int>(dwDelay), &loop, &QEventLoop::quit);
    QCoreApplication::instance()->installEventFilter(&filter);
    loop.exec();
    QCoreApplication::instance()->removeEventFilter(&filter);
    if (filter.m_pPending && filter.m_pReceiver)
        QCoreApplication::postEvent(filter.m_pReceiver, filter.m_pPending.release());
    return !filter.m_bCancelled;
}
