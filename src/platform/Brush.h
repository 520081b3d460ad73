// A solid brush the caller owns.
#pragma once

#include "platform/GdiObjects.h"

class CBrush {
public:
    CBrush() = default;
    explicit CBrush(COLORREF cr) : m_hObject(::CreateSolidBrush(cr)) {}
    ~CBrush() { DeleteObject(); }
    CBrush(const CBrush&) = delete;
    CBrush& operator=(const CBrush&) = delete;

    BOOL CreateSolidBrush(COLORREF cr) {
        DeleteObject();
        m_hObject = ::CreateSolidBrush(cr);
        return m_hObject != nullptr;
    }
    BOOL DeleteObject() {
        if (!m_hObject) return FALSE;
        ::DeleteObject(m_hObject);
        m_hObject = nullptr;
        return TRUE;
    }
    HBRUSH GetSafeHandle() const { return m_hObject; }
    operator HBRUSH() const { return m_hObject; }

private:
    HBRUSH m_hObject = nullptr;
};
