// A drawing context. The state (selected objects, colours, modes, clip) and
// all measuring live here, portably, so that both backends measure and
// expand tabs identically; a backend supplies only the metrics of a font and
// a handful of drawing primitives in device pixels.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "TextzoneExport.h"
#include "platform/FontMetrics.h"
#include "platform/GdiObjects.h"
#include "platform/Rgn.h"
#include "platform/Types.h"

class CImageList;
struct DOCINFOA;
class CFont;
class CBrush;
class CPen;

class TEXTZONE_EXPORT CDC {
public:
    CDC();
    virtual ~CDC();
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC GetSafeHdc() { return this; }
    static CDC* FromHandle(HDC hDC) { return hDC; }

    // Objects and attributes.
    HFONT SelectObject(HFONT hFont);
    HFONT SelectObject(const CFont* pFont);
    HBRUSH SelectObject(HBRUSH hBrush);
    HBRUSH SelectObject(const CBrush* pBrush);
    HPEN SelectObject(HPEN hPen);
    HPEN SelectObject(const CPen* pPen);
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    HGDIOBJ SelectStockObject(int nIndex);
    HFONT GetCurrentFont() const { return m_hFont; }
    const LOGFONTA& GetCurrentLogFont() const { return m_font; }

    COLORREF SetTextColor(COLORREF cr);
    COLORREF GetTextColor() const { return m_crText; }
    COLORREF SetBkColor(COLORREF cr);
    COLORREF GetBkColor() const { return m_crBk; }
    int SetBkMode(int nMode);
    int GetBkMode() const { return m_nBkMode; }
    int SetMapMode(int nMode);  // pixels only: MM_TEXT
    int GetMapMode() const { return m_nMapMode; }

    int SaveDC();
    BOOL RestoreDC(int nSavedDC);  // a negative value counts back from the last save

    // Measuring in the selected font.
    BOOL GetTextMetrics(TEXTMETRICA* ptm);
    CSize GetTextExtent(const char* psz, int nCount);
    // Tabs expand against the stops counted from the start of the text: no
    // stops means eight average characters, one stop is the step, several
    // are positions (past the last one the last step repeats).
    CSize GetTabbedTextExtent(const char* psz, int nCount, int nTabPositions, const int* pTabStops);
    BOOL GetCharWidth(UINT nFirst, UINT nLast, int* pBuffer);
    const FontMetrics& Metrics();

    // Drawing. Text is placed by the top left of its cell; in OPAQUE mode its
    // cell is filled with the background colour first.
    BOOL TextOut(int x, int y, const char* psz, int nCount);
    // As TextOut, expanding tabs against stops counted from nTabOrigin; the
    // gaps of tabs are filled too in OPAQUE mode. Returns the extent drawn.
    CSize TabbedTextOut(int x, int y, const char* psz, int nCount, int nTabPositions,
                        const int* pTabStops, int nTabOrigin);
    void FillRect(const RECT* prc, HBRUSH hBrush);
    void FillRect(const RECT* prc, const CBrush* pBrush);
    void FillSolidRect(const RECT* prc, COLORREF cr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF cr);
    // Outlined with the selected pen, filled with the selected brush; the
    // shape covers left..right-1 and top..bottom-1, so without a pen the
    // fill stops one pixel short of the right and bottom edges.
    BOOL Rectangle(int l, int t, int r, int b);
    BOOL Rectangle(const RECT* prc);
    BOOL RoundRect(int l, int t, int r, int b, int nEllipseW, int nEllipseH);
    void DrawFocusRect(const RECT* prc);
    BOOL DrawImage(const CImageList& list, int nImage, int x, int y, UINT nStyle);

    // Clipping, in device pixels. The effective clip is what the context may
    // reach (its surface, or the invalid region in a paint) within the
    // clip region chosen by the caller.
    int IntersectClipRect(int l, int t, int r, int b);
    int IntersectClipRect(const RECT* prc);
    int ExcludeClipRect(int l, int t, int r, int b);
    int SelectClipRgn(const CRgn* pRgn);  // null removes the caller's clip
    int GetClipBox(RECT* prc) const;
    BOOL RectVisible(const RECT* prc) const;
    CRgn GetEffectiveClip() const;

