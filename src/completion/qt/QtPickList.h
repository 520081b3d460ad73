// The pick list on Qt: a list widget over the parent window that keeps the
// keyboard in a nested event loop until the user accepts or cancels, while
// every other window goes on getting its events.
#pragma once

#include <QListWidget>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <string>
#include <vector>

class QEventLoop;
class QFont;
class QWidget;

class CQtPickList : public QObject {
public:
    // The index of the item accepted, or -1 when the list was cancelled.
    static int Run(QWidget* pParent, const QRect& rc, const QFont& font,
                   const std::vector<std::string>& items);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    CQtPickList(QListWidget* pList, QEventLoop* pLoop) : m_pList(pList), m_pLoop(pLoop) {}
    void Finish(bool bAccept);
    // The list itself, its viewport or its scroll bars.
    bool IsOnList(QObject* pObject) const;

    QPointer<QListWidget> m_pList;
    QEventLoop* m_pLoop;
    bool m_bAccepted = false;
    bool m_bDone = false;
};
