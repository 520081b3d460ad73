#include "platform/GdiObjects.h"

#include <cstring>

#include "platform/Messages.h"

namespace {

LOGFONTA StockFont(const char* face, int height, int weight, BYTE pitch) {
    LOGFONTA lf;
    lf.lfHeight = height;
    lf.lfWeight = weight;
    lf.lfPitchAndFamily = pitch;
    std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    return lf;
}

}  // namespace

HFONT CreateFontIndirectA(const LOGFONTA* plf) {
    if (!plf) return nullptr;
    return new FontObject(*plf);
}

HBRUSH CreateSolidBrush(COLORREF cr) {
    return new BrushObject(BS_SOLID, cr);
}

HPEN CreatePen(int nStyle, int nWidth, COLORREF cr) {
    return new PenObject(nStyle, nWidth, cr);
}

HGDIOBJ GetStockObject(int nIndex) {
    static const BrushObject white(BS_SOLID, RGB(255, 255, 255), true);
    static const BrushObject ltgray(BS_SOLID, RGB(192, 192, 192), true);
    static const BrushObject gray(BS_SOLID, RGB(128, 128, 128), true);
    static const BrushObject dkgray(BS_SOLID, RGB(64, 64, 64), true);
    static const BrushObject black(BS_SOLID, RGB(0, 0, 0), true);
    static const BrushObject null(BS_NULL, 0, true);
    static const PenObject whitePen(PS_SOLID, 1, RGB(255, 255, 255), true);
    static const PenObject blackPen(PS_SOLID, 1, RGB(0, 0, 0), true);
    static const PenObject nullPen(PS_NULL, 0, 0, true);
    static const FontObject system(StockFont(kSystemFontFace, 16, FW_BOLD, VARIABLE_PITCH), true);
    static const FontObject systemFixed(StockFont(kSystemFixedFontFace, 15, FW_NORMAL, FIXED_PITCH),
                                        true);
    static const FontObject ansiFixed(StockFont("Courier", 13, FW_NORMAL, FIXED_PITCH), true);
    static const FontObject ansiVar(StockFont("MS Sans Serif", 13, FW_NORMAL, VARIABLE_PITCH),
                                    true);
    static const FontObject gui(StockFont("MS Shell Dlg", 13, FW_NORMAL, VARIABLE_PITCH), true);
    switch (nIndex) {
        case WHITE_BRUSH:
            return &white;
        case LTGRAY_BRUSH:
            return &ltgray;
        case GRAY_BRUSH:
            return &gray;
        case DKGRAY_BRUSH:
            return &dkgray;
        case BLACK_BRUSH:
            return &black;
        case NULL_BRUSH:
            return &null;
        case WHITE_PEN:
            return &whitePen;
        case BLACK_PEN:
            return &blackPen;
        case NULL_PEN:
            return &nullPen;
        case SYSTEM_FONT:
            return &system;
        case SYSTEM_FIXED_FONT:
            return &systemFixed;
        case ANSI_FIXED_FONT:
            return &ansiFixed;
        case ANSI_VAR_FONT:
            return &ansiVar;
        case DEVICE_DEFAULT_FONT:
            return &system;
        case DEFAULT_GUI_FONT:
            return &gui;
        default:
            return nullptr;
    }
}

BOOL DeleteObject(HGDIOBJ hObject) {
    if (!hObject || hObject->bStock) return FALSE;
    delete hObject;
    return TRUE;
}

int GetObjectA(HGDIOBJ hObject, int cbBuffer, void* pv) {
    if (!hObject || hObject->kind != GdiObject::Font) return 0;
    const auto* font = static_cast<const FontObject*>(hObject);
    int size = static_cast<int>(sizeof(LOGFONTA));
    if (!pv) return size;
    int n = cbBuffer < size ? cbBuffer : size;
    if (n <= 0) return 0;
    std::memcpy(pv, &font->lf, static_cast<size_t>(n));
    return n;
}
