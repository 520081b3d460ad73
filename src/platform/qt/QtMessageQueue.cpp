#include "platform/qt/QtMessageQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>

#include "platform/Messages.h"
#include "platform/Wnd.h"

namespace {

const QEvent::Type kDeliverEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

// Carries the id of the queued message it delivers.
class CDeliverEvent : public QEvent {
public:
    explicit CDeliverEvent(quint64 id) : QEvent(kDeliverEvent), m_nId(id) {}
    quint64 m_nId;
};

bool Matches(const MSG& msg, CWnd* pWnd, UINT nMin, UINT nMax) {
    if (pWnd && msg.hwnd != pWnd) return false;
    if (nMin == 0 && nMax == 0) return true;
    return msg.message >= nMin && msg.message <= nMax;
}

}  // namespace

void CQtMessageQueue::Post(const MSG& msg) {
    quint64 id;
    {
        std::lock_guard<std::mutex> guard(m_lock);
        id = m_nNextId++;
        m_queue.push_back(Entry{id, msg});
    }
    QCoreApplication::postEvent(this, new CDeliverEvent(id));
}

BOOL CQtMessageQueue::Peek(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax, UINT nRemove) {
    std::lock_guard<std::mutex> guard(m_lock);
    auto it = std::find_if(m_queue.begin(), m_queue.end(), [&](const Entry& e) {
        return Matches(e.msg, pWnd, nFilterMin, nFilterMax);
    });
    if (it == m_queue.end()) return FALSE;
    *pMsg = it->msg;
    if (nRemove & PM_REMOVE) m_queue.erase(it);
    return TRUE;
}

void CQtMessageQueue::Forget(CWnd* pWnd) {
    std::lock_guard<std::mutex> guard(m_lock);
    m_queue.erase(std::remove_if(m_queue.begin(), m_queue.end(),
                                 [&](const Entry& e) { return e.msg.hwnd == pWnd; }),
                  m_queue.end());
}

bool CQtMessageQueue::event(QEvent* event) {
    if (event->type() != kDeliverEvent) return QObject::event(event);
    quint64 id = static_cast<CDeliverEvent*>(event)->m_nId;
    MSG msg;
    {
        std::lock_guard<std::mutex> guard(m_lock);
        auto it = std::find_if(m_queue.begin(), m_queue.end(),
                               [&](const Entry& e) { return e.nId == id; });
        if (it == m_queue.end()) return true;  // taken by PeekMessage
        msg = it->msg;
        m_queue.erase(it);
    }
    if (msg.hwnd) msg.hwnd->SendMessage(msg.message, msg.wParam, msg.lParam);
    return true;
}
