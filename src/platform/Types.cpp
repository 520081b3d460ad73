#include "platform/Types.h"

#include <cstring>

BOOL SetRect(RECT* prc, int left, int top, int right, int bottom) {
    if (!prc) return FALSE;
    *prc = RECT{left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(RECT* prc) {
    return SetRect(prc, 0, 0, 0, 0);
}

BOOL CopyRect(RECT* pDst, const RECT* pSrc) {
    if (!pDst || !pSrc) return FALSE;
    *pDst = *pSrc;
    return TRUE;
}

BOOL IsRectEmpty(const RECT* prc) {
    return !prc || prc->right <= prc->left || prc->bottom <= prc->top;
}

BOOL PtInRect(const RECT* prc, POINT pt) {
    return prc && pt.x >= prc->left && pt.x < prc->right && pt.y >= prc->top && pt.y < prc->bottom;
}

BOOL OffsetRect(RECT* prc, int dx, int dy) {
    if (!prc) return FALSE;
    prc->left += dx, prc->right += dx, prc->top += dy, prc->bottom += dy;
    return TRUE;
}

BOOL InflateRect(RECT* prc, int dx, int dy) {
    if (!prc) return FALSE;
    prc->left -= dx, prc->right += dx, prc->top -= dy, prc->bottom += dy;
    return TRUE;
}

BOOL IntersectRect(RECT* pDst, const RECT* pA, const RECT* pB) {
    if (!pDst || !pA || !pB) return FALSE;
    RECT r{std::max(pA->left, pB->left), std::max(pA->top, pB->top), std::min(pA->right, pB->right),
           std::min(pA->bottom, pB->bottom)};
    if (IsRectEmpty(&r)) {
        *pDst = RECT{};
        return FALSE;
    }
    *pDst = r;
    return TRUE;
}

BOOL UnionRect(RECT* pDst, const RECT* pA, const RECT* pB) {
    if (!pDst || !pA || !pB) return FALSE;
    if (IsRectEmpty(pA)) {
        *pDst = IsRectEmpty(pB) ? RECT{} : *pB;
    } else if (IsRectEmpty(pB)) {
        *pDst = *pA;
    } else {
        *pDst = RECT{std::min(pA->left, pB->left), std::min(pA->top, pB->top),
                     std::max(pA->right, pB->right), std::max(pA->bottom, pB->bottom)};
    }
    return !IsRectEmpty(pDst);
}

BOOL EqualRect(const RECT* pA, const RECT* pB) {
    return pA && pB && *pA == *pB;
}

bool operator==(const LOGFONTA& a, const LOGFONTA& b) {
    return a.lfHeight == b.lfHeight && a.lfWidth == b.lfWidth && a.lfEscapement == b.lfEscapement &&
           a.lfOrientation == b.lfOrientation && a.lfWeight == b.lfWeight &&
           a.lfItalic == b.lfItalic && a.lfUnderline == b.lfUnderline &&
           a.lfStrikeOut == b.lfStrikeOut && a.lfCharSet == b.lfCharSet &&
           a.lfOutPrecision == b.lfOutPrecision && a.lfClipPrecision == b.lfClipPrecision &&
           a.lfQuality == b.lfQuality && a.lfPitchAndFamily == b.lfPitchAndFamily &&
           std::strncmp(a.lfFaceName, b.lfFaceName, LF_FACESIZE) == 0;
}
