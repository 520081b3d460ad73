// Win32-style value types of the platform seam. The engine is written against
// these names so that its code reads in the terms of a desktop window system;
// nothing here depends on a backend.
#pragma once

#include <algorithm>
#include <cstdint>

#include "TextzoneExport.h"

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using BOOL = int;
using LONG = std::int32_t;  // 32 bits everywhere, as the engine assumes
using ULONG = std::uint32_t;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using WPARAM = std::uint64_t;
using LPARAM = std::int64_t;
using LRESULT = std::int64_t;
using COLORREF = DWORD;

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;

constexpr COLORREF RGB(int r, int g, int b) {
    return static_cast<COLORREF>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}
constexpr BYTE GetRValue(COLORREF cr) {
    return static_cast<BYTE>(cr & 0xFF);
}
constexpr BYTE GetGValue(COLORREF cr) {
    return static_cast<BYTE>((cr >> 8) & 0xFF);
}
constexpr BYTE GetBValue(COLORREF cr) {
    return static_cast<BYTE>((cr >> 16) & 0xFF);
}

constexpr DWORD MAKELONG(int lo, int hi) {
    return static_cast<DWORD>((lo & 0xFFFF) | ((static_cast<DWORD>(hi) & 0xFFFF) << 16));
}
constexpr WORD LOWORD(std::uint64_t v) {
    return static_cast<WORD>(v & 0xFFFF);
}
constexpr WORD HIWORD(std::uint64_t v) {
    return static_cast<WORD>((v >> 16) & 0xFFFF);
}
constexpr LPARAM MAKELPARAM(int lo, int hi) {
    return static_cast<LPARAM>(MAKELONG(lo, hi));
}
constexpr WPARAM MAKEWPARAM(int lo, int hi) {
    return static_cast<WPARAM>(MAKELONG(lo, hi));
}
// Signed coordinates packed into a message parameter.
constexpr int GET_X_LPARAM(LPARAM lp) {
    return static_cast<SHORT>(LOWORD(static_cast<std::uint64_t>(lp)));
}
constexpr int GET_Y_LPARAM(LPARAM lp) {
    return static_cast<SHORT>(HIWORD(static_cast<std::uint64_t>(lp)));
}

// (a * b) / c rounded to the nearest integer, -1 when c is 0.
constexpr int MulDiv(int a, int b, int c) {
    if (c == 0) return -1;
    std::int64_t p = static_cast<std::int64_t>(a) * b;
    std::int64_t half = (c < 0 ? -c : c) / 2;
    std::int64_t q = ((p < 0) != (c < 0)) ? (p - half) / c : (p + half) / c;
    return static_cast<int>(q);
}

struct POINT {
    LONG x = 0;
    LONG y = 0;
};

struct SIZE {
    LONG cx = 0;
    LONG cy = 0;
};

// Right and bottom are exclusive, as on the desktop platform.
struct RECT {
    LONG left = 0;
    LONG top = 0;
    LONG right = 0;
    LONG bottom = 0;
};

inline bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}
inline bool operator==(const SIZE& a, const SIZE& b) {
    return a.cx == b.cx && a.cy == b.cy;
}
inline bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

TEXTZONE_EXPORT BOOL SetRect(RECT* prc, int left, int top, int right, int bottom);
TEXTZONE_EXPORT BOOL SetRectEmpty(RECT* prc);
TEXTZONE_EXPORT BOOL CopyRect(RECT* pDst, const RECT* pSrc);
TEXTZONE_EXPORT BOOL IsRectEmpty(const RECT* prc);
TEXTZONE_EXPORT BOOL PtInRect(const RECT* prc, POINT pt);
TEXTZONE_EXPORT BOOL OffsetRect(RECT* prc, int dx, int dy);
TEXTZONE_EXPORT BOOL InflateRect(RECT* prc, int dx, int dy);
// Empty result (all zero) when the two do not overlap; returns whether they do.
TEXTZONE_EXPORT BOOL IntersectRect(RECT* pDst, const RECT* pA, const RECT* pB);
TEXTZONE_EXPORT BOOL UnionRect(RECT* pDst, const RECT* pA, const RECT* pB);
TEXTZONE_EXPORT BOOL EqualRect(const RECT* pA, const RECT* pB);

class TEXTZONE_EXPORT CPoint : public POINT {
public:
    CPoint() = default;
    CPoint(int x0, int y0) { x = x0, y = y0; }
    CPoint(const POINT& pt) : POINT(pt) {}
    void Offset(int dx, int dy) { x += dx, y += dy; }
    CPoint operator+(const CPoint& o) const { return {x + o.x, y + o.y}; }
    CPoint operator-(const CPoint& o) const { return {x - o.x, y - o.y}; }
};

class TEXTZONE_EXPORT CSize : public SIZE {
public:
    CSize() = default;
    CSize(int cx0, int cy0) { cx = cx0, cy = cy0; }
    CSize(const SIZE& s) : SIZE(s) {}
};

