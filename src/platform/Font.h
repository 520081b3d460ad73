// A font the caller owns: wraps a font handle and deletes it with the object.
#pragma once

#include "platform/GdiObjects.h"

class CFont {
public:
    CFont() = default;
    ~CFont() { DeleteObject(); }
    CFont(const CFont&) = delete;
    CFont& operator=(const CFont&) = delete;
    CFont(CFont&& o) noexcept : m_hObject(o.Detach()) {}
    CFont& operator=(CFont&& o) noexcept;

    BOOL CreateFontIndirect(const LOGFONTA* plf);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    const char* pszFacename);
    int GetLogFont(LOGFONTA* plf) const;
    BOOL DeleteObject();
    BOOL Attach(HFONT hFont);
    HFONT Detach();

    HFONT GetSafeHandle() const { return m_hObject; }
    operator HFONT() const { return m_hObject; }

private:
    HFONT m_hObject = nullptr;
};
