// A drawing context on a window's client area for the length of a scope.
#pragma once

#include "TextzoneExport.h"
#include "platform/Wnd.h"

class TEXTZONE_EXPORT CClientDC {
public:
    explicit CClientDC(CWnd* pWnd) : m_pWnd(pWnd), m_pDC(pWnd ? pWnd->GetDC() : nullptr) {}
    ~CClientDC() {
        if (m_pDC) m_pWnd->ReleaseDC(m_pDC);
    }
    CClientDC(const CClientDC&) = delete;
    CClientDC& operator=(const CClientDC&) = delete;

    CDC* GetDC() const { return m_pDC; }
    operator CDC*() const { return m_pDC; }
    CDC* operator->() const { return m_pDC; }

private:
    CWnd* m_pWnd;
    CDC* m_pDC;
};
