// The part every owned drawing object shares: it holds one handle and
// deletes it with itself.
#pragma once

#include <utility>

#include "TextzoneExport.h"
#include "platform/GdiObjects.h"

template <typename Handle>
class TEXTZONE_EXPORT COwnedGdiObject {
public:
    COwnedGdiObject() = default;
    ~COwnedGdiObject() { DeleteObject(); }
    COwnedGdiObject(const COwnedGdiObject&) = delete;
    COwnedGdiObject& operator=(const COwnedGdiObject&) = delete;
    COwnedGdiObject(COwnedGdiObject&& o) noexcept : m_hObject(o.Detach()) {}
    COwnedGdiObject& operator=(COwnedGdiObject&& o) noexcept {
        if (this != &o) Attach(o.Detach());
        return *this;
    }

    BOOL DeleteObject() {
        if (!m_hObject) return FALSE;
        BOOL ok = ::DeleteObject(m_hObject);
        m_hObject = nullptr;
        return ok;
    }
    // Takes over a handle; the one held before is deleted.
    BOOL Attach(Handle h) {
        if (!h) return FALSE;
        DeleteObject();
        m_hObject = h;
        return TRUE;
    }
    Handle Detach() { return std::exchange(m_hObject, nullptr); }
    Handle GetSafeHandle() const { return m_hObject; }
    operator Handle() const { return m_hObject; }

protected:
    Handle m_hObject = nullptr;
};
