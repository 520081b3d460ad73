// A QScrollBar that shows a desktop scroll bar's state and reports what the
// user does as SB_ codes. As on the desktop the bar does not move by itself:
// after each report it shows the state again, so it follows the position
// the window chose (while the thumb is dragged it follows the mouse).
#pragma once

#include <QScrollBar>
#include <functional>

#include "TextzoneQtExport.h"
#include "platform/Types.h"

class TEXTZONE_QT_EXPORT CQtScrollBar : public QScrollBar {
public:
    using Handler = std::function<void(int nCode, int nPos)>;
    // The state is read through the getters; the owner reflects it first
    // once it can answer them.
    CQtScrollBar(Qt::Orientation orientation, QWidget* pParent, Handler handler,
                 std::function<SCROLLINFO()> state, std::function<UINT()> disabledArrows);

    // Shows the current state.
    void Reflect();
    // Called when a button goes down on the bar, before the bar acts.
    std::function<void()> m_onPress;

protected:
    // The wheel over a bar is the window's, as on the desktop, where the
    // window's bars are part of it: it goes on to the parent.
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void OnAction(int action);
    void Report(int nCode, int nPos);

    Handler m_handler;
    std::function<SCROLLINFO()> m_state;
    std::function<UINT()> m_disabledArrows;
    bool m_bReflecting = false;
};
