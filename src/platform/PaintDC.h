// The drawing context of a paint: BeginPaint on construction, EndPaint on
// destruction. It hands out the window's paint context; drawing through it
// is clipped to what was invalid.
#pragma once

#include "TextzoneExport.h"
#include "platform/Wnd.h"

class TEXTZONE_EXPORT CPaintDC {
public:
    explicit CPaintDC(CWnd* pWnd) : m_pWnd(pWnd) {
        m_pDC = pWnd ? pWnd->BeginPaint(&m_ps) : nullptr;
    }
    ~CPaintDC() {
        if (m_pDC) m_pWnd->EndPaint(&m_ps);
    }
    CPaintDC(const CPaintDC&) = delete;
    CPaintDC& operator=(const CPaintDC&) = delete;

    CDC* GetDC() const { return m_pDC; }
    operator CDC*() const { return m_pDC; }
    CDC* operator->() const { return m_pDC; }

    PAINTSTRUCT m_ps;

private:
    CWnd* m_pWnd;
    CDC* m_pDC;
};
