#include "platform/qt/QtScrollBar.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>

#include "platform/Messages.h"

CQtScrollBar::CQtScrollBar(Qt::Orientation orientation, QWidget* pParent, Handler handler,
                           std::function<SCROLLINFO()> state, std::function<UINT()> disabledArrows)
    : QScrollBar(orientation, pParent),
      m_handler(std::move(handler)),
      m_state(std::move(state)),
      m_disabledArrows(std::move(disabledArrows)) {
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QAbstractSlider::actionTriggered, this,
            [this](int action) { OnAction(action); });
    connect(this, &QAbstractSlider::sliderReleased, this, [this] {
        Report(SB_THUMBPOSITION, sliderPosition());
        Report(SB_ENDSCROLL, 0);
    });
}

void CQtScrollBar::Reflect() {
    if (isSliderDown()) return;  // the thumb follows the mouse until released
    SCROLLINFO si = m_state();
    // The desktop's range counts the page in; Qt's is where the page may start.
    int page = static_cast<int>(si.nPage);
    int max = std::max(si.nMin, si.nMax - std::max(page - 1, 0));
    m_bReflecting = true;
    setRange(si.nMin, max);
    setPageStep(std::max(page, 1));
    setSingleStep(1);
    setValue(si.nPos);
    setEnabled(m_disabledArrows() != ESB_DISABLE_BOTH && si.nMax > si.nMin);
    m_bReflecting = false;
}

void CQtScrollBar::wheelEvent(QWheelEvent* event) {
    QWidget* parent = parentWidget();
    if (!parent) return event->ignore();
    QWheelEvent forwarded(mapToParent(event->position()), event->globalPosition(),
                          event->pixelDelta(), event->angleDelta(), event->buttons(),
                          event->modifiers(), event->phase(), event->inverted(), event->source());
    QCoreApplication::sendEvent(parent, &forwarded);
    event->setAccepted(forwarded.isAccepted());
}

void CQtScrollBar::mousePressEvent(QMouseEvent* event) {
    if (m_onPress) m_onPress();
    QScrollBar::mousePressEvent(event);
}

void CQtScrollBar::OnAction(int action) {
    if (m_bReflecting) return;
    switch (action) {
        case SliderSingleStepAdd:
            Report(SB_LINEDOWN, 0);
            break;
        case SliderSingleStepSub:
            Report(SB_LINEUP, 0);
            break;
        case SliderPageStepAdd:
            Report(SB_PAGEDOWN, 0);
            break;
        case SliderPageStepSub:
            Report(SB_PAGEUP, 0);
            break;
        case SliderToMinimum:
            Report(SB_TOP, 0);
            break;
        case SliderToMaximum:
            Report(SB_BOTTOM, 0);
            break;
        case SliderMove:
            Report(SB_THUMBTRACK, sliderPosition());
            return;  // no end until the thumb is released
        default:
            return;
    }
    Report(SB_ENDSCROLL, 0);
}

void CQtScrollBar::Report(int nCode, int nPos) {
    if (m_handler) m_handler(nCode, nPos);
    // Qt applies the action's position after this; show the window's instead.
    Reflect();
}
