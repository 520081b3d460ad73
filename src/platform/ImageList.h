// A list of equally sized images, for margin marks. Images are held as
// 0xAARRGGBB pixels so that the engine stays free of any image library;
// the drawing context of each backend knows how to put them on its surface.
#pragma once

#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CDC;

class TEXTZONE_EXPORT CImageList {
public:
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // Appends an image of cx * cy pixels, row by row; returns its index or -1.
    int Add(const std::vector<DWORD>& pixels);
    int GetImageCount() const { return static_cast<int>(m_images.size()); }
    BOOL GetIconSize(int* pcx, int* pcy) const;
    const std::vector<DWORD>* GetImage(int nImage) const;
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) const;

private:
    int m_cx = 0;
    int m_cy = 0;
    std::vector<std::vector<DWORD>> m_images;
};

TEXTZONE_EXPORT BOOL ImageList_Draw(const CImageList* himl, int i, HDC hdcDst, int x, int y,
                                    UINT fStyle);
