#include "platform/qt/QtDragDrop.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/OleDropTarget.h"
#include "platform/qt/QtEventTranslator.h"
#include "platform/qt/Windows1252.h"

namespace {

Qt::DropActions ActionsOf(DWORD dwEffects) {
    Qt::DropActions actions;
    if (dwEffects & DROPEFFECT_COPY) actions |= Qt::CopyAction;
    if (dwEffects & DROPEFFECT_MOVE) actions |= Qt::MoveAction;
    if (dwEffects & DROPEFFECT_LINK) actions |= Qt::LinkAction;
    return actions;
}

DWORD EffectOf(Qt::DropAction action) {
    switch (action) {
        case Qt::CopyAction:
            return DROPEFFECT_COPY;
        case Qt::MoveAction:
        case Qt::TargetMoveAction:
            return DROPEFFECT_MOVE;
        case Qt::LinkAction:
            return DROPEFFECT_LINK;
        default:
            return DROPEFFECT_NONE;
    }
}

COleDataObject DataOf(const QDropEvent& event) {
    const QMimeData* mime = event.mimeData();
    if (!mime || !mime->hasText()) return COleDataObject();
    return COleDataObject(CWindows1252::FromQString(mime->text()));
}

}  // namespace

DWORD CQtDragDrop::DoDragDrop(QWidget* pSource, const std::string& text, DWORD dwAllowed) {
    if (!pSource) return DROPEFFECT_NONE;
    auto* drag = new QDrag(pSource);
    auto* mime = new QMimeData;
    mime->setText(CWindows1252::ToQString(text));
    drag->setMimeData(mime);
    Qt::DropActions actions = ActionsOf(dwAllowed);
    Qt::DropAction preferred = (dwAllowed & DROPEFFECT_MOVE) ? Qt::MoveAction : Qt::CopyAction;
    m_dwLastEffect = DROPEFFECT_NONE;
    Qt::DropAction done = drag->exec(actions, preferred);
    // A drop into one of our own windows may report no action to the
    // source; the effect its target chose is the answer then.
    DWORD effect = EffectOf(done);
    if (effect == DROPEFFECT_NONE) effect = m_dwLastEffect;
    return effect & dwAllowed;
}

BOOL CQtDragDrop::Register(CWnd* pWnd, QWidget* pWidget, COleDropTarget* pTarget) {
    if (!pWnd || !pWidget || !pTarget) return FALSE;
    m_targets[pWnd] = pTarget;
    pWidget->setAcceptDrops(true);
    return TRUE;
}

void CQtDragDrop::Revoke(CWnd* pWnd) {
    m_targets.erase(pWnd);
}

COleDropTarget* CQtDragDrop::TargetOf(CWnd* pWnd) const {
    auto it = m_targets.find(pWnd);
    return it == m_targets.end() ? nullptr : it->second;
}

DWORD CQtDragDrop::KeyStateOf(const QDropEvent& event) {
    DWORD state = CQtEventTranslator::MouseFlags(event.buttons(), event.modifiers());
    // MK_ALT shares its bit with the first extra button in a drag's key state.
    state &= ~static_cast<DWORD>(MK_XBUTTON1);
    if (event.modifiers() & Qt::AltModifier) state |= MK_ALT;
    return state;
}

void CQtDragDrop::Answer(QDropEvent* pEvent, DWORD dwEffect) {
    Qt::DropAction action = (dwEffect & DROPEFFECT_MOVE)   ? Qt::MoveAction
                            : (dwEffect & DROPEFFECT_COPY) ? Qt::CopyAction
                            : (dwEffect & DROPEFFECT_LINK) ? Qt::LinkAction
                                                           : Qt::IgnoreAction;
    if (action == Qt::IgnoreAction) {
        pEvent->ignore();
        return;
    }
    pEvent->setDropAction(action);
    pEvent->accept();
}

void CQtDragDrop::OnEnter(CWnd* pWnd, QDropEvent* pEvent, QPoint pt) {
    COleDropTarget* target = TargetOf(pWnd);
    if (!target) return pEvent->ignore();
    COleDataObject data = DataOf(*pEvent);
    Answer(pEvent, target->OnDragEnter(pWnd, &data, KeyStateOf(*pEvent), CPoint(pt.x(), pt.y())));
    // The move events decide from here on, even where entering was refused.
    if (pEvent->type() == QEvent::DragEnter) pEvent->accept();
}

void CQtDragDrop::OnMove(CWnd* pWnd, QDropEvent* pEvent, QPoint pt) {
    COleDropTarget* target = TargetOf(pWnd);
    if (!target) return pEvent->ignore();
    COleDataObject data = DataOf(*pEvent);
    Answer(pEvent, target->OnDragOver(pWnd, &data, KeyStateOf(*pEvent), CPoint(pt.x(), pt.y())));
}

void CQtDragDrop::OnLeave(CWnd* pWnd) {
    if (COleDropTarget* target = TargetOf(pWnd)) target->OnDragLeave(pWnd);
}

void CQtDragDrop::OnDrop(CWnd* pWnd, QDropEvent* pEvent, QPoint pt) {
    COleDropTarget* target = TargetOf(pWnd);
    if (!target) return pEvent->ignore();
    COleDataObject data = DataOf(*pEvent);
    DWORD effect = EffectOf(pEvent->dropAction());
    if (effect == DROPEFFECT_NONE) effect = EffectOf(pEvent->proposedAction());
    m_dwLastEffect =
        target->OnDrop(pWnd, &data, effect, CPoint(pt.x(), pt.y())) ? effect : DROPEFFECT_NONE;
    Answer(pEvent, m_dwLastEffect);
}
