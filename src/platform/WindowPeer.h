// What a backend supplies for one window: geometry, a drawing surface and
// the echo of state the portable window keeps (invalid region, scroll bars,
// caret). Input comes back the other way, as messages to CWnd::WindowProc.
#pragma once

#include <memory>

#include "TextzoneExport.h"
#include "platform/Rgn.h"
#include "platform/Types.h"

class CDC;

class TEXTZONE_EXPORT IWindowPeer {
public:
    virtual ~IWindowPeer() = default;

    // Client area in client coordinates, (0, 0) at its top left.
    virtual void GetClientRect(RECT* prc) = 0;
    // Window rectangle in screen coordinates.
    virtual void GetWindowRect(RECT* prc) = 0;
    // Moves and sizes the window; the rectangle is in the parent's client
    // coordinates (screen coordinates for a top-level window).
    virtual void SetWindowRect(const RECT& rc) = 0;
    virtual void ClientToScreen(POINT* ppt) = 0;
    virtual void ScreenToClient(POINT* ppt) = 0;
    virtual void Show(int nCmdShow) = 0;
    virtual bool IsVisible() = 0;
    virtual void Enable(bool bEnable) = 0;

    // A drawing context on the client area. With a paint region it is the
    // context of a paint, clipped to that region.
    virtual std::unique_ptr<CDC> CreateDC(const CRgn* pPaintRegion) = 0;
    // The region was invalidated: arrange for a WM_PAINT to come.
    virtual void OnInvalidate(const CRgn& rgn, BOOL bErase) = 0;
    // A paint or a drawing outside a paint has ended; show what was drawn.
    virtual void OnDrawn() = 0;

    // The portable window changed a scroll bar (SB_HORZ, SB_VERT, SB_CTL),
    // its style bits, or the caret it owns: reflect it.
    virtual void OnScrollBarChanged(int nBar) = 0;
    virtual void OnStyleChanged() = 0;
    virtual void OnCaretChanged() = 0;
    // The window's text changed: a window with a title bar shows it.
    virtual void OnTextChanged() {}
    // A top-level window comes forward and takes the keyboard.
    virtual void Activate() {}
};
