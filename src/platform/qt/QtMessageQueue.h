// The thread's posted messages. Each post queues the message and a Qt event
// that delivers it from the event loop, in order; PeekMessage may take a
// message out first, and its event then finds nothing to deliver. Posting
// is safe from any thread.
#pragma once

#include <QObject>
#include <deque>
#include <mutex>

#include "platform/Types.h"

class CQtMessageQueue : public QObject {
public:
    void Post(const MSG& msg);
    BOOL Peek(MSG* pMsg, CWnd* pWnd, UINT nFilterMin, UINT nFilterMax, UINT nRemove);
    // A destroyed window gets nothing more.
    void Forget(CWnd* pWnd);

protected:
    bool event(QEvent* event) override;

private:
    struct Entry {
        quint64 nId;
        MSG msg;
    };

    std::mutex m_lock;
    std::deque<Entry> m_queue;
    quint64 m_nNextId = 1;
};
