#include "platform/Rgn.h"

#include <algorithm>

#include "platform/Messages.h"

namespace {

// Pieces of a that lie outside b: at most four bands.
void SubtractRect(const RECT& a, const RECT& b, std::vector<RECT>& out) {
    RECT i;
    if (!IntersectRect(&i, &a, &b)) {
        out.push_back(a);
        return;
    }
    if (a.top < i.top) out.push_back(RECT{a.left, a.top, a.right, i.top});
    if (i.bottom < a.bottom) out.push_back(RECT{a.left, i.bottom, a.right, a.bottom});
    if (a.left < i.left) out.push_back(RECT{a.left, i.top, i.left, i.bottom});
    if (i.right < a.right) out.push_back(RECT{i.right, i.top, a.right, i.bottom});
}

}  // namespace

BOOL CRgn::CreateRectRgnIndirect(const RECT* prc) {
    if (!prc) return FALSE;
    SetRectRgn(prc);
    return TRUE;
}

void CRgn::SetRectRgn(int l, int t, int r, int b) {
    m_rects.clear();
    RECT rc{std::min(l, r), std::min(t, b), std::max(l, r), std::max(t, b)};
    if (!IsRectEmpty(&rc)) m_rects.push_back(rc);
}

void CRgn::SetRectRgn(const RECT* prc) {
    if (prc) SetRectRgn(prc->left, prc->top, prc->right, prc->bottom);
}

void CRgn::AddDisjoint(const RECT& rc) {
    if (!IsRectEmpty(&rc)) m_rects.push_back(rc);
}

// Joins rectangles that share a full edge, so that regions grown by many
// small invalidations stay short.
void CRgn::Coalesce() {
    bool merged = true;
    while (merged && m_rects.size() > 1) {
        merged = false;
        for (size_t i = 0; i < m_rects.size() && !merged; ++i) {
            for (size_t j = i + 1; j < m_rects.size() && !merged; ++j) {
                RECT& a = m_rects[i];
                const RECT& b = m_rects[j];
                if (a.left == b.left && a.right == b.right &&
                    (a.bottom == b.top || b.bottom == a.top)) {
                    a.top = std::min(a.top, b.top), a.bottom = std::max(a.bottom, b.bottom);
                    merged = true;
                } else if (a.top == b.top && a.bottom == b.bottom &&
                           (a.right == b.left || b.right == a.left)) {
                    a.left = std::min(a.left, b.left), a.right = std::max(a.right, b.right);
                    merged = true;
                }
                if (merged) m_rects.erase(m_rects.begin() + static_cast<long>(j));
            }
        }
    }
}

CRgn CRgn::Union(const CRgn& a, const CRgn& b) {
    CRgn r = a;
    for (const RECT& rb : b.m_rects) {
        std::vector<RECT> pieces{rb};
        for (const RECT& ra : a.m_rects) {
            std::vector<RECT> next;
            for (const RECT& p : pieces)
                SubtractRect(p, ra, next);
            pieces.swap(next);
        }
        for (const RECT& p : pieces)
            r.AddDisjoint(p);
    }
    r.Coalesce();
    return r;
}

CRgn CRgn::Intersection(const CRgn& a, const CRgn& b) {
    CRgn r;
    for (const RECT& ra : a.m_rects)
        for (const RECT& rb : b.m_rects) {
            RECT i;
            if (IntersectRect(&i, &ra, &rb)) r.AddDisjoint(i);
        }
    r.Coalesce();
    return r;
}

CRgn CRgn::Difference(const CRgn& a, const CRgn& b) {
    CRgn r;
    std::vector<RECT> pieces = a.m_rects;
    for (const RECT& rb : b.m_rects) {
        std::vector<RECT> next;
        for (const RECT& p : pieces)
            SubtractRect(p, rb, next);
        pieces.swap(next);
    }
    for (const RECT& p : pieces)
        r.AddDisjoint(p);
    r.Coalesce();
    return r;
}

int CRgn::CombineRgn(const CRgn* a, const CRgn* b, int nMode) {
    if (!a) return RGN_ERROR;
    if (nMode == RGN_COPY) {
        if (a != this) m_rects = a->m_rects;
        return Type();
    }
    if (!b) return RGN_ERROR;
    switch (nMode) {
        case RGN_AND:
            *this = Intersection(*a, *b);
            break;
        case RGN_OR:
            *this = Union(*a, *b);
            break;
        case RGN_DIFF:
            *this = Difference(*a, *b);
            break;
        case RGN_XOR:
            *this = Union(Difference(*a, *b), Difference(*b, *a));
            break;
        default:
            return RGN_ERROR;
    }
    return Type();
}

int CRgn::CopyRgn(const CRgn* src) {
    return CombineRgn(src, nullptr, RGN_COPY);
}

int CRgn::OffsetRgn(int dx, int dy) {
    for (RECT& rc : m_rects)
        ::OffsetRect(&rc, dx, dy);
    return Type();
}

int CRgn::GetRgnBox(RECT* prc) const {
    if (!prc) return RGN_ERROR;
    *prc = RECT{};
    for (const RECT& rc : m_rects)
        UnionRect(prc, prc, &rc);
    return Type();
}

BOOL CRgn::PtInRegion(int x, int y) const {
    return std::any_of(m_rects.begin(), m_rects.end(), [&](const RECT& rc) {
        return ::PtInRect(&rc, POINT{x, y});
    });
}

BOOL CRgn::RectInRegion(const RECT* prc) const {
    if (!prc) return FALSE;
    RECT i;
    return std::any_of(m_rects.begin(), m_rects.end(),
                       [&](const RECT& rc) { return IntersectRect(&i, &rc, prc); });
}

BOOL CRgn::EqualRgn(const CRgn* other) const {
    return other && Difference(*this, *other).IsEmpty() && Difference(*other, *this).IsEmpty();
}

int CRgn::Type() const {
    if (m_rects.empty()) return NULLREGION;
    return m_rects.size() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

long long CRgn::Area() const {
    long long area = 0;
    for (const RECT& rc : m_rects)
        area += static_cast<long long>(rc.right - rc.left) * (rc.bottom - rc.top);
    return area;
}
