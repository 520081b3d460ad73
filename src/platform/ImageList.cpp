#include "platform/ImageList.h"

#include "platform/DC.h"

BOOL CImageList::Create(int cx, int cy, UINT, int nInitial, int) {
    if (cx < 1 || cy < 1) return FALSE;
    m_cx = cx, m_cy = cy;
    m_images.clear();
    if (nInitial > 0) m_images.reserve(static_cast<size_t>(nInitial));
    return TRUE;
}

int CImageList::Add(const std::vector<DWORD>& pixels) {
    if (m_cx < 1 || pixels.size() != static_cast<size_t>(m_cx) * static_cast<size_t>(m_cy))
        return -1;
    m_images.push_back(pixels);
    return GetImageCount() - 1;
}

BOOL CImageList::GetIconSize(int* pcx, int* pcy) const {
    if (!pcx || !pcy) return FALSE;
    *pcx = m_cx, *pcy = m_cy;
    return TRUE;
}

const std::vector<DWORD>* CImageList::GetImage(int nImage) const {
    if (nImage < 0 || nImage >= GetImageCount()) return nullptr;
    return &m_images[static_cast<size_t>(nImage)];
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) const {
    return pDC ? pDC->DrawImage(*this, nImage, pt.x, pt.y, nStyle) : FALSE;
}

BOOL ImageList_Draw(const CImageList* himl, int i, HDC hdcDst, int x, int y, UINT fStyle) {
    return himl ? himl->Draw(hdcDst, i, POINT{x, y}, fStyle) : FALSE;
}
