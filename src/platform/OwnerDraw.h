// Records of owner-drawn controls and palette entries.
#pragma once

#include <cstdint>

#include "platform/Types.h"

using DWORD_PTR = std::uintptr_t;

class CDC;

struct DRAWITEMSTRUCT {
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemAction;
    UINT itemState;
    void* hwndItem;
    CDC* hDC;
    RECT rcItem;
    DWORD_PTR itemData;
};
using LPDRAWITEMSTRUCT = DRAWITEMSTRUCT*;

struct COMPAREITEMSTRUCT {
    UINT CtlType;
    UINT CtlID;
    void* hwndItem;
    UINT itemID1;
    DWORD_PTR itemData1;
    UINT itemID2;
    DWORD_PTR itemData2;
};
using LPCOMPAREITEMSTRUCT = COMPAREITEMSTRUCT*;

struct PALETTEENTRY {
    BYTE peRed;
    BYTE peGreen;
    BYTE peBlue;
    BYTE peFlags;
};
