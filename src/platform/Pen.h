// A pen the caller owns.
#pragma once

#include "platform/GdiObjects.h"

class CPen {
public:
    CPen() = default;
    CPen(int nStyle, int nWidth, COLORREF cr) : m_hObject(::CreatePen(nStyle, nWidth, cr)) {}
    ~CPen() { DeleteObject(); }
    CPen(const CPen&) = delete;
    CPen& operator=(const CPen&) = delete;

    BOOL CreatePen(int nStyle, int nWidth, COLORREF cr) {
        DeleteObject();
        m_hObject = ::CreatePen(nStyle, nWidth, cr);
        return m_hObject != nullptr;
    }
    BOOL DeleteObject() {
        if (!m_hObject) return FALSE;
        ::DeleteObject(m_hObject);
        m_hObject = nullptr;
        return TRUE;
    }
    HPEN GetSafeHandle() const { return m_hObject; }
    operator HPEN() const { return m_hObject; }

private:
    HPEN m_hObject = nullptr;
};
