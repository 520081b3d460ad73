#include "pages/ColorComboBox2.h"

#include <algorithm>

#include "platform/Brush.h"
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Palette.h"
#include "platform/Platform.h"

namespace {

constexpr DWORD_PTR kDefaultItem = static_cast<DWORD_PTR>(-1);

}  // namespace

void CColorComboBox2::AddColors() {
    const UINT nEntries = GetDefaultPaletteSize();
    for (UINT n = 0; n < nEntries; ++n)
        AddItem(n);
}

void CColorComboBox2::SelectColor(COLORREF cr) {
    const DWORD_PTR dwData =
        cr == static_cast<COLORREF>(-1) ? kDefaultItem : GetNearestPaletteIndex(cr);
    for (int i = 0; i < GetCount(); ++i) {
        if (GetItemData(i) == dwData) {
            SetCurSel(i);
            return;
        }
    }
}

COLORREF CColorComboBox2::GetSelectedColor() {
    const int nSel = GetCurSel();
    if (nSel < 0) return static_cast<COLORREF>(-1);
    const DWORD_PTR dwData = GetItemData(nSel);
    if (dwData == kDefaultItem) return static_cast<COLORREF>(-1);
    return ColorOfData(dwData);
}

COLORREF CColorComboBox2::ColorOfData(DWORD_PTR dwData, bool* pbFound) {
    PALETTEENTRY entry{};
    const bool bFound =
        dwData < 0xFFFFFFFFu && GetPaletteEntries(static_cast<UINT>(dwData), 1, &entry) == 1;
    if (pbFound) *pbFound = bFound;
    return bFound ? RGB(entry.peRed, entry.peGreen, entry.peBlue) : GetSysColor(COLOR_WINDOWTEXT);
}

DWORD CColorComboBox2::SortKey(COLORREF cr) {
    const int r = GetRValue(cr), g = GetGValue(cr), b = GetBValue(cr);
    const int nMax = std::max({r, g, b}), nMin = std::min({r, g, b});
    const int l = ((nMax + nMin + 1) * 255) / 510;
    int s = 0, h = 170;
    if (nMax != nMin) {
        const int d = nMax - nMin;
        if (l <= 127)
            s = (d * 255 + (nMax + nMin) / 2) / (nMax + nMin);
        else
            s = (d * 255 + (510 - nMax - nMin) / 2) / (510 - nMax - nMin);
        const int rd = ((nMax - r) * 42 + d / 2) / d;
        const int gd = ((nMax - g) * 42 + d / 2) / d;
        const int bd = ((nMax - b) * 42 + d / 2) / d;
        if (r == nMax)
            h = bd - gd;
        else if (g == nMax)
            h = rd - bd + 85;
        else
            h = gd - rd + 170;
    }
    unsigned int uh = static_cast<unsigned int>(h);
    if (uh > 255) uh -= 255;
    return (uh & 0xFF) | static_cast<DWORD>(l) << 8 | static_cast<DWORD>(s) << 16;
}

int CColorComboBox2::CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    const DWORD k1 = SortKey(ColorOfData(lpCompareItemStruct->itemData1));
    const DWORD k2 = SortKey(ColorOfData(lpCompareItemStruct->itemData2));
    return k1 < k2 ? -1 : k1 > k2 ? 1 : 0;
}

void CColorComboBox2::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = lpDrawItemStruct->hDC;
    if (!pDC) return;
    RECT rc = lpDrawItemStruct->rcItem;
    if (lpDrawItemStruct->itemState & ODS_FOCUS) pDC->DrawFocusRect(&rc);
    const int nSaved = pDC->SaveDC();
    pDC->SetBkMode(TRANSPARENT);
    rc.left += 2;
    rc.top += 2;
    rc.right -= 2;
    rc.bottom -= 2;
    CBrush brush(ColorOfData(lpDrawItemStruct->itemData));
    pDC->SelectObject(&brush);
    pDC->Rectangle(&rc);
    CBrush brushWindow(GetSysColor(COLOR_WINDOW));
    if (lpDrawItemStruct->itemData == kDefaultItem) {
        pDC->SelectObject(&brushWindow);
        pDC->Rectangle(&rc);
        pDC->SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
        pDC->TextOut(rc.left + 2, rc.top, "Default", 7);
    }
    pDC->RestoreDC(nSaved);
}
