// The colour picker of the option and font pages: a sorted, owner-drawn
// combo whose items are indexes into the default palette, and -1 for
// "Default" (the system's colour). Items sort by hue, luminance and
// saturation, so related colours stand together.
#pragma once

#include "TextzoneExport.h"
#include "platform/ComboBox.h"

class TEXTZONE_EXPORT CColorComboBox2 : public CComboBox {
public:
    // One item per entry of the default palette, item n with data n.
    void AddColors();
    // -1 selects the "Default" item (if any); another colour selects the
    // nearest palette entry.
    void SelectColor(COLORREF cr);
    // -1 for "Default" and for no selection, else the palette's colour.
    COLORREF GetSelectedColor();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) override;

    // The colour an item's data stands for: its palette entry, or the
    // window text colour when there is none (as for -1).
    static COLORREF ColorOfData(DWORD_PTR dwData, bool* pbFound = nullptr);
    // hue | luminance << 8 | saturation << 16, in whole numbers.
    static DWORD SortKey(COLORREF cr);
};
