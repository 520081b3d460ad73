// The drop target of an editor window: every event of a drag over the
// window goes to the window's own handler of the same name.
#pragma once

#include "platform/OleDropTarget.h"

class IOleEditDropSink {
public:
    virtual ~IOleEditDropSink() = default;
    virtual DWORD OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) = 0;
    virtual DWORD OnDragOver(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) = 0;
    virtual void OnDragLeave() = 0;
    virtual BOOL OnDrop(COleDataObject* pDataObject, DWORD dropEffect, CPoint point) = 0;
};

class COleEditDropTarget : public COleDropTarget {
public:
    explicit COleEditDropTarget(IOleEditDropSink* pSink) : m_pSink(pSink) {}

    DWORD OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                      CPoint point) override;
    DWORD OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                     CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DWORD dropEffect, CPoint point) override;

private:
    IOleEditDropSink* m_pSink;
};