    // Moves the pixels of the scroll rectangle by (dx, dy) within the clip
    // rectangle and reports what was uncovered, as region and bounding box.
    BOOL ScrollDC(int dx, int dy, const RECT* prcScroll, const RECT* prcClip, CRgn* pRgnUpdate,
                  RECT* prcUpdate);

    virtual int GetDeviceCaps(int nIndex);
    // Logical units are device pixels (MM_TEXT): nothing to convert.
    void DPtoLP(RECT*) const {}

    // Printing. A printer's context has a document of pages; any other
    // refuses with -1.
    virtual int StartDoc(const DOCINFOA* pInfo);
    virtual int StartPage();
    virtual int EndPage();
    virtual int EndDoc();
    virtual int AbortDoc();

protected:
    // The region this context may draw on at all, set by whoever made it.
    void SetSystemClip(const CRgn& rgn) { m_rgnSystem = rgn; }
    const CRgn& GetSystemClip() const { return m_rgnSystem; }

    // Backend primitives, in device pixels, always inside GetEffectiveClip().
    virtual const FontMetrics& MetricsOf(const LOGFONTA& lf) = 0;
    virtual void DoFill(const RECT& rc, COLORREF cr) = 0;
    // A run without tabs in the current font and text colour; the cell
    // background is filled by the caller when the mode is OPAQUE.
    virtual void DoText(int x, int y, const char* p, int n, int nWidth) = 0;
    virtual void DoRoundRect(const RECT& rc, int ew, int eh, const PenObject& pen,
                             const BrushObject& brush) = 0;
    virtual void DoImage(const CImageList& list, int nImage, int x, int y, UINT nStyle) = 0;
    // Copies pixels of rcSource by (dx, dy); only window contexts can.
    virtual BOOL DoScroll(int dx, int dy, const RECT& rcSource);
    virtual void DoFocusRect(const RECT& rc);
    // The pen and brush the shapes use, as descriptions.
    const PenObject& CurrentPen() const { return m_pen; }
    const BrushObject& CurrentBrush() const { return m_brush; }

private:
    struct State {
        HFONT hFont;
        LOGFONTA font;
        HBRUSH hBrush;
        BrushObject brush;
        HPEN hPen;
        PenObject pen;
        COLORREF crText, crBk;
        int nBkMode, nMapMode;
        std::optional<CRgn> clip;
    };
    void FillClipped(const RECT& rc, COLORREF cr);
    int ClipType() const;
    int NextTabStop(int xRel, int nTabPositions, const int* pTabStops, int nDefault) const;

    HFONT m_hFont = nullptr;
    LOGFONTA m_font;
    const FontMetrics* m_pMetrics = nullptr;  // of m_font, looked up lazily
    HBRUSH m_hBrush = nullptr;
    BrushObject m_brush;
    HPEN m_hPen = nullptr;
    PenObject m_pen;
    COLORREF m_crText = 0;
    COLORREF m_crBk = 0xFFFFFF;
    int m_nBkMode;
    int m_nMapMode;
    CRgn m_rgnSystem;
    std::optional<CRgn> m_clip;
    std::vector<State> m_saved;
};

// Free forms of the calls above, for code that holds a handle.
TEXTZONE_EXPORT DWORD GetTabbedTextExtentA(HDC hDC, const char* psz, int nCount, int nTabPositions,
                                           const int* pTabStops);
TEXTZONE_EXPORT LONG TabbedTextOutA(HDC hDC, int x, int y, const char* psz, int nCount,
                                    int nTabPositions, const int* pTabStops, int nTabOrigin);
TEXTZONE_EXPORT BOOL GetTextExtentPoint32A(HDC hDC, const char* psz, int nCount, SIZE* psz2);
TEXTZONE_EXPORT BOOL GetTextMetricsA(HDC hDC, TEXTMETRICA* ptm);
