#include "completion/qt/QtPickList.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>

#include "platform/qt/Windows1252.h"

int CQtPickList::Run(QWidget* pParent, const QRect& rc, const QFont& font,
                     const std::vector<std::string>& items) {
    if (!pParent || items.empty()) return -1;
    auto* pList = new QListWidget(pParent);
    pList->setFrameShape(QFrame::Box);
    pList->setLineWidth(1);
    pList->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    pList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pList->setFont(font);
    pList->setGeometry(rc);
    for (const std::string& item : items)
        pList->addItem(CWindows1252::ToQString(item));
    pList->setCurrentRow(0);
    pList->show();
    pList->raise();
    pList->setFocus(Qt::OtherFocusReason);

    QEventLoop loop;
    CQtPickList filter(pList, &loop);
    qApp->installEventFilter(&filter);
    // The focus going anywhere else, this application included, cancels.
    auto focusWatch =
        QObject::connect(qApp, &QApplication::focusChanged, [&](QWidget*, QWidget* pNow) {
            if (!filter.IsOnList(pNow)) filter.Finish(false);
        });
    auto quitWatch =
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, [&] { filter.Finish(false); });
    if (!filter.m_bDone && !pList->hasFocus() && QApplication::focusWidget() != pList)
        pList->setFocus(Qt::OtherFocusReason);
    if (!filter.m_bDone) loop.exec();
    QObject::disconnect(focusWatch);
    QObject::disconnect(quitWatch);
    qApp->removeEventFilter(&filter);

    int nChosen = -1;
    if (filter.m_pList) {
        if (filter.m_bAccepted) nChosen = filter.m_pList->currentRow();
        // The window the list came from gets the keyboard back.
        const bool bHadFocus = filter.m_pList->hasFocus();
        delete filter.m_pList.data();
        if (bHadFocus) pParent->setFocus(Qt::OtherFocusReason);
    }
    return nChosen;
}

void CQtPickList::Finish(bool bAccept) {
    if (m_bDone) return;
    m_bDone = true;
    m_bAccepted = bAccept;
    m_pLoop->quit();
}

bool CQtPickList::IsOnList(QObject* pObject) const {
    if (!m_pList || !pObject || !pObject->isWidgetType()) return false;
    auto* pWidget = static_cast<QWidget*>(pObject);
    return pWidget == m_pList || m_pList->isAncestorOf(pWidget);
}

bool CQtPickList::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (m_bDone || !pWatched->isWidgetType()) return false;
    if (!m_pList) {
        Finish(false);
        return false;
    }
    switch (pEvent->type()) {
        case QEvent::KeyPress: {
            auto* pKey = static_cast<QKeyEvent*>(pEvent);
            if (pKey->key() == Qt::Key_Escape) {
                Finish(false);
                return true;
            }
            if (pKey->key() == Qt::Key_Return || pKey->key() == Qt::Key_Enter) {
                Finish(true);
                return true;
            }
            // A system key (with Alt, or F10) belongs to the window's menu.
            if ((pKey->modifiers() & Qt::AltModifier) || pKey->key() == Qt::Key_Alt ||
                pKey->key() == Qt::Key_F10) {
                Finish(false);
                return true;
            }
            // Every other key moves in the list, wherever Qt meant it to go.
            if (!IsOnList(pWatched)) {
                QApplication::sendEvent(m_pList, pEvent);
                return true;
            }
            return false;
        }
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
            if (!IsOnList(pWatched)) return true;
            return false;
        case QEvent::MouseButtonDblClick:
            if (IsOnList(pWatched) && pWatched == m_pList->viewport() &&
                static_cast<QMouseEvent*>(pEvent)->button() == Qt::LeftButton) {
                // The row under the double click is the one picked, whether
                // or not its first press reached the list.
                const QPoint at = static_cast<QMouseEvent*>(pEvent)->position().toPoint();
                if (const QModelIndex index = m_pList->indexAt(at); index.isValid())
                    m_pList->setCurrentRow(index.row());
                Finish(true);
                return true;
            }
            [[fallthrough]];
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
            // A click elsewhere goes where it was meant and closes the list.
            if (!IsOnList(pWatched)) Finish(false);
            return false;
        default:
            return false;
    }
}