class TEXTZONE_EXPORT CRect : public RECT {
public:
    CRect() = default;
    CRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    CRect(const RECT& rc) : RECT(rc) {}
    CRect(POINT pt, SIZE sz) {
        left = pt.x, top = pt.y, right = pt.x + sz.cx, bottom = pt.y + sz.cy;
    }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return {Width(), Height()}; }
    CPoint TopLeft() const { return {left, top}; }
    CPoint BottomRight() const { return {right, bottom}; }
    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT pt) const { return ::PtInRect(this, pt); }
    void SetRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
    void SetRectEmpty() { ::SetRectEmpty(this); }
    void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
    void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
    void DeflateRect(int dx, int dy) { ::InflateRect(this, -dx, -dy); }
    void NormalizeRect() {
        if (left > right) std::swap(left, right);
        if (top > bottom) std::swap(top, bottom);
    }
    BOOL IntersectRect(const RECT* a, const RECT* b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(const RECT* a, const RECT* b) { return ::UnionRect(this, a, b); }
    operator RECT*() { return this; }
    operator const RECT*() const { return this; }
};

// Font description, with the fields and sizes of the desktop platform.
constexpr int LF_FACESIZE = 32;

struct LOGFONTA {
    LONG lfHeight = 0;
    LONG lfWidth = 0;
    LONG lfEscapement = 0;
    LONG lfOrientation = 0;
    LONG lfWeight = 0;
    BYTE lfItalic = 0;
    BYTE lfUnderline = 0;
    BYTE lfStrikeOut = 0;
    BYTE lfCharSet = 0;
    BYTE lfOutPrecision = 0;
    BYTE lfClipPrecision = 0;
    BYTE lfQuality = 0;
    BYTE lfPitchAndFamily = 0;
    char lfFaceName[LF_FACESIZE] = {};
};
using LOGFONT = LOGFONTA;

bool operator==(const LOGFONTA& a, const LOGFONTA& b);

struct TEXTMETRICA {
    LONG tmHeight = 0;
    LONG tmAscent = 0;
    LONG tmDescent = 0;
    LONG tmInternalLeading = 0;
    LONG tmExternalLeading = 0;
    LONG tmAveCharWidth = 0;
    LONG tmMaxCharWidth = 0;
    LONG tmWeight = 0;
    LONG tmOverhang = 0;
    LONG tmDigitizedAspectX = 96;
    LONG tmDigitizedAspectY = 96;
    BYTE tmFirstChar = 0;
    BYTE tmLastChar = 255;
    BYTE tmDefaultChar = 0;
    BYTE tmBreakChar = 32;
    BYTE tmItalic = 0;
    BYTE tmUnderlined = 0;
    BYTE tmStruckOut = 0;
    BYTE tmPitchAndFamily = 0;
    BYTE tmCharSet = 0;
};
using TEXTMETRIC = TEXTMETRICA;

// Opaque handles. A window handle and a device-context handle are the
// portable objects themselves; GDI handles are immutable descriptions that a
// drawing context copies when it selects them, so deleting a selected object
// is harmless.
class CWnd;
class CDC;
using HWND = CWnd*;
using HDC = CDC*;
struct GdiObject;
struct FontObject;
struct BrushObject;
struct PenObject;
struct CursorObject;
using HGDIOBJ = const GdiObject*;
using HFONT = const FontObject*;
using HBRUSH = const BrushObject*;
using HPEN = const PenObject*;
using HCURSOR = const CursorObject*;
using HANDLE = void*;
using HINSTANCE = void*;

// A window's new place, as a move or size announces it.
struct WINDOWPOS {
    HWND hwnd = nullptr;
    HWND hwndInsertAfter = nullptr;
    int x = 0;
    int y = 0;
    int cx = 0;
    int cy = 0;
    UINT flags = 0;
};

// The rectangles of WM_NCCALCSIZE: the new window rectangle in, the client
// rectangle out; then the valid source and destination rectangles.
struct NCCALCSIZE_PARAMS {
    RECT rgrc[3];
    WINDOWPOS* lppos = nullptr;
};

// Scroll-bar state exchanged with SetScrollInfo/GetScrollInfo; fMask (SIF_*)
// says which of the other fields count.
struct SCROLLINFO {
    UINT cbSize = 0;
    UINT fMask = 0;
    int nMin = 0;
    int nMax = 0;
    UINT nPage = 0;
    int nPos = 0;
    int nTrackPos = 0;
};
using LPSCROLLINFO = SCROLLINFO*;
using LPCSCROLLINFO = const SCROLLINFO*;

// A queued message as a message loop sees it; pt is the cursor in screen
// coordinates when it was posted.
struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    DWORD time = 0;
    POINT pt;
};
using LPMSG = MSG*;
