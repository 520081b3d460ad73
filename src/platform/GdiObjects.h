// Drawing objects behind the GDI handles. Each object is an immutable
// description: a drawing context copies what it needs when the object is
// selected, so a backend never holds on to a handle and deleting a selected
// object is harmless.
#pragma once

#include "TextzoneExport.h"
#include "platform/Types.h"

struct GdiObject {
    enum Kind { Font, Brush, Pen };
    explicit GdiObject(Kind k, bool stock = false) : kind(k), bStock(stock) {}
    virtual ~GdiObject() = default;
    Kind kind;
    bool bStock;  // stock objects live for the process and ignore DeleteObject
};

struct FontObject : GdiObject {
    explicit FontObject(const LOGFONTA& f, bool stock = false) : GdiObject(Font, stock), lf(f) {}
    LOGFONTA lf;
};

struct BrushObject : GdiObject {
    BrushObject(UINT style, COLORREF cr, bool stock = false)
        : GdiObject(Brush, stock), lbStyle(style), lbColor(cr) {}
    UINT lbStyle;  // BS_SOLID or BS_NULL
    COLORREF lbColor;
};

struct PenObject : GdiObject {
    PenObject(int style, int width, COLORREF cr, bool stock = false)
        : GdiObject(Pen, stock), lopnStyle(style), lopnWidth(width), lopnColor(cr) {}
    int lopnStyle;  // PS_SOLID or PS_NULL
    int lopnWidth;
    COLORREF lopnColor;
};

TEXTZONE_EXPORT HFONT CreateFontIndirectA(const LOGFONTA* plf);
TEXTZONE_EXPORT HBRUSH CreateSolidBrush(COLORREF cr);
TEXTZONE_EXPORT HPEN CreatePen(int nStyle, int nWidth, COLORREF cr);
// Stock objects by their desktop ids (WHITE_BRUSH, NULL_PEN, SYSTEM_FONT, ...);
// null for an unknown id.
TEXTZONE_EXPORT HGDIOBJ GetStockObject(int nIndex);
TEXTZONE_EXPORT BOOL DeleteObject(HGDIOBJ hObject);
// Copies the object's description (LOGFONTA for a font) and returns the bytes
// written; with a null buffer returns the size needed.
TEXTZONE_EXPORT int GetObjectA(HGDIOBJ hObject, int cbBuffer, void* pv);

// The face of the stock fonts, for backends that map faces to real fonts.
constexpr const char* kSystemFontFace = "System";
constexpr const char* kSystemFixedFontFace = "Fixedsys";
