// The receiving side of drag and drop: registered for a window, it hears
// the drag entering, moving over, leaving and dropping.
#pragma once

#include "TextzoneExport.h"
#include "platform/Types.h"

class CWnd;
class COleDataObject;

class TEXTZONE_EXPORT COleDropTarget {
public:
    virtual ~COleDropTarget();

    BOOL Register(CWnd* pWnd);
    void Revoke();
    CWnd* GetWindow() const { return m_pWnd; }

    virtual DWORD OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                              CPoint point);
    virtual DWORD OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                             CPoint point);
    virtual void OnDragLeave(CWnd* pWnd);
    virtual BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DWORD dropEffect, CPoint point);

private:
    CWnd* m_pWnd = nullptr;
};
